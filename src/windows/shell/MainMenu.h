// The entries of the main window's menus and pop-up menus, each a public member under its own name. All are made from
// one table in MainMenu.cpp, which can be compared with the screen.
#pragma once

class MenuEntry;
class QMenu;
class QMenuBar;
class frm_OMKMDIMain;

struct MainMenu
{
    MenuEntry *mnu_FileNew, *mnu_FileOpen, *mnu_FileDelete, *mnu_FileMoveEntry, *mnu_FileBackup, *mnu_FileProperties,
        *mnu_FilePageSetup, *mnu_FilePrint, *mnu_Exit;
    MenuEntry *mnu_EditUndo, *mnu_EditCut, *mnu_EditCopy, *mnu_EditPaste;
    MenuEntry *mnu_ViewToolbar, *mnu_ViewStatusbar, *mnu_ViewRefresh, *mnu_ViewOptions, *mnu_ViewBrowser;
    MenuEntry *mnu_ToolsTanksetup, *mnu_ToolsLogbook, *mnu_ToolsGraphing, *mnu_ToolsCompatibility, *mnu_ToolsDisease,
        *mnu_ToolsRemindersAddEdit, *mnu_ToolsReminderSchedule, *mnu_ToolsFantasy, *mnu_ToolsCommonNames,
        *mnu_ToolsConversions;
    MenuEntry *mnu_WindowCascade, *mnu_WindowTileHorizontal, *mnu_WindowTileVertical, *mnu_WindowArrangeIcons;
    MenuEntry *mnu_HelpContents, *mnu_HelpSearch, *mnu_HelpTod, *mnu_HelpAbout;
    MenuEntry *mnu_TankAddNew, *mnu_TankDelete, *mnu_TankProperties;
    MenuEntry *mnu_LogPopup_New, *mnu_Logpopup_Open, *mnu_LogPopup_Delete, *mnu_movesep, *mnu_LogPopup_Move;
    MenuEntry *mnu_GraphOptions;

    QMenu *mnu_File, *mnu_Edit, *mnu_View, *mnu_Tools, *mnu_Window, *mnu_Help;
    QMenu *mnu_tankPopup, *mnu_LogPopup, *mnu_GraphPopup; ///< shown only as pop-up menus

    /// Makes all menus and entries. An entry with a handler calls it on the window.
    void makeMenus(frm_OMKMDIMain &window, QMenuBar &bar);
};
