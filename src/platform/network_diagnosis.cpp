#include "platform/network_diagnosis.h"

#include "platform/datagram_socket.h"

#include <QNetworkInterface>

namespace nimb
{
namespace
{

constexpr std::uint16_t discardPort = 9;

bool hasNeighbours(const QNetworkInterface &interface)
{
    return interface.flags().testFlag(QNetworkInterface::CanBroadcast)
        && !interface.flags().testFlag(QNetworkInterface::IsPointToPoint);
}

} // namespace

SystemNetworkDiagnosis::SystemNetworkDiagnosis(const UdpWinsock &socket)
    : m_socket(socket), m_life(std::make_unique<QObject>())
{
}

SystemNetworkDiagnosis::~SystemNetworkDiagnosis() = default;

int SystemNetworkDiagnosis::receiveBufferBytes() const
{
    if (m_socket.isBound())
        return m_socket.receiveBufferBytes();
    auto opened = DatagramSocket::open({}, DatagramSocket::Sharing::exclusive);
    auto *const socket = std::get_if<DatagramSocket>(&opened);
    return socket ? socket->growReceiveBuffer(UdpWinsock::receiveBufferAsked) : 0;
}

bool SystemNetworkDiagnosis::canBroadcast(const NetworkCard &card) const
{
    auto opened = DatagramSocket::open({card.address, 0}, DatagramSocket::Sharing::exclusive);
    auto *const socket = std::get_if<DatagramSocket>(&opened);
    if (!socket || !card.broadcast)
        return false;
    socket->setBroadcast(true);
    return socket->send({*card.broadcast, discardPort}, {});
}

bool SystemNetworkDiagnosis::isTunnel(const QString &card) const
{
    return QNetworkInterface::interfaceFromName(card).flags().testFlag(QNetworkInterface::IsPointToPoint);
}

/// Neighbours are on the network of the card through which the way to them leads. Lines to a single machine keep no
/// table of them.
Neighbour SystemNetworkDiagnosis::neighbour(Ipv4Address address) const
{
    if (address.isLoopback())
        return Neighbour::known;
    const std::optional<Ipv4Address> own = sourceAddressTowards({address, discardPort});
    const QHostAddress peer(address.number());
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
            const bool isTheWay = own && entry.ip() == QHostAddress(own->number());
            if (!isTheWay || !peer.isInSubnet(entry.ip(), entry.prefixLength()) || !hasNeighbours(interface))
                continue;
            return isKnown(address) ? Neighbour::known : Neighbour::unknown;
        }
    }
    return Neighbour::farAway;
}

} // namespace nimb
