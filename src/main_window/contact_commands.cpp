#include "main_window/contact_commands.h"

#include "base/buzz.h"
#include "base/isolated.h"
#include "base/remote_text.h"

namespace nimb
{

ContactMenuCaptions ContactCommands::captions(const QString &ip, qsizetype selected) const
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return {tr("&Private Chat"), tr("&Buzz User"), tr("Re&move User"), tr("Send &Contacts"), tr("I&nvite user")};
    const QString name = isolated(menuName(contact->nickname));
    return {
        tr("Private chat with '%1'").arg(name),
        tr("Buzz '%1'").arg(name),
        selected > 1 ? tr("Remove %1 users from the list").arg(selected) : tr("Remove '%1' from the list").arg(name),
        tr("Send &contacts to '%1'").arg(name),
        (contact->presence == Presence::offline ? tr("&Net send message to '%1'") : tr("I&nvite user '%1'")).arg(name),
        contact->muted,
        m_services.common.history.leftOut.contains(ip)};
}

QString ContactCommands::toolTip(const QString &ip) const
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return {};
    QString line = isolated(contact->nickname);
    if (!contact->state.isEmpty())
        line += QLatin1String(": ") + isolated(contact->state);
    if (contact->waitingMessages == 0)
        return line;
    return tr("%1 (messages that wait to be read: %2)").arg(line, QString::number(contact->waitingMessages));
}

QString ContactCommands::details(const QString &ip, qsizetype selected) const
{
    if (selected > 1)
        return tr("%1 contacts selected").arg(selected);
    const Contact *contact = m_contacts.find(ip);
    return contact
        ? tr("%1 on %2 (%3)").arg(isolated(contact->nickname), isolated(contact->workstation), contact->ip.text())
        : QString();
}

void ContactCommands::openWaiting(const QString &ip)
{
    const Contact *const contact = m_contacts.find(ip);
    if (contact && contact->waitingMessages > 0)
        m_chats.openPrivate(ip);
}

void ContactCommands::mnuPrivateChat(const QString &ip)
{
    const Contact *contact = m_contacts.find(ip);
    if (!contact)
        return;
    const QString name = isolated(paintedName(contact->nickname));
    if (contact->presence == Presence::unknown)
        return m_services.log.note(whyUnknown(name));
    if (contact->presence == Presence::offline)
        m_services.log.note(tr("%1 is offline: what you write does not arrive").arg(name));
    m_chats.openPrivate(ip);
}

QString ContactCommands::whyUnknown(const QString &name) const
{
    if (m_services.common.announcing)
        return tr("whether %1 is there is being asked: no window opens before that is known").arg(name);
    if (m_services.common.isInvisible())
        return tr("whether %1 is there is not known: \"Rescan\" asks, and shows you to your contacts").arg(name);
    return tr("whether %1 is there is not known: \"Rescan\" asks").arg(name);
}

void ContactCommands::mnuMuteContact(const QString &ip, bool muted)
{
    m_contacts.change(ip, [muted](Contact &contact) { contact.muted = muted; });
}

void ContactCommands::mnuBuzzUser(const QString &ip)
{
    const bool isThere = m_contacts.change(ip, [](Contact &contact) {
        contact.spokenTo = true;
        contact.soughtByUser = true;
    });
    if (isThere)
        sendBuzz(m_services.common, m_services.socket, m_services.sound, readAddress(ip));
}

QString ContactCommands::removalQuestion(const std::vector<const Contact *> &contacts) const
{
    constexpr std::size_t mostNames = 10;
    if (contacts.size() == 1) {
        const Contact &contact = *contacts.front();
        return tr("Are you sure you want to remove the user '%1' on workstation '%2' (%3) ?")
            .arg(isolated(contact.nickname), isolated(contact.workstation), contact.ip.text());
    }
    QStringList lines = {tr("Are you sure you want to remove these %1 users?").arg(contacts.size())};
    for (const Contact *const contact : contacts) {
        if (lines.size() > static_cast<qsizetype>(mostNames)) {
            lines.append(tr("... (%1 more)").arg(contacts.size() - mostNames));
            break;
        }
        lines.append(QStringLiteral("'%1' (%2)").arg(isolated(paintedName(contact->nickname)), contact->ip.text()));
    }
    return lines.join(QLatin1Char('\n'));
}

void ContactCommands::removeUsers(const QStringList &ips)
{
    std::vector<const Contact *> contacts;
    for (const QString &ip : ips) {
        if (const Contact *const contact = m_contacts.find(ip))
            contacts.push_back(contact);
    }
    if (contacts.empty() || !m_services.prompts.confirm(removalQuestion(contacts), tr("Please confirm user removal")))
        return;
    // The list may have changed while the question stood there.
    for (const QString &ip : ips) {
        if (m_contacts.remove(ip))
            m_chats.contactRemoved(ip);
    }
}

} // namespace nimb
