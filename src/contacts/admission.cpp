#include "contacts/admission.h"

#include "base/limits.h"

namespace nimb
{

std::optional<Refusal> Admission::refusal(std::optional<Ipv4Address> ip) const
{
    if (ip == m_common.ownIP || (ip && m_ownAddresses.isOwn(*ip)))
        return Refusal::ownAddress;
    if (!ip || !ip->isUnicast())
        return Refusal::noUnicast;
    if (m_ownAddresses.isBroadcast(*ip))
        return Refusal::broadcast;
    if (m_contacts.isContact(*ip))
        return Refusal::alreadyThere;
    if (ip == Ipv4Address(127, 0, 0, 1))
        return Refusal::thisMachine;
    if (isFull() && !m_contacts.firstToMakeRoom())
        return Refusal::listFull;
    return std::nullopt;
}

bool Admission::isFull() const
{
    return m_contacts.rowCount() >= limits::contactsFromStrangers;
}

void Admission::admit(Contact contact) const
{
    const std::optional<ContactAddress> leaves = isFull() ? m_contacts.firstToMakeRoom() : std::nullopt;
    if (leaves && m_contacts.remove(*leaves))
        m_drops.count(Drop::madeRoom);
    contact.broughtByPeer = true;
    m_contacts.add(std::move(contact));
}

} // namespace nimb
