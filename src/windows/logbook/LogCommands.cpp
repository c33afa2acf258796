// The logbook's commands and event handlers, which the menus, the toolbar, the tree and the lists call.
#include <QMenu>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "platform/controls/Caption.h"
#include "platform/controls/EmptyText.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/Icons.h"
#include "platform/core/Doors.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/MainMenu.h"
#include "windows/shell/MenuEntry.h"

namespace {

const QString allTanks = QStringLiteral("All Tanks"); ///< key and text of the tree's root
const QString tanksByName = QStringLiteral("SELECT * FROM TANKLST ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString waterTypeByName = QStringLiteral("SELECT TankWaterType FROM TANKLST where tankname = ?");
const QString sortSetting = QStringLiteral("WQ_Sort");
const QString ascending = QStringLiteral("ascending");
const QString printCaption = QStringLiteral("&Print Entries...");

// What to do where a list is empty.
const QString noTanks = QStringLiteral("There are no tanks yet. Press Ctrl+T to set up your first.");
const QString chooseTank = QStringLiteral("Choose a tank on the left to see its entries.");
const QString noEntries = QStringLiteral("There are no entries yet. Press Insert to add one.");

QTreeWidgetItem *makeNode(const QString &key, const QString &text)
{
    auto *node = new QTreeWidgetItem({text});
    node->setData(0, Qt::UserRole, key);
    node->setIcon(0, Icon("tank"));
    return node;
}

} // namespace

const std::array<frm_Waterlog::Log, logTabs.size()> frm_Waterlog::logs = {{
    {WaterTab, &frm_Waterlog::lstv_WaterLog, &frm_Waterlog::LoadWaterList, &frm_Waterlog::AddWaterEntry,
     &frm_Waterlog::Change_EntriesWater, &frm_Waterlog::Delete_EntriesWater},
    {LivestockTab, &frm_Waterlog::lstv_Livestock, &frm_Waterlog::LoadLivestockList, &frm_Waterlog::AddLivestockEntry,
     &frm_Waterlog::Change_EntriesLives, &frm_Waterlog::Delete_EntriesLives},
    {MaintenanceTab, &frm_Waterlog::lstv_Maintenance, &frm_Waterlog::LoadMaintList, &frm_Waterlog::AddMaintEntry,
     &frm_Waterlog::Change_EntriesMaint, &frm_Waterlog::Delete_EntriesMaint},
}};

void frm_Waterlog::Add_Entries() { (this->*log().add)(takeTankInHand()); }

void frm_Waterlog::Change_Entries() { (this->*log().change)(takeTankInHand()); }

void frm_Waterlog::Delete_Entries() { (this->*log().remove)(takeTankInHand()); }

// Brings the graph to the front, which draws the current tank.
void frm_Waterlog::Graph_Entries()
{
    takeTankInHand();
    main.mnu_ToolsGraphing_Click();
}

void frm_Waterlog::Refresh_Treeview()
{
    CurrentTankText.clear();
    FirstActivation = true;
    Recordset tanks = g.gDatabase->OpenRecordset(tanksByName);
    {
        const QSignalBlocker quiet(TreeView1);
        TreeView1->clear();
        QTreeWidgetItem *root = makeNode(allTanks, allTanks);
        TreeView1->addTopLevelItem(root);
        QTreeWidgetItem *last = root;
        for (; !tanks.EOF_(); tanks.MoveNext()) {
            last = makeNode(tanks[QStringLiteral("tankid")].text(), tanks[QStringLiteral("tankname")].text());
            root->addChild(last);
        }
        TreeView1->scrollToItem(last); // opens the tree
        root->setExpanded(true);
        const QString stored = GetSetting(sortSetting, QStringLiteral("Not Found"));
        ListSortOrder = stored == u"Not Found" ? QStringLiteral("1") : stored;
        FirstActivation = false;
        TreeView1->setCurrentItem(root);
    }
    Refresh_Listview(ascending);
}

void frm_Waterlog::Follow_Tanks()
{
    const QTreeWidgetItem *root = TreeView1->topLevelItem(0);
    QStringList shown;
    for (int i = 0; root && i < root->childCount(); ++i)
        shown << root->child(i)->data(0, Qt::UserRole).toString() << root->child(i)->text(0);
    QStringList present;
    for (Recordset tanks = g.gDatabase->OpenRecordset(tanksByName); !tanks.EOF_(); tanks.MoveNext())
        present << tanks[QStringLiteral("tankid")].text() << tanks[QStringLiteral("tankname")].text();
    if (shown != present)
        Refresh_Treeview();
}

void frm_Waterlog::Refresh_Listview(const QString &order)
{
    if (!TreeView1->currentItem())
        return; // called before the first activation, when the tree is still empty
    (this->*log().load)(order);
    Update_Menu_Captions();
}

void frm_Waterlog::loadList(LogTab tab, const QString &order)
{
    const HourGlass wait;
    const LogKind &kind = KindOf(tab);
    ListView &list = *(this->*logs[tab].list);
    list.Clear();
    const Tank tank = takeTankInHand();
    const bool anyTank = TreeView1->topLevelItem(0)->childCount() > 0;
    m_empty[tab]->setText(isTankSelected() ? noEntries : anyTank ? chooseTank : noTanks);
    sb_ListviewCaption->showMessage(QString::fromLatin1(kind.list.caption).arg(tank.name));
    const QString sql = QStringLiteral("SELECT * FROM %1 where %2 = ? ORDER BY %3")
                            .arg(QLatin1String(kind.table), QLatin1String(kind.tankColumn),
                                 QLatin1String(order == u"descending" ? kind.list.descending : kind.list.ascending));
    m_shownOrder = g.options.DateOrder;
    m_rows[tab] =
        std::make_shared<LogRows>(kind, g.gDatabase->OpenRecordset(sql, {tank.id}).rows(), g.options.DatePicture);
    list.setSource(m_rows[tab]);
}

void frm_Waterlog::readWaterType(const Tank &tank)
{
    Recordset found = g.gDatabase->OpenRecordset(waterTypeByName, {tank.name}); // the only look-up by name
    if (!found.isEmpty())
        g.gTankWaterType = found[QStringLiteral("TankWaterType")].text();
}

void frm_Waterlog::LoadWaterList(const QString &order) { loadList(WaterTab, order); }

void frm_Waterlog::LoadLivestockList(const QString &order)
{
    readWaterType(takeTankInHand());
    loadList(LivestockTab, order);
}

void frm_Waterlog::LoadMaintList(const QString &order) { loadList(MaintenanceTab, order); }

void frm_Waterlog::Update_Menu_Captions()
{
    const MainMenu &menu = main.menu();
    const QString caption = QLatin1String(KindOf(tab()).caption);
    menu.mnu_FileNew->setText(u"New " + caption + u" Entry...");
    menu.mnu_FileOpen->setText(u"Open " + caption + u" Entry...");
    menu.mnu_FileDelete->setText(u"Delete " + caption + u" Entry...");
    menu.mnu_LogPopup_New->setText(menu.mnu_FileNew->text());
    menu.mnu_Logpopup_Open->setText(menu.mnu_FileOpen->text());
    menu.mnu_LogPopup_Delete->setText(menu.mnu_FileDelete->text());

    const bool livestock = tab() == LivestockTab;
    menu.mnu_LogPopup_Move->setVisible(livestock);
    menu.mnu_movesep->setVisible(livestock);
    button(QStringLiteral("moveentries")).Enabled(livestock);

    const bool tank = isTankSelected();
    main.offerPrint(*this, tank, printCaption);
    if (tank)
        CurrentTankText = TreeView1->currentItem()->text(0);
    else
        menu.mnu_TankProperties->setText(QStringLiteral("(no tank selected) Properties..."));
    menu.mnu_TankProperties->Enabled(tank);
    menu.mnu_TankDelete->Enabled(tank);
    menu.mnu_LogPopup->setEnabled(tank);
    // The graph's button does not depend on the number of entries: the graph window says so if there are too few.
    button(QStringLiteral("graphentries")).Enabled(tank);
    enableLogCommands();
}

void frm_Waterlog::enableLogCommands()
{
    const MainMenu &menu = main.menu();
    const bool tank = isTankSelected();
    const bool inFront = main.isInFront(*this); // the lists are also filled while another window is in front
    for (MenuEntry *entry : {menu.mnu_FileNew, menu.mnu_FileOpen, menu.mnu_FileDelete})
        entry->Enabled(tank && inFront);
    menu.mnu_FileMoveEntry->Enabled(inFront && tab() == LivestockTab);
    for (MenuEntry *entry : {menu.mnu_LogPopup_New, menu.mnu_Logpopup_Open, menu.mnu_LogPopup_Delete})
        entry->Enabled(tank);
    for (const char *key : {"addentries", "changeentries", "deleteentries"})
        button(QLatin1String(key)).Enabled(tank);
}

void frm_Waterlog::ColumnClick(ListView &list, int index)
{
    if (index != 1) {
        const bool again = list.SortKey() == index - 1;
        list.setSort(true, index - 1, again ? 1 - list.SortOrder() : 0);
        return;
    }
    // The first column is the date. Sorting by its text would give a wrong order, so the database sorts.
    const bool descending = list.SortKey() == 0 && list.SortOrder() == 0;
    list.setSort(false, 0, descending ? 1 : 0);
    Refresh_Listview(descending ? QStringLiteral("descending") : ascending);
}

void frm_Waterlog::list_Click() { enableLogCommands(); }

void frm_Waterlog::list_MouseUp(Qt::MouseButton button, const QPoint &position)
{
    if (button == Qt::RightButton && isTankSelected()) // the menu has no command for "All Tanks"
        main.menu().mnu_LogPopup->popup(position);
}

void frm_Waterlog::tab_logtype_Click() { Refresh_Listview(ascending); }

void frm_Waterlog::TreeView1_NodeClick() { Refresh_Listview(ascending); }

void frm_Waterlog::TreeView1_MouseUp(const QPoint &position)
{
    const MainMenu &menu = main.menu();
    menu.mnu_TankProperties->setText(Caption(CurrentTankText) + u" Properties...");
    menu.mnu_tankPopup->popup(position);
}

void frm_Waterlog::Form_Activate()
{
    if (FirstActivation) {
        for (const Log &log : logs)
            SetListViewStyle(*(this->*log.list));
        Refresh_Treeview();
        FirstActivation = false;
        return;
    }
    takeTankInHand(); // the graph may have changed the current tank
    main.offerPrint(*this, isTankSelected(), printCaption);
    enableLogCommands(); // they stay disabled while "All Tanks" is selected
}

void frm_Waterlog::disableFileEntries()
{
    const MainMenu &menu = main.menu();
    for (MenuEntry *entry : {menu.mnu_FileNew, menu.mnu_FileOpen, menu.mnu_FileDelete, menu.mnu_FileMoveEntry})
        entry->Enabled(false);
}

void frm_Waterlog::Form_LostFocus()
{
    disableFileEntries();
    main.menu().mnu_FilePrint->setVisible(true);
}

void frm_Waterlog::Form_Unload()
{
    if (!ListSortOrder.isEmpty())
        SaveSetting(sortSetting, ListSortOrder);
    disableFileEntries();
}
