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
    EXPECT_FALSE(main->mnu_FileNew->isEnabled() || main->mnu_TankDelete->isEnabled() ||
                 logbook->button("changeentries").isEnabled());
    mouse::click(list().viewport(), {}, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a menu with nothing to choose";
}

TEST_F(Logbook, EachTabShowsItsValuesInTheirPicturesAndGivesItsCommands)
{
    const char *const first[] = {"04/05/26 - 09:30:00 am|8.00|||||||||||||",
                                 "04/05/26 - 09:30:00 PM|Clown plus friend|40000||12.50||05/25/26||",
                                 "04/05/26 - 09:30:00 am|Water change|13|||"};
    for (const int tab : {1, 2, 0}) {
        hand::clickTab(*logbook->tab_logtype, tab);
        QStringList cells;
        for (int i = 0; i < list().columnCount(); ++i)
            cells << list().Text(1, i);
        EXPECT_EQ(cells.join('|'), first[tab]);
        const QString log = logbook->tab_logtype->tabText(tab);
        EXPECT_EQ(logbook->sb_ListviewCaption->currentMessage(), "Contents of " + log + " for 'Reef'");
        EXPECT_EQ(main->mnu_FileOpen->text(), "Open " + log + " Entry...");
        EXPECT_TRUE(main->mnu_FileNew->isEnabled() && main->mnu_TankDelete->isEnabled() &&
                    logbook->button("changeentries").isEnabled());
        for (const MenuEntry *entry :
             {main->mnu_FileMoveEntry, main->mnu_LogPopup_Move, &logbook->button("moveentries")})
            EXPECT_EQ(entry->isEnabled() && entry->isVisible(), tab == LivestockTab) << tab;
    }
}

TEST_F(Logbook, HeadingsSortByTextAndTheDateHeadingByTheDatabase)
{
    addEntry(LivestockTab, "r1", "2026-12-05 00:30:00", "animalname", "'Eel'"); // later, but earlier in its day
    addEntry(MaintenanceTab, "r1", "2026-12-05 00:30:00", "maintlogtask", "'Eel'");
    const std::tuple<int, int, const char *> steps[] = {
        // tab, heading (0 selects another tank and then this one again), and the second column from the top
        {WaterTab, 0, "8.00 10.00 9.00"},           {WaterTab, 1, "9.00 10.00 8.00"},
        {WaterTab, 1, "8.00 10.00 9.00"},           {WaterTab, 2, "10.00 8.00 9.00"},
        {WaterTab, 0, "8.00 10.00 9.00"}, // the new list is not sorted, but a click continues the alternation
        {WaterTab, 2, "9.00 8.00 10.00"},           {LivestockTab, 1, "Eel Clown plus friend"},
        {LivestockTab, 1, "Clown plus friend Eel"}, {MaintenanceTab, 1, "Eel Water change"},
        {MaintenanceTab, 1, "Water change Eel"},    {WaterTab, 1, "8.00 10.00 9.00"},
        {WaterTab, 1, "9.00 10.00 8.00"},
    };
    for (const auto &[tab, heading, texts] : steps) {
        hand::clickTab(*logbook->tab_logtype, tab);
        if (heading > 0)
            hand::clickHeading(list(), heading);
        else
            for (const char *tank : {"Pond", "Reef"})
                hand::clickTank(*logbook, tank);
        EXPECT_EQ(column(1), texts) << tab << ' ' << heading;
    }
    give<frm_WaterAddEdit>("addentries", 0, [](auto &) { hand::press(Qt::Key_Escape); });
    EXPECT_EQ(column(1), "8.00 10.00 9.00") << "an entry brings the order of the dates back";
}

TEST_F(Logbook, DoubleClickAndTheRightButtonActOnTheRowBelowThem)
{
    hand::clickRow(list(), 1, Qt::RightButton);
    EXPECT_TRUE(main->mnu_LogPopup->isVisible());
    EXPECT_EQ(list().SelectedItem(), 1);
    hand::press(Qt::Key_Escape);
    keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) {
        EXPECT_EQ(w.txt_date->text(), "12/05/26");
        hand::press(Qt::Key_Escape);
    });
    mouse::doubleClick(list().viewport(), list().visualRect(list().model()->index(1, 0)).center());
    EXPECT_TRUE(isInFront(*main));
}
