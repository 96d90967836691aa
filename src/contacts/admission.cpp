#include "contacts/admission.h"

#include "base/limits.h"
#include "protocol/address_text.h"

namespace nimb
{

std::optional<Refusal> contactRefusal(const QString &ip, const Common &common, const ContactList &contacts)
{
    const std::optional<Ipv4Address> address = readAddress(ip);
    if (ip == common.ownIP)
        return Refusal::ownAddress;
    if (address == Ipv4Address(127, 0, 0, 1))
        return Refusal::thisMachine;
    if (!address || !address->isUnicast())
        return Refusal::noUnicast;
    if (contacts.isContact(ip))
        return Refusal::alreadyThere;
    if (contacts.rowCount() >= limits::contactsFromStrangers)
        return Refusal::listFull;
    return std::nullopt;
}

} // namespace nimb
