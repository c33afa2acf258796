// The logbook: a tree of the tanks, and the three logs of the tank selected, a list each. It holds no data: a list is
// read afresh whenever something changes. The entry windows are driven from here: a row is opened in a shared
// recordset, the window's controls are filled, and when the window returns the list is reloaded. What the three logs do
// alike is here once; what differs between them is data (LogKinds.h) or a path of its own (EntryPaths.cpp).
#pragma once

#include <array>
#include <map>

#include "logbook/LogKinds.h"
#include "shell/ChildForm.h"

class frm_LivesAddEdit;
class MenuEntry;
class QStatusBar;
class QTabWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

class frm_Waterlog : public ChildForm
{
    Q_OBJECT
public:
    frm_Waterlog(Globals &globals, QWidget *parent);

    /// Name of the tank selected; empty while the tree is rebuilt, and the last one while "All Tanks" is selected.
    QString CurrentTankText;

    // The commands of menus, pop-ups and toolbar, for the log on show.
    void Add_Entries();
    void Change_Entries();
    void Delete_Entries();
    void Move_Entries();
    void Print_Entries();
    void Graph_Entries();
    /// Reloads the list on show: "descending" by date, any other text ascending.
    void Refresh_Listview(const QString &order);
    /// Rebuilds the tree, which ends with "All Tanks" selected, and reloads the list.
    void Refresh_Treeview();
    /// Rebuilds the tree if the tanks are no longer those that it shows.
    void Follow_Tanks();
    /// Brings the main menu and the toolbar into step with the log and the tank on show.
    void Update_Menu_Captions();

    void Form_Load();
    void Form_Activate() override;
    void Form_LostFocus() override;
    void Form_Unload() override;

    MenuEntry &button(const QString &key) { return *m_buttons.at(key); }

    QToolBar *Toolbar1;
    QTreeWidget *TreeView1;
    QTabWidget *tab_logtype;
    QStatusBar *sb_ListviewCaption;
    QStatusBar *StatusBar1;
    ListView *lstv_WaterLog;
    ListView *lstv_Livestock;
    ListView *lstv_Maintenance;

private:
    /// The entry paths of a log.
    struct EntryPaths
    {
        void (frm_Waterlog::*add)();
        void (frm_Waterlog::*change)();
        void (frm_Waterlog::*remove)();
    };
    static const std::array<EntryPaths, 3> entryPaths;

    void makeToolbar();
    void makeTree();
    void makeLists();
    void connectList(ListView *list, int tab);

    int tab() const;
    const LogKind &kind() const { return logKinds[static_cast<size_t>(tab())]; }
    ListView &list(int tab) const { return *m_lists[static_cast<size_t>(tab)]; }
    bool isTankSelected() const;
    void enableLogCommands();

    void LoadWaterList(const QString &order);
    void LoadLivestockList(const QString &order);
    void LoadMaintList(const QString &order);
    /// What the three loaders do alike: takes the tank in hand, tells it in the panel, reads the rows and shows them.
    void loadList(int tab, const QString &order, Recordset &recordset);
    void takeTankInHand();

    void ColumnClick(ListView &list, int index);
    void list_MouseUp(Qt::MouseButton button, const QPoint &position);
    void list_Click();
    void tab_logtype_Click();
    void TreeView1_NodeClick();
    void TreeView1_MouseUp(const QPoint &position);

    // EntryPaths.cpp
    struct DeletePath;
    static const std::array<DeletePath, 3> deletePaths;

    void AddWaterEntry();
    void AddLivestockEntry();
    void AddMaintEntry();
    void Change_EntriesWater();
    void Change_EntriesLives();
    void Change_EntriesMaint();
    void Delete_EntriesWater();
    void Delete_EntriesLives();
    void Delete_EntriesMaint();
    void deleteEntry(const DeletePath &path);
    /// Key of the row selected in the list on show; empty, after a box with that text, where none is.
    QString selectedKey(const QString &ifNone);
    /// The date of a row in the order that it was shown in; the second as it stands, month first if it is a date so.
    QDate dateOfRow(const QString &key) const;
    QDate dateAsTyped(const QString &key) const;
    QTime timeOfRow(const QString &key) const;
    /// The livestock window with the lists of the tank in hand.
    frm_LivesAddEdit &freshLivestockWindow();
    /// Asks whether an entry may be deleted; `entry` is its description.
    bool mayDelete(const QString &entry);

    std::array<ListView *, 3> m_lists{};
    std::map<QString, MenuEntry *> m_buttons;
    QString ListSortOrder;
    QString m_shownOrder; ///< DateOrder when the list on show was loaded: its rows stay so until they are loaded again
    bool FirstActivation = true;
    bool m_nodeJustChanged = false;
};
