#include "contacts/admission.h"

#include "base/limits.h"
#include "base/remote_text.h"

namespace nimb
{

std::optional<Refusal> contactRefusal(const QString &ip, const Common &common, const ContactList &contacts)
{
    if (ip == common.ownIP)
        return Refusal::ownAddress;
    if (ip == QLatin1String("127.0.0.1"))
        return Refusal::thisMachine;
    if (!isUnicastAddress(ip))
        return Refusal::noUnicast;
    if (contacts.isContact(ip))
        return Refusal::alreadyThere;
    if (contacts.rowCount() >= limits::contactsFromStrangers)
        return Refusal::listFull;
    return std::nullopt;
}

} // namespace nimb
