#include "contacts/shared_contacts.h"

#include "base/limits.h"
#include "base/remote_text.h"

namespace nimb
{

void SharedContacts::sharedContact(const QString &, const PeerIdentity &shared)
{
    const bool isOwn = shared.ip == m_common.ownIP || shared.ip == QLatin1String("127.0.0.1");
    if (isOwn || m_contacts.isContact(shared.ip))
        return;
    if (!isUnicastAddress(shared.ip))
        return m_drops.count(Drop::badAddress);
    if (m_contacts.rowCount() >= limits::contactsFromStrangers)
        return m_drops.count(Drop::tooManyContacts);
    Contact contact;
    contact.ip = shared.ip;
    contact.nickname = nameOrUnknown(shared.nick);
    contact.workstation = nameOrUnknown(shared.host);
    contact.sortKey = sortPrefix(contact.picture) + contact.nickname; // as written, until it is heard of
    m_contacts.add(std::move(contact));
}

} // namespace nimb
