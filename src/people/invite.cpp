#include "people/invite.h"

namespace nimb
{

QString Invite::Form_Load(const QString &selectedAddress)
{
    // Goes over the wire, to a computer whose language nobody knows.
    QString standardText = QStringLiteral("%1 wants you to join him in NIMB-Chat").arg(m_common.ownNickname);
    if (const Contact *const contact = m_contacts.find(selectedAddress)) {
        m_target = {contact->workstation, contact->nickname};
    } else {
        m_target = {};
        m_prompts.tell(tr("No user selected!"), programTitle);
    }
    return standardText;
}

bool Invite::sendbtn_Click(const QString &message)
{
    const std::optional<QString> missing = m_netSend.send(m_target.computer, message);
    // Nothing of this object may be touched after telling: its dialog may be gone then.
    if (missing)
        m_prompts.tell(*missing, programTitle);
    return !missing;
}

} // namespace nimb
