// What a keeper does in one window, and what every other window then shows. A row has the readings that change and what
// they become; all the others must read as before, so each pair of windows is looked at, and a pair in which nothing
// can change needs no row. The windows among the children are read as they stand, and the others as they are opened
// next. The calendar, the diagnosis, "Add Animal", About and the credits show nothing that another window can change.
#include "Desk.h"
#include "platform/chart/Chart.h"
#include "support/TestFiles.h"
#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_DiagnosisQA.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/common/CalendarControls.h"
#include "windows/common/frm_Caltool.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/frm_OMKaboutbox.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

namespace {

class Pairs;

struct Change
{
    const char *name;
    void (*play)(Pairs &);
    QMap<QString, QString> then; ///< the readings that it changes
};

void PrintTo(const Change &change, std::ostream *out) { *out << change.name; }

/// All children are open. The logbook is in front and shows the water tests of "Reef". "Reef" and "Bowl" have two
/// tests each, and "Reef" an animal and a task.
class Pairs : public Desk, public testing::WithParamInterface<Change>
{
public:
    using Desk::give, Desk::keeper, Desk::list, Desk::logbook, Desk::main, Desk::push, Desk::execute;

    Pairs()
    {
        Database::Transaction whole(*keeper.g().gDatabase);
        for (const auto &[tank, values] : {std::pair("r1", "8, 1"), {"b1", "7, 5"}})
            for (const char *day : {"2026-03-10", "2026-03-11"})
                addEntry(WaterTab, tank, QString(day) + " 09:30:00", "ph, nitrate", values);
        addEntry(LivestockTab, "r1", "2026-03-10 09:30:00", "animalname, quantity", "'Tang', 1");
        addEntry(MaintenanceTab, "r1", "2026-03-10 09:30:00", "maintlogtask, maintlogqty", "'Feeding', 1");
        for (const auto &[task, day] : {std::pair("Feed", "2026-03-16"), {"Dose", "2026-03-18"}})
            execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                    "SchedRSubtype, SchedEnglishDesc) VALUES (?1, ?2, '2026-04-01', 200, 0, 0, 'Often.')",
                    {QString(task), QString(day)});
        whole.commit();
        writeFile("NAMESSW.TXT", QByteArray("Clam").leftJustified(49) + "Tridacna\n");
        writeFile("NAMESFW.TXT", QByteArray("Oscar").leftJustified(49) + "Astronotus\n");
        push("graphentries");
        for (const Qt::Key tool : {Qt::Key_E, Qt::Key_M, Qt::Key_F, Qt::Key_S})
            hand::press(tool, Qt::ControlModifier);
        mouse::click(Form<frm_Schedule>().cmd_Generate);
        for (const char *tool : {"commonnames", "conversions"})
            hand::click<QToolButton>(*main, tool);
        backToLogbook();
        hand::clickTank(*logbook, "Reef");
        keeper.told();
    }
    template <class F> F &toFront()
    {
        main->ShowChild(Form<F>());
        return Form<F>();
    }
    void backToLogbook() { logbook = &hand::openLogbook(*main); }
    /// The logbook in front, on a log of a tank: "Reef" by its id, where "All Tanks" has come in its place.
    void goToLog(LogTab tab)
    {
        backToLogbook();
        QTreeWidgetItem &root = *logbook->TreeView1->topLevelItem(0);
        if (logbook->TreeView1->currentItem() == &root) {
            int line = root.childCount() - 1;
            while (line > 0 && root.child(line)->data(0, Qt::UserRole) != "r1")
                --line;
            hand::clickTank(*logbook, root.child(line)->text(0));
        }
        hand::clickTab(*logbook->tab_logtype, tab);
    }
    /// What a window that is opened next shows; it is left by Esc.
    template <class F> static QString next(const std::function<void()> &open, const std::function<QString(F &)> &read)
    {
        QString seen;
        Keeper::inNext<F>([&](F &window) {
            seen = read(window);
            hand::press(Qt::Key_Escape);
        });
        open();
        return seen;
    }
    template <class F> QString nextEntry(LogTab tab, const char *button, const std::function<QString(F &)> &read)
    {
        goToLog(tab);
        if (button == QByteArray("moveentries") && list().Count() == 0)
            return "none";
        if (button == QByteArray("moveentries"))
            hand::clickRow(list(), 1);
        return next<F>([&] { push(button); }, read);
    }
    void inNextOptions(const std::function<void(frm_OMKOptions &)> &change)
    {
        keeper.inNext<frm_OMKOptions>([change](frm_OMKOptions &window) {
            change(window);
            mouse::click(window.cmdOK);
        });
    }
    void inTankSetup(const std::function<void(frm_TankMaint &)> &change)
    {
        keeper.inNext<frm_TankMaint>([change](frm_TankMaint &window) {
            mouse::click(window.lst_tanklist->viewport(),
                         window.lst_tanklist->visualItemRect(window.lst_tanklist->item(3)).center());
            EXPECT_EQ(window.lst_tanklist->currentItem()->text(), "Reef");
            change(window);
            mouse::click(window.cmd_ok);
        });
        hand::press(Qt::Key_T, Qt::ControlModifier);
    }
    /// What the tank is called that is added or changed next; its water is fresh.
    static void nextTank(const char *name)
    {
        Keeper::inNext<frm_TankAddNew>([name](frm_TankAddNew &window) {
            hand::type(*window.txt_tankname, name);
            click(*window.opt_Freshwater);
            mouse::click(window.cmd_OK);
        });
    }
    void ofTheTree(const char *entry, const char *name = nullptr)
    {
        if (name)
            nextTank(name);
        hand::clickTank(*logbook, "Reef", Qt::RightButton);
        clickEntry(*main->mnu_tankPopup, entry);
    }
    void inReminder(QPushButton *frm_Maintsched::*button, const std::function<void(frm_SchedNewAddEdit &)> &change)
    {
        auto &reminders = toFront<frm_Maintsched>();
        hand::clickRow(*reminders.lstv_MaintSched, 1);
        keeper.inNext<frm_SchedNewAddEdit>([change](frm_SchedNewAddEdit &window) {
            change(window);
            mouse::click(window.cmd_OK);
        });
        mouse::click(reminders.*button);
    }
};

/// Two columns of a list, without the time of day.
QString rows(const ListView &list, int second)
{
    QStringList texts;
    for (int row = 1; row <= list.Count(); ++row)
        texts << list.Text(row).section(" - ", 0, 0) + ' ' + list.Text(row, second);
    return texts.join(", ");
}

QString children(const QTreeWidgetItem &root)
{
    QStringList names;
    for (int line = 0; line < root.childCount(); ++line)
        names << root.child(line)->text(0);
    return names.join(u'|');
}

QString chart(Pairs &)
{
    const auto &chart = *Form<frm_WaterGraph>().Chart1;
    const int column = chart.ColumnCount();
    const QString point = column > 0 ? chart.tip(chart.place(1, column).center()).replace('\n', ' ') : "blank";
    return chart.accessibleName().remove("Water quality graph of ") + ": " + point +
           QString(", %1 rows, type %2").arg(chart.RowCount()).arg(chart.chartType());
}

struct Reading
{
    const char *name;
    QString (*read)(Pairs &);
    const char *atFirst;
};

const Reading readings[] = {
    // As they stand.
    {"upcoming", [](Pairs &p) { return lines(*p.main->cbo_Reminders->model()); },
     "Mon 03/16/26 Feed|Wed 03/18/26 Dose"},
    {"tree",
     [](Pairs &p) -> QString {
         return children(*p.logbook->TreeView1->topLevelItem(0)) + ": " + p.logbook->TreeView1->currentItem()->text(0);
     },
     "Bowl|Marsh|Pond|Reef|Same: Reef"},
    {"log",
     [](Pairs &p) -> QString {
         return p.logbook->sb_ListviewCaption->currentMessage().section('\'', 1, 1) + ": " + rows(p.list(), 1);
     },
     "Reef: 03/10/26 8.00, 03/11/26 8.00"},
    {"tanks of the graph",
     [](Pairs &) -> QString {
         const QComboBox &tanks = *Form<frm_WaterGraph>().tanklistbox;
         return lines(*tanks.model()) + ": " + tanks.currentText();
     },
     "Bowl|Marsh|Pond|Reef|Same: Reef"},
    {"chart", chart, "Reef: 3/10 No3: 1, 2 rows, type 1"},
    {"reminders", [](Pairs &) { return rows(*Form<frm_Maintsched>().lstv_MaintSched, 2); },
     "Feed 03/16/26, Dose 03/18/26"},
    {"schedule",
     [](Pairs &) -> QString {
         return rows(*Form<frm_Schedule>().lstv_Reminders, 1) + " by " + Form<frm_Schedule>().txt_startdate->toolTip();
     },
     "Monday 03/16/26 Feed, Wednesday 03/18/26 Dose by MM/DD/YY"},
    {"compatibility",
     [](Pairs &) -> QString {
         const auto &compat = Form<frm_Compat>();
         return (compat.but_salt->isChecked() ? "salt, " : "fresh, ") + QString::number(compat.lst_maybe->count());
     },
     "salt, 0"},
    {"fantasy tank",
     [](Pairs &) -> QString {
         const auto &plan = Form<frm_Fantasy>();
         return (plan.opt_Salt->isChecked() ? "salt, " : "fresh, ") + QString::number(plan.lst_Fantank->count());
     },
     "salt, 0"},
    {"names", [](Pairs &) { return hand::column(*Form<frm_LatintoCommon>().lstv_Names, 0); }, "Clam"},
    {"conversion", [](Pairs &) { return Form<frm_Conversions>().txt_FromValue->text(); }, ""},
    // Drawn, generated and read anew.
    {"next chart",
     [](Pairs &p) {
         p.goToLog(WaterTab);
         p.push("graphentries");
         return chart(p);
     },
     "Reef: 3/10 No3: 1, 2 rows, type 1"},
    {"next schedule",
     [](Pairs &p) {
         mouse::click(p.toFront<frm_Schedule>().cmd_Generate);
         return rows(*Form<frm_Schedule>().lstv_Reminders, 1);
     },
     "Monday 03/16/26 Feed, Wednesday 03/18/26 Dose"},
    {"next logs",
     [](Pairs &p) {
         QStringList logs;
         for (const LogTab tab : {WaterTab, LivestockTab, MaintenanceTab}) {
             p.goToLog(tab);
             logs << rows(p.list(), 1);
         }
         return logs.join(u'|');
     },
     "03/10/26 8.00, 03/11/26 8.00|03/10/26 Tang|03/10/26 Feeding"},
    // Opened next.
    {"water test",
     [](Pairs &p) {
         return p.nextEntry<frm_WaterAddEdit>(WaterTab, "addentries", [](frm_WaterAddEdit &w) -> QString {
             return w.windowTitle() + ", " + shown(w, {"txt_date", "Label15", "txt_sg"});
         });
     },
     "Add a log entry for Reef Tank, 03/14/26|User Field 1|1.023"},
    {"animal",
     [](Pairs &p) {
         return p.nextEntry<frm_LivesAddEdit>(LivestockTab, "addentries", [](frm_LivesAddEdit &w) -> QString {
             const QStringList animals = lines(*w.lst_AnimalList->model()).split('|');
             return w.windowTitle() + (w.opt_Saltwater->isChecked() ? ", salt, " : ", fresh, ") + animals[0] +
                    animals.filter("Eel, my own").join(' ') + lines(*w.lst_where->model());
         });
     },
     " Livestock Detail for Reef, salt, Anemone - Bubble Tip"},
    {"task",
     [](Pairs &p) {
         return p.nextEntry<frm_MaintAddEdit>(MaintenanceTab, "addentries", [](frm_MaintAddEdit &w) {
             return lines(*w.lst_mainttasklist->model()).split('|').filter("Scrub").join(' ');
         });
     },
     ""},
    {"move",
     [](Pairs &p) {
         return p.nextEntry<frm_LivesMove>(LivestockTab, "moveentries",
                                           [](frm_LivesMove &w) { return lines(*w.lst_tanklist->model()); });
     },
     "Bowl|Marsh|Pond|Reef|Same"},
    {"paper",
     [](Pairs &p) {
         p.goToLog(MaintenanceTab);
         p.keeper.doors.documents.clear();
         p.keeper.doors.printers = {PrintDialogAnswer{1}};
         p.give<frm_OMKLogPrint>("printentries", 0, [](frm_OMKLogPrint &w) { mouse::click(w.cmd_ok); });
         if (p.keeper.doors.documents.empty())
             return QString("none");
         const PrintedPage &page = p.keeper.doors.documents[0].pages.at(0);
         QString texts = page.row(page.find("Tankname: ")->y);
         for (const PrintedText &text : page.texts)
             if (text.x == 0 && text.text.mid(8, 3) == u" - ")
                 texts += ' ' + text.text.left(8);
         return texts;
     },
     "Tankname: |Reef 03/10/26"},
    {"tank list",
     [](Pairs &p) {
         p.backToLogbook();
         return Pairs::next<frm_TankMaint>([] { hand::press(Qt::Key_T, Qt::ControlModifier); },
                                           [](frm_TankMaint &w) { return lines(*w.lst_tanklist->model()); });
     },
     "Bowl|Marsh|Pond|Reef|Same"},
    {"new tank",
     [](Pairs &) {
         return Pairs::next<frm_TankAddNew>(
             [] { Form<frm_TankAddNew>().AddNewTank(); },
             [](frm_TankAddNew &w) -> QString { return w.opt_Saltwater->isChecked() ? "salt" : "fresh"; });
     },
     "salt"},
    {"options",
     [](Pairs &p) {
         return Pairs::next<frm_OMKOptions>(
             [&p] { hand::choose(*p.main, *p.main->mnu_View, "mnu_ViewOptions"); },
             [](frm_OMKOptions &w) -> QString {
                 QStringList set;
                 for (const QRadioButton *option : w.findChildren<QRadioButton *>())
                     if (option->isChecked())
                         set << option->objectName().section('_', 1);
                 return set.join(' ') + shown(w, {"cbo_Delimiter", "txt_username1", "cbo_GraphType"});
             });
     },
     "UseSaltDb UseFreshDB BWPrinting Salt Dateform_MMDDYY/|User Field 1|2D Bar"},
    {"reminder",
     [](Pairs &p) -> QString {
         auto &reminders = p.toFront<frm_Maintsched>();
         if (reminders.lstv_MaintSched->Count() == 0)
             return "none";
         hand::clickRow(*reminders.lstv_MaintSched, 1);
         return Pairs::next<frm_SchedNewAddEdit>([&] { mouse::click(reminders.cmd_update_task); },
                                                 [](frm_SchedNewAddEdit &w) {
                                                     return shown(w, {"txt_TaskDescription", "txt_StartDate"});
                                                 });
     },
     "Feed|03/16/26"},
    {"tip",
     [](Pairs &p) {
         return Pairs::next<frm_OMKtod>([&p] { hand::choose(*p.main, *p.main->mnu_Help, "mnu_HelpTod"); },
                                        [](frm_OMKtod &w) -> QString {
                                            return w.chk_ShowTipsAtStartup->isChecked() ? "at the start" : "on demand";
                                        });
     },
     "at the start"},
};

const QMap<QString, QString> tankAdded = {
    {"tree", "Bowl|Marsh|Nano|Pond|Reef|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Marsh|Nano|Pond|Reef|Same: Reef"},
    {"move", "Bowl|Marsh|Nano|Pond|Reef|Same"},
    {"tank list", "Bowl|Marsh|Nano|Pond|Reef|Same"},
};
const QMap<QString, QString> tankRenamedAndOfFreshWater = {
    {"tree", "Bowl|Cove|Marsh|Pond|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Cove|Marsh|Pond|Same: Cove"},
    {"chart", "Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"next chart", "Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"water test", "Add a log entry for Cove Tank, 03/14/26|User Field 1|1.023"},
    {"animal", " Livestock Detail for Cove, fresh, Algaeeater"},
    {"move", "Bowl|Cove|Marsh|Pond|Same"},
    {"paper", "Tankname: |Cove 03/10/26"},
    {"tank list", "Bowl|Cove|Marsh|Pond|Same"},
};
const QMap<QString, QString> tankDeleted = {
    {"tree", "Bowl|Marsh|Pond|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Marsh|Pond|Same: Bowl"},
    {"chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
    {"water test", "Add a log entry for Bowl Tank, 03/14/26|User Field 1|1.023"},
    {"animal", " Livestock Detail for Bowl, fresh, Algaeeater"},
    {"move", "none"},
    {"paper", "none"},
    {"tank list", "Bowl|Marsh|Pond|Same"},
};

const Change changes[] = {
    {"TankSetupAdds",
     [](Pairs &p) {
         p.inTankSetup([](frm_TankMaint &w) {
             Pairs::nextTank("Nano");
             mouse::click(w.cmd_AddTank);
         });
     },
     tankAdded},
    {"TankSetupChanges",
     [](Pairs &p) {
         p.inTankSetup([](frm_TankMaint &w) {
             Pairs::nextTank("Cove");
             mouse::click(w.cmd_ChangeTank);
         });
     },
     tankRenamedAndOfFreshWater},
    {"TankSetupDeletes",
     [](Pairs &p) {
         p.keeper.doors.answers = {MsgBoxAnswer::OK};
         p.inTankSetup([](frm_TankMaint &w) { mouse::click(w.cmd_DeleteTank); });
     },
     tankDeleted},
    {"TheTreeAdds", [](Pairs &p) { p.ofTheTree("mnu_TankAddNew", "Nano"); }, tankAdded},
    {"TheTreeChanges", [](Pairs &p) { p.ofTheTree("mnu_TankProperties", "Cove"); }, tankRenamedAndOfFreshWater},
    {"TheTreeDeletes",
     [](Pairs &p) {
         p.keeper.doors.answers = {MsgBoxAnswer::OK};
         p.ofTheTree("mnu_TankDelete");
     },
     tankDeleted},
    {"TheLogbookGoesToAnotherTank",
     [](Pairs &p) { hand::clickTank(*p.logbook, "Bowl"); },
     {{"tree", "Bowl|Marsh|Pond|Reef|Same: Bowl"},
      {"log", "Bowl: 03/10/26 7.00, 03/11/26 7.00"},
      {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
      {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
      {"water test", "Add a log entry for Bowl Tank, 03/14/26|User Field 1|1.023"},
      {"animal", " Livestock Detail for Bowl, fresh, Algaeeater"},
      {"move", "none"},
      {"paper", "none"}}},
    {"EntriesAreAdded",
     [](Pairs &p) {
         p.goToLog(LivestockTab);
         p.give<frm_LivesAddEdit>("addentries", 0, [](frm_LivesAddEdit &w) {
             hand::type(*w.lst_AnimalList, "Eel, my own");
             hand::type(*w.lst_where, "Zoo");
             mouse::click(w.cmd_OK);
         });
         p.goToLog(MaintenanceTab);
         p.give<frm_MaintAddEdit>("addentries", 0, [](frm_MaintAddEdit &w) {
             hand::type(*w.lst_mainttasklist, "Scrub");
             mouse::click(w.cmd_OK);
         });
         p.goToLog(WaterTab);
         p.give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
     },
     {{"log", "Reef: 03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40"},
      {"next chart", "Reef: 3/10 No3: 1, 3 rows, type 1"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40|03/10/26 Tang, 03/14/26 Eel, my own|"
                    "03/10/26 Feeding, 03/14/26 Scrub"},
      {"animal", " Livestock Detail for Reef, salt, Anemone - Bubble TipEel, my ownZoo"},
      {"task", "Scrub"},
      {"paper", "Tankname: |Reef 03/10/26 03/14/26"}}},
    {"EntriesAreChangedAndMoved",
     [](Pairs &p) {
         p.goToLog(LivestockTab);
         p.give<frm_LivesMove>("moveentries", 1, [](frm_LivesMove &w) {
             w.lst_tanklist->setCurrentRow(0);
             mouse::click(w.cmd_ok);
         });
         p.goToLog(WaterTab);
         p.give<frm_WaterAddEdit>("changeentries", 1, [](frm_WaterAddEdit &w) {
             hand::type(control<QWidget>(w, "txt_nitrate"), "3");
             hand::type(control<QWidget>(w, "txt_ph"), "9");
             mouse::click(w.cmd_OK);
         });
     },
     {{"log", "Reef: 03/10/26 9.00, 03/11/26 8.00"},
      {"next chart", "Reef: 3/10 No3: 3, 2 rows, type 1"},
      {"next logs", "03/10/26 9.00, 03/11/26 8.00||03/10/26 Feeding"},
      {"move", "none"}}},
    {"AnEntryIsDeleted",
     [](Pairs &p) {
         p.goToLog(LivestockTab);
         p.keeper.doors.answers = {MsgBoxAnswer::OK};
         hand::clickRow(p.list(), 1);
         p.push("deleteentries");
         p.goToLog(WaterTab);
     },
     {{"next logs", "03/10/26 8.00, 03/11/26 8.00||03/10/26 Feeding"}, {"move", "none"}}},
    {"AReminderIsAdded",
     [](Pairs &p) {
         p.inReminder(&frm_Maintsched::cmd_AddTask, [](frm_SchedNewAddEdit &w) {
             hand::type(*w.txt_TaskDescription, "Scrub");
             hand::type(*w.txt_DailyDays, "600");
         });
     },
     {{"upcoming", "Sat 03/14/26 Scrub|Mon 03/16/26 Feed|Wed 03/18/26 Dose|Thu 11/04/27 Scrub"},
      {"reminders", "Feed 03/16/26, Dose 03/18/26, Scrub 03/14/26"},
      {"next schedule",
       "Saturday 03/14/26 Scrub, Monday 03/16/26 Feed, Wednesday 03/18/26 Dose, Thursday 11/04/27 Scrub"}}},
    {"AReminderIsChanged",
     [](Pairs &p) {
         p.inReminder(&frm_Maintsched::cmd_update_task,
                      [](frm_SchedNewAddEdit &w) { hand::type(*w.txt_TaskDescription, "Scrub"); });
     },
     {{"upcoming", "Mon 03/16/26 Scrub|Wed 03/18/26 Dose"},
      {"reminders", "Scrub 03/16/26, Dose 03/18/26"},
      {"next schedule", "Monday 03/16/26 Scrub, Wednesday 03/18/26 Dose"},
      {"reminder", "Scrub|03/16/26"}}},
    {"AReminderIsDeleted",
     [](Pairs &p) {
         auto &reminders = p.toFront<frm_Maintsched>();
         p.keeper.doors.answers = {MsgBoxAnswer::OK};
         hand::clickRow(*reminders.lstv_MaintSched, 1);
         mouse::click(reminders.cmd_DeleteTask);
     },
     {{"upcoming", "Wed 03/18/26 Dose"},
      {"reminders", "Dose 03/18/26"},
      {"next schedule", "Wednesday 03/18/26 Dose"},
      {"reminder", "Dose|03/18/26"}}},
    {"TheScheduleDeletesAReminderWithoutDates",
     [](Pairs &p) {
         p.execute("UPDATE MAINTSCHED SET SchedEndDate = NULL WHERE SchedTask = 'Feed'");
         p.keeper.doors.answers = {MsgBoxAnswer::Delete};
         mouse::click(p.toFront<frm_Schedule>().cmd_Generate);
     },
     {{"upcoming", "Wed 03/18/26 Dose"},
      {"reminders", "Dose 03/18/26"},
      {"schedule", "Wednesday 03/18/26 Dose by MM/DD/YY"},
      {"next schedule", "Wednesday 03/18/26 Dose"},
      {"reminder", "Dose|03/18/26"}}},
    // No window is told of the options: they hold for what is opened and filled afterwards.
    {"OptionsAreChanged",
     [](Pairs &p) {
         p.inNextOptions([](frm_OMKOptions &w) {
             click(*w.opt_Dateform_ddmmyy);
             w.cbo_Delimiter->setCurrentText(".");
             hand::type(*w.txt_username1, "Iron");
             click(*w.opt_Fresh);
             w.opt_UseSaltFile->setChecked(true);
             w.cbo_GraphType->setCurrentText("2D Line");
         });
         hand::choose(*p.main, *p.main->mnu_View, "mnu_ViewOptions");
     },
     {{"next chart", "Reef: 3/10 No3: 1, 2 rows, type 3"},
      {"next schedule", "Monday 16.03.26 Feed, Wednesday 18.03.26 Dose"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00|10.03.26 Tang|10.03.26 Feeding"},
      {"water test", "Add a log entry for Reef Tank, 14.03.26|Iron|0"},
      {"animal", " Livestock Detail for Reef, salt, Clam"},
      {"paper", "Tankname: |Reef 10.03.26"},
      {"new tank", "fresh"},
      {"options", "UseSaltFile UseFreshDB BWPrinting Fresh Dateform_ddmmyy.|Iron|2D Line"},
      {"reminder", "Feed|16.03.26"}}},
    {"GraphOptionsAreChanged",
     [](Pairs &p) {
         p.inNextOptions([](frm_OMKOptions &w) { w.cbo_GraphType->setCurrentText("2D Line"); });
         mouse::click(p.toFront<frm_WaterGraph>().Chart1, QPoint(3, 3), Qt::RightButton);
         clickEntry(*p.main->mnu_GraphPopup, "mnu_GraphOptions");
     },
     {{"chart", "Reef: 3/10 No3: 1, 2 rows, type 3"},
      {"next chart", "Reef: 3/10 No3: 1, 2 rows, type 3"},
      {"options", "UseSaltDb UseFreshDB BWPrinting Salt Dateform_MMDDYY/|User Field 1|2D Line"}}},
    {"TheGraphGoesToAnotherTank",
     [](Pairs &p) {
         p.toFront<frm_WaterGraph>().tanklistbox->setFocus();
         hand::press(Qt::Key_Home);
     },
     {{"tanks of the graph", "Bowl|Marsh|Pond|Reef|Same: Bowl"}, {"chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"}}},
    {"TheOtherToolsAreUsed",
     [](Pairs &p) {
         click(*p.toFront<frm_Compat>().but_fresh);
         Form<frm_Compat>().lst_Select->setCurrentIndex(39);
         auto &plan = p.toFront<frm_Fantasy>();
         click(*plan.opt_Fresh);
         plan.lst_select->setCurrentRow(0);
         p.keeper.inNext<frm_FantAddAnimal>([](frm_FantAddAnimal &w) { mouse::click(w.cmd_Addit); });
         mouse::click(plan.cmd_AddAnimal);
         EXPECT_TRUE(isInFront(*p.main));
         click(*p.toFront<frm_LatintoCommon>().opt_Freshwater);
         hand::type(*p.toFront<frm_Conversions>().txt_FromValue, "12\n");
         p.keeper.inNext<frm_OMKtod>([](frm_OMKtod &w) {
             click(*w.chk_ShowTipsAtStartup);
             mouse::click(w.cmd_ok);
         });
         hand::choose(*p.main, *p.main->mnu_Help, "mnu_HelpTod");
     },
     {{"compatibility", "fresh, 28"},
      {"fantasy tank", "fresh, 1"},
      {"names", "Oscar"},
      {"conversion", "12"},
      {"tip", "on demand"}}},
    {"WindowsThatChangeNothingAreOpened",
     [](Pairs &p) {
         p.give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) {
             Keeper::inNext<frm_Caltool>([](frm_Caltool &calendar) { mouse::click(calendar.cmdDay[20]); });
             mouse::click(w.cmd_Caldate);
             mouse::click(w.cmd_Exit);
         });
         Pairs::next<frm_DiagnosisQA>([] { hand::press(Qt::Key_D, Qt::ControlModifier); },
                                      [](frm_DiagnosisQA &) { return QString(); });
         EXPECT_TRUE(isInFront(*p.main));
         Pairs::next<frm_OMKaboutbox>([&p] { hand::choose(*p.main, *p.main->mnu_Help, "mnu_HelpAbout"); },
                                      [](frm_OMKaboutbox &) { return QString(); });
         EXPECT_TRUE(isInFront(*p.main));
         p.keeper.doors.files = {p.keeper.folder.filePath("copy.MDB")};
         hand::choose(*p.main, *p.main->mnu_File, "mnu_FileBackup");
     },
     {}},
};

TEST_P(Pairs, WhatIsChangedIsShownAndNothingElse)
{
    const Change &change = GetParam();
    change.play(*this);
    EXPECT_TRUE(isInFront(*main));
    qsizetype changed = 0;
    for (const Reading &reading : readings) {
        const auto then = change.then.find(reading.name);
        changed += then != change.then.end();
        EXPECT_EQ(reading.read(*this), then == change.then.end() ? QString(reading.atFirst) : *then) << reading.name;
        EXPECT_TRUE(isInFront(*main));
    }
    EXPECT_EQ(changed, change.then.size()) << "a reading of another name";
}

INSTANTIATE_TEST_SUITE_P(Windows, Pairs, testing::ValuesIn(changes),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
