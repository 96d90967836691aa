// Makes one whole engine and ties its parts together.
#pragma once

#include "base/good_copy.h"
#include "base/next_start.h"
#include "base/notifications.h"
#include "base/unknown_datagrams.h"
#include "conference/conference_commands.h"
#include "contacts/same_machine.h"
#include "contacts/shared_contacts.h"
#include "conversation/history_choice.h"
#include "files/file_transfers.h"
#include "main_window/contact_commands.h"
#include "main_window/main_window.h"
#include "main_window/recovery.h"
#include "notify/notices.h"
#include "people/search.h"
#include "private_chat/outbox.h"
#include "private_chat/peer_features.h"
#include "private_chat/private_windows.h"
#include "protocol/receive_dispatcher.h"

#include <QCoreApplication>

namespace nimb
{

/// What the engine needs from the system and from the windows; all of it outlives the engine.
struct Surroundings {
    Winsock &socket;
    SettingsStore &store;
    GoodCopy &goodCopy;
    NextStart &nextStart;
    Timers &timers;
    const WallClock &clock;
    OwnAddresses &ownAddresses;
    NetworkWatch &networkWatch;
    Chance &chance;
    Prompts &prompts;
    Notifications &notifications;
    Sound &sound;
    TrayIcon &tray;
    SecondaryWindows &windows;
    PrivateForms &privateForms;
    ConferenceForms &conferenceForms;
    History &history;
    MainWindowView &mainView;
    DropCounts &drops;
    FileServer &fileServer;
    FileFetcher &fileFetcher;
};

/// The engine of one copy from the loading of the main window to its end. A process may hold any number of them.
class Messenger
{
    Q_DECLARE_TR_FUNCTIONS(Messenger)

public:
    Messenger(Common &common, const Surroundings &surroundings);
    ~Messenger();

    MainWindow &mainWindow() { return m_mainWindow; }
    ContactList &contacts() { return m_contacts; }
    const Admission &admission() const { return m_admission; }
    ContactCommands &contactCommands() { return m_contactCommands; }
    OwnState &ownState() { return m_ownState; }
    Announcement &announcement() { return m_announcement; }
    Recovery &recovery() { return m_recovery; }
    MainLog &log() { return m_log; }
    const PresenceSender &sender() const { return m_sender; }
    Search &search() { return m_search; }
    const OwnAddresses &ownAddresses() const { return m_ownAddresses; }
    PrivateWindows &privateWindows() { return m_privateWindows; }
    OwnAvatar &ownAvatar() { return m_ownAvatar; }
    const AvatarStore &avatars() const { return m_avatars; }
    ConferenceTable &conferences() { return m_conferences; }
    Invitations &invitations() { return m_invitations; }
    Notices &notices() { return m_notices; }
    HistoryChoice &history() { return m_history; }
    Outbox &outbox() { return m_outbox; }
    FileTransfers &transfers() { return m_transfers; }
    /// The user turns to what a notice was about; there is nothing to open for the main window.
    void openNotice(const NoticePlace &place);
    /// The user has written a text back to it.
    void answerNotice(const NoticePlace &place, const QString &text);
    ReceiveDispatcher &dispatcher() { return m_dispatcher; }
    /// The end of a program whose screen is gone: all of it but for the windows.
    void endWithoutWindows();

private:
    void ownStateChanged();
    void tellOfWaiting();
    /// Those that end with the main window, before it says farewell and saves.
    void unloadOtherWindows();

    Winsock &m_socket;
    const OwnAddresses &m_ownAddresses;
    NextStart &m_nextStart;
    SecondaryWindows &m_windows;
    ContactList m_contacts;
    Admission m_admission;
    MainLog m_log;
    Notices m_notices;
    HistoryChoice m_history;
    FileTransfers m_transfers;
    UnknownDatagrams m_unknown;
    PresenceSender m_sender;
    Announcement m_announcement;
    OwnState m_ownState;
    Recovery m_recovery;
    PortWatch m_port;
    OwnNetworks m_networks;
    Outbox m_outbox;
    PrivateWindows m_privateWindows;
    Search m_search;
    SameMachine m_sameMachine;
    PresenceReceiver m_presence;
    Activity m_activity;
    AvatarStore m_avatars;
    OwnAvatar m_ownAvatar;
    PeerFeatures m_peerFeatures;
    SharedContacts m_sharedContacts;
    ConferenceTable m_conferences;
    Invitations m_invitations;
    ConferenceCommands m_conferenceCommands;
    ContactCommands m_contactCommands;
    ReceiveDispatcher m_dispatcher;
    MainWindow m_mainWindow;
};

} // namespace nimb
