#include "contacts/avatar_store.h"

#include "base/limits.h"

namespace nimb
{

AvatarStore::AvatarStore(ContactList &contacts) : m_contacts(contacts)
{
    QObject::connect(&contacts, &ContactList::rowsAboutToBeRemoved, &contacts,
                     [this](const QModelIndex &, int first, int last) { forgetRows(first, last); });
}

void AvatarStore::forgetRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        m_avatars.remove(m_contacts.at(row).ip);
}

const Avatar &AvatarStore::of(const QString &ip) const
{
    static const Avatar none;
    const auto found = m_avatars.constFind(ip);
    return found == m_avatars.constEnd() ? none : *found;
}

Avatar &AvatarStore::entry(const QString &ip)
{
    if (!m_avatars.contains(ip)) {
        const QString number = QString::number(++m_count);
        m_contacts.change(ip, [&number](Contact &contact) { contact.avatarNumber = number; });
    }
    return m_avatars[ip];
}

void AvatarStore::setHead(const QString &ip, const std::string &head)
{
    entry(ip).head = head.substr(0, limits::avatarHeadLength);
}

void AvatarStore::setBody(const QString &ip, const std::string &body)
{
    const QByteArray bytes = QByteArray::fromStdString(body);
    entry(ip).body = bytes.size() == avatarBytes ? bytes : QByteArray();
}

void AvatarStore::clear(const QString &ip)
{
    if (m_avatars.contains(ip))
        m_avatars[ip] = {};
}

} // namespace nimb
