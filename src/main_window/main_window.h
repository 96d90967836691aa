// The life of the main window: loading, closing and ending. The order of the end is fixed: nobody is answered once it
// has begun, and all is saved after the other windows have noted what they keep.
#pragma once

#include "base/good_copy.h"
#include "base/main_log.h"
#include "base/next_start.h"
#include "base/prompts.h"
#include "base/settings.h"
#include "base/settings_store.h"
#include "base/unload_mode.h"
#include "base/window_openers.h"
#include "contacts/announcement.h"
#include "contacts/contact_list.h"
#include "contacts/own_state.h"
#include "main_window/own_networks.h"
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
        GoodCopy &goodCopy;
        NextStart &nextStart;
        Winsock &socket;
        OwnNetworks &networks;
        ContactList &contacts;
        OwnState &ownState;
        PresenceSender &sender;
        Announcement &announcement;
        PortWatch &port;
        Recovery &recovery;
        MainLog &log;
        Prompts &prompts;
        /// Whether such a conference is open here, hosted by this copy or by this address.
        std::function<bool(Ipv4Address, int)> takesPartIn;
        std::function<void()> contactsLoaded; ///< what belongs to contacts can be read now
        std::function<void()> unloadOtherWindows;
        std::function<int()> transfersUnderWay; ///< files that are sent or fetched
        TrayIcon &tray;
        MainWindowView &view;
    };

    explicit MainWindow(Parts parts);

    void Form_Load();
    /// Whether the window is to be unloaded, or what else happens to it.
    CloseDecision Form_QueryUnload(UnloadMode mode);
    /// The user moved the window or gave it another height.
    void placeChanged() { m_parts.recovery.settingsChanged(); }
    /// Takes another nickname, or the host name for an empty one, keeps it and tells the contacts as after a login,
    /// but for whoever is invisible. The main log says it when it could not be kept.
    void changeNickname(const QString &nickname);
    /// Something may have changed that the tray icon says: nickname, state, how many messages are unread.
    void showInTray();
    /// Ends everything that the window owns: windows are unloaded, contacts told, contacts and settings saved.
    void Form_Unload();
    /// The same for a program whose screen is gone, as far as it can be: no window is touched.
    void endWithoutWindows();

private:
    LoadedSettings loadSettings();
    bool mayEndTransfers(UnloadMode mode);
    void answerNobody();
    void countUnshown(std::size_t byteCount);
    void tellOfUnshown();
    void sayFarewellAndSaveContacts();
    void save();
    void renewGoodCopy();

    Parts m_parts;
    bool m_isInTray = false;
    bool m_saidWhyMinimised = false;
    bool m_ended = false;
    int m_unshown = 0; ///< messages of contacts that have come since
};

} // namespace nimb
