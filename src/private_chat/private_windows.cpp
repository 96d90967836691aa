#include "private_chat/private_windows.h"

#include "base/limits.h"
#include "base/remote_text.h"

#include <algorithm>

namespace nimb
{

PrivateWindows::PrivateWindows(const PrivateChat::Services &services, ContactList &contacts, DropCounts &drops)
    : m_services(services), m_contacts(contacts), m_drops(drops)
{
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
    QString body = remoteBody(text);
    if (!hasWindow(contact) && !mayOpenUnasked())
        return wait(contact, body);
    PrivateChat &chat = windowOf(contact, OpenedBy::peer);
    if (chat.view().isHidden())
        chat.view().showWindow(m_services.conversation.common.options.privateWindowsOnTop ? ShowMode::onTop
                                                                                          : ShowMode::minimised);
    showWaiting(contact, chat);
    chat.MessageReceived(contact.nickname, body);
}

bool PrivateWindows::mayOpenUnasked() const
{
    return std::ranges::count_if(m_table, [](const auto &chat) { return chat && !chat->isAttended(); })
        < limits::windowsOpenedUnasked;
}

void PrivateWindows::wait(const Contact &contact, const QString &body)
{
    const bool tooMany = contact.waitingMessages >= limits::waitingMessages
        || m_waitingCharacters + body.size() > limits::waitingCharacters;
    if (tooMany)
        return m_drops.count(Drop::tooManyWaiting);
    m_waiting[contact.ip].append(body);
    m_waitingCharacters += body.size();
    m_contacts.change(contact.ip, [](Contact &row) {
        ++row.waitingMessages;
        row.spokenTo = true;
    });
}

void PrivateWindows::showWaiting(const Contact &contact, PrivateChat &chat)
{
    const QStringList messages = m_waiting.value(contact.ip);
    if (messages.isEmpty())
        return;
    for (const QString &body : messages)
        chat.waitingMessage(contact.nickname, body);
    forgetWaiting(contact.ip);
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
    chat.view().showWindow(ShowMode::active);
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
    m_table.push_back(std::make_unique<PrivateChat>(m_services, [this, number] { unload(number); }));
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
    chat.preparewindow();
    return chat;
}

int PrivateWindows::numberOf(const ContactAddress &ip) const
{
    const auto found = std::ranges::find_if(m_table, [&ip](const auto &chat) { return chat && chat->rIP() == ip; });
    return found == m_table.end() ? 0 : static_cast<int>(found - m_table.begin()) + 1;
}

void PrivateWindows::unload(int window)
{
    const std::unique_ptr<PrivateChat> gone = std::move(m_table[static_cast<std::size_t>(window - 1)]);
    const Contact *contact = m_contacts.find(gone->rIP());
    if (contact && contact->privateWindow == window)
        m_contacts.change(gone->rIP(), [](Contact &row) { row.privateWindow = 0; });
}

void PrivateWindows::unloadAll()
{
    for (int window = 1; window <= static_cast<int>(m_table.size()); ++window) {
        if (at(window))
            unload(window);
    }
}

void PrivateWindows::contactRemoved(const ContactAddress &ip)
{
    forgetWaiting(ip);
    const int number = numberOf(ip);
    if (number <= 0)
        return;
    if (at(number)->view().isHidden())
        unload(number);
    else
        at(number)->setContact(false);
}

void PrivateWindows::appendPresence(int window, const QString &line)
{
    if (PrivateChat *chat = at(window))
        chat->appendPresence(line);
}

} // namespace nimb
