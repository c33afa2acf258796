#include <QComboBox>
#include <QMdiSubWindow>
#include <QStatusBar>

#include "Hands.h"
#include "Keeper.h"
#include "logbook/frm_WaterAddEdit.h"
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

QString visibleEntries(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions())
        if (action->isVisible() && !action->isSeparator())
            texts << action->text();
    return texts.join(u'|');
}

} // namespace

TEST_F(Logbook, TreeHoldsTheTanksOfNowInCaseBlindOrderAndARefreshEndsOnAllTanks)
{
    keeper.addTank("barrel", "id of barrel");
    const std::function<void()> ways[] = {[&] { hand::click<QToolButton>(*logbook, "refresh"); },
                                          [&] { hand::choose(*main, *main->mnu_View, "mnu_ViewRefresh"); }};
    for (const auto &refresh : ways) {
        hand::clickTank(*logbook, "pond");
        refresh();
        const QTreeWidgetItem &root = *logbook->TreeView1->topLevelItem(0);
        QString nodes = root.text(0) + '=' + root.data(0, Qt::UserRole).toString();
        for (int i = 0; i < root.childCount(); ++i)
            nodes += '|' + root.child(i)->text(0) + '=' + root.child(i)->data(0, Qt::UserRole).toString();
        EXPECT_EQ(nodes, "All Tanks=All Tanks|Angels=id of Angels|barrel=id of barrel|pond=id of pond|Reef=id of Reef");
        EXPECT_TRUE(root.isExpanded() && root.isSelected());
        EXPECT_EQ(commands(), "refresh");
        EXPECT_EQ(panel(), "Contents of Water Quality Log for 'All Tanks'");
    }
}

TEST_F(Logbook, ListsHaveTheirColumnsAndShowEachValueInItsPicture)
{
    keeper.g().gDatabase->Execute(
        "UPDATE WATERLOG SET Ammonia = 1, nitrite = 2, nitrate = 3, sg = 1.0234, temp = 78.5, oxygen = 7, dkh = 8, "
        "calcium = 415, copper = 0.5, orp = 350, custom1 = 1.50, custom2 = 2.5, Comment = 'fed' WHERE ph = 8");
    hand::clickTank(*logbook, "Reef");
    const struct
    {
        ListView *list;
        const char *columns, *first, *key;
    } rows[] = {
        {logbook->lstv_WaterLog,
         "Date=Date>|Ph=ph<|Ammonia=Nh3 - Ammonia<|Nitrite=No2 - Nitrite<|Nitrate=No3 - Nitrate<|"
         "sg=S.G. - Specific Gravity<|Temperature=Temperature<|o2=o2 - Oxygen<|dkh=dKh<|Calcium=Calcium<|"
         "Copper=Cu - Copper<|Orp=Orp <|Custom1=Custom1<|Custom2=Custom2<|Comments=Comments>",
         "04/05/26 - 09:30:00 am|8.00|1.000|2.000|3.000|1.023|78.50|7.000|8.000|415.000|0.500|350.000|1.5|1.5|fed",
         "04/05/26 - 09:30:00 am"},
        {logbook->lstv_Livestock,
         "Date=Date>|animalname=Animal>|quantity=Quantity>|status=Status>|price_paid=Price Paid<|"
         "price_sold=price_sold>|datelost=Date Lost>|where_purch=Where Purchased>|comment=Comments>",
         "04/05/26 - 09:30:00 PM|Clown plus friend|40000||12.50||05/25/26||",
         "04/05/26 - 09:30:00 PM plus Clown plus friend"},
        {logbook->lstv_Maintenance,
         "Date=Date>|tank=Task>|Quantity=Quantity>|unit=Unit of Measure>|description=Description>|comments=Comments>",
         "04/05/26 - 09:30:00 am|Water change|13|||", "04/05/26 - 09:30:00 am plus Water change"},
    };
    for (int tab = 0; tab < 3; ++tab) {
        hand::clickTab(*logbook->tab_logtype, tab);
        const QAbstractItemModel &model = *rows[tab].list->model();
        QStringList columns;
        for (int i = 0; i < model.columnCount(); ++i) {
            const auto header = [&](int role) { return model.headerData(i, Qt::Horizontal, role); };
            const bool right = model.data(model.index(0, i), Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
            columns << header(Qt::UserRole).toString() + '=' + header(Qt::DisplayRole).toString() + (right ? '<' : '>');
        }
        EXPECT_EQ(columns.join(u'|'), rows[tab].columns);
        EXPECT_EQ(cellsOf(*rows[tab].list, 1), rows[tab].first);
        EXPECT_EQ(rows[tab].list->Key(1), rows[tab].key);
        EXPECT_EQ(rows[tab].list->SelectedItem(), 0);
    }
}

TEST_F(Logbook, AllTanksShowsNothingAndTakesNoLogCommandWhateverComesToTheFront)
{
    for (int tab = 0; tab < 3; ++tab) {
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString log = logbook->tab_logtype->tabText(tab);
        EXPECT_EQ(panel(), "Contents of " + log + " for 'All Tanks'");
        EXPECT_EQ(static_cast<ListView *>(logbook->tab_logtype->currentWidget())->Count(), 0);
        EXPECT_EQ(commands(), "refresh");
        EXPECT_EQ(main->mnu_TankProperties->text(), "(no tank selected) Properties...");
    }
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(isInFront(other));
    main->activateWindow();
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(commands(), "refresh");
    main->ShowChild(Form<OtherChild>());
    hand::openLogbook(*main);
    EXPECT_EQ(commands(), "refresh");
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
        EXPECT_TRUE(main->mnu_FilePrint->isEnabled());
        const QString suffix = log + " Entry...";
        EXPECT_EQ(main->mnu_FileNew->text() + main->mnu_FileOpen->text() + main->mnu_FileDelete->text(),
                  "New " + suffix + "Open " + suffix + "Delete " + suffix);
        const QString popup = "New " + suffix + "|Open " + suffix + "|Delete " + suffix;
        EXPECT_EQ(visibleEntries(*main->mnu_LogPopup), tab == 1 ? popup + "|Move to Tank..." : popup);
        EXPECT_EQ(logbook->CurrentTankText, "Reef");
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
        {1, down}, {1, up},   {2, textUp}, {2, textDown}, {2, textUp},   {1, up},
        {1, down}, {0, up}, // what was sorted is not sorted again, but the next click goes on from it
        {1, up},   {1, down}, {2, textUp}, {0, up},       {2, textDown}, {1, up},
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
    hand::clickHeading(*logbook->lstv_WaterLog, 2);
    keeper.g().gDatabase->Execute("UPDATE WATERLOG SET ph = 7 WHERE ph = 8");
    hand::clickHeading(*logbook->lstv_WaterLog, 2);
    EXPECT_EQ(ph(), textDown) << "a text sort asks the file nothing";
    hand::clickTab(*logbook->tab_logtype, 2);
    hand::clickTab(*logbook->tab_logtype, 0);
    EXPECT_EQ(ph(), "7.00 10.00 9.00");
    for (const int heading : {1, 1, 2, 2}) { // an entry brings the order of the dates back, from whatever it was
        hand::clickHeading(*logbook->lstv_WaterLog, heading);
        keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &) { hand::press(Qt::Key_Escape); });
        hand::press(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(ph(), "7.00 10.00 9.00");
    }
}

TEST_F(Logbook, DoubleClickAndEnterOpenTheEntryAndNothingIsSelectedAfterwards)
{
    ListView &list = *logbook->lstv_WaterLog;
    hand::clickTank(*logbook, "Reef");
    hand::press(Qt::Key_O, Qt::ControlModifier); // nothing is selected yet
    EXPECT_EQ(keeper.told(), "0|Note!/64/You must first select a log entry to delete");
    const std::function<void()> ways[] = {
        [&] { mouse::doubleClick(list.viewport(), list.visualRect(list.model()->index(1, 0)).center()); },
        [&] { hand::press(Qt::Key_Return); },
        [&] { hand::press(Qt::Key_O, Qt::ControlModifier); },
    };
    for (const auto &openIt : ways) {
        hand::clickRow(list, 2);
        EXPECT_EQ(list.SelectedItem(), 2);
        keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) {
            EXPECT_EQ(control<MaskedBox>(w, "txt_date").FormattedText(), "12/05/26");
            hand::press(Qt::Key_Escape);
        });
        openIt();
        EXPECT_EQ(list.SelectedItem(), 0);
        EXPECT_TRUE(isInFront(*main));
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Logbook, RightButtonOffersTheCommandsOfTheRowAndOfTheTank)
{
    hand::clickTank(*logbook, "Reef");
    hand::clickRow(*logbook->lstv_WaterLog, 2, Qt::RightButton);
    ASSERT_TRUE(main->mnu_LogPopup->isVisible());
    keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) {
        EXPECT_EQ(control<MaskedBox>(w, "txt_date").FormattedText(), "12/05/26");
        hand::press(Qt::Key_Escape);
    });
    clickEntry(*main->mnu_LogPopup, "mnu_Logpopup_Open");
    mouse::click(logbook->tab_logtype->tabBar(), logbook->tab_logtype->tabBar()->tabRect(0).center(), Qt::RightButton);
    ASSERT_TRUE(main->mnu_LogPopup->isVisible());
    hand::press(Qt::Key_Escape);

    const auto onTank = [&](const QString &tank, const QString &entry) {
        hand::clickTank(*logbook, tank, Qt::RightButton);
        ASSERT_TRUE(main->mnu_tankPopup->isVisible());
        EXPECT_EQ(visibleEntries(*main->mnu_tankPopup), "New Tank...|Delete Tank|" + tank + " Properties...");
        clickEntry(*main->mnu_tankPopup, entry);
    };
    keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
        EXPECT_EQ(w.windowTitle(), "Change Tank Info for pond");
        hand::type(*w.txt_tankname, "Pond");
        hand::press(Qt::Key_Return);
    });
    onTank("pond", "mnu_TankProperties");
    EXPECT_TRUE(isInFront(*main));
    keeper.doors.answers = {MsgBoxAnswer::OK};
    onTank("Angels", "mnu_TankDelete");
    keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
        hand::type(*w.txt_tankname, "Barrel");
        hand::press(Qt::Key_Return);
    });
    onTank("Reef", "mnu_TankAddNew");
    EXPECT_EQ(keeper.stored("SELECT group_concat(tankname) AS t FROM (SELECT tankname FROM TANKLST ORDER BY 1)", "t"),
              "Barrel,Pond,Reef");
    EXPECT_EQ(logbook->TreeView1->topLevelItem(0)->childCount(), 3);
    EXPECT_EQ(logbook->TreeView1->currentItem()->text(0), "All Tanks");
}

TEST_F(Logbook, ClosingWritesTheSortSettingAndKeepsAForeignOne)
{
    EXPECT_EQ(keeper.setting("WQ_Sort"), "(none)");
    hand::clickTank(*logbook, "Reef");
    logbook->parentWidget()->close();
    EXPECT_EQ(keeper.setting("WQ_Sort"), "1");
    EXPECT_FALSE(main->mnu_FileNew->isEnabled() || main->mnu_FileOpen->isEnabled() ||
                 main->mnu_FileDelete->isEnabled());
    SaveSetting("WQ_Sort", "7");
    logbook = &hand::openLogbook(*main);
    EXPECT_EQ(commands(), "refresh") << "a new one, on All Tanks";
    logbook->parentWidget()->close();
    EXPECT_EQ(keeper.setting("WQ_Sort"), "7");
}
