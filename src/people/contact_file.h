// Contacts in a file of comma-separated values, which one administrator writes for many machines.
#pragma once

#include "contacts/contact_list.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSet>

#include <optional>
#include <variant>
#include <vector>

namespace nimb
{

/// UTF-8, lines and quotes as RFC 4180 has them; the first line names the columns: address, nickname, workstation.
/// Other programs may have put them into another order.
class ContactFile
{
    Q_DECLARE_TR_FUNCTIONS(ContactFile)

public:
    struct Entry {
        QString address, nickname, workstation;
        int line = 0; ///< in the file that it was read from, from 1
        bool operator==(const Entry &) const = default;
    };
    struct Fault {
        int line = 0; ///< from 1; 0 concerns the whole file
        QString reason;
        bool operator==(const Fault &) const = default;
    };

    /// In list order. Contacts whom nobody else would reach are left out: those that have a text instead of an address,
    /// and 127.0.0.1, which means whoever says it.
    [[nodiscard]] static std::vector<Entry> entriesOf(const ContactList &contacts);
    [[nodiscard]] static QByteArray write(const std::vector<Entry> &entries);
    /// All entries, or every fault in the order of the lines; what stands behind quotation marks that do not fit cannot
    /// be read. An address must be dotted and that of one host, and no two may be the same;
    /// names must not be empty.
    [[nodiscard]] static std::variant<std::vector<Entry>, std::vector<Fault>> read(const QByteArray &bytes);

private:
    /// addresses: those of the entries before; gets this one's.
    static std::optional<Fault> faultOf(const Entry &entry, QSet<QString> &addresses);
};

} // namespace nimb
