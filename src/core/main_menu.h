// The menus of the main window as a table.
#pragma once

#include <QCoreApplication>

#include <array>

namespace nimb
{

struct MenuEntry {
    const char *name; ///< object name; null for a separator
    const char *caption;
};

struct Menu {
    const char *name;
    const char *caption;
    std::array<MenuEntry, 4> entries; ///< unused ones have neither name nor caption
};

inline constexpr std::array mainMenus = {
    Menu{
        "mnuFile", QT_TRANSLATE_NOOP("MainMenu", "&File"), {{{"mnuFileExit", QT_TRANSLATE_NOOP("MainMenu", "E&xit")}}}},
    Menu{"mnuUsers",
         QT_TRANSLATE_NOOP("MainMenu", "&Users"),
         {{{"mnuNetworkscan", QT_TRANSLATE_NOOP("MainMenu", "&Network scan...")},
           {"mnuAddUser", QT_TRANSLATE_NOOP("MainMenu", "&Add offline user...")}}}},
    Menu{"mnuConference",
         QT_TRANSLATE_NOOP("MainMenu", "&Conference"),
         {{{"mnuCreateNewConf", QT_TRANSLATE_NOOP("MainMenu", "Create &new...")},
           {"mnushowinvitations", QT_TRANSLATE_NOOP("MainMenu", "View &invitations...")}}}},
    Menu{"mnuTools",
         QT_TRANSLATE_NOOP("MainMenu", "&Tools"),
         {{{"mnuLogWindow", QT_TRANSLATE_NOOP("MainMenu", "Show &Log Window")},
           {"mnuToolsOptions", QT_TRANSLATE_NOOP("MainMenu", "&Options...")}}}},
    Menu{"mnuHelp",
         QT_TRANSLATE_NOOP("MainMenu", "&Help"),
         {{{"mnuHelpContents", QT_TRANSLATE_NOOP("MainMenu", "&Contents")},
           {"mnuHelpSearchForHelpOn", QT_TRANSLATE_NOOP("MainMenu", "&Search For Help On...")},
           {"mnuTOTD", QT_TRANSLATE_NOOP("MainMenu", "&Tip of the day...")},
           {"mnuHelpAbout", QT_TRANSLATE_NOOP("MainMenu", "&About")}}}},
};

} // namespace nimb
