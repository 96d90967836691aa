// The life of the main window: loading, closing and ending. The order of the end is fixed: nobody is answered once it
// has begun, and all is saved after the other windows have noted what they keep.
#pragma once

#include "base/main_log.h"
#include "base/prompts.h"
#include "base/settings_store.h"
#include "base/unload_mode.h"
#include "base/window_openers.h"
#include "contacts/announcement.h"
#include "contacts/contact_list.h"
#include "contacts/own_state.h"
#include "main_window/port_watch.h"
#include "main_window/recovery.h"

#include <QCoreApplication>

#include <functional>
#include <utility>

namespace nimb
{

/// "NIMB-Chat 1.2 - " followed by the nickname; a second start looks for exactly this.
QString mainCaption(const QString &nickname);

class MainWindow
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    struct Parts {
        Common &common;
        SettingsStore &store;
        Winsock &socket;
        ContactList &contacts;
        OwnState &ownState;
        PresenceSender &sender;
        Announcement &announcement;
        PortWatch &port;
        Recovery &recovery;
        MainLog &log;
        Prompts &prompts;
        std::function<void()> unloadOtherWindows;
        TrayIcon &tray;
        MainWindowView &view;
    };

    explicit MainWindow(Parts parts) : m_parts(std::move(parts)) { }

    void Form_Load();
    /// Whether the window is to be unloaded, or what else happens to it.
    CloseDecision Form_QueryUnload(UnloadMode mode);
    /// The user moved the window or gave it another height.
    void placeChanged() { m_parts.recovery.settingsChanged(); }
    /// Ends everything that the window owns: windows are unloaded, contacts told, contacts and settings saved.
    void Form_Unload();

private:
    void loadSettings(QStringList &notices);
    void sayFarewellAndSaveContacts();
    void save();

    Parts m_parts;
    bool m_saidWhyMinimised = false;
};

} // namespace nimb
