#include "private_chat/private_windows.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "conversation/history_choice.h"

#include <algorithm>

namespace nimb
{

PrivateWindows::PrivateWindows(const PrivateChat::Services &services, ContactList &contacts, Notices &notices,
                               DropCounts &drops)
    : m_services(services), m_contacts(contacts), m_notices(notices), m_drops(drops),
      m_oneMore(services.timers.repeating(limits::windowPause, [this] { openNextInTurn(); })),
      m_self(std::make_shared<PrivateWindows *>(this))
{
    QObject::connect(&contacts, &ContactList::dataChanged, &contacts,
                     [this](const QModelIndex &first) { showPeer(m_contacts.at(first.row())); });
}

void PrivateWindows::showPeer(const Contact &contact)
{
    PrivateChat *const chat = at(contact.privateWindow);
    if (!chat)
        return;
    chat->setAcquainted(contact.isAcquaintance());
    chat->showPeer({.name = contact.nickname,
                    .presence = contact.presence,
                    .state = contact.state,
                    .workstation = contact.workstation,
                    .address = contact.ip.text(),
                    .waiting = contact.toBeSent});
}

PrivateChat *PrivateWindows::at(int window)
{
    if (window < 1 || window > static_cast<int>(m_table.size()))
        return nullptr;
    return m_table[static_cast<std::size_t>(window - 1)].get();
}

void PrivateWindows::privateMessage(Ipv4Address ip, const QString &text)
{
    const Contact &contact = *m_contacts.find(ip);
    const QString body = remoteBody(text);
    if (!hasOpenWindow(contact) && !opensNow(contact, body))
        return wait(contact, body);
    receive(contact, body);
    tell(contact, body);
}

void PrivateWindows::tell(const Contact &contact, const QString &body)
{
    PrivateChat *const chat = at(contact.privateWindow);
    if (contact.ip.ipv4() && (!chat || chat->view().conversation().isMinimisedOrInactive()))
        m_notices.message(*contact.ip.ipv4(), contact.nickname, body);
}

void PrivateWindows::receive(const Contact &contact, QString body)
{
    PrivateChat &chat = windowOf(contact, OpenedBy::peer);
    if (chat.view().isHidden()) {
        chat.leaveUnattended();
        chat.show(m_services.conversation.common.options.privateWindowsOnTop ? ShowMode::onTop : ShowMode::minimised);
    }
    showWaiting(contact, chat);
    const bool isUnread = !chat.view().conversation().isEndSeen();
    chat.MessageReceived(contact.nickname, body);
    noteMessage(contact, isUnread);
}

void PrivateWindows::noteMessage(const Contact &contact, bool isUnreadInWindow)
{
    // A flood of messages must not be one of changes to the list as well.
    if (contact.unreadInWindow >= limits::unreadCounted)
        return;
    m_contacts.change(contact.ip, [now = m_services.conversation.clock.now(), isUnreadInWindow](Contact &row) {
        row.lastMessage = now;
        row.unreadInWindow += isUnreadInWindow ? 1 : 0;
    });
}

void PrivateWindows::read(int window, int unread)
{
    const Contact *const contact = at(window) ? m_contacts.find(at(window)->rIP()) : nullptr;
    if (contact && contact->unreadInWindow > unread)
        m_contacts.change(contact->ip, [unread](Contact &row) { row.unreadInWindow = unread; });
    if (contact && contact->ip.ipv4() && unread == 0)
        m_notices.seen({NoticeWindow::privateChat, *contact->ip.ipv4()});
}

void PrivateWindows::loadUnread()
{
    m_services.conversation.history.listUnread(
        [self = std::weak_ptr(m_self)](const std::vector<UnreadConversation> &conversations) {
            if (const auto there = self.lock())
                (*there)->takeUnread(conversations);
        });
}

/// Who has a window already has written since the start, and is counted from there.
void PrivateWindows::takeUnread(const std::vector<UnreadConversation> &conversations)
{
    for (const UnreadConversation &unread : conversations) {
        const KeptConversation &kept = unread.conversation;
        const ContactAddress ip(kept.address);
        const bool isContact = kept.kind == KeptConversation::Kind::contact && m_contacts.find(ip);
        if (!isContact || numberOf(ip) > 0 || !m_services.conversation.history.isKept(kept.address))
            continue;
        m_unreadBefore.insert_or_assign(kept.address, unread);
        m_contacts.change(ip, [&unread](Contact &row) {
            row.unreadInWindow = std::min(unread.messages, limits::unreadCounted);
            if (!row.lastMessage.isValid())
                row.lastMessage = unread.last;
        });
    }
}

bool PrivateWindows::hasOpenWindow(const Contact &contact)
{
    PrivateChat *const chat = at(contact.privateWindow > 0 ? contact.privateWindow : numberOf(contact.ip));
    return chat && !chat->view().isHidden();
}

bool PrivateWindows::opensNow(const Contact &contact, const QString &body)
{
    // Every message of those who get a window is shown: who writes more than may wait comes first.
    if (std::ranges::find(m_inTurn, contact.ip) != m_inTurn.end())
        return !hasRoomToWait(contact, body);
    if (!mayOpenUnasked())
        return false;
    if (!m_oneMore->isActive())
        m_oneMore->start();
    if (m_atOnce > 0) {
        --m_atOnce;
        return true;
    }
    m_inTurn.push_back(contact.ip);
    return !hasRoomToWait(contact, body);
}

void PrivateWindows::openNextInTurn()
{
    while (!m_inTurn.empty()) {
        const ContactAddress ip = std::move(m_inTurn.front());
        m_inTurn.pop_front();
        const QStringList messages = m_waiting.value(ip);
        const Contact *const contact = m_contacts.find(ip);
        if (!contact || messages.isEmpty())
            continue; // removed or opened meanwhile
        forgetWaiting(ip);
        for (const QString &body : messages)
            receive(*contact, body);
        return;
    }
    if (++m_atOnce == limits::windowsAtOnce)
        m_oneMore->stop();
}

bool PrivateWindows::mayOpenUnasked() const
{
    const auto unasked = std::ranges::count_if(m_table, [](const auto &chat) { return chat && !chat->isAttended(); });
    return unasked + static_cast<std::ptrdiff_t>(m_inTurn.size()) < limits::windowsOpenedUnasked;
}

bool PrivateWindows::hasRoomToWait(const Contact &contact, const QString &body) const
{
    const qsizetype room = contact.broughtByPeer ? limits::waitingCharacters / 2 : limits::waitingCharacters;
    return contact.waitingMessages < limits::waitingMessages && m_waitingCharacters + body.size() <= room;
}

void PrivateWindows::wait(const Contact &contact, const QString &body)
{
    if (!hasRoomToWait(contact, body))
        return m_drops.count(Drop::tooManyWaiting);
    m_waiting[contact.ip].append(body);
    m_waitingCharacters += body.size();
    m_contacts.change(contact.ip, [now = m_services.conversation.clock.now()](Contact &row) {
        ++row.waitingMessages;
        row.lastMessage = now;
        row.spokenTo = true;
    });
    tell(contact, body);
}

void PrivateWindows::showWaiting(const Contact &contact, PrivateChat &chat)
{
    const QStringList messages = m_waiting.value(contact.ip);
    if (messages.isEmpty())
        return;
    const bool isUnread = !chat.view().conversation().isEndSeen();
    for (const QString &body : messages)
        chat.waitingMessage(contact.nickname, body);
    forgetWaiting(contact.ip);
    if (isUnread)
        m_contacts.change(contact.ip, [count = static_cast<int>(messages.size())](Contact &row) {
            row.unreadInWindow = std::min(row.unreadInWindow + count, limits::unreadCounted);
        });
}

void PrivateWindows::forgetWaiting(const ContactAddress &ip)
{
    const QStringList messages = m_waiting.take(ip);
    for (const QString &body : messages)
        m_waitingCharacters -= body.size();
    m_contacts.change(ip, [](Contact &row) { row.waitingMessages = 0; });
}

void PrivateWindows::openPrivate(const ContactAddress &ip)
{
    const Contact *const contact = m_contacts.find(ip);
    if (!contact)
        return;
    PrivateChat &chat = windowOf(*contact, OpenedBy::user);
    chat.attend();
    showWaiting(*contact, chat);
    chat.show(ShowMode::active);
}

bool PrivateWindows::answer(const ContactAddress &ip, const QString &text)
{
    const Contact *const contact = m_contacts.find(ip);
    if (!contact)
        return false;
    PrivateChat &chat = windowOf(*contact, OpenedBy::user);
    chat.attend();
    showWaiting(*contact, chat);
    return chat.send(remoteBody(text));
}

void PrivateWindows::sendFiles(const ContactAddress &ip, const QStringList &paths)
{
    openPrivate(ip);
    if (const Contact *const contact = m_contacts.find(ip))
        windowOf(*contact, OpenedBy::user).sendFiles(paths);
}

void PrivateWindows::offerFile(const ContactAddress &ip, const QString &path, const Conversation::OfferReports &reports)
{
    if (const Contact *const contact = m_contacts.find(ip))
        windowOf(*contact, OpenedBy::user).offerFile(path, reports);
}

void PrivateWindows::sendWaiting(const WaitingMessage &message)
{
    const Contact *const contact = m_contacts.find(message.ip);
    if (!contact)
        return;
    PrivateChat &chat = windowOf(*contact, OpenedBy::user);
    showWaiting(*contact, chat);
    chat.sendWaiting(message);
}

void PrivateWindows::willNotBeSent(const WaitingMessage &message)
{
    if (PrivateChat *const chat = at(numberOf(message.ip)))
        chat->willNotBeSent(message.number);
}

PrivateChat &PrivateWindows::windowOf(const Contact &contact, OpenedBy opener)
{
    if (PrivateChat *open = at(contact.privateWindow))
        return *open;
    // A contact that was removed and came back finds the window that still talks to its address.
    if (const int number = numberOf(contact.ip)) {
        m_contacts.change(contact.ip, [number](Contact &row) {
            row.privateWindow = number;
            row.spokenTo = true;
        });
        at(number)->setContact(true);
        return *at(number);
    }
    return make(contact, opener);
}

PrivateChat &PrivateWindows::make(const Contact &contact, OpenedBy opener)
{
    const int number = static_cast<int>(m_table.size()) + 1;
    m_table.push_back(std::make_unique<PrivateChat>(
        m_services, [this, number] { unload(number); }, [this, number] { sought(number); },
        [this, number](int unread) { read(number, unread); }));
    // The head of the window follows the row from now on.
    m_contacts.change(contact.ip, [number](Contact &row) {
        row.privateWindow = number;
        row.spokenTo = true;
    });
    PrivateChat &chat = *m_table.back();
    chat.view().conversation().setCaption(tr("%1 - NIMB-Chat - Private Chat Window").arg(contact.nickname));
    chat.setPeer(contact.ip);
    if (opener == OpenedBy::user)
        chat.avatarWanted();
    else
        chat.askForAvatarUnlessInvisible();
    std::optional<UnreadConversation> unread;
    if (const auto kept = m_unreadBefore.extract(contact.ip.text()); !kept.empty())
        unread = kept.mapped();
    chat.preparewindow(unread);
    if (const QString draft = m_drafts.take(contact.ip); !draft.isEmpty())
        chat.view().conversation().setDraft(draft);
    return chat;
}

int PrivateWindows::numberOf(const ContactAddress &ip) const
{
    const auto found = std::ranges::find_if(m_table, [&ip](const auto &chat) { return chat && chat->rIP() == ip; });
    return found == m_table.end() ? 0 : static_cast<int>(found - m_table.begin()) + 1;
}

/// The user turned to that window, whoever opened it.
void PrivateWindows::sought(int window)
{
    const Contact *const contact = m_contacts.find(at(window)->rIP());
    if (!contact || contact->soughtByUser)
        return;
    m_contacts.change(contact->ip, [](Contact &row) {
        row.spokenTo = true;
        row.soughtByUser = true;
    });
}

void PrivateWindows::unload(int window)
{
    const std::unique_ptr<PrivateChat> gone = std::move(m_table[static_cast<std::size_t>(window - 1)]);
    gone->turnedAway();
    const Contact *contact = m_contacts.find(gone->rIP());
    if (!contact || contact->privateWindow != window)
        return;
    if (const QString draft = gone->view().conversation().typedText(); !draft.isEmpty())
        m_drafts.insert(gone->rIP(), draft);
    m_contacts.change(gone->rIP(), [](Contact &row) {
        row.privateWindow = 0;
        row.unreadInWindow = 0;
    });
}

void PrivateWindows::unloadAll()
{
    m_oneMore->stop();
    for (int window = 1; window <= static_cast<int>(m_table.size()); ++window) {
        if (at(window))
            unload(window);
    }
}

qsizetype PrivateWindows::waitingMessages() const
{
    qsizetype messages = 0;
    for (const QStringList &ofOne : m_waiting)
        messages += ofOne.size();
    return messages;
}

void PrivateWindows::contactRemoved(const ContactAddress &ip)
{
    m_services.outbox.contactRemoved(ip);
    forgetWaiting(ip);
    if (const int number = numberOf(ip); number > 0) {
        if (at(number)->view().isHidden())
            unload(number);
        else
            at(number)->setContact(false);
    }
    m_drafts.remove(ip);
    m_unreadBefore.erase(ip.text());
}

void PrivateWindows::appendPresence(int window, const QString &line)
{
    if (PrivateChat *chat = at(window))
        chat->appendPresence(line);
}

} // namespace nimb
