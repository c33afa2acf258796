#include "Desk.h"
#include "windows/logbook/frm_WaterAddEdit.h"

/// "Reef" has three water tests, a fish and a task.
class Logbook : public Desk
{
protected:
    Logbook()
    {
        addEntry(WaterTab, "r1", "2026-04-05 09:30:00", "ph", "8");
        addEntry(WaterTab, "r1", "2026-12-05 00:30:00", "ph", "10");
        addEntry(WaterTab, "r1", "2027-01-05 12:30:00", "ph", "9");
        addEntry(LivestockTab, "r1", "2026-04-05 21:30:00", "animalname, quantity, price_paid, datelost",
                 "'Clown plus friend', 40000, 12.5, '2026-05-25'");
        addEntry(MaintenanceTab, "r1", "2026-04-05 09:30:00", "maintlogtask, maintlogqty", "'Water change', 12.5");
        open("Reef");
    }
    /// How many of some commands for a tank and its entries are enabled.
    auto commands() const
    {
        const MenuEntry *const all[] = {main->mnu_FileNew, main->mnu_FileDelete, main->mnu_Logpopup_Open,
                                        main->mnu_TankDelete, &logbook->button("changeentries")};
        return std::ranges::count_if(all, &MenuEntry::isEnabled);
    }
    QString panel() const { return logbook->sb_ListviewCaption->currentMessage(); }
    QString cells() const
    {
        QStringList texts;
        for (int i = 0; i < list().columnCount(); ++i)
            texts << list().Text(1, i);
        return texts.join(u'|');
    }
};

TEST_F(Logbook, TreeHoldsTheTanksOfNowInCaseBlindOrderAndARefreshEndsOnAllTanks)
{
    keeper.addTank("barrel", "id of barrel");
    hand::clickTank(*logbook, "Pond");
    hand::choose(*main, *main->mnu_View, "mnu_ViewRefresh");
    const QTreeWidgetItem &root = *logbook->TreeView1->topLevelItem(0);
    QString nodes = root.text(0) + '=' + root.data(0, Qt::UserRole).toString();
    for (int i = 0; i < root.childCount(); ++i)
        nodes += '|' + root.child(i)->text(0) + '=' + root.child(i)->data(0, Qt::UserRole).toString();
    EXPECT_EQ(nodes, "All Tanks=All Tanks|barrel=id of barrel|Bowl=b1|Marsh=k1|Pond=p1|Reef=r1|Same=Same");
    EXPECT_TRUE(root.isExpanded() && root.isSelected());
    EXPECT_EQ(commands(), 0);
    EXPECT_EQ(panel(), "Contents of Water Quality Log for 'All Tanks'");
    mouse::click(list().viewport(), {}, Qt::RightButton);
    hand::press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a menu with nothing to choose";
}

TEST_F(Logbook, EachTabShowsItsValuesInTheirPicturesAndGivesItsCommands)
{
    const char *const first[] = {"04/05/26 - 09:30:00 am|8.00|||||||||||||",
                                 "04/05/26 - 09:30:00 PM|Clown plus friend|40000||12.50||05/25/26||",
                                 "04/05/26 - 09:30:00 am|Water change|13|||"};
    for (const int tab : {1, 2, 0}) {
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString log = logbook->tab_logtype->tabText(tab);
        EXPECT_EQ(cells(), first[tab]);
        EXPECT_EQ(panel(), "Contents of " + log + " for 'Reef'");
        EXPECT_EQ(commands(), 5) << tab;
        for (const MenuEntry *entry :
             {main->mnu_FileMoveEntry, main->mnu_LogPopup_Move, &logbook->button("moveentries")})
            EXPECT_EQ(entry->isEnabled() && entry->isVisible(), tab == LivestockTab) << tab;
        EXPECT_EQ(main->mnu_FileOpen->text(), "Open " + log + " Entry...");
    }
}

TEST_F(Logbook, HeadingsSortByTextAndTheDateHeadingByTheDatabase)
{
    const char *const up = "8.00 10.00 9.00", *const down = "9.00 10.00 8.00"; // by date
    const char *const textUp = "10.00 8.00 9.00", *const textDown = "9.00 8.00 10.00";
    const std::pair<int, const char *> steps[] = {
        // 0 selects another tank and then this one again
        {1, down},     {1, up},
        {2, textUp},   {0, up}, // the new list is not sorted, but a click continues the alternation
        {2, textDown},
    };
    EXPECT_EQ(column(1), up);
    for (const auto &[heading, ph] : steps) {
        if (heading > 0)
            hand::clickHeading(list(), heading);
        else
            for (const char *tank : {"Pond", "Reef"})
                hand::clickTank(*logbook, tank);
        EXPECT_EQ(column(1), ph) << heading;
    }
    give<frm_WaterAddEdit>("addentries", 0, [](auto &) { hand::press(Qt::Key_Escape); });
    EXPECT_EQ(column(1), up) << "an entry brings the order of the dates back";
    addEntry(LivestockTab, "r1", "2026-12-05 00:30:00", "animalname", "'Eel'");
    addEntry(MaintenanceTab, "r1", "2026-12-05 00:30:00", "maintlogtask", "'Eel'");
    for (const int tab : {LivestockTab, MaintenanceTab}) { // the later date has the earlier time
        hand::clickTab(*logbook->tab_logtype, tab);
        hand::clickHeading(list(), 1);
        const QString before = column(1);
        hand::clickHeading(list(), 1);
        EXPECT_NE(before.startsWith("Eel"), column(1).startsWith("Eel")) << "one way, and the other";
    }
}

TEST_F(Logbook, DoubleClickAndTheRightButtonActOnTheRowBelowThem)
{
    for (const bool byMenu : {false, true}) {
        keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) {
            EXPECT_EQ(w.txt_date->text(), "12/05/26");
            hand::press(Qt::Key_Escape);
        });
        if (byMenu) {
            hand::clickRow(list(), 2, Qt::RightButton);
            clickEntry(*main->mnu_LogPopup, "mnu_Logpopup_Open");
        } else {
            mouse::doubleClick(list().viewport(), list().visualRect(list().model()->index(1, 0)).center());
        }
        EXPECT_EQ(list().SelectedItem(), 0);
        EXPECT_TRUE(isInFront(*main));
    }
}

TEST_F(Logbook, ClosingKeepsAForeignSortSettingAndLetsGoOfTheTank)
{
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    for (const QString sort : {"1", "7"}) {
        logbook->parentWidget()->close();
        EXPECT_EQ(keeper.setting("WQ_Sort"), sort);
        EXPECT_FALSE(main->mnu_FileMoveEntry->isEnabled()) << "it asks for no logbook on the screen";
        SaveSetting("WQ_Sort", "7");
        logbook = &hand::openLogbook(*main);
        EXPECT_EQ(commands(), 0) << "a new one, on All Tanks";
        hand::clickTank(*logbook, "Reef");
    }
}
