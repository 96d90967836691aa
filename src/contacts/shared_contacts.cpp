#include "contacts/shared_contacts.h"

namespace nimb
{

void SharedContacts::sharedContact(Ipv4Address ip, const PeerIdentity &shared)
{
    const std::optional<Ipv4Address> address = readAddress(shared.ip);
    const std::optional<Refusal> refusal = m_admission.refusal(address);
    if (refusal == Refusal::noUnicast || refusal == Refusal::broadcast)
        return m_drops.count(Drop::badAddress);
    if (refusal == Refusal::listFull)
        return m_drops.count(Drop::tooManyContacts);
    if (refusal)
        return; // a peer who shares its whole list shares us and those whom we know with it
    Contact contact;
    contact.ip = *address;
    contact.nickname = nameOrUnknown(shared.nick);
    contact.workstation = nameOrUnknown(shared.host);
    contact.setUnheard();
    const QString name = contact.nickname;
    m_admission.admit(std::move(contact));
    if (const Contact *const sender = m_contacts.find(ip))
        m_log.sentContact(sender->nickname, name, addressText(*address));
}

} // namespace nimb
