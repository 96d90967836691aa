#include "people/contact_import.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <algorithm>

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

void ContactImport::tell(const QString &name, const std::vector<ContactFile::Fault> &faults)
{
    const ContactFile::Fault &first = faults.front();
    const QString where = first.line > 0 ? tr("Line %1 of %2").arg(QString::number(first.line), name) : name;
    QString text = tr("%1: %2").arg(where, first.reason);
    const std::size_t told = std::min(faults.size(), limits::faultsTold);
    for (std::size_t i = 1; i < told; ++i)
        text += tr("; line %1: %2").arg(QString::number(faults[i].line), faults[i].reason);
    if (const std::size_t more = faults.size() - told; more > 0)
        text += tr("; %n more", nullptr, static_cast<int>(more));
    m_prompts.tell(tr("%1. No contact was taken from this file.").arg(text), programTitle);
}

void ContactImport::take(const QByteArray &file, const QString &name)
{
    const auto read = ContactFile::read(file);
    if (const auto *const faults = std::get_if<std::vector<ContactFile::Fault>>(&read))
        return tell(name, *faults);
    const auto &entries = std::get<std::vector<ContactFile::Entry>>(read);
    std::vector<ContactFile::Fault> objections;
    for (const ContactFile::Entry &entry : entries) {
        if (QString reason = objection(entry); !reason.isEmpty())
            objections.push_back({entry.line, std::move(reason)});
    }
    if (!objections.empty())
        return tell(name, objections);
    std::vector<SearchTarget> taken;
    std::size_t ownLines = 0;
    for (const ContactFile::Entry &entry : entries) {
        const std::optional<Ipv4Address> address = readAddress(entry.address);
        if (m_admission.refusal(address) == Refusal::ownAddress) {
            ++ownLines;
            continue;
        }
        Contact contact;
        contact.ip = entry.address;
        contact.nickname = entry.nickname;
        contact.workstation = entry.workstation;
        contact.setUnheard();
        if (m_contacts.add(std::move(contact)))
            taken.push_back({*address});
    }
    QString note = tr("contacts taken from %1: %2; there already: %3")
                       .arg(remoteName(name), QString::number(taken.size()),
                            QString::number(entries.size() - taken.size() - ownLines));
    if (ownLines > 0)
        note += tr("; left out: your own address");
    m_log.note(note);
    m_search.askUnlessInvisible(std::move(taken), tr("the new contacts"));
}

} // namespace nimb
