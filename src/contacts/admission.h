// Who becomes a contact: the one place that decides it, whoever brings the address.
#pragma once

#include "base/Common.h"
#include "contacts/contact_list.h"

#include <optional>

namespace nimb
{

/// The rule that keeps an address out of the contact list.
enum class Refusal {
    ownAddress,   ///< it is this copy's own
    noUnicast,    ///< it is not the address of one host, or none at all
    alreadyThere, ///< it is a contact's
    thisMachine,  ///< 127.0.0.1, which means whoever says it, unless the user has added it. Other copies on this
                  ///< machine have other loopback addresses.
    listFull,     ///< peers have caused as many contacts as they may
};

/// Empty when the address may become a contact; otherwise the first of the rules, in the order above, that it breaks.
/// All of them bind what peers bring; what the user types is bound by fewer, as the caller sees fit.
[[nodiscard]] std::optional<Refusal> contactRefusal(std::optional<Ipv4Address> ip, const Common &common,
                                                    const ContactList &contacts);

} // namespace nimb
