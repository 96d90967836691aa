// Who becomes a contact: the one place that decides it, whoever brings the address.
#pragma once

#include "base/Common.h"
#include "base/own_addresses.h"
#include "contacts/contact_list.h"
#include "protocol/drop_counts.h"

#include <optional>

namespace nimb
{

/// The rule that keeps an address out of the contact list.
enum class Refusal {
    ownAddress,   ///< it is one of this copy's own
    noUnicast,    ///< it is not the address of one host, or none at all
    broadcast,    ///< everybody on a network of this machine hears what is sent there
    alreadyThere, ///< it is a contact's
    thisMachine,  ///< 127.0.0.1, which means whoever says it, unless the user has added it. Other copies on this
                  ///< machine have other loopback addresses.
    listFull,     ///< peers have caused as many contacts as they may, and none of them makes room
};

class Admission
{
public:
    Admission(const Common &common, ContactList &contacts, const OwnAddresses &ownAddresses, DropCounts &drops)
        : m_common(common), m_contacts(contacts), m_ownAddresses(ownAddresses), m_drops(drops)
    {
    }

    /// Empty when the address may become a contact; otherwise the first of the rules, in the order above, that it
    /// breaks. All of them bind what peers bring; what the user types is bound by fewer, as the caller sees fit.
    [[nodiscard]] std::optional<Refusal> refusal(std::optional<Ipv4Address> ip) const;
    /// Adds a contact that a peer has brought and that is not refused. In a full list another one makes room for it.
    void admit(Contact contact) const;

private:
    bool isFull() const;

    const Common &m_common;
    ContactList &m_contacts;
    const OwnAddresses &m_ownAddresses;
    DropCounts &m_drops;
};

} // namespace nimb
