#include "platform/own_identity.h"

#include "platform/datagram_socket.h"
#include "protocol/wire_text.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QStringList>
#include <QSysInfo>

#include <algorithm>

namespace nimb
{
namespace
{

/// Set aside for documentation (TEST-NET-1), so it is never a neighbour: the way there is the default route.
constexpr Ipv4Endpoint farAway{0xC0000201U, 9};

std::optional<std::uint32_t> number0To255(const QString &text)
{
    const bool digitsOnly = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (text.isEmpty() || text.size() > 3 || !digitsOnly || (text.size() > 1 && text.front() == u'0'))
        return std::nullopt;
    const std::uint32_t number = text.toUInt();
    return number <= 255 ? std::optional(number) : std::nullopt;
}

bool isUsable(std::uint32_t address)
{
    return address != 0 && !isLoopback(address);
}

std::optional<std::uint32_t> firstOfAnyInterface()
{
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
    for (const QHostAddress &address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && isUsable(address.toIPv4Address()))
            return address.toIPv4Address();
    }
    return std::nullopt;
}

} // namespace

std::optional<std::uint32_t> dottedIpv4(const QString &text)
{
    const QStringList parts = text.split(u'.');
    if (parts.size() != 4)
        return std::nullopt;
    std::uint32_t address = 0;
    for (const QString &part : parts) {
        const std::optional<std::uint32_t> number = number0To255(part);
        if (!number)
            return std::nullopt;
        address = (address << 8) | *number;
    }
    return address;
}

QString dottedText(std::uint32_t address)
{
    return QHostAddress(address).toString();
}

bool isLoopback(std::uint32_t address)
{
    return address >> 24 == 127;
}

QString ownAddress(const std::optional<QString> &fixed)
{
    if (fixed && dottedIpv4(*fixed))
        return *fixed;
    const std::optional<std::uint32_t> routed = sourceAddressTowards(farAway);
    if (routed && isUsable(*routed))
        return dottedText(*routed);
    return dottedText(firstOfAnyInterface().value_or(0x7F000001U));
}

QString ownHostName(const std::optional<QString> &fixed)
{
    for (const QString &name : {fixed.value_or(QString()), QSysInfo::machineHostName(), QHostInfo::localHostName()}) {
        QString word = oneWord(name);
        if (!word.isEmpty())
            return word;
    }
    return QStringLiteral("localhost");
}

} // namespace nimb
