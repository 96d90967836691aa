#include "platform/udp_winsock.h"

#include "platform/own_identity.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

#include <cerrno>

namespace nimb
{
namespace
{

constexpr Ipv4Address loopbackBroadcast{127, 255, 255, 255};

/// Datagrams to machines that are off wait in the system until the search for them is given up; an announcement to a
/// long list of such contacts fills a small buffer.
constexpr int sendBufferAsked = 4 * 1024 * 1024;

} // namespace

UdpWinsock::UdpWinsock(DropCounts &drops, std::optional<Ipv4Address> address, std::optional<QString> hostName,
                       QObject *parent)
    : QObject(parent), m_drops(drops), m_fixedAddress(address), m_fixedHostName(std::move(hostName))
{
}

BindFailure UdpWinsock::bindFailureOf(int error)
{
    switch (error) {
    case EADDRINUSE:
        return BindFailure::portTaken;
    case EADDRNOTAVAIL:
        return BindFailure::addressNotHere;
    case EACCES:
        return BindFailure::notAllowed;
    default:
        return BindFailure::other;
    }
}

bool UdpWinsock::bind()
{
    if (m_own)
        return true;
    if (m_localPort == 0)
        return false;
    const Ipv4Address address = m_fixedAddress.value_or(Ipv4Address());
    auto own = listen({address, m_localPort}, DatagramSocket::Sharing::exclusive, &UdpWinsock::readOwn);
    if (const auto *const error = std::get_if<DatagramSocket::SystemError>(&own)) {
        m_bindFailure = bindFailureOf(error->number);
        return false;
    }
    m_bindFailure = BindFailure::none;
    m_own = std::get<Ear>(std::move(own));
    m_receiveBufferBytes = m_own->socket.growReceiveBuffer(receiveBufferAsked);
    m_own->socket.growSendBuffer(sendBufferAsked);

    // A socket that is bound to one loopback address hears no broadcast; one bound to every interface does.
    if (address.isLoopback() && address != loopbackBroadcast) {
        auto broadcasts
            = listen({loopbackBroadcast, m_localPort}, DatagramSocket::Sharing::shared, &UdpWinsock::readBroadcasts);
        if (auto *const ear = std::get_if<Ear>(&broadcasts)) {
            ear->socket.growReceiveBuffer(receiveBufferAsked);
            m_broadcasts = std::move(*ear);
        }
    }
    return true;
}

std::variant<UdpWinsock::Ear, DatagramSocket::SystemError>
UdpWinsock::listen(Ipv4Endpoint local, DatagramSocket::Sharing sharing, void (UdpWinsock::*arrivals)())
{
    auto opened = DatagramSocket::open(local, sharing);
    auto *const socket = std::get_if<DatagramSocket>(&opened);
    if (!socket)
        return std::get<DatagramSocket::SystemError>(opened);
    auto notifier = std::make_unique<QSocketNotifier>(socket->descriptor(), QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, arrivals);
    return Ear{std::move(*socket), std::move(notifier)};
}

void UdpWinsock::SendData(const std::string &bytes)
{
    const bool canSend = m_own && m_remoteHost && m_remotePort != 0;
    if (canSend && m_own->socket.send({*m_remoteHost, m_remotePort}, bytes))
        return;
    m_drops.count(Drop::notSent);
    if (canSend)
        reportError();
}

std::string UdpWinsock::GetData(std::size_t byteCount)
{
    m_lastSource = m_waiting.source.address;
    const std::size_t size = std::min(byteCount, std::exchange(m_waiting.size, 0));
    return std::string(m_buffer.data(), size);
}

Ipv4Address UdpWinsock::LocalIP() const
{
    return ownAddress(m_fixedAddress);
}

QString UdpWinsock::LocalHostName() const
{
    return ownHostName(m_fixedHostName);
}

void UdpWinsock::readBatch(Ear &ear)
{
    // A handler that runs an event loop of its own must see its datagram through before the next one is read.
    setListening(false);
    const auto listenAgain = qScopeGuard([this] { setListening(true); });
    for (int i = 0; i < batchSize; ++i) {
        const DatagramSocket::Arrival arrival = ear.socket.receive(m_buffer);
        if (arrival.outcome == DatagramSocket::Outcome::nothing)
            break;
        if (arrival.outcome == DatagramSocket::Outcome::error)
            reportError();
        else
            deliver(arrival);
    }
}

void UdpWinsock::setListening(bool on)
{
    m_own->notifier->setEnabled(on);
    if (m_broadcasts)
        m_broadcasts->notifier->setEnabled(on);
}

void UdpWinsock::deliver(const DatagramSocket::Arrival &arrival)
{
    if (arrival.newlyLost > 0)
        m_drops.count(Drop::notReceived, arrival.newlyLost);
    m_waiting = arrival;
    if (DataArrival)
        DataArrival(arrival.size);
}

void UdpWinsock::reportError() const
{
    if (Error)
        Error();
}

} // namespace nimb
