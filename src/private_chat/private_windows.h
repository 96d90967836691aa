// The table of private windows, and which contact has which.
#pragma once

#include "base/limits.h"
#include "base/timers.h"
#include "base/window_openers.h"
#include "contacts/contact_list.h"
#include "contacts/presence_receiver.h"
#include "notify/notices.h"
#include "private_chat/private_chat.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

#include <QHash>
#include <QStringList>

#include <deque>
#include <map>
#include <memory>
#include <vector>

namespace nimb
{

/// Numbered from 1 and only growing; the number of an unloaded window is not used again. A contact's row holds the
/// number of its window.
class PrivateWindows : public PrivateMessageHandler, public PrivateLogs, public PrivateChats
{
    Q_DECLARE_TR_FUNCTIONS(PrivateWindows)

public:
    PrivateWindows(const PrivateChat::Services &services, ContactList &contacts, Notices &notices, DropCounts &drops);

    /// A message always reaches the user: a missing window is made, a hidden one shown, neither takes the focus. When
    /// several contacts without one write at the same moment, limits::windowsAtOnce open at once and the others in
    /// turn; messages wait at the row of the contact meanwhile. While limits::windowsOpenedUnasked stand that the user
    /// has not turned to, they wait there until the user opens that.
    void privateMessage(Ipv4Address ip, const QString &text) override;
    void openPrivate(const ContactAddress &ip) override;
    /// Sends a text that was written elsewhere than in the window of this contact, which shows it. False when there
    /// was nothing to send, or nobody to send it to.
    bool answer(const ContactAddress &ip, const QString &text);
    /// In the contact's window, which comes to the front.
    void sendFiles(const ContactAddress &ip, const QStringList &paths);
    /// The same for one, and its window is not shown. An address that is no contact's is heard of no more.
    void offerFile(const ContactAddress &ip, const QString &path, const Conversation::OfferReports &reports);
    /// Sends what has waited for its contact, whose window shows it.
    void sendWaiting(const WaitingMessage &message);
    /// This will not be sent; a window that shows it says so.
    void willNotBeSent(const WaitingMessage &message);
    /// A hidden window of a removed contact could never be seen again and is unloaded.
    void contactRemoved(const ContactAddress &ip) override;
    void appendPresence(int window, const QString &line) override;

    /// Counts at the rows what earlier runs have left unread. The contacts must be there.
    void loadUnread();
    void unloadAll();
    /// How many wait at the rows of their contacts.
    qsizetype waitingMessages() const;
    /// The window with this number, or null.
    PrivateChat *at(int window);

private:
    enum class OpenedBy { user, peer };

    /// The contact's window; made, hidden and prepared when there is none. The contact must exist.
    PrivateChat &windowOf(const Contact &contact, OpenedBy opener);
    PrivateChat &make(const Contact &contact, OpenedBy opener);
    /// Whether a window that is not hidden talks to the contact.
    bool hasOpenWindow(const Contact &contact);
    bool mayOpenUnasked() const;
    bool hasRoomToWait(const Contact &contact, const QString &body) const;
    /// Whether the window of this contact, hidden or not yet made, opens for this message; otherwise the message waits.
    bool opensNow(const Contact &contact, const QString &body);
    void openNextInTurn();
    void receive(const Contact &contact, QString body);
    void wait(const Contact &contact, const QString &body);
    /// Puts what has waited into the window that there is now.
    void showWaiting(const Contact &contact, PrivateChat &chat);
    void forgetWaiting(const ContactAddress &ip);
    /// Number of a window whose peer has this address, or 0.
    int numberOf(const ContactAddress &ip) const;
    void sought(int window);
    void read(int window, int unread);
    /// A message of the contact has been put into its window, or waits.
    void noteMessage(const Contact &contact, bool isUnreadInWindow);
    void takeUnread(const std::vector<UnreadConversation> &conversations);
    void showPeer(const Contact &contact);
    /// Tells of a message that has just come, unless it is looked at.
    void tell(const Contact &contact, const QString &body);
    void unload(int window);

    PrivateChat::Services m_services;
    ContactList &m_contacts;
    Notices &m_notices;
    DropCounts &m_drops;
    QHash<ContactAddress, QStringList> m_waiting;
    qsizetype m_waitingCharacters = 0;
    std::map<QString, UnreadConversation> m_unreadBefore; ///< in earlier runs, by address, until there is a window
    QHash<ContactAddress, QString> m_drafts;              ///< what was in the input of a window that is gone
    int m_atOnce = limits::windowsAtOnce;                 ///< windows that may still open at once
    std::deque<ContactAddress> m_inTurn;                  ///< whose windows are to open next
    std::unique_ptr<Timer> m_oneMore;
    std::shared_ptr<PrivateWindows *> m_self; ///< for an answer that may come when this is gone
    std::vector<std::unique_ptr<PrivateChat>> m_table;
};

} // namespace nimb
