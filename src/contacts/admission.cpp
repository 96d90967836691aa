#include "contacts/admission.h"

#include "base/limits.h"

namespace nimb
{

std::optional<Refusal> contactRefusal(std::optional<Ipv4Address> ip, const Common &common, const ContactList &contacts)
{
    if (ip == common.ownIP)
        return Refusal::ownAddress;
    if (!ip || !ip->isUnicast())
        return Refusal::noUnicast;
    if (contacts.isContact(*ip))
        return Refusal::alreadyThere;
    if (ip == Ipv4Address(127, 0, 0, 1))
        return Refusal::thisMachine;
    if (contacts.rowCount() >= limits::contactsFromStrangers)
        return Refusal::listFull;
    return std::nullopt;
}

} // namespace nimb
