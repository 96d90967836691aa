#include "people/network_scan.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <QRegularExpression>

namespace nimb
{

namespace
{

/// What the system may know as the name of a host: words of letters, digits and hyphens, the last one no number. An
/// underscore is not allowed there and yet met.
bool mayBeName(const QString &text)
{
    static const QRegularExpression name(
        QStringLiteral("^(?:\\w(?:[\\w-]{0,61}\\w)?\\.)*(?!\\d+\\.?$)\\w(?:[\\w-]{0,61}\\w)?\\.?$"),
        QRegularExpression::UseUnicodePropertiesOption);
    return name.match(text).hasMatch();
}

} // namespace

void NetworkScan::Command1_Click(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return;
    if (const auto address = readAddress(text, Ipv4Address::LeadingZeros::skipped))
        return m_search.ask({{*address}}, addressText(*address));
    if (const std::optional<Range> range = readRange(text))
        return ask(*range, text);
    if (!mayBeName(text))
        return m_log.fault(
            tr("\"%1\" is neither a name nor the address of a computer or a network, so nobody was asked.")
                .arg(remoteName(text)));
    // The answer may come when the dialog and this object are gone.
    const bool byInvisible = m_common.isInvisible();
    m_resolver.resolve(text, [&search = m_search, &log = m_log, text, byInvisible](std::optional<Ipv4Address> address) {
        if (address && byInvisible)
            search.ask({{*address}}, remoteName(text));
        else if (address) // he may have become so meanwhile
            search.askUnlessInvisible({{*address}}, remoteName(text));
        else
            log.fault(tr("No address was found for \"%1\", so nobody was asked.").arg(remoteName(text)));
    });
}

std::optional<NetworkScan::Range> NetworkScan::readRange(QStringView text)
{
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0)
        return std::nullopt;
    const auto address = readAddress(text.left(slash), Ipv4Address::LeadingZeros::skipped);
    bool isNumber = false;
    const int prefix = text.mid(slash + 1).toInt(&isNumber);
    if (!address || !isNumber || prefix < 0 || prefix > 32)
        return std::nullopt;
    return Range{*address, prefix};
}

/// All of them but the first and the last one, which are the network's own where it has more than two.
void NetworkScan::ask(const Range &range, const QString &text) const
{
    if (range.prefix < limits::smallestScannedPrefix)
        return m_log.fault(tr("%1 has too many addresses to be asked one by one: the largest range is /%2.")
                               .arg(text, QString::number(limits::smallestScannedPrefix)));
    const std::uint32_t size = 1U << (32 - range.prefix);
    const std::uint32_t first = range.address.number() / size * size;
    if (size == 1)
        return m_search.ask({{range.address}}, text);
    const std::uint32_t edge = size > 2 ? 1 : 0;
    std::vector<SearchTarget> targets;
    for (std::uint32_t number = first + edge; number - first < size - edge; ++number) {
        if (const Ipv4Address address = Ipv4Address::of(number); address != m_common.ownIP)
            targets.push_back({address});
    }
    m_search.ask(std::move(targets), text);
}

} // namespace nimb
