#include "people/contact_import.h"

#include "base/remote_text.h"
#include "protocol/address_text.h"

namespace nimb
{

QString ContactImport::objection(const ContactFile::Entry &entry) const
{
    switch (m_admission.refusal(readAddress(entry.address)).value_or(Refusal::alreadyThere)) {
    case Refusal::noUnicast:
    case Refusal::broadcast:
        return tr("everybody on the network hears what is sent to %1").arg(entry.address);
    case Refusal::thisMachine:
        return tr("%1 means whoever says it").arg(entry.address);
    case Refusal::ownAddress: // the same file serves every machine
    case Refusal::alreadyThere:
    case Refusal::listFull: // that is for those whom peers bring
        return {};
    }
    return {};
}

void ContactImport::tell(const QString &name, const ContactFile::Fault &fault)
{
    const QString where = fault.line > 0 ? tr("Line %1 of %2").arg(QString::number(fault.line), name) : name;
    m_prompts.tell(tr("%1: %2. No contact was taken from this file.").arg(where, fault.reason), programTitle);
}

void ContactImport::take(const QByteArray &file, const QString &name)
{
    const auto read = ContactFile::read(file);
    if (const auto *const fault = std::get_if<ContactFile::Fault>(&read))
        return tell(name, *fault);
    const auto &entries = std::get<std::vector<ContactFile::Entry>>(read);
    for (const ContactFile::Entry &entry : entries) {
        if (const QString reason = objection(entry); !reason.isEmpty())
            return tell(name, {entry.line, reason});
    }
    std::vector<SearchTarget> taken;
    for (const ContactFile::Entry &entry : entries) {
        const std::optional<Ipv4Address> address = readAddress(entry.address);
        if (m_admission.refusal(address) == Refusal::ownAddress)
            continue;
        Contact contact;
        contact.ip = entry.address;
        contact.nickname = entry.nickname;
        contact.workstation = entry.workstation;
        contact.setUnheard();
        if (m_contacts.add(std::move(contact)))
            taken.push_back({*address});
    }
    const auto others = static_cast<qsizetype>(entries.size() - taken.size());
    m_log.note(tr("contacts taken from %1: %2; there already: %3")
                   .arg(remoteName(name), QString::number(taken.size()), QString::number(others)));
    m_search.askUnlessInvisible(std::move(taken), tr("the new contacts"));
}

} // namespace nimb
