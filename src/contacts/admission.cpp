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
    if (m_contacts.rowCount() >= limits::contactsFromStrangers)
        return Refusal::listFull;
    return std::nullopt;
}

} // namespace nimb
