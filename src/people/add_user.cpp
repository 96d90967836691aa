#include "people/add_user.h"

#include "base/remote_text.h"

namespace nimb
{

QString AddUser::objection(const QString &nickname, const QString &hostname, const QString &ipaddress) const
{
    const bool isUsed = m_contacts.find(ipaddress) != nullptr;
    if (!isUsed && (nickname.isEmpty() || hostname.isEmpty() || ipaddress.isEmpty()))
        return tr("Please fill all the fields");
    if (!isUsed && hostname == m_common.ownHostName)
        return tr("You can't add yourself...");
    return objection(ipaddress);
}

QString AddUser::objection(const QString &ipaddress) const
{
    if (m_contacts.find(ipaddress))
        return tr("IP Address already used by another user");
    const std::optional<Refusal> refusal = m_admission.refusal(readAddress(ipaddress));
    if (refusal == Refusal::ownAddress)
        return tr("You can't add yourself...");
    if (refusal == Refusal::broadcast)
        return tr("This is not the address of one computer: everybody on the network hears what is sent there.");
    // The other rules guard against what peers bring. What the user types may be a name, and is taken as it is.
    if (ipaddress == endOfStoredContacts)
        return tr("This address cannot be kept: it marks the end of the stored list.");
    return {};
}

QString AddUser::remark(const QString &ipaddress) const
{
    if (ipaddress.isEmpty())
        return {};
    if (QString reason = objection(ipaddress); !reason.isEmpty())
        return reason;
    const std::optional<Ipv4Address> address = readAddress(ipaddress);
    if (!address || !address->isUnicast())
        return tr("This is no address such as 192.168.1.20: nothing can be sent there.");
    return {};
}

bool AddUser::CmdOK_Click(const QString &nickname, const QString &hostname, const QString &ipaddress)
{
    if (const QString reason = objection(nickname, hostname, ipaddress); !reason.isEmpty()) {
        m_prompts.tell(reason, programTitle);
        return false;
    }
    Contact contact;
    contact.nickname = nickname;
    contact.workstation = hostname;
    contact.ip = ipaddress;
    contact.setUnheard();
    if (!m_contacts.add(std::move(contact)))
        return false;
    if (const std::optional<Ipv4Address> ip = readAddress(ipaddress); ip && ip->isUnicast())
        m_search.askUnlessInvisible({{*ip}}, remoteName(nickname));
    return true;
}

} // namespace nimb
