// Takes contacts from a file into the list.
#pragma once

#include "base/prompts.h"
#include "contacts/admission.h"
#include "people/contact_file.h"
#include "people/search.h"

namespace nimb
{

/// All contacts of a file or none of them: faults anywhere in it are told, with their lines, and nothing changes.
class ContactImport
{
    Q_DECLARE_TR_FUNCTIONS(ContactImport)

public:
    ContactImport(const Admission &admission, ContactList &contacts, Search &search, MainLog &log, Prompts &prompts)
        : m_admission(admission), m_contacts(contacts), m_search(search), m_log(log), m_prompts(prompts)
    {
    }

    /// name: what the user calls the file. Whoever is there already stays as he is; the others are asked whether they
    /// are there, unless the user is invisible. The main log counts them.
    void take(const QByteArray &file, const QString &name);

private:
    /// Empty when nothing speaks against it.
    QString objection(const ContactFile::Entry &entry) const;
    void tell(const QString &name, const std::vector<ContactFile::Fault> &faults);

    const Admission &m_admission;
    ContactList &m_contacts;
    Search &m_search;
    MainLog &m_log;
    Prompts &m_prompts;
};

} // namespace nimb
