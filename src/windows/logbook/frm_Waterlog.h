// The logbook: a tree of the tanks, and the three logs of the tank selected, a list each. It holds no data: a list is
// read afresh whenever something changes. Every command first takes the tree's tank in hand, whatever tank another
// window has dealt with since, and then works on its own copy of it. The entry windows are driven from here: a row is
// opened, the window's controls are filled, the row is handed to the window, and when it returns the list is reloaded.
// What the three logs have in common is here once; what differs between them is a row of the table of the logs
// (logic/logbook/LogKinds.h) or a path of its own (EntryPaths.cpp).
#pragma once

#include <array>
#include <map>
#include <optional>

#include "windows/logbook/LogRows.h"
#include "windows/shell/ChildForm.h"

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
    /// A log as this window has it.
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
    /// The log on show.
    const Log &log() const { return logs[tab()]; }
    ListView &list() const { return *(this->*log().list); }
    bool isTankSelected() const;
    void enableLogCommands();
    void disableFileEntries();

    void LoadWaterList(const QString &order);
    void LoadLivestockList(const QString &order);
    void LoadMaintList(const QString &order);
    /// What the three loaders do alike: takes the tank in hand, tells it in the panel, reads the rows and shows them.
    void loadList(LogTab tab, const QString &order);
    /// Makes the tree's tank the tank in hand.
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
    /// The entry selected in the list on show; nothing, after a box with that text, where none is.
    std::optional<ShownEntry> selectedEntry(const QString &ifNone);
    /// The date in a row's text, read month first where that gives a date, else in the order that it was shown in.
    std::optional<QDate> dateAsTyped(const ShownEntry &entry) const;
    /// A row to be filled by an entry window.
    Recordset newRow(LogTab log);
    /// The row of an entry under that date; nothing, after a box, where the log has none. `undone` is what then does
    /// not happen: "deleted".
    std::optional<Recordset> rowOf(LogTab log, const Tank &tank, const ShownEntry &entry,
                                   const std::optional<QDate> &date, const QString &undone);
    void tellNoRow(const ShownEntry &entry, const std::optional<QDate> &date, const QString &undone);
    /// The livestock window with the lists of that tank's water.
    frm_LivesAddEdit &freshLivestockWindow(const Tank &tank);
    /// Asks whether an entry may be deleted; `entry` is its description.
    bool mayDelete(const QString &entry, const Tank &tank);

    std::array<std::shared_ptr<const LogRows>, logTabs.size()> m_rows; ///< what the lists show
    std::map<QString, MenuEntry *> m_buttons;
    QString ListSortOrder;
    DateOrder m_shownOrder =
        {}; ///< DateOrder when the list on show was loaded: its rows stay so until they are loaded again
    bool FirstActivation = true;
    bool m_nodeJustChanged = false;
};
