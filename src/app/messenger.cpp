#include "app/messenger.h"

namespace nimb
{

Messenger::Messenger(Common &common, const Surroundings &around)
    : m_socket(around.socket), m_ownAddresses(around.ownAddresses), m_nextStart(around.nextStart),
      m_windows(around.windows), m_admission(common, m_contacts, around.ownAddresses, around.drops),
      m_log(around.mainView.outtext(), around.clock),
      m_notices({common, m_contacts, around.notifications, around.sound, around.timers}),
      m_history(around.history, common, around.clock),
      m_transfers({around.fileServer, common, around.prompts, around.timers, around.clock, m_log}, around.fileFetcher,
                  around.store),
      m_unknown(m_log, around.timers), m_sender(common, around.socket),
      m_announcement(common, m_contacts, m_sender, around.timers, around.clock, around.mainView),
      m_ownState(common, m_contacts, m_sender, m_announcement, m_log, around.mainView, [this] { ownStateChanged(); }),
      m_recovery({common, around.store, m_contacts, m_ownState, around.timers, m_log, around.mainView}),
      m_port(around.socket, common, around.timers, m_log, around.mainView,
             [this] { m_announcement.runUnlessInvisible(); }),
      m_networks({common, around.socket, around.ownAddresses, around.networkWatch, m_port, m_announcement, m_log,
                  around.mainView, around.timers, around.chance, [this] { m_conferences.ownAddressChanged(); },
                  [this] { m_transfers.offers.ownAddressesChanged(m_ownAddresses); }}),
      m_outbox({common, around.store, around.goodCopy, m_contacts, around.timers, around.clock, around.prompts, m_log,
                [this](const WaitingMessage &message) { m_privateWindows.sendWaiting(message); },
                [this](const WaitingMessage &message) { m_privateWindows.willNotBeSent(message); }}),
      m_privateWindows({{common, around.socket, around.clock, m_history, m_transfers},
                        around.sound,
                        around.timers,
                        around.privateForms,
                        m_outbox},
                       m_contacts, m_notices, around.drops),
      m_search({common, m_sender, m_contacts, around.ownAddresses, m_log, around.mainView, around.timers}),
      m_sameMachine(m_contacts, m_log),
      m_presence(common, m_admission, m_contacts, m_sender, m_log, m_privateWindows, m_notices, around.clock,
                 {&m_search, &m_sameMachine, &m_outbox}, around.drops),
      m_activity(around.timers, around.mainView), m_avatars(m_contacts),
      m_ownAvatar(common, around.socket, m_log, around.timers, around.clock, around.drops),
      m_peerFeatures({common, m_contacts, around.socket, m_privateWindows, m_avatars, m_ownAvatar, m_activity, m_log,
                      m_notices, around.sound, around.drops}),
      m_sharedContacts(m_admission, m_contacts, m_log, around.drops),
      m_conferences({{common, around.socket, around.clock, m_history, m_transfers},
                     m_contacts,
                     m_avatars,
                     m_ownAvatar,
                     around.prompts,
                     m_notices,
                     around.conferenceForms},
                    around.mainView),
      m_invitations(
          {common, around.socket, m_contacts, around.timers, around.clock, around.store, m_conferences, m_notices}),
      m_conferenceCommands({common, m_admission, around.socket, m_contacts, m_avatars, m_sender, m_conferences,
                            m_invitations, around.timers, around.drops}),
      m_contactCommands({common, around.socket, around.sound, around.prompts, m_log}, m_contacts, m_privateWindows),
      m_dispatcher(m_contacts,
                   {.presence = &m_presence,
                    .unknown = &m_unknown,
                    .privateMessages = &m_privateWindows,
                    .peerSignals = &m_peerFeatures,
                    .avatars = &m_peerFeatures,
                    .sharedContacts = &m_sharedContacts,
                    .conferences = &m_conferenceCommands},
                   around.drops),
      m_mainWindow({common,
                    around.store,
                    around.goodCopy,
                    around.nextStart,
                    around.socket,
                    m_networks,
                    m_contacts,
                    m_ownState,
                    m_sender,
                    m_announcement,
                    m_port,
                    m_recovery,
                    m_log,
                    around.prompts,
                    [this](Ipv4Address ip, int number) {
                        return m_conferences.joined(ip, number) || m_conferences.hosted(number);
                    },
                    [this] {
                        m_outbox.load();
                        m_privateWindows.loadUnread();
                        m_transfers.unfinished.load();
                    },
                    [this] { unloadOtherWindows(); },
                    [this] { return m_transfers.underWay(); },
                    around.tray,
                    around.mainView})
{
    m_dispatcher.listenTo(m_socket);
    around.history.trouble = [this](const QString &sentence) { m_log.fault(sentence); };
    QObject::connect(&m_history, &HistoryChoice::chosen, [this] { m_recovery.settingsChanged(); });
    QObject::connect(&m_transfers.offers, &FileOffers::explained, [this] { m_recovery.settingsChanged(); });
    QObject::connect(&m_contacts, &ContactList::acquaintanceChanged,
                     [this](Ipv4Address ip, bool acquainted) { m_socket.setAcquainted(ip, acquainted); });
}

Messenger::~Messenger()
{
    m_socket.DataArrival = nullptr;
    m_history.history().trouble = nullptr;
}

void Messenger::ownStateChanged()
{
    m_recovery.settingsChanged();
    m_mainWindow.showInTray();
}

void Messenger::openNotice(const NoticePlace &place)
{
    switch (place.window) {
    case NoticeWindow::main:
        return;
    case NoticeWindow::privateChat:
        return m_privateWindows.openPrivate(place.ip);
    case NoticeWindow::conference:
        if (Conference *const conference = m_conferences.at(place.conference))
            conference->view().showWindow();
        return;
    case NoticeWindow::invitations:
        return m_invitations.mnushowinvitations();
    }
}

void Messenger::answerNotice(const NoticePlace &place, const QString &text)
{
    Conference *const conference = m_conferences.at(place.conference);
    if (place.window == NoticeWindow::privateChat)
        m_privateWindows.answer(place.ip, text);
    else if (place.window == NoticeWindow::conference && conference)
        conference->answer(text);
}

void Messenger::endWithoutWindows()
{
    m_search.end();
    m_outbox.end();
    m_transfers.unfinished.save();
    m_conferences.takeLeave();
    tellOfWaiting();
    m_invitations.Form_Unload();
    m_mainWindow.endWithoutWindows();
}

void Messenger::tellOfWaiting()
{
    if (const qsizetype waiting = m_privateWindows.waitingMessages(); waiting > 0)
        m_nextStart.tell(tr("Messages that waited to be read when the program ended are lost: %1.").arg(waiting));
}

void Messenger::unloadOtherWindows()
{
    m_search.end();
    m_outbox.end();
    m_transfers.unfinished.save();
    m_conferences.unloadAll();
    tellOfWaiting();
    m_privateWindows.unloadAll();
    m_windows.unloadNotify();
    m_invitations.Form_Unload();
    m_windows.unloadInvitations();
    m_windows.unloadTipOfTheDay();
}

} // namespace nimb
