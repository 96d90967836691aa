// The avatars of the contacts, kept whether or not anybody looks at them.
#pragma once

#include "base/avatar.h"
#include "contacts/contact_list.h"

#include <QHash>

namespace nimb
{

/// Numbered from 1 and only growing; a contact's row holds the number of its avatar once one is known. What is kept of
/// a contact goes with its row.
class AvatarStore
{
public:
    explicit AvatarStore(ContactList &contacts);

    /// The contact's avatar; an empty one when none is known.
    const Avatar &of(const QString &ip) const;
    void setHead(const QString &ip, const std::string &head);
    /// Bytes of any other length than that of a picture are kept as no picture.
    void setBody(const QString &ip, const std::string &body);
    /// The peer says that it has no avatar.
    void clear(const QString &ip);

private:
    Avatar &entry(const QString &ip);
    void forgetRows(int first, int last);

    ContactList &m_contacts;
    QHash<QString, Avatar> m_avatars; ///< by address
    int m_count = 0;
};

} // namespace nimb
