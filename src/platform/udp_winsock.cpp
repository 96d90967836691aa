#include "platform/udp_winsock.h"

#include "base/limits.h"
#include "platform/own_identity.h"

#include <QElapsedTimer>
#include <QScopeGuard>

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

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
    auto own = DatagramSocket::open({address, m_localPort}, DatagramSocket::Sharing::exclusive);
    if (const auto *const error = std::get_if<DatagramSocket::SystemError>(&own)) {
        m_bindFailure = bindFailureOf(error->number);
        return false;
    }
    m_own = std::get<DatagramSocket>(std::move(own));
    m_receiveBufferBytes = m_own->growReceiveBuffer(receiveBufferAsked);
    m_own->growSendBuffer(sendBufferAsked);

    // A socket that is bound to one loopback address hears no broadcast; one bound to every interface does.
    if (address.isLoopback() && address != loopbackBroadcast) {
        auto broadcasts = DatagramSocket::open({loopbackBroadcast, m_localPort}, DatagramSocket::Sharing::shared);
        if (auto *const socket = std::get_if<DatagramSocket>(&broadcasts)) {
            socket->growReceiveBuffer(receiveBufferAsked);
            m_broadcasts = std::move(*socket);
        }
    }
    const bool reads = startReading();
    m_bindFailure = reads ? BindFailure::none : BindFailure::other;
    if (!reads) {
        m_own.reset();
        m_broadcasts.reset();
    }
    return reads;
}

bool UdpWinsock::startReading()
{
    std::vector<DatagramSocket *> sockets = {&*m_own};
    if (m_broadcasts)
        sockets.push_back(&*m_broadcasts);
    try {
        m_reader.emplace(std::move(sockets), limits::waitingArrivals, m_acquaintances);
    } catch (const std::system_error &) {
        return false;
    }
    m_notifier = std::make_unique<WakeNotifier>(m_reader->readable(), [this] { handOver(); });
    return true;
}

std::optional<Ipv4Address> UdpWinsock::addressTowards(Ipv4Address peer) const
{
    if (m_fixedAddress || m_source)
        return std::nullopt;
    const auto known = m_ways.find(peer);
    if (known != m_ways.end())
        return known->second;
    std::optional<Ipv4Address> from = sourceAddressTowards({peer, m_localPort});
    if (from && from->isLoopback())
        from.reset();
    if (m_ways.size() >= limits::waysRemembered)
        m_ways.clear();
    return m_ways[peer] = from;
}

void UdpWinsock::networksChanged()
{
    m_ways.clear();
    if (m_own && !hasAddressStill())
        close();
}

/// A socket for every interface outlives them all. The one for an address that is gone says nothing of it; only another
/// one cannot be bound to it any more.
bool UdpWinsock::hasAddressStill() const
{
    if (!m_fixedAddress)
        return true;
    const auto another = DatagramSocket::open({*m_fixedAddress, 0}, DatagramSocket::Sharing::exclusive);
    return std::holds_alternative<DatagramSocket>(another);
}

void UdpWinsock::close()
{
    // Whoever is told of a datagram may have run an event loop, and this in it: the notifier is in use then.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    // None may be handed over while another one is handled.
    const DatagramReader::Batch unheard = m_reader->takeAll();
    count(unheard);
    m_drops.count(Drop::notReceived, unheard.arrivals.size());
    m_reader.reset();
    m_broadcasts.reset();
    m_own.reset();
    m_receiveBufferBytes = 0;
}

void UdpWinsock::setBroadcast(bool allowed)
{
    if (m_own)
        m_own->setBroadcast(allowed);
}

void UdpWinsock::SendData(const std::string &bytes)
{
    const bool canSend = m_own && m_remoteHost && m_remotePort != 0;
    if (canSend && m_own->send({*m_remoteHost, m_remotePort}, bytes, m_source))
        return;
    // The card that has this address may have gone, or there may be no way from it.
    if (canSend && m_source && m_own->send({*m_remoteHost, m_remotePort}, bytes))
        return;
    m_drops.count(Drop::notSent);
    if (canSend)
        reportError();
}

std::string UdpWinsock::GetData(std::size_t byteCount)
{
    m_lastSource = m_waiting.source;
    std::string taken = std::exchange(m_waiting.bytes, {});
    taken.resize(std::min(byteCount, taken.size()));
    return taken;
}

void UdpWinsock::setAcquainted(Ipv4Address sender, bool acquainted)
{
    // Kept here as well, for there is no reader before the socket is bound.
    if (acquainted)
        m_acquaintances.insert(sender);
    else
        m_acquaintances.erase(sender);
    if (m_reader)
        m_reader->setAcquainted(sender, acquainted);
}

Ipv4Address UdpWinsock::LocalIP() const
{
    return ownAddress(m_fixedAddress);
}

QString UdpWinsock::LocalHostName() const
{
    return ownHostName(m_fixedHostName);
}

void UdpWinsock::handOver()
{
    // A handler that runs an event loop of its own must see its datagram through before the next one is handed over.
    m_notifier->setEnabled(false);
    const auto listenAgain = qScopeGuard([this] {
        if (m_notifier)
            m_notifier->setEnabled(true);
    });
    QElapsedTimer time;
    time.start();
    for (int handed = 0; m_reader && handed < batchSize && time.elapsed() < limits::turnOfArrivals.count();) {
        DatagramReader::Batch batch = m_reader->take(portion);
        handed += batch.rushes || batch.arrivals.empty() ? batchSize : portion;
        deliverAll(std::move(batch));
    }
}

void UdpWinsock::deliverAll(DatagramReader::Batch batch)
{
    count(batch);
    for (Arrival &arrival : batch.arrivals)
        deliver(std::move(arrival));
}

void UdpWinsock::announceWaiting()
{
    if (m_reader)
        deliverAll(m_reader->takeAll());
}

void UdpWinsock::count(const DatagramReader::Batch &batch)
{
    if (batch.lostBySystem > 0)
        m_drops.count(Drop::notReceived, batch.lostBySystem);
    for (const auto &[sender, datagrams] : batch.losses)
        m_drops.countLoud(sender, datagrams);
    for (std::uint64_t i = 0; i < batch.errors; ++i)
        reportError();
}

void UdpWinsock::deliver(Arrival arrival)
{
    m_waiting = std::move(arrival);
    if (DataArrival)
        DataArrival(m_waiting.bytes.size());
}

void UdpWinsock::reportError() const
{
    if (Error)
        Error();
}

} // namespace nimb
