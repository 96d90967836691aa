#include "main_window/contact_commands.h"

#include "base/buzz.h"
#include "base/remote_text.h"

namespace nimb
{

ContactMenuCaptions ContactCommands::captions(const QString &ip) const
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return {tr("&Private Chat"), tr("&Buzz User"), tr("Re&move User"), tr("Send &Contacts"), tr("I&nvite user")};
    const QString name = menuName(contact->nickname);
    return {
        tr("Private chat with '%1'").arg(name), tr("Buzz '%1'").arg(name), tr("Remove '%1' from the list").arg(name),
        tr("Send &contacts to '%1'").arg(name),
        (contact->presence == Presence::offline ? tr("&Net send message to '%1'") : tr("I&nvite user '%1'")).arg(name)};
}

QString ContactCommands::toolTip(const QString &ip) const
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return {};
    return contact->state.isEmpty() ? contact->nickname : contact->nickname + QLatin1String(": ") + contact->state;
}

QString ContactCommands::details(const QString &ip) const
{
    const Contact *contact = m_contacts.find(ip);
    return contact ? tr("%1 on %2 (%3)").arg(contact->nickname, contact->workstation, contact->ip.text()) : QString();
}

void ContactCommands::mnuPrivateChat(const QString &ip)
{
    const Contact *contact = m_contacts.find(ip);
    if (contact && contact->presence != Presence::unknown)
        m_chats.openPrivate(ip);
}

void ContactCommands::mnuBuzzUser(const QString &ip)
{
    if (const Contact *const contact = m_contacts.find(ip))
        sendBuzz(m_services.common, m_services.socket, m_services.sound, contact->ip.ipv4());
}

void ContactCommands::mnuRemoveUser(const QString &ip)
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return;
    const QString question = tr("Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?")
                                 .arg(contact->nickname, contact->workstation, contact->ip.text());
    if (!m_services.prompts.confirm(question, tr("Please confirm user removal")))
        return;
    // The list may have changed while the question stood there.
    if (m_contacts.remove(ip))
        m_chats.contactRemoved(ip);
}

} // namespace nimb
