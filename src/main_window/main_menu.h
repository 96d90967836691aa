// The menus of the main window as tables.
#pragma once

#include <QCoreApplication>

#include <array>
#include <span>

namespace nimb
{

struct MenuEntry {
    const char *name; ///< object name; null for a separator
    const char *caption = nullptr;
    const char *picture = nullptr; ///< name of one of the program's own, or null
};

struct Menu {
    const char *name;
    const char *caption;
    std::span<const MenuEntry> entries;
};

namespace main_menu
{

inline constexpr MenuEntry separator = {nullptr};

/// Exit, Open and Page Setup act; the others are there without doing anything.
inline constexpr std::array file = {
    MenuEntry{"mnuFileNew", QT_TRANSLATE_NOOP("MainMenu", "New")},
    MenuEntry{"mnuFileOpen", QT_TRANSLATE_NOOP("MainMenu", "Open")},
    MenuEntry{"mnuFileClose", QT_TRANSLATE_NOOP("MainMenu", "Close")},
    separator,
    MenuEntry{"mnuFileSave", QT_TRANSLATE_NOOP("MainMenu", "Save")},
    MenuEntry{"mnuFileSaveAs", QT_TRANSLATE_NOOP("MainMenu", "Save As")},
    MenuEntry{"mnuFileSaveAll", QT_TRANSLATE_NOOP("MainMenu", "Save All")},
    separator,
    MenuEntry{"mnuFileProperties", QT_TRANSLATE_NOOP("MainMenu", "Properties")},
    separator,
    MenuEntry{"mnuFilePageSetup", QT_TRANSLATE_NOOP("MainMenu", "Page Setup")},
    MenuEntry{"mnuFilePrintPreview", QT_TRANSLATE_NOOP("MainMenu", "Print Preview")},
    MenuEntry{"mnuFilePrint", QT_TRANSLATE_NOOP("MainMenu", "Print")},
    separator,
    MenuEntry{"mnuFileSend", QT_TRANSLATE_NOOP("MainMenu", "Send")},
    separator,
    MenuEntry{"mnuFileMRU1", QT_TRANSLATE_NOOP("MainMenu", "Recent File 1")},
    MenuEntry{"mnuFileMRU2", QT_TRANSLATE_NOOP("MainMenu", "Recent File 2")},
    MenuEntry{"mnuFileMRU3", QT_TRANSLATE_NOOP("MainMenu", "Recent File 3")},
    separator,
    MenuEntry{"mnuFileExit", QT_TRANSLATE_NOOP("MainMenu", "E&xit"), "exit"},
};
inline constexpr std::array users = {
    MenuEntry{"mnuNetworkscan", QT_TRANSLATE_NOOP("MainMenu", "&Network scan..."), "search"},
    MenuEntry{"mnuAddUser", QT_TRANSLATE_NOOP("MainMenu", "&Add offline user..."), "add-user"},
    MenuEntry{"mnuFindEverybody", QT_TRANSLATE_NOOP("MainMenu", "&Find everybody here"), "search"},
    separator,
    MenuEntry{"mnuHistory", QT_TRANSLATE_NOOP("MainMenu", "&History...")},
    separator,
    MenuEntry{"mnuImportContacts", QT_TRANSLATE_NOOP("MainMenu", "&Import contacts...")},
    MenuEntry{"mnuExportContacts", QT_TRANSLATE_NOOP("MainMenu", "&Export contacts...")},
};
inline constexpr std::array conference = {
    MenuEntry{"mnuCreateNewConf", QT_TRANSLATE_NOOP("MainMenu", "Create &new...")},
    MenuEntry{"mnushowinvitations", QT_TRANSLATE_NOOP("MainMenu", "View &invitations...")},
};
inline constexpr std::array tools = {
    MenuEntry{"mnuLogWindow", QT_TRANSLATE_NOOP("MainMenu", "Show &Log Window")},
    MenuEntry{"mnuTransfers", QT_TRANSLATE_NOOP("MainMenu", "&Transfers..."), "file"},
    MenuEntry{"mnuToolsOptions", QT_TRANSLATE_NOOP("MainMenu", "&Options..."), "options"},
};
inline constexpr std::array help = {
    MenuEntry{"mnuHelpContents", QT_TRANSLATE_NOOP("MainMenu", "&Contents"), "help"},
    MenuEntry{"mnuHelpSearchForHelpOn", QT_TRANSLATE_NOOP("MainMenu", "&Search For Help On...")},
    MenuEntry{"mnuManual", QT_TRANSLATE_NOOP("MainMenu", "&Manual")},
    MenuEntry{"mnuTOTD", QT_TRANSLATE_NOOP("MainMenu", "&Tip of the day..."), "tip"},
    MenuEntry{"mnuNetworkDoctor", QT_TRANSLATE_NOOP("MainMenu", "&Network doctor...")},
    MenuEntry{"mnuShortcuts", QT_TRANSLATE_NOOP("MainMenu", "&Keyboard shortcuts...")},
    MenuEntry{"mnuHelpAbout", QT_TRANSLATE_NOOP("MainMenu", "&About")},
};

} // namespace main_menu

inline constexpr std::array mainMenus = {
    Menu{"mnuFile", QT_TRANSLATE_NOOP("MainMenu", "&File"), main_menu::file},
    Menu{"mnuUsers", QT_TRANSLATE_NOOP("MainMenu", "&Users"), main_menu::users},
    Menu{"mnuConference", QT_TRANSLATE_NOOP("MainMenu", "&Conference"), main_menu::conference},
    Menu{"mnuTools", QT_TRANSLATE_NOOP("MainMenu", "&Tools"), main_menu::tools},
    Menu{"mnuHelp", QT_TRANSLATE_NOOP("MainMenu", "&Help"), main_menu::help},
};

/// These stand in the menus and have nothing to do so far.
inline constexpr std::array entriesWithoutAction
    = {"mnuFileNew",        "mnuFileClose",        "mnuFileSave",     "mnuFileSaveAs",         "mnuFileSaveAll",
       "mnuFileProperties", "mnuFilePrintPreview", "mnuFilePrint",    "mnuFileSend",           "mnuFileMRU1",
       "mnuFileMRU2",       "mnuFileMRU3",         "mnuHelpContents", "mnuHelpSearchForHelpOn"};

/// The context menu of the contact list; its first entry is the default one. The five of the conferences stand for
/// their slots 1 to 5.
inline constexpr std::array contactMenu = {
    MenuEntry{"mnuPrivateChat", QT_TRANSLATE_NOOP("MainMenu", "&Private Chat")},
    MenuEntry{"mnuBuzzUser", QT_TRANSLATE_NOOP("MainMenu", "&Buzz User"), "buzz"},
    MenuEntry{"mnuInvite2Conf1", QT_TRANSLATE_NOOP("MainMenu", "Invite to Conference #&1")},
    MenuEntry{"mnuInvite2Conf2", QT_TRANSLATE_NOOP("MainMenu", "Invite to Conference #&2")},
    MenuEntry{"mnuInvite2Conf3", QT_TRANSLATE_NOOP("MainMenu", "Invite to Conference #&3")},
    MenuEntry{"mnuInvite2Conf4", QT_TRANSLATE_NOOP("MainMenu", "Invite to Conference #&4")},
    MenuEntry{"mnuInvite2Conf5", QT_TRANSLATE_NOOP("MainMenu", "Invite to Conference #&5")},
    MenuEntry{"mnusendcontacts", QT_TRANSLATE_NOOP("MainMenu", "Send &Contacts")},
    MenuEntry{"mnuRemoveUser", QT_TRANSLATE_NOOP("MainMenu", "Re&move User"), "remove-user"},
    MenuEntry{"mnuinviteuser", QT_TRANSLATE_NOOP("MainMenu", "I&nvite user")},
    MenuEntry{"mnuMuteContact", QT_TRANSLATE_NOOP("MainMenu", "M&ute")},
    MenuEntry{"mnuContactHistory", QT_TRANSLATE_NOOP("MainMenu", "&History...")},
    MenuEntry{"mnuLeaveOut", QT_TRANSLATE_NOOP("MainMenu", "&Keep no history")},
    MenuEntry{"mnuSendFile", QT_TRANSLATE_NOOP("MainMenu", "Send &File..."), "file"},
};

} // namespace nimb
