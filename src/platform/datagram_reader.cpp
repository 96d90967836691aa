#include "platform/datagram_reader.h"

#include "platform/socket_wait.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

namespace nimb
{
namespace
{

/// Taken at a time during a rush: a small receive buffer is full before a whole batch has been handled.
constexpr std::size_t fewInARush = 16;

} // namespace

DatagramReader::DatagramReader(std::vector<DatagramSocket *> sockets, std::size_t capacity,
                               std::set<Ipv4Address> acquaintances)
    : m_sockets(std::move(sockets)), m_queue(capacity, std::move(acquaintances))
{
    if (!m_somethingWaits.isOpen() || !m_end.isOpen())
        throw std::system_error(errno, std::generic_category());
    m_thread = std::thread([this] { run(); });
}

DatagramReader::~DatagramReader()
{
    m_end.wake();
    m_thread.join();
}

void DatagramReader::setAcquainted(Ipv4Address sender, bool acquainted)
{
    const std::lock_guard lock(m_mutex);
    m_queue.setAcquainted(sender, acquainted);
}

DatagramReader::Batch DatagramReader::take(std::size_t most)
{
    std::unique_lock lock(m_mutex);
    letReadFirst(lock);
    return takeUpTo(m_rushes ? std::min(most, fewInARush) : most);
}

DatagramReader::Batch DatagramReader::takeAll()
{
    const std::lock_guard lock(m_mutex);
    return takeUpTo(std::numeric_limits<std::size_t>::max());
}

DatagramReader::Batch DatagramReader::takeUpTo(std::size_t most)
{
    Batch batch = std::exchange(m_counts, {});
    batch.arrivals = m_queue.take(most);
    batch.losses = m_queue.takeLosses();
    batch.rushes = m_rushes;
    if (m_queue.isEmpty())
        m_somethingWaits.calm();
    return batch;
}

void DatagramReader::letReadFirst(std::unique_lock<std::mutex> &lock)
{
    if (!m_rushes)
        return;
    const auto allowed = m_lead.allowed(std::chrono::steady_clock::now());
    m_rushIsOver.wait_for(lock, allowed, [this] { return !m_rushes; });
    m_lead.spent(std::chrono::steady_clock::now());
}

void DatagramReader::run()
{
    DatagramSocket::Buffers buffers;
    SocketWait sockets(m_end, m_sockets);
    ArrivalRush rush;
    for (;;) {
        const SocketWait::Outcome outcome
            = sockets.wait(rush.isOn() ? std::optional(ArrivalRush::silence) : std::nullopt);
        if (outcome == SocketWait::Outcome::nothing)
            continue;
        if (outcome == SocketWait::Outcome::ended)
            return;
        std::size_t received = 0;
        for (std::size_t i = 0; outcome == SocketWait::Outcome::ready && i < m_sockets.size(); ++i)
            received += sockets.isReady(i) ? read(*m_sockets[i], buffers) : 0;
        if (outcome == SocketWait::Outcome::timeOut)
            rush.pause();
        else
            rush.note(received, std::chrono::steady_clock::now());
        tellOfRush(rush.isOn());
    }
}

void DatagramReader::tellOfRush(bool isOn)
{
    const std::lock_guard lock(m_mutex);
    if (m_rushes && !isOn)
        m_rushIsOver.notify_one();
    m_rushes = isOn;
}

std::size_t DatagramReader::read(DatagramSocket &socket, DatagramSocket::Buffers &buffers)
{
    const DatagramSocket::Reception reception = socket.receive(buffers);
    const std::lock_guard lock(m_mutex);
    const bool told = !m_queue.isEmpty() || m_counts.errors > 0;
    for (const auto &[source, bytes] : reception.datagrams)
        m_queue.push(source.address, bytes);
    m_counts.lostBySystem += reception.newlyLost;
    m_counts.errors += reception.failed ? 1 : 0;
    if (!told && (!m_queue.isEmpty() || m_counts.errors > 0))
        m_somethingWaits.wake();
    return reception.datagrams.size();
}

} // namespace nimb
