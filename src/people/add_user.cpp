#include "people/add_user.h"

#include "base/remote_text.h"

namespace nimb
{

QString AddUser::objection(const QString &nickname, const QString &hostname, const QString &ipaddress) const
{
    if (m_contacts.find(ipaddress))
        return tr("IP Address already used by another user");
    if (nickname.isEmpty() || hostname.isEmpty() || ipaddress.isEmpty())
        return tr("Please fill all the fields");
    const std::optional<Refusal> refusal = m_admission.refusal(readAddress(ipaddress));
    if (hostname == m_common.ownHostName || refusal == Refusal::ownAddress)
        return tr("You can't add yourself...");
    if (refusal == Refusal::broadcast)
        return tr("This is not the address of one computer: everybody on the network hears what is sent there.");
    // The other rules guard against what peers bring. What the user types may be a name, and is taken as it is.
    if (ipaddress == endOfStoredContacts)
        return tr("This address cannot be kept: it marks the end of the stored list.");
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
