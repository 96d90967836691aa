// Contacts that peers send.
#pragma once

#include "base/Common.h"
#include "contacts/contact_list.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

namespace nimb
{

/// A received contact becomes a row whose presence is not yet known. A row that is there already stays as it is.
class SharedContacts : public SharedContactHandler
{
public:
    SharedContacts(const Common &common, ContactList &contacts, DropCounts &drops)
        : m_common(common), m_contacts(contacts), m_drops(drops)
    {
    }

    void sharedContact(Ipv4Address ip, const PeerIdentity &contact) override;

private:
    const Common &m_common;
    ContactList &m_contacts;
    DropCounts &m_drops;
};

} // namespace nimb
