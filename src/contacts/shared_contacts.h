// Contacts that peers send.
#pragma once

#include "contacts/admission.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

namespace nimb
{

/// A received contact becomes a row whose presence is not yet known. A row that is there already stays as it is.
class SharedContacts : public SharedContactHandler
{
public:
    SharedContacts(const Admission &admission, DropCounts &drops) : m_admission(admission), m_drops(drops) { }

    void sharedContact(Ipv4Address ip, const PeerIdentity &contact) override;

private:
    const Admission &m_admission;
    DropCounts &m_drops;
};

} // namespace nimb
