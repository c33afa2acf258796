#include "windows/shell/MainMenu.h"

#include <QMenu>
#include <QMenuBar>

#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/MenuEntry.h"

namespace {

using Handler = void (frm_OMKMDIMain::*)();
using Main = frm_OMKMDIMain;

enum Mark { Plain = 0, Disabled = 1, Hidden = 2, Checked = 4, SeparatorBefore = 8 };

struct MenuRow
{
    QMenu *MainMenu::*menu;
    const char *name;
    const char *caption;
    bool popup;
    bool hidden;
};

constexpr MenuRow menuRows[] = {
    {&MainMenu::mnu_File, "mnu_File", "&File", false, false},
    {&MainMenu::mnu_Edit, "mnu_Edit", "&Edit", false, true},
    {&MainMenu::mnu_View, "mnu_View", "&View", false, false},
    {&MainMenu::mnu_Tools, "mnu_Tools", "&Tools", false, false},
    {&MainMenu::mnu_Window, "mnu_Window", "&Window", false, false},
    {&MainMenu::mnu_Help, "mnu_Help", "&Help", false, false},
    {&MainMenu::mnu_tankPopup, "mnu_tankPopup", "tank_popup", true, true},
    {&MainMenu::mnu_LogPopup, "mnu_LogPopup", "log_popup", true, true},
    {&MainMenu::mnu_GraphPopup, "mnu_GraphPopup", "graph_popup", true, true},
};

struct EntryRow
{
    QMenu *MainMenu::*menu;
    MenuEntry *MainMenu::*entry;
    const char *name;
    const char *caption;
    char shortcut; ///< key that is pressed with Ctrl; 0 for none
    int marks;
    Handler handler; ///< null if the entry does nothing
};

#define ENTRY(name) &MainMenu::name, #name
constexpr EntryRow entryRows[] = {
    {&MainMenu::mnu_File, ENTRY(mnu_FileNew), "&New Log Entry", 'N', Disabled, &Main::mnu_FileNew_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FileOpen), "&Open Log Entry", 'O', Disabled, &Main::mnu_FileOpen_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FileDelete), "&Delete Log Entry", 0, Disabled, &Main::mnu_FileDelete_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FileMoveEntry), "&Move Log Entry...", 0, Disabled, &Main::mnu_FileMoveEntry_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FileBackup), "&Backup Database", 0, SeparatorBefore, &Main::mnu_FileBackup_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FileProperties), "Propert&ies", 0, Hidden | Disabled, nullptr},
    {&MainMenu::mnu_File, ENTRY(mnu_FilePageSetup), "Page Set&up...", 0, Hidden, &Main::mnu_FilePageSetup_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_FilePrint), "&Print", 0, Disabled | SeparatorBefore, &Main::mnu_FilePrint_Click},
    {&MainMenu::mnu_File, ENTRY(mnu_Exit), "&Exit", 0, SeparatorBefore, &Main::mnu_Exit_Click},

    {&MainMenu::mnu_Edit, ENTRY(mnu_EditUndo), "&Undo", 'Z', Plain, nullptr},
    {&MainMenu::mnu_Edit, ENTRY(mnu_EditCut), "Cu&t", 'X', Plain, nullptr},
    {&MainMenu::mnu_Edit, ENTRY(mnu_EditCopy), "&Copy ", 'C', Plain, nullptr},
    {&MainMenu::mnu_Edit, ENTRY(mnu_EditPaste), "&Paste", 'V', Plain, nullptr},

    {&MainMenu::mnu_View, ENTRY(mnu_ViewToolbar), "&Toolbar", 0, Checked, &Main::mnu_ViewToolbar_Click},
    {&MainMenu::mnu_View, ENTRY(mnu_ViewStatusbar), "Status &Bar", 0, Checked, &Main::mnu_ViewStatusbar_Click},
    {&MainMenu::mnu_View, ENTRY(mnu_ViewRefresh), "&Refresh", 0, SeparatorBefore, &Main::mnu_ViewRefresh_Click},
    {&MainMenu::mnu_View, ENTRY(mnu_ViewOptions), "&Options...", 0, SeparatorBefore, &Main::mnu_ViewOptions_Click},
    {&MainMenu::mnu_View, ENTRY(mnu_ViewBrowser), "&Web Browser", 0, Hidden, nullptr},

    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsTanksetup), "&Tank Setup", 'T', Plain, &Main::mnu_ToolsTanksetup_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsLogbook), "&Logbook", 'L', Plain, &Main::mnu_ToolsLogbook_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsGraphing), "&Graphing", 'G', Plain, &Main::mnu_ToolsGraphing_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsCompatibility), "Co&mpatibility", 'M', SeparatorBefore,
     &Main::mnu_ToolsCompatibility_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsDisease), "&Disease Diagnosis", 'D', Plain, &Main::mnu_ToolsDisease_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsRemindersAddEdit), "&Add or Change Reminders", 'E', SeparatorBefore,
     &Main::mnu_ToolsRemindersAddEdit_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsReminderSchedule), "View Reminder &Schedule", 'S', Plain,
     &Main::mnu_ToolsReminderSchedule_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsFantasy), "&Fantasy Tank", 'F', SeparatorBefore,
     &Main::mnu_ToolsFantasy_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsCommonNames), "Common / Latin &Names Cross-reference", 0, Plain,
     &Main::mnu_ToolsCommonNames_Click},
    {&MainMenu::mnu_Tools, ENTRY(mnu_ToolsConversions), "&Conversion Calculator", 0, Plain,
     &Main::mnu_ToolsConversions_Click},

    {&MainMenu::mnu_Window, ENTRY(mnu_WindowCascade), "&Cascade", 0, Plain, &Main::mnu_WindowCascade_Click},
    {&MainMenu::mnu_Window, ENTRY(mnu_WindowTileHorizontal), "Tile &Horizontal", 0, Plain,
     &Main::mnu_WindowTileHorizontal_Click},
    {&MainMenu::mnu_Window, ENTRY(mnu_WindowTileVertical), "Tile &Vertical", 0, Plain,
     &Main::mnu_WindowTileVertical_Click},
    {&MainMenu::mnu_Window, ENTRY(mnu_WindowArrangeIcons), "&Arrange Icons", 0, Plain,
     &Main::mnu_WindowArrangeIcons_Click},

    {&MainMenu::mnu_Help, ENTRY(mnu_HelpContents), "&Contents", 0, Plain, &Main::mnu_HelpContents_Click},
    {&MainMenu::mnu_Help, ENTRY(mnu_HelpSearch), "&Search For Help On...", 0, Plain, &Main::mnu_HelpSearch_Click},
    {&MainMenu::mnu_Help, ENTRY(mnu_HelpTod), "Tip of the Day", 0, SeparatorBefore, &Main::mnu_HelpTod_Click},
    {&MainMenu::mnu_Help, ENTRY(mnu_HelpAbout), "&About Ostrelmark...", 0, SeparatorBefore, &Main::mnu_HelpAbout_Click},

    {&MainMenu::mnu_tankPopup, ENTRY(mnu_TankAddNew), "New Tank...", 0, Plain, &Main::mnu_TankAddNew_Click},
    {&MainMenu::mnu_tankPopup, ENTRY(mnu_TankDelete), "Delete Tank", 0, Plain, &Main::mnu_TankDelete_Click},
    {&MainMenu::mnu_tankPopup, ENTRY(mnu_TankProperties), "Properties...", 0, SeparatorBefore,
     &Main::mnu_TankProperties_Click},

    {&MainMenu::mnu_LogPopup, ENTRY(mnu_LogPopup_New), "New", 0, Plain, &Main::mnu_FileNew_Click},
    {&MainMenu::mnu_LogPopup, ENTRY(mnu_Logpopup_Open), "Open", 0, Plain, &Main::mnu_FileOpen_Click},
    {&MainMenu::mnu_LogPopup, ENTRY(mnu_LogPopup_Delete), "Delete", 0, Plain, &Main::mnu_FileDelete_Click},
    {&MainMenu::mnu_LogPopup, ENTRY(mnu_movesep), "", 0, Plain, nullptr},
    {&MainMenu::mnu_LogPopup, ENTRY(mnu_LogPopup_Move), "Move to Tank...", 0, Plain, &Main::mnu_FileMoveEntry_Click},

    {&MainMenu::mnu_GraphPopup, ENTRY(mnu_GraphOptions), "Graph Options", 0, Plain, &Main::mnu_GraphOptions_Click},
};
#undef ENTRY

} // namespace

void MainMenu::makeMenus(frm_OMKMDIMain &window, QMenuBar &bar)
{
    for (const MenuRow &row : menuRows) {
        auto *menu = new QMenu(QLatin1String(row.caption), &window);
        menu->setObjectName(QLatin1String(row.name));
        this->*row.menu = menu;
        if (!row.popup)
            bar.addMenu(menu)->setVisible(!row.hidden);
    }
    for (const EntryRow &row : entryRows) {
        std::function<void()> action;
        if (row.handler)
            action = [&window, handler = row.handler] { (window.*handler)(); };
        auto *entry = new MenuEntry(QLatin1String(row.name), QLatin1String(row.caption), std::move(action), &window);
        if (row.shortcut)
            entry->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(row.shortcut)));
        if (row.marks & Checked) {
            entry->setCheckable(true);
            entry->setChecked(true);
        }
        entry->Enabled(!(row.marks & Disabled));
        entry->setVisible(!(row.marks & Hidden));
        if (row.marks & SeparatorBefore)
            (this->*row.menu)->addSeparator();
        (this->*row.menu)->addAction(entry);
        this->*row.entry = entry;
    }
    mnu_movesep->setSeparator(true);
}
