// The logbook's commands and events: what the menus, the toolbar, the tree and the lists call.
#include <QMenu>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "platform/controls/Caption.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/Icons.h"
#include "platform/core/Doors.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/MenuEntry.h"

namespace {

const QString allTanks = QStringLiteral("All Tanks"); ///< key and text of the tree's root
const QString tanksByName = QStringLiteral("SELECT * FROM TANKLST ORDER BY [tankname] COLLATE CASEBLIND ASC");
const QString waterTypeByName = QStringLiteral("SELECT TankWaterType FROM TANKLST where tankname = ?");
const QString sortSetting = QStringLiteral("WQ_Sort");
const QString ascending = QStringLiteral("ascending");
const QString printCaption = QStringLiteral("&Print Entries...");

QTreeWidgetItem *makeNode(const QString &key, const QString &text)
{
    auto *node = new QTreeWidgetItem({text});
    node->setData(0, Qt::UserRole, key);
    node->setIcon(0, Icon("tank"));
    return node;
}

} // namespace

const std::array<frm_Waterlog::EntryPaths, 3> frm_Waterlog::entryPaths = {{
    {&frm_Waterlog::AddWaterEntry, &frm_Waterlog::Change_EntriesWater, &frm_Waterlog::Delete_EntriesWater},
    {&frm_Waterlog::AddLivestockEntry, &frm_Waterlog::Change_EntriesLives, &frm_Waterlog::Delete_EntriesLives},
    {&frm_Waterlog::AddMaintEntry, &frm_Waterlog::Change_EntriesMaint, &frm_Waterlog::Delete_EntriesMaint},
}};

void frm_Waterlog::Add_Entries() { (this->*entryPaths[static_cast<size_t>(tab())].add)(takeTankInHand()); }

void frm_Waterlog::Change_Entries() { (this->*entryPaths[static_cast<size_t>(tab())].change)(takeTankInHand()); }

void frm_Waterlog::Delete_Entries() { (this->*entryPaths[static_cast<size_t>(tab())].remove)(takeTankInHand()); }

// The graph, in front; it draws the tank in hand.
void frm_Waterlog::Graph_Entries()
{
    takeTankInHand();
    Form<frm_OMKMDIMain>().mnu_ToolsGraphing_Click();
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
        return; // a command before the first activation: the tree is not there yet
    switch (tab()) {
    case WaterTab: LoadWaterList(order); break;
    case LivestockTab: LoadLivestockList(order); break;
    default: LoadMaintList(order); break;
    }
    Update_Menu_Captions();
}

void frm_Waterlog::loadList(int tab, const QString &order)
{
    const HourGlass wait;
    const auto place = static_cast<size_t>(tab);
    const LogKind &kind = logKinds[place];
    list(tab).Clear();
    const Tank tank = takeTankInHand();
    sb_ListviewCaption->showMessage(QString::fromLatin1(kind.listCaption).arg(tank.name));
    const QString sql =
        QLatin1String(kind.select) + QLatin1String(order == u"descending" ? kind.descending : kind.ascending);
    m_shownOrder = g.options.DateOrder;
    m_rows[place] =
        std::make_shared<LogRows>(kind, g.gDatabase->OpenRecordset(sql, {tank.id}).rows(), g.options.DatePicture);
    list(tab).setSource(m_rows[place]);
}

void frm_Waterlog::readWaterType(const Tank &tank)
{
    Recordset found = g.gDatabase->OpenRecordset(waterTypeByName, {tank.name}); // the one look-up by name
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
    auto &main = Form<frm_OMKMDIMain>();
    const QString caption = QLatin1String(kind().tabCaption);
    main.mnu_FileNew->setText(u"New " + caption + u" Entry...");
    main.mnu_FileOpen->setText(u"Open " + caption + u" Entry...");
    main.mnu_FileDelete->setText(u"Delete " + caption + u" Entry...");
    main.mnu_LogPopup_New->setText(main.mnu_FileNew->text());
    main.mnu_Logpopup_Open->setText(main.mnu_FileOpen->text());
    main.mnu_LogPopup_Delete->setText(main.mnu_FileDelete->text());

    const bool livestock = tab() == LivestockTab;
    main.mnu_LogPopup_Move->setVisible(livestock);
    main.mnu_movesep->setVisible(livestock);
    button(QStringLiteral("moveentries")).Enabled(livestock);

    const bool tank = isTankSelected();
    main.offerPrint(*this, tank, printCaption);
    if (tank)
        CurrentTankText = TreeView1->currentItem()->text(0);
    else
        main.mnu_TankProperties->setText(QStringLiteral("(no tank selected) Properties..."));
    main.mnu_TankProperties->Enabled(tank);
    main.mnu_TankDelete->Enabled(tank);
    main.mnu_LogPopup->setEnabled(tank);
    // The last word on the graph, whatever the number of entries: the graph window tells when there are too few.
    button(QStringLiteral("graphentries")).Enabled(tank);
    enableLogCommands();
}

void frm_Waterlog::enableLogCommands()
{
    auto &main = Form<frm_OMKMDIMain>();
    const bool tank = isTankSelected();
    const bool inFront = main.isInFront(*this); // its lists are filled behind other windows as well
    for (MenuEntry *entry : {main.mnu_FileNew, main.mnu_FileOpen, main.mnu_FileDelete})
        entry->Enabled(tank && inFront);
    main.mnu_FileMoveEntry->Enabled(inFront && tab() == LivestockTab);
    for (MenuEntry *entry : {main.mnu_LogPopup_New, main.mnu_Logpopup_Open, main.mnu_LogPopup_Delete})
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
    // The first column is the date: a sort of its text would be wrong, so the database gives the order.
    const bool descending = list.SortKey() == 0 && list.SortOrder() == 0;
    list.setSort(false, 0, descending ? 1 : 0);
    Refresh_Listview(descending ? QStringLiteral("descending") : ascending);
}

void frm_Waterlog::list_Click() { enableLogCommands(); }

void frm_Waterlog::list_MouseUp(Qt::MouseButton button, const QPoint &position)
{
    if (button == Qt::RightButton && isTankSelected()) // with "All Tanks" there would be nothing to choose in it
        Form<frm_OMKMDIMain>().mnu_LogPopup->popup(position);
}

void frm_Waterlog::tab_logtype_Click() { Refresh_Listview(ascending); }

void frm_Waterlog::TreeView1_NodeClick() { Refresh_Listview(ascending); }

void frm_Waterlog::TreeView1_MouseUp(const QPoint &position)
{
    auto &main = Form<frm_OMKMDIMain>();
    main.mnu_TankProperties->setText(Caption(CurrentTankText) + u" Properties...");
    main.mnu_tankPopup->popup(position);
}

void frm_Waterlog::Form_Activate()
{
    if (FirstActivation) {
        for (ListView *list : m_lists)
            SetListViewStyle(*list);
        Refresh_Treeview();
        FirstActivation = false;
        return;
    }
    takeTankInHand(); // the graph may have taken another
    Form<frm_OMKMDIMain>().offerPrint(*this, isTankSelected(), printCaption);
    enableLogCommands(); // with "All Tanks" in hand they stay disabled
}

void frm_Waterlog::disableFileEntries()
{
    const auto &main = Form<frm_OMKMDIMain>();
    for (MenuEntry *entry : {main.mnu_FileNew, main.mnu_FileOpen, main.mnu_FileDelete, main.mnu_FileMoveEntry})
        entry->Enabled(false);
}

void frm_Waterlog::Form_LostFocus()
{
    disableFileEntries();
    Form<frm_OMKMDIMain>().mnu_FilePrint->setVisible(true);
}

void frm_Waterlog::Form_Unload()
{
    if (!ListSortOrder.isEmpty())
        SaveSetting(sortSetting, ListSortOrder);
    disableFileEntries();
}
