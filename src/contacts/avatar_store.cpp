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
    for (int row = first; row <= last; ++row) {
        const std::optional<Ipv4Address> address = m_contacts.at(row).ip.ipv4();
        if (!address)
            continue;
        m_avatars.remove(*address);
        m_picturesOfStrangers.remove(*address);
    }
}

const Avatar &AvatarStore::of(const ContactAddress &ip) const
{
    static const Avatar none;
    const auto found = ip.ipv4() ? m_avatars.constFind(*ip.ipv4()) : m_avatars.constEnd();
    return found == m_avatars.constEnd() ? none : *found;
}

Avatar &AvatarStore::entry(Ipv4Address ip)
{
    if (!m_avatars.contains(ip)) {
        const QString number = QString::number(++m_count);
        m_contacts.change(ip, [&number](Contact &contact) { contact.avatarNumber = number; });
    }
    return m_avatars[ip];
}

void AvatarStore::setHead(Ipv4Address ip, const std::string &head)
{
    entry(ip).head = head.substr(0, limits::avatarHeadLength);
}

bool AvatarStore::setBody(Ipv4Address ip, const std::string &body)
{
    const bool isPicture = body.size() == static_cast<std::size_t>(avatarBytes);
    const Contact *const contact = m_contacts.find(ip);
    const bool isStranger = contact && !contact->isAcquaintance() && contact->privateWindow == 0;
    m_picturesOfStrangers.remove(ip);
    if (isPicture && isStranger) {
        if (m_picturesOfStrangers.size() >= limits::avatarsOfStrangers)
            return false;
        m_picturesOfStrangers.insert(ip);
    }
    entry(ip).body = isPicture ? QByteArray::fromStdString(body) : QByteArray();
    m_contacts.showAnew(ip);
    return true;
}

void AvatarStore::clear(Ipv4Address ip)
{
    if (m_avatars.contains(ip))
        m_avatars[ip] = {};
    m_picturesOfStrangers.remove(ip);
    m_contacts.showAnew(ip);
}

} // namespace nimb
