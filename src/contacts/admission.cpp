#include "contacts/admission.h"

#include "base/limits.h"

namespace nimb
{

std::optional<Refusal> contactRefusal(std::optional<Ipv4Address> ip, const Common &common, const ContactList &contacts)
{
    if (!ip)
        return Refusal::noUnicast;
    if (ip == common.ownIP)
        return Refusal::ownAddress;
    if (ip == Ipv4Address(127, 0, 0, 1))
        return Refusal::thisMachine;
    if (!ip->isUnicast())
        return Refusal::noUnicast;
    if (contacts.isContact(*ip))
        return Refusal::alreadyThere;
    if (contacts.rowCount() >= limits::contactsFromStrangers)
        return Refusal::listFull;
    return std::nullopt;
}

} // namespace nimb
