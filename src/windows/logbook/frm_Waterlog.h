// The logbook: a tree of the tanks, and a list for each of the three logs of the selected tank. It holds no data: a
// list is read again whenever something changes. Every command first makes the tank of the tree the current one,
// whichever tank another window has used since, and then works on its own copy of it. The logbook drives the entry
// windows: it opens a row, fills the window's controls, hands the row over, and reloads the list when the window
// returns. The common code of the three logs is here; their differences are rows in the table of the logs
// (logic/logbook/LogKinds.h) or functions in EntryPaths.cpp.
#pragma once

#include <array>
#include <map>
#include <optional>

#include "windows/logbook/LogRows.h"
#include "windows/shell/ChildForm.h"

class EmptyText;
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
    explicit frm_Waterlog(const FormContext &context);

    /// The name of the selected tank. It is empty while the tree is rebuilt, and stays the last one while "All Tanks"
    /// is selected.
    QString CurrentTankText;

    // The commands of menus, pop-up menus and toolbar. They work on the log that is shown.
    void Add_Entries();
    void Change_Entries();
    void Delete_Entries();
    void Move_Entries();
    void Print_Entries();
    void Graph_Entries();
    /// Reloads the list that is shown, by date: "descending", or ascending for any other text.
    void Refresh_Listview(const QString &order);
    /// Rebuilds the tree, selects "All Tanks" and reloads the list.
    void Refresh_Treeview();
    /// Rebuilds the tree if it no longer shows the present tanks.
    void Follow_Tanks();
    /// Updates the main menu and the toolbar for the log and the tank that are shown.
    void Update_Menu_Captions();

    void Form_Load();
    void Form_Activate() override;
    void Form_LostFocus() override;
    void Form_Unload() override;
    void Print() override { Print_Entries(); }

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
    /// The tank that a command works on.
    struct Tank
    {
        QString id;
        QString name;
    };
    using EntryPath = void (frm_Waterlog::*)(const Tank &);
    /// What this window has for each log.
    struct Log
    {
        LogTab tab;
        ListView *frm_Waterlog::*list;
        void (frm_Waterlog::*load)(const QString &order);
        EntryPath add;
        EntryPath change;
        EntryPath remove;
    };
    static const std::array<Log, logTabs.size()> logs;

    void makeToolbar();
    void makeTree();
    void makeLists();
    void connectList(ListView &list, LogTab tab);

    LogTab tab() const;
    /// The log that is shown.
    const Log &log() const { return logs[tab()]; }
    ListView &list() const { return *(this->*log().list); }
    bool isTankSelected() const;
    void enableLogCommands();
    void disableFileEntries();

    void LoadWaterList(const QString &order);
    void LoadLivestockList(const QString &order);
    void LoadMaintList(const QString &order);
    /// The common part of the three loaders: makes the tank of the tree the current one, shows its name above the list,
    /// reads the rows and shows them.
    void loadList(LogTab tab, const QString &order);
    /// Makes the tank of the tree the current one ("in hand") and returns it.
    Tank takeTankInHand();
    /// Sets gTankWaterType for the livestock window.
    void readWaterType(const Tank &tank);

    void ColumnClick(ListView &list, int index);
    void list_MouseUp(Qt::MouseButton button, const QPoint &position);
    void list_Click();
    void tab_logtype_Click();
    void TreeView1_NodeClick();
    void TreeView1_MouseUp(const QPoint &position);

    // EntryPaths.cpp
    void AddWaterEntry(const Tank &tank);
    void AddLivestockEntry(const Tank &tank);
    void AddMaintEntry(const Tank &tank);
    void Change_EntriesWater(const Tank &tank);
    void Change_EntriesLives(const Tank &tank);
    void Change_EntriesMaint(const Tank &tank);
    void Delete_EntriesWater(const Tank &tank);
    void Delete_EntriesLives(const Tank &tank);
    void Delete_EntriesMaint(const Tank &tank);
    void deleteEntry(LogTab log, const Tank &tank);
    /// The entry selected in the list that is shown. If none is, shows `ifNone` and returns nothing.
    std::optional<ShownEntry> selectedEntry(const QString &ifNone);
    /// The date in a row's text: read month first, or in the date order in which it was shown if that gives no date.
    std::optional<QDate> dateAsTyped(const ShownEntry &entry) const;
    /// An empty row, which an entry window fills.
    Recordset newRow(LogTab log);
    /// The row of an entry, looked up under that date. If the log has none, a message says so, in which `undone` is
    /// what was not done ("deleted"), and nothing is returned.
    std::optional<Recordset> rowOf(LogTab log, const Tank &tank, const ShownEntry &entry,
                                   const std::optional<QDate> &date, const QString &undone);
    void tellNoRow(const ShownEntry &entry, const std::optional<QDate> &date, const QString &undone);
    /// The livestock window, with the lists for the water of that tank.
    frm_LivesAddEdit &freshLivestockWindow(const Tank &tank);
    /// Asks whether the entry with that description may be deleted.
    bool mayDelete(const QString &entry, const Tank &tank);

    std::array<std::shared_ptr<const LogRows>, logTabs.size()> m_rows; ///< the rows that the lists show
    std::array<EmptyText *, logTabs.size()> m_empty;                   ///< in the lists
    std::map<QString, MenuEntry *> m_buttons;
    QString ListSortOrder;
    DateOrder m_shownOrder = {}; ///< the date order in which the shown list was loaded
    bool FirstActivation = true;
    bool m_nodeJustChanged = false;
};
