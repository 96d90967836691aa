// The rules of adding a contact by hand.
#pragma once

#include "base/prompts.h"
#include "contacts/admission.h"
#include "people/search.h"

#include <QCoreApplication>

namespace nimb
{

/// The engine half of frmAddUser.
class AddUser
{
    Q_DECLARE_TR_FUNCTIONS(AddUser)

public:
    AddUser(const Common &common, const Admission &admission, ContactList &contacts, Search &search, Prompts &prompts)
        : m_common(common), m_admission(admission), m_contacts(contacts), m_search(search), m_prompts(prompts)
    {
    }

    /// What speaks against the address while it is typed, in the words of the refusal; empty where nothing does.
    [[nodiscard]] QString remark(const QString &ipaddress) const;
    /// True when the contact was added, and is asked whether it is there unless the user is invisible; otherwise the
    /// user has been told why not.
    [[nodiscard]] bool CmdOK_Click(const QString &nickname, const QString &hostname, const QString &ipaddress);

private:
    /// The refusal of this address, whatever the other fields hold.
    QString objection(const QString &ipaddress) const;
    /// Empty when nothing speaks against the contact.
    QString objection(const QString &nickname, const QString &hostname, const QString &ipaddress) const;

    const Common &m_common;
    const Admission &m_admission;
    ContactList &m_contacts;
    Search &m_search;
    Prompts &m_prompts;
};

} // namespace nimb
