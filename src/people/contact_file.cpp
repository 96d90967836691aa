#include "people/contact_file.h"

#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace nimb
{
namespace
{

constexpr auto columns = "address,nickname,workstation";
constexpr qsizetype columnCount = 3;
constexpr Ipv4Address thisMachine(127, 0, 0, 1);
/// Where in a record each of the columns stands.
using Order = std::array<qsizetype, columnCount>;

QString quoted(const QString &field)
{
    const bool needsQuotes = field.contains(u',') || field.contains(u'"') || field.contains(u'\n')
        || field.contains(u'\r') || field.trimmed() != field;
    if (!needsQuotes)
        return field;
    return u'"' + QString(field).replace(u'"', QLatin1String("\"\"")) + u'"';
}

/// The records of a text, one after the other.
class Records
{
public:
    struct Record {
        QStringList fields;
        int line = 0;        ///< where it begins
        bool isWhole = true; ///< its quotes fit
    };

    explicit Records(QString text) : m_text(std::move(text)) { }

    /// Nothing at the end. Lines without anything in them are left out.
    std::optional<Record> next()
    {
        while (m_at < m_text.size() && skipLineEnd()) { }
        if (m_at >= m_text.size())
            return std::nullopt;
        Record record;
        record.line = m_line;
        do
            record.fields.append(field(record.isWhole));
        while (skip(u','));
        record.isWhole = record.isWhole && (m_at >= m_text.size() || skipLineEnd());
        return record;
    }

private:
    bool skip(char16_t c)
    {
        const bool is = m_at < m_text.size() && m_text.at(m_at) == c;
        m_at += is ? 1 : 0;
        return is;
    }

    bool skipLineEnd()
    {
        const bool carriageReturn = skip(u'\r');
        if (!skip(u'\n') && !carriageReturn)
            return false;
        ++m_line;
        return true;
    }

    QString field(bool &isWhole) { return skip(u'"') ? quotedField(isWhole) : plainField(isWhole); }

    QString plainField(bool &isWhole)
    {
        const qsizetype start = m_at;
        for (; m_at < m_text.size() && !QStringLiteral(",\r\n").contains(m_text.at(m_at)); ++m_at)
            isWhole = isWhole && m_text.at(m_at) != u'"';
        return m_text.mid(start, m_at - start);
    }

    QString quotedField(bool &isWhole)
    {
        QString field;
        for (; m_at < m_text.size(); ++m_at) {
            const QChar c = m_text.at(m_at);
            if (c == u'"') {
                ++m_at;
                if (m_at >= m_text.size() || m_text.at(m_at) != u'"')
                    return field;
            } else if (c == u'\n') {
                ++m_line;
            }
            field.append(c);
        }
        isWhole = false; // nobody closes it
        return field;
    }

    QString m_text;
    qsizetype m_at = 0;
    int m_line = 1;
};

/// Every column once, in any order and case.
std::optional<Order> orderOf(const Records::Record &header)
{
    if (!header.isWhole || header.fields.size() != columnCount)
        return std::nullopt;
    Order order = {};
    for (qsizetype i = 0; const QString &column : QString::fromLatin1(columns).split(u',')) {
        const auto isColumn
            = [&column](const QString &f) { return f.trimmed().compare(column, Qt::CaseInsensitive) == 0; };
        const auto found = std::ranges::find_if(header.fields, isColumn);
        if (found == header.fields.end())
            return std::nullopt;
        order.at(static_cast<std::size_t>(i++)) = found - header.fields.begin();
    }
    return order;
}

} // namespace

std::vector<ContactFile::Entry> ContactFile::entriesOf(const ContactList &contacts)
{
    std::vector<Entry> entries;
    for (int row = 0; row < contacts.rowCount(); ++row) {
        const Contact &contact = contacts.at(row);
        if (const std::optional<Ipv4Address> &ip = contact.ip.ipv4(); ip && ip->isUnicast() && *ip != thisMachine)
            entries.push_back({contact.ip.text(), contact.nickname, contact.workstation});
    }
    return entries;
}

QByteArray ContactFile::write(const std::vector<Entry> &entries)
{
    QString text = QLatin1String(columns) + QLatin1String("\r\n");
    for (const Entry &entry : entries)
        text += quoted(entry.address) + u',' + quoted(entry.nickname) + u',' + quoted(entry.workstation)
            + QLatin1String("\r\n");
    return text.toUtf8();
}

std::optional<ContactFile::Fault> ContactFile::faultOf(const Entry &entry, QSet<QString> &addresses)
{
    const std::optional<Ipv4Address> address = readAddress(entry.address);
    if (!address || !address->isUnicast())
        return Fault{entry.line, tr("\"%1\" is not the address of one computer").arg(remoteName(entry.address))};
    if (entry.nickname.isEmpty() || entry.workstation.isEmpty())
        return Fault{entry.line, tr("a name is empty")};
    if (addresses.contains(entry.address))
        return Fault{entry.line, tr("%1 was there before").arg(entry.address)};
    addresses.insert(entry.address);
    return std::nullopt;
}

std::variant<std::vector<ContactFile::Entry>, std::vector<ContactFile::Fault>>
ContactFile::read(const QByteArray &bytes)
{
    using Faults = std::vector<Fault>;
    QStringDecoder decoder(QStringDecoder::Utf8); // leaves a byte order mark out
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return Faults{{0, tr("it is not written in UTF-8")}};
    Records records(text);
    const std::optional<Records::Record> header = records.next();
    const std::optional<Order> order = header ? orderOf(*header) : std::nullopt;
    if (!order)
        return Faults{{header ? header->line : 1, tr("it must be: %1").arg(QLatin1String(columns))}};
    std::vector<Entry> entries;
    Faults faults;
    QSet<QString> addresses;
    while (const auto record = records.next()) {
        if (!record->isWhole) {
            faults.push_back({record->line, tr("its quotation marks do not fit")});
            break;
        }
        if (record->fields.size() != columnCount) {
            faults.push_back({record->line, tr("it has not three fields")});
            continue;
        }
        Entry entry{record->fields.at(order->at(0)).trimmed(), remoteName(record->fields.at(order->at(1))),
                    remoteName(record->fields.at(order->at(2))), record->line};
        if (std::optional<Fault> fault = faultOf(entry, addresses))
            faults.push_back(*std::move(fault));
        else
            entries.push_back(std::move(entry));
    }
    if (!faults.empty())
        return faults;
    return entries;
}

} // namespace nimb
