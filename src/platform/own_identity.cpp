#include "platform/own_identity.h"

#include "platform/datagram_socket.h"
#include "protocol/wire_text.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QSysInfo>

namespace nimb
{
namespace
{

/// Set aside for documentation (TEST-NET-1), so it is never a neighbour: the way there is the default route.
constexpr Ipv4Endpoint farAway{{192, 0, 2, 1}, 9};

bool isUsable(Ipv4Address address)
{
    return !address.isUnspecified() && !address.isLoopback();
}

std::optional<Ipv4Address> firstOfAnyInterface()
{
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
    for (const QHostAddress &any : addresses) {
        const Ipv4Address address = Ipv4Address::of(any.toIPv4Address());
        if (any.protocol() == QAbstractSocket::IPv4Protocol && isUsable(address))
            return address;
    }
    return std::nullopt;
}

} // namespace

Ipv4Address ownAddress(std::optional<Ipv4Address> fixed)
{
    if (fixed)
        return *fixed;
    const std::optional<Ipv4Address> routed = sourceAddressTowards(farAway);
    if (routed && isUsable(*routed))
        return *routed;
    return firstOfAnyInterface().value_or(Ipv4Address(127, 0, 0, 1));
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
