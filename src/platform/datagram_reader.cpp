#include "platform/datagram_reader.h"

#include "base/limits.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <poll.h>

namespace nimb
{

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
    letCatchUp(lock);
    Batch batch = std::exchange(m_counts, {});
    batch.arrivals = m_queue.take(most);
    batch.losses = m_queue.takeLosses();
    if (m_queue.isEmpty())
        m_somethingWaits.calm();
    return batch;
}

void DatagramReader::letCatchUp(std::unique_lock<std::mutex> &lock)
{
    const auto now = std::chrono::steady_clock::now();
    if (!m_isBehind || now < m_nextLead)
        return;
    const auto end = now + limits::readersLead;
    if (!m_hasCaughtUp.wait_until(lock, end, [this] { return !m_isBehind; }))
        m_nextLead = end + limits::readersLead;
}

void DatagramReader::run()
{
    DatagramSocket::Buffers buffers;
    std::vector<pollfd> watched = {{.fd = m_end.readable(), .events = POLLIN, .revents = 0}};
    for (const DatagramSocket *const socket : m_sockets)
        watched.push_back({.fd = socket->descriptor(), .events = POLLIN, .revents = 0});
    bool isBehind = false;
    for (;;) {
        const int ready = ::poll(watched.data(), watched.size(), isBehind ? 0 : -1);
        if (ready < 0)
            continue; // a signal came in between
        if (watched.front().revents != 0)
            return;
        isBehind = false;
        for (std::size_t i = 0; ready > 0 && i < m_sockets.size(); ++i)
            isBehind = (watched[i + 1].revents != 0 && read(*m_sockets[i], buffers)) || isBehind;
        setBehind(isBehind);
    }
}

void DatagramReader::setBehind(bool isBehind)
{
    const std::lock_guard lock(m_mutex);
    m_isBehind = isBehind;
    if (!isBehind)
        m_hasCaughtUp.notify_one();
}

bool DatagramReader::read(DatagramSocket &socket, DatagramSocket::Buffers &buffers)
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
    return reception.datagrams.size() == DatagramSocket::Buffers::count;
}

} // namespace nimb
