// A file of contacts as any bytes: it is refused with a line and a reason, or what is read from it is written and read
// again as it was.
#include "people/contact_file.h"
#include "require.h"

#include <cstdint>
#include <set>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using nimb::ContactFile;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    auto read = ContactFile::read(bytes);
    if (const auto *const faults = std::get_if<std::vector<ContactFile::Fault>>(&read)) {
        require(!faults->empty(), "what is refused has a fault");
        for (const ContactFile::Fault &fault : *faults) {
            require(fault.line >= 0 && fault.line <= bytes.count('\n') + bytes.count('\r') + 1,
                    "the line is one of the file");
            require(!fault.reason.isEmpty(), "the fault has a reason");
        }
        return 0;
    }
    auto entries = std::get<std::vector<ContactFile::Entry>>(read);
    std::set<QString> addresses;
    for (const ContactFile::Entry &entry : entries) {
        require(addresses.insert(entry.address).second, "no address comes twice");
        require(!entry.nickname.isEmpty() && !entry.workstation.isEmpty(), "no name is empty");
    }
    auto again = ContactFile::read(ContactFile::write(entries));
    auto *const reread = std::get_if<std::vector<ContactFile::Entry>>(&again);
    require(reread != nullptr, "what is written can be read");
    for (auto *const list : {&entries, reread}) {
        for (ContactFile::Entry &entry : *list)
            entry.line = 0;
    }
    require(*reread == entries, "what is written is read as it was");
    return 0;
}
