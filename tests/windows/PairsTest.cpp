// Each row is something that a keeper does in one window, with the readings of the windows that it changes and their
// new values. All other readings must stay the same, so each pair of windows is checked, and a pair in which nothing
// can change needs no row. Windows that share nothing but what is stored, and read it when they are opened, have no
// reading.
#include "AllWindows.h"
#include "Desk.h"
#include "platform/chart/Chart.h"

namespace {

class Pairs;

using Play = std::function<void(Pairs &)>;

struct Change
{
    const char *name;
    Play play;
    QMap<QString, QString> then; ///< the changed readings
    const char *next = "Reef";   ///< the tank that the keeper selects when the logbook shows all tanks
};

void PrintTo(const Change &change, std::ostream *out) { *out << change.name; }

/// The graph is open. The logbook is in front and shows the water tests of "Reef". "Reef" and "Bowl" have two tests
/// each, and "Reef" has an animal and a task.
class Pairs : public Desk, public testing::WithParamInterface<Change>
{
public:
    using Desk::give, Desk::keeper, Desk::list, Desk::logbook, Desk::main, Desk::push;

    Pairs()
    {
        for (const auto &[tank, values] : {std::pair("r1", "8, 1"), {"b1", "7, 5"}})
            for (const char *day : {"2026-03-10", "2026-03-11"})
                addEntry(WaterTab, tank, QString(day) + " 09:30:00", "ph, nitrate", values);
        addEntry(LivestockTab, "r1", "2026-03-10 09:30:00", "animalname, quantity", "'Tang', 1");
        addEntry(MaintenanceTab, "r1", "2026-03-10 09:30:00", "maintlogtask, maintlogqty", "'Feeding', 1");
        push("graphentries");
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "Reef");
        keeper.told();
    }
    /// Brings the logbook to the front, at a log of a tank.
    void goToLog(LogTab tab)
    {
        logbook = &hand::openLogbook(*main);
        if (logbook->TreeView1->currentItem()->text(0) == u"All Tanks")
            hand::clickTank(*logbook, GetParam().next);
        hand::clickTab(*logbook->tab_logtype, tab);
    }
    /// Gives a name and freshwater to the tank that is added or changed next, or confirms its deletion.
    void nextTank(const char *name)
    {
        keeper.doors.answers = {MsgBoxAnswer::OK};
        if (name)
            keeper.inNext<frm_TankAddNew>([name](frm_TankAddNew &window) {
                hand::type(*window.txt_tankname, name);
                click(*window.opt_Freshwater);
                mouse::click(window.cmd_OK);
            });
    }
};

/// Selects the tank "Reef" in Tank Setup and presses a button.
Play inTankSetup(QPushButton *frm_TankMaint::*button, const char *name = nullptr)
{
    return [=](Pairs &p) {
        p.keeper.inNext<frm_TankMaint>([&](frm_TankMaint &window) {
            QListWidget &tanks = *window.lst_tanklist;
            mouse::click(tanks.viewport(), tanks.visualItemRect(tanks.item(3)).center());
            EXPECT_EQ(tanks.currentItem()->text(), "Reef");
            p.nextTank(name);
            mouse::click(window.*button);
            mouse::click(window.cmd_ok);
        });
        hand::press(Qt::Key_T, Qt::ControlModifier);
    };
}

Play inMenuOfTree(const char *entry, const char *name = nullptr)
{
    return [=](Pairs &p) {
        p.nextTank(name);
        hand::clickTank(*p.logbook, "Reef", Qt::RightButton);
        clickEntry(*p.main->mnu_tankPopup, entry);
    };
}

/// The first two columns of a list, without times of day.
QString rows(const ListView &list)
{
    QStringList texts;
    for (int row = 1; row <= list.Count(); ++row)
        texts << list.Text(row).section(" - ", 0, 0) + ' ' + list.Text(row, 1);
    return texts.join(", ");
}

QString logbook(Pairs &p)
{
    const QTreeWidget &tree = *p.logbook->TreeView1;
    QStringList names;
    for (const QTreeWidgetItem *item : tree.findItems("*", Qt::MatchWildcard | Qt::MatchRecursive))
        names << item->text(0);
    return names.join(u'|') + ", " + tree.currentItem()->text(0) + ", " +
           p.logbook->sb_ListviewCaption->currentMessage().section('\'', 1, 1) + ": " + rows(p.list());
}

QString chart(Pairs &)
{
    const auto &chart = *Form<frm_WaterGraph>().Chart1;
    const int column = chart.ColumnCount();
    const QString point = column > 0 ? chart.tip(chart.place(1, column).center()).replace('\n', ' ') : "blank";
    return chart.accessibleName().remove("Water quality graph of ") + ": " + point +
           QString(", %1 rows, type %2").arg(chart.RowCount()).arg(chart.chartType());
}

QString graph(Pairs &p)
{
    const QComboBox &tanks = *Form<frm_WaterGraph>().tanklistbox;
    return lines(*tanks.model()) + ", " + tanks.currentText() + ", " + chart(p);
}

QString nextChart(Pairs &p)
{
    p.goToLog(WaterTab);
    p.push("graphentries");
    return chart(p);
}

QString nextLogs(Pairs &p)
{
    QStringList logs;
    for (const LogTab tab : {WaterTab, LivestockTab, MaintenanceTab}) {
        p.goToLog(tab);
        logs << rows(p.list());
    }
    return logs.join(u'|');
}

QString nextEntries(Pairs &p)
{
    QString seen;
    p.goToLog(WaterTab);
    p.give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &w) {
        seen = w.windowTitle().section("for ", 1) + ", " + shown(w, {"txt_date", "Label15", "txt_sg"}) + "; ";
        hand::press(Qt::Key_Escape);
    });
    p.goToLog(LivestockTab);
    p.give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        const QStringList animals = lines(*w.lst_AnimalList->model()).split('|');
        seen += w.windowTitle().section("for ", 1) + ", " + animals[0] + animals.filter("Eel, my own").join(' ') +
                lines(*w.lst_where->model());
        hand::press(Qt::Key_Escape);
    });
    return seen;
}

const std::tuple<const char *, QString (*)(Pairs &), const char *> readings[] = {
    // Windows that stay open.
    {"logbook", logbook, "All Tanks|Bowl|Marsh|Pond|Reef|Same, Reef, Reef: 03/10/26 8.00, 03/11/26 8.00"},
    {"graph", graph, "Bowl|Marsh|Pond|Reef|Same, Reef, Reef: 3/10 No3: 1, 2 rows, type 1"},
    // The same windows, drawn or read again, and windows when they are next opened.
    {"next chart", nextChart, "Reef: 3/10 No3: 1, 2 rows, type 1"},
    {"next logs", nextLogs, "03/10/26 8.00, 03/11/26 8.00|03/10/26 Tang|03/10/26 Feeding"},
    {"next entries", nextEntries, "Reef Tank, 03/14/26|User Field 1|1.023; Reef, Anemone - Bubble Tip"},
};

const QMap<QString, QString> tankAdded = {
    {"logbook", "All Tanks|Bowl|Marsh|Nano|Pond|Reef|Same, All Tanks, All Tanks: "},
    {"graph", "Bowl|Marsh|Nano|Pond|Reef|Same, Reef, Reef: 3/10 No3: 1, 2 rows, type 1"},
};
const QMap<QString, QString> tankRenamedAndOfFreshWater = {
    {"logbook", "All Tanks|Bowl|Cove|Marsh|Pond|Same, All Tanks, All Tanks: "},
    {"graph", "Bowl|Cove|Marsh|Pond|Same, Cove, Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"next chart", "Cove: 3/10 No3: 1, 2 rows, type 1"},
    {"next entries", "Cove Tank, 03/14/26|User Field 1|1.023; Cove, Algaeeater"},
};
const QMap<QString, QString> tankDeleted = {
    {"logbook", "All Tanks|Bowl|Marsh|Pond|Same, All Tanks, All Tanks: "},
    {"graph", "Bowl|Marsh|Pond|Same, Bowl, Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
    {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
    {"next entries", "Bowl Tank, 03/14/26|User Field 1|1.023; Bowl, Algaeeater"},
};

const Change changes[] = {
    {"TankSetupAdds", inTankSetup(&frm_TankMaint::cmd_AddTank, "Nano"), tankAdded},
    {"TankSetupChanges", inTankSetup(&frm_TankMaint::cmd_ChangeTank, "Cove"), tankRenamedAndOfFreshWater, "Cove"},
    {"TankSetupDeletes", inTankSetup(&frm_TankMaint::cmd_DeleteTank), tankDeleted, "Bowl"},
    {"TheTreeAdds", inMenuOfTree("mnu_TankAddNew", "Nano"), tankAdded},
    {"TheTreeChanges", inMenuOfTree("mnu_TankProperties", "Cove"), tankRenamedAndOfFreshWater, "Cove"},
    {"TheTreeDeletes", inMenuOfTree("mnu_TankDelete"), tankDeleted, "Bowl"},
    {"TheLogbookGoesToAnotherTank",
     [](Pairs &p) { hand::clickTank(*p.logbook, "Bowl"); },
     {{"logbook", "All Tanks|Bowl|Marsh|Pond|Reef|Same, Bowl, Bowl: 03/10/26 7.00, 03/11/26 7.00"},
      {"next chart", "Bowl: 3/10 No3: 5, 2 rows, type 1"},
      {"next logs", "03/10/26 7.00, 03/11/26 7.00||"},
      {"next entries", "Bowl Tank, 03/14/26|User Field 1|1.023; Bowl, Algaeeater"}}},
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
     {{"logbook", "All Tanks|Bowl|Marsh|Pond|Reef|Same, Reef, Reef: 03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40"},
      {"next chart", "Reef: 3/10 No3: 1, 3 rows, type 1"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00, 03/14/26 8.40|03/10/26 Tang, 03/14/26 Eel, my own|03/10/26 Feeding"},
      {"next entries", "Reef Tank, 03/14/26|User Field 1|1.023; Reef, Anemone - Bubble TipEel, my ownZoo"}}},
    // Open windows do not follow the options, which take effect when something is next opened or filled.
    {"OptionsAreChanged",
     [](Pairs &p) {
         p.keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
             click(*w.opt_Dateform_ddmmyy);
             w.cbo_Delimiter->setCurrentText(".");
             hand::type(*w.txt_username1, "Iron");
             click(*w.opt_Fresh);
             w.cbo_GraphType->setCurrentText("2D Line");
             mouse::click(w.cmdOK);
         });
         hand::choose(*p.main, *p.main->mnu_View, "mnu_ViewOptions");
     },
     {{"next chart", "Reef: 3/10 No3: 1, 2 rows, type 3"},
      {"next logs", "03/10/26 8.00, 03/11/26 8.00|10.03.26 Tang|10.03.26 Feeding"},
      {"next entries", "Reef Tank, 14.03.26|Iron|0; Reef, Anemone - Bubble Tip"}}},
    {"TheGraphGoesToAnotherTank",
     [](Pairs &p) {
         p.main->ShowChild(Form<frm_WaterGraph>());
         Form<frm_WaterGraph>().tanklistbox->setFocus();
         hand::press(Qt::Key_Home);
     },
     {{"graph", "Bowl|Marsh|Pond|Reef|Same, Bowl, Bowl: 3/10 No3: 5, 2 rows, type 1"}}},
};

TEST_P(Pairs, WhatIsChangedIsShownAndNothingElse)
{
    const Change &change = GetParam();
    change.play(*this);
    EXPECT_TRUE(isInFront(*main));
    for (const auto &[name, read, atFirst] : readings) {
        EXPECT_EQ(read(*this), change.then.value(name, atFirst)) << name;
        EXPECT_TRUE(isInFront(*main));
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Pairs, testing::ValuesIn(changes),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
