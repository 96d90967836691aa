#include "platform/own_identity.h"

#include "platform/datagram_socket.h"
#include "protocol/wire_text.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QRegularExpression>
#include <QSysInfo>

#include <algorithm>
#include <array>

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

bool runs(const QNetworkInterface &interface)
{
    const QNetworkInterface::InterfaceFlags flags = interface.flags();
    return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
}

bool reachesOthers(const QNetworkInterface &interface)
{
    const QNetworkInterface::InterfaceFlags flags = interface.flags();
    return flags.testFlag(QNetworkInterface::CanBroadcast) && !flags.testFlag(QNetworkInterface::IsPointToPoint)
        && !isInsideMachine(interface.name());
}

/// Of a card on which others are, if there is one.
std::optional<Ipv4Address> firstOfAnyInterface()
{
    std::optional<Ipv4Address> first;
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
            const Ipv4Address address = Ipv4Address::of(entry.ip().toIPv4Address());
            if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol || !isUsable(address))
                continue;
            if (runs(interface) && reachesOthers(interface))
                return address;
            first = first.value_or(address);
        }
    }
    return first;
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

std::optional<Ipv4Address> broadcastAddress(Ipv4Address address, int prefix)
{
    // A network of two has no address left for it, and one of none is everything.
    if (prefix < 1 || prefix > 30)
        return std::nullopt;
    return Ipv4Address::of(address.number() | (0xFFFFFFFFU >> prefix));
}

bool isInsideMachine(const QString &interface)
{
    static constexpr std::array names{"docker", "virbr", "vmnet",  "vboxnet",  "lxcbr",
                                      "lxdbr",  "cni",   "podman", "waydroid", "incusbr"};
    // A bridge of containers has a number; one that somebody has called br-lan joins machines.
    static const QRegularExpression numberedBridge(QStringLiteral("^br-[0-9a-f]{12}$"));
    return numberedBridge.match(interface).hasMatch() || std::ranges::any_of(names, [&interface](const char *name) {
               return interface.startsWith(QLatin1String(name));
           });
}

bool MachineAddresses::isOwn(Ipv4Address address) const
{
    if (m_fixed)
        return address == m_fixed;
    read();
    return std::ranges::find(m_own, address) != m_own.end();
}

bool MachineAddresses::isBroadcast(Ipv4Address address) const
{
    read();
    return std::ranges::find(m_broadcast, address) != m_broadcast.end();
}

std::optional<Ipv4Address> MachineAddresses::sourceTowards(Ipv4Address peer) const
{
    return sourceAddressTowards({peer, farAway.port}, m_fixed.value_or(Ipv4Address()));
}

std::vector<NetworkCard> MachineAddresses::cards() const
{
    read();
    return m_cards;
}

void MachineAddresses::read() const
{
    if (m_sinceRead.isValid() && m_sinceRead.elapsed() < 2000)
        return;
    m_sinceRead.start();
    m_own.clear();
    m_broadcast.clear();
    m_cards.clear();
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
            if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol)
                continue;
            const Ipv4Address address = Ipv4Address::of(entry.ip().toIPv4Address());
            if (isUsable(address))
                m_own.push_back(address);
            const auto everybody = broadcastAddress(address, entry.prefixLength());
            if (everybody)
                m_broadcast.push_back(*everybody);
            if (isUsable(address) && runs(interface))
                m_cards.push_back({interface.name(), address, reachesOthers(interface) ? everybody : std::nullopt,
                                   isInsideMachine(interface.name())});
        }
    }
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
