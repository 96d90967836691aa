// The rules of inviting somebody who does not run the messenger.
#pragma once

#include "base/Common.h"
#include "base/net_send.h"
#include "base/prompts.h"
#include "contacts/contact_list.h"

#include <QCoreApplication>

namespace nimb
{

/// The engine half of one frmInvite.
class Invite
{
    Q_DECLARE_TR_FUNCTIONS(Invite)

public:
    struct Target {
        QString computer = QStringLiteral("localhost");
        QString nickname = QStringLiteral("unknown");
    };

    Invite(const Common &common, const ContactList &contacts, NetSend &netSend, Prompts &prompts)
        : m_common(common), m_contacts(contacts), m_netSend(netSend), m_prompts(prompts)
    {
    }

    /// Takes the contact with this address as target; tells the user when there is none, and the target is this very
    /// machine then. Returns the standard text.
    QString Form_Load(const QString &selectedAddress);
    const Target &target() const { return m_target; }
    /// True when the text is under way; otherwise the user has been told what is missing.
    [[nodiscard]] bool sendbtn_Click(const QString &message);

private:
    const Common &m_common;
    const ContactList &m_contacts;
    NetSend &m_netSend;
    Prompts &m_prompts;
    Target m_target;
};

} // namespace nimb
