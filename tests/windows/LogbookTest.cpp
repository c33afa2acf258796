#include <QMdiSubWindow>
#include <QStatusBar>

#include "Hands.h"
#include "Keeper.h"
#include "logbook/frm_WaterAddEdit.h"
#include "logbook/LogTab.h"
#include "tanks/frm_TankAddNew.h"

/// Three tanks, "Reef" with three water tests, a fish and a task; the logbook has just been opened.
class Logbook : public ::testing::Test
{
protected:
    Logbook()
    {
        for (const char *name : {"Reef", "pond", "Angels"})
            keeper.addTank(name, QString("id of ") + name);
        for (const char *sql :
             {"INSERT INTO WATERLOG (tankname, logdate, logtime, ph) VALUES ('id of Reef', '2026-04-05', '09:30:00', "
              "8), "
              "('id of Reef', '2026-12-05', '00:30:00', 10), ('id of Reef', '2027-01-05', '12:30:00', 9)",
              "INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, price_paid, datelost) "
              "VALUES ('id of Reef', '2026-04-05', '21:30:00', 'Clown plus friend', 40000, 12.5, '2026-05-25')",
              "INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty) "
              "VALUES ('id of Reef', '2026-04-05', '09:30:00', 'Water change', 12.5)"})
            keeper.g().gDatabase->Execute(sql);
        main = &keeper.startProgram();
        logbook = &hand::openLogbook(*main);
    }
    /// The commands that can be given now, by the last word of their names.
    QString commands() const
    {
        QStringList names;
        for (const MenuEntry *entry :
             {main->mnu_FileNew, main->mnu_FileOpen, main->mnu_FileDelete, main->mnu_LogPopup_New,
              main->mnu_Logpopup_Open, main->mnu_LogPopup_Delete, main->mnu_TankProperties, main->mnu_TankDelete,
              &logbook->button("addentries"), &logbook->button("changeentries"), &logbook->button("deleteentries"),
              &logbook->button("refresh")})
            if (entry->isEnabled())
                names << entry->objectName().remove("mnu_").remove("entries");
        return names.join(u' ');
    }
    QString ph() const { return hand::column(*logbook->lstv_WaterLog, 1); }
    QString panel() const { return logbook->sb_ListviewCaption->currentMessage(); }

    Keeper keeper;
    frm_OMKMDIMain *main;
    frm_Waterlog *logbook;
};

namespace {

const char *const ofATank = "FileNew FileOpen FileDelete LogPopup_New Logpopup_Open LogPopup_Delete TankProperties "
                            "TankDelete add change delete refresh";

QString cellsOf(const ListView &list, int row)
{
    QStringList texts;
    for (int i = 0; i < list.columnCount(); ++i)
        texts << list.Text(row, i);
    return texts.join(u'|');
}

} // namespace

TEST_F(Logbook, TreeHoldsTheTanksOfNowInCaseBlindOrderAndARefreshEndsOnAllTanks)
{
    keeper.addTank("barrel", "id of barrel");
    hand::clickTank(*logbook, "pond");
    hand::choose(*main, *main->mnu_View, "mnu_ViewRefresh");
    const QTreeWidgetItem &root = *logbook->TreeView1->topLevelItem(0);
    QString nodes = root.text(0) + '=' + root.data(0, Qt::UserRole).toString();
    for (int i = 0; i < root.childCount(); ++i)
        nodes += '|' + root.child(i)->text(0) + '=' + root.child(i)->data(0, Qt::UserRole).toString();
    EXPECT_EQ(nodes, "All Tanks=All Tanks|Angels=id of Angels|barrel=id of barrel|pond=id of pond|Reef=id of Reef");
    EXPECT_TRUE(root.isExpanded() && root.isSelected());
    EXPECT_EQ(commands(), "refresh");
    EXPECT_EQ(panel(), "Contents of Water Quality Log for 'All Tanks'");
}

TEST_F(Logbook, ListsShowEachValueInItsColumnAndItsPicture)
{
    keeper.g().gDatabase->Execute(
        "UPDATE WATERLOG SET Ammonia = 1, nitrite = 2, nitrate = 3, sg = 1.0234, temp = 78.5, oxygen = 7, dkh = 8, "
        "calcium = 415, copper = 0.5, orp = 350, custom1 = 1.50, custom2 = 2.5, Comment = 'fed' WHERE ph = 8");
    hand::clickTank(*logbook, "Reef");
    EXPECT_EQ(
        cellsOf(*logbook->lstv_WaterLog, 1),
        "04/05/26 - 09:30:00 am|8.00|1.000|2.000|3.000|1.023|78.50|7.000|8.000|415.000|0.500|350.000|1.5|1.5|fed");
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    EXPECT_EQ(cellsOf(*logbook->lstv_Livestock, 1),
              "04/05/26 - 09:30:00 PM|Clown plus friend|40000||12.50||05/25/26||");
    hand::clickTab(*logbook->tab_logtype, MaintenanceTab);
    EXPECT_EQ(cellsOf(*logbook->lstv_Maintenance, 1), "04/05/26 - 09:30:00 am|Water change|13|||");
}

TEST_F(Logbook, CommandsFollowTheTankAndTheTab)
{
    hand::clickTank(*logbook, "Reef");
    for (const int tab : {1, 2, 0}) {
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString log = logbook->tab_logtype->tabText(tab);
        EXPECT_EQ(panel(), "Contents of " + log + " for 'Reef'");
        EXPECT_EQ(commands(), ofATank) << tab;
        for (const MenuEntry *entry :
             {main->mnu_FileMoveEntry, main->mnu_LogPopup_Move, &logbook->button("moveentries")})
            EXPECT_EQ(entry->isEnabled() && entry->isVisible(), tab == 1) << tab;
        EXPECT_EQ(main->mnu_FileOpen->text(), "Open " + log + " Entry...");
    }
}

TEST_F(Logbook, HeadingsSortByTextAndTheDateHeadingByTheDatabase)
{
    hand::clickTank(*logbook, "Reef");
    const char *const up = "8.00 10.00 9.00", *const down = "9.00 10.00 8.00"; // by date
    const char *const textUp = "10.00 8.00 9.00", *const textDown = "9.00 8.00 10.00";
    const struct
    {
        int heading; ///< 0: to another tank and back
        const char *ph;
    } steps[] = {
        {1, down}, {1, up},     {2, textUp}, {2, textDown},
        {1, up},   {0, up}, // what was sorted is not sorted again, but the next click goes on from it
        {1, down}, {2, textUp}, {0, up},     {2, textDown},
    };
    EXPECT_EQ(ph(), up);
    for (const auto &step : steps) {
        SCOPED_TRACE(&step - steps);
        if (step.heading == 0) {
            hand::clickTank(*logbook, "pond");
            hand::clickTank(*logbook, "Reef");
        } else {
            hand::clickHeading(*logbook->lstv_WaterLog, step.heading);
        }
        EXPECT_EQ(ph(), step.ph);
    }
    keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &) { hand::press(Qt::Key_Escape); });
    hand::press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(ph(), up) << "an entry brings the order of the dates back";
}

TEST_F(Logbook, DoubleClickAndTheRightButtonActOnTheRowAndTheTankBelowThem)
{
    ListView &list = *logbook->lstv_WaterLog;
    hand::clickTank(*logbook, "Reef");
    hand::press(Qt::Key_O, Qt::ControlModifier); // nothing is selected yet
    EXPECT_EQ(keeper.told(), "0|Note!/64/You must first select a log entry to delete");
    for (const bool byMenu : {false, true}) {
        keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) {
            EXPECT_EQ(control<MaskedBox>(w, "txt_date").FormattedText(), "12/05/26");
            hand::press(Qt::Key_Escape);
        });
        if (byMenu) {
            hand::clickRow(list, 2, Qt::RightButton);
            clickEntry(*main->mnu_LogPopup, "mnu_Logpopup_Open");
        } else {
            mouse::doubleClick(list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
        }
        EXPECT_EQ(list.SelectedItem(), 0);
        EXPECT_TRUE(isInFront(*main));
    }
    const auto onTank = [&](const QString &tank, const QString &entry) {
        hand::clickTank(*logbook, tank, Qt::RightButton);
        ASSERT_TRUE(main->mnu_tankPopup->isVisible());
        clickEntry(*main->mnu_tankPopup, entry);
    };
    const auto nameIt = [](const char *name) {
        return [name](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, name);
            hand::press(Qt::Key_Return);
        };
    };
    keeper.inNext<frm_TankAddNew>(nameIt("Pool"));
    onTank("pond", "mnu_TankProperties");
    EXPECT_TRUE(isInFront(*main));
    keeper.doors.answers = {MsgBoxAnswer::OK};
    onTank("Angels", "mnu_TankDelete");
    keeper.inNext<frm_TankAddNew>(nameIt("Barrel"));
    onTank("Reef", "mnu_TankAddNew");
    EXPECT_EQ(keeper.stored("SELECT group_concat(tankname) AS t FROM (SELECT tankname FROM TANKLST ORDER BY 1)", "t"),
              "Barrel,Pool,Reef");
    EXPECT_EQ(logbook->TreeView1->topLevelItem(0)->childCount(), 3);
}

TEST_F(Logbook, ClosingKeepsAForeignSortSettingAndLetsGoOfTheTank)
{
    logbook->parentWidget()->close();
    SaveSetting("WQ_Sort", "7");
    logbook = &hand::openLogbook(*main);
    hand::clickTank(*logbook, "Reef");
    logbook->parentWidget()->close();
    EXPECT_EQ(keeper.setting("WQ_Sort"), "7");
    EXPECT_FALSE(main->mnu_FileNew->isEnabled() || main->mnu_FileDelete->isEnabled());
    logbook = &hand::openLogbook(*main);
    EXPECT_EQ(commands(), "refresh") << "a new one, on All Tanks";
}
