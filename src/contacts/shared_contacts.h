// Contacts that peers send.
#pragma once

#include "base/main_log.h"
#include "contacts/admission.h"
#include "contacts/contact_list.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

namespace nimb
{

/// A received contact becomes a row whose presence is not yet known, and the log says who sent it. A row that is there
/// already stays as it is.
class SharedContacts : public SharedContactHandler
{
public:
    SharedContacts(const Admission &admission, const ContactList &contacts, MainLog &log, DropCounts &drops)
        : m_admission(admission), m_contacts(contacts), m_log(log), m_drops(drops)
    {
    }

    void sharedContact(Ipv4Address ip, const PeerIdentity &contact) override;

private:
    const Admission &m_admission;
    const ContactList &m_contacts;
    MainLog &m_log;
    DropCounts &m_drops;
};

} // namespace nimb
