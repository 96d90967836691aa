// The avatars of the contacts, kept whether or not anybody looks at them.
#pragma once

#include "base/avatar.h"
#include "contacts/contact_list.h"

#include <QHash>
#include <QSet>

namespace nimb
{

/// Numbered from 1 and only growing; a contact's row holds the number of its avatar once one is known, and changes with
/// the picture. What is kept of a contact goes with its row.
class AvatarStore
{
public:
    explicit AvatarStore(ContactList &contacts);

    /// The contact's avatar; an empty one when none is known.
    const Avatar &of(const ContactAddress &ip) const;
    void setHead(Ipv4Address ip, const std::string &head);
    /// Bytes of any other length than that of a picture are kept as no picture. False when there is no room for that of
    /// a stranger, and nothing changes.
    [[nodiscard]] bool setBody(Ipv4Address ip, const std::string &body);
    /// The peer says that it has no avatar.
    void clear(Ipv4Address ip);

private:
    Avatar &entry(Ipv4Address ip);
    void forgetRows(int first, int last);

    ContactList &m_contacts;
    QHash<Ipv4Address, Avatar> m_avatars;
    QSet<Ipv4Address> m_picturesOfStrangers;
    int m_count = 0;
};

} // namespace nimb
