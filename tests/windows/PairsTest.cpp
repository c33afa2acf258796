// Each row is something that a keeper does in one window, with the readings of the windows that it changes and their
// new values. All other readings must stay the same, so each pair of windows is checked, and a pair in which nothing
// can change needs no row. Windows that share nothing but what is stored, and read it when they are opened, have no
// reading.
#include "AllWindows.h"
#include "Desk.h"
#include "platform/chart/Chart.h"

namespace {

class Pairs;

using Readings = QMap<QString, QString>;

struct Change
{
    const char *name;
    void (*play)(Pairs &);
    Readings then; ///< the changed readings
};

void PrintTo(const Change &change, std::ostream *out) { *out << change.name; }

/// The graph, the reminders and the schedule are open. The logbook is in front and shows the water tests of "Reef".
/// "Reef" and "Bowl" have two tests each, and "Reef" has an animal and a task.
class Pairs : public Desk, public testing::WithParamInterface<Change>
{
public:
    using Desk::give, Desk::keeper, Desk::list, Desk::logbook, Desk::main, Desk::push, Desk::execute;

    Pairs()
    {
        for (const auto &[tank, values] : {std::pair("r1", "8, 1"), {"b1", "7, 5"}})
            for (const char *day : {"2026-03-10", "2026-03-11"})
                addEntry(WaterTab, tank, QString(day) + " 09:30:00", "ph, nitrate", values);
        addEntry(LivestockTab, "r1", "2026-03-10 09:30:00", "animalname, quantity", "'Tang', 1");
        addEntry(MaintenanceTab, "r1", "2026-03-10 09:30:00", "maintlogtask, maintlogqty", "'Feeding', 1");
        addReminder("Feed", "2026-03-16", "2026-04-01");
        addReminder("Dose", "2026-03-18", "2026-04-01");
        push("graphentries");
        for (const Qt::Key tool : {Qt::Key_E, Qt::Key_S})
            hand::press(tool, Qt::ControlModifier);
        mouse::click(Form<frm_Schedule>().cmd_Generate);
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "Reef");
        keeper.told();
    }
    template <class F> F &toFront()
    {
        main->ShowChild(Form<F>());
        return Form<F>();
    }
    /// Brings the logbook to the front, at a log of a tank. If "All Tanks" was selected, it selects the tank "Reef" by
    /// its id, or else the first.
    void goToLog(LogTab tab)
    {
        logbook = &hand::openLogbook(*main);
        QTreeWidgetItem &root = *logbook->TreeView1->topLevelItem(0);
        if (logbook->TreeView1->currentItem() == &root) {
            int line = root.childCount() - 1;
            while (line > 0 && root.child(line)->data(0, Qt::UserRole) != "r1")
                --line;
            hand::clickTank(*logbook, root.child(line)->text(0));
        }
        hand::clickTab(*logbook->tab_logtype, tab);
    }
    /// What an entry window shows when it is next opened.
    template <class F> QString nextEntry(LogTab tab, const std::function<QString(F &)> &read)
    {
        goToLog(tab);
        QString seen;
        give<F>("addentries", 0, [&](F &window) {
            seen = window.windowTitle() + ", " + read(window);
            hand::press(Qt::Key_Escape);
        });
        return seen;
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
        keeper.doors.answers = {MsgBoxAnswer::OK}; // to the question before a tank is deleted
        keeper.inNext<frm_TankMaint>([change](frm_TankMaint &window) {
            mouse::click(window.lst_tanklist->viewport(),
                         window.lst_tanklist->visualItemRect(window.lst_tanklist->item(3)).center());
            EXPECT_EQ(window.lst_tanklist->currentItem()->text(), "Reef");
            change(window);
            mouse::click(window.cmd_ok);
        });
        hand::press(Qt::Key_T, Qt::ControlModifier);
    }
    /// Gives a name and freshwater to the tank that is added or changed next.
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
        keeper.doors.answers = {MsgBoxAnswer::OK};
        hand::clickTank(*logbook, "Reef", Qt::RightButton);
        clickEntry(*main->mnu_tankPopup, entry);
    }
};

/// Two columns of a list, without times of day.
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
    // Windows that stay open.
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
    // The same windows, drawn, generated or read again, and windows when they are next opened.
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
    {"water test",
     [](Pairs &p) {
         return p.nextEntry<frm_WaterAddEdit>(WaterTab, [](frm_WaterAddEdit &w) {
             return shown(w, {"txt_date", "Label15", "txt_sg"});
         });
     },
     "Add a log entry for Reef Tank, 03/14/26|User Field 1|1.023"},
    {"animal",
     [](Pairs &p) {
         return p.nextEntry<frm_LivesAddEdit>(LivestockTab, [](frm_LivesAddEdit &w) -> QString {
             const QStringList animals = lines(*w.lst_AnimalList->model()).split('|');
             return animals[0] + animals.filter("Eel, my own").join(' ') + lines(*w.lst_where->model());
         });
     },
     " Livestock Detail for Reef, Anemone - Bubble Tip"},
};

const Readings tankAdded = {
    {"tree", "Bowl|Marsh|Nano|Pond|Reef|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Marsh|Nano|Pond|Reef|Same: Reef"},
};
const Readings tankRenamedAndOfFreshWater = {
    {"tree", "Bowl|Cove|Marsh|Pond|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Cove|Marsh|Pond|Same: Cove"},
    {"chart", "Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"next chart", "Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"water test", "Add a log entry for Cove Tank, 03/14/26|User Field 1|1.023"},
    {"animal", " Livestock Detail for Cove, Algaeeater"},
};
const Readings tankDeleted = {
    {"tree", "Bowl|Marsh|Pond|Same: All Tanks"},
    {"log", "All Tanks: "},
    {"tanks of the graph", "Bowl|Marsh|Pond|Same: Bowl"},
    {"chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
    {"water test", "Add a log entry for Bowl Tank, 03/14/26|User Field 1|1.023"},
    {"animal", " Livestock Detail for Bowl, Algaeeater"},
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
    {"TankSetupDeletes", [](Pairs &p) { p.inTankSetup([](frm_TankMaint &w) { mouse::click(w.cmd_DeleteTank); }); },
     tankDeleted},
    {"TheTreeAdds", [](Pairs &p) { p.ofTheTree("mnu_TankAddNew", "Nano"); }, tankAdded},
    {"TheTreeChanges", [](Pairs &p) { p.ofTheTree("mnu_TankProperties", "Cove"); }, tankRenamedAndOfFreshWater},
    {"TheTreeDeletes", [](Pairs &p) { p.ofTheTree("mnu_TankDelete"); }, tankDeleted},
    {"TheLogbookGoesToAnotherTank",
     [](Pairs &p) { hand::clickTank(*p.logbook, "Bowl"); },
     {{"tree", "Bowl|Marsh|Pond|Reef|Same: Bowl"},
      {"log", "Bowl: 03/10/26 7.00, 03/11/26 7.00"},
      {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
      {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
      {"water test", "Add a log entry for Bowl Tank, 03/14/26|User Field 1|1.023"},
      {"animal", " Livestock Detail for Bowl, Algaeeater"}}},
    {"EntriesAreAdded",
     [](Pairs &p) {
         p.goToLog(LivestockTab);
         p.give<frm_LivesAddEdit>("addentries", 0, [](frm_LivesAddEdit &w) {
             hand::type(*w.lst_AnimalList, "Eel, my own");
             hand::type(*w.lst_where, "Zoo");
             mouse::click(w.cmd_OK);
         });
         p.goToLog(WaterTab);
         p.give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
     },
     {{"log", "Reef: 03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40"},
      {"next chart", "Reef: 3/10 No3: 1, 3 rows, type 1"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40|03/10/26 Tang, 03/14/26 Eel, my own|03/10/26 Feeding"},
      {"animal", " Livestock Detail for Reef, Anemone - Bubble TipEel, my ownZoo"}}},
    {"TheScheduleDeletesAReminderWithoutDates",
     [](Pairs &p) {
         p.execute("UPDATE MAINTSCHED SET SchedEndDate = NULL WHERE SchedTask = 'Feed'");
         p.keeper.doors.answers = {MsgBoxAnswer::Delete};
         mouse::click(p.toFront<frm_Schedule>().cmd_Generate);
     },
     {{"upcoming", "Wed 03/18/26 Dose"},
      {"reminders", "Dose 03/18/26"},
      {"schedule", "Wednesday 03/18/26 Dose by MM/DD/YY"},
      {"next schedule", "Wednesday 03/18/26 Dose"}}},
    // Open windows do not follow the options, which take effect when something is next opened or filled.
    {"OptionsAreChanged",
     [](Pairs &p) {
         p.inNextOptions([](frm_OMKOptions &w) {
             click(*w.opt_Dateform_ddmmyy);
             w.cbo_Delimiter->setCurrentText(".");
             hand::type(*w.txt_username1, "Iron");
             click(*w.opt_Fresh);
             w.cbo_GraphType->setCurrentText("2D Line");
         });
         hand::choose(*p.main, *p.main->mnu_View, "mnu_ViewOptions");
     },
     {{"next chart", "Reef: 3/10 No3: 1, 2 rows, type 3"},
      {"next schedule", "Monday 16.03.26 Feed, Wednesday 18.03.26 Dose"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00|10.03.26 Tang|10.03.26 Feeding"},
      {"water test", "Add a log entry for Reef Tank, 14.03.26|Iron|0"}}},
    {"GraphOptionsAreChanged",
     [](Pairs &p) {
         p.inNextOptions([](frm_OMKOptions &w) { w.cbo_GraphType->setCurrentText("2D Line"); });
         mouse::click(p.toFront<frm_WaterGraph>().Chart1, QPoint(3, 3), Qt::RightButton);
         clickEntry(*p.main->mnu_GraphPopup, "mnu_GraphOptions");
     },
     {{"chart", "Reef: 3/10 No3: 1, 2 rows, type 3"}, {"next chart", "Reef: 3/10 No3: 1, 2 rows, type 3"}}},
    {"TheGraphGoesToAnotherTank",
     [](Pairs &p) {
         p.toFront<frm_WaterGraph>().tanklistbox->setFocus();
         hand::press(Qt::Key_Home);
     },
     {{"tanks of the graph", "Bowl|Marsh|Pond|Reef|Same: Bowl"}, {"chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"}}},
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
