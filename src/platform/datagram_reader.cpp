#include "platform/datagram_reader.h"

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
    const std::lock_guard lock(m_mutex);
    Batch batch = std::exchange(m_counts, {});
    batch.arrivals = m_queue.take(most);
    batch.losses = m_queue.takeLosses();
    if (m_queue.isEmpty())
        m_somethingWaits.calm();
    return batch;
}

void DatagramReader::run()
{
    DatagramSocket::Buffers buffers;
    std::vector<pollfd> watched = {{.fd = m_end.readable(), .events = POLLIN, .revents = 0}};
    for (const DatagramSocket *const socket : m_sockets)
        watched.push_back({.fd = socket->descriptor(), .events = POLLIN, .revents = 0});
    for (;;) {
        if (::poll(watched.data(), watched.size(), -1) < 0)
            continue; // a signal came in between
        if (watched.front().revents != 0)
            return;
        for (std::size_t i = 0; i < m_sockets.size(); ++i) {
            if (watched[i + 1].revents != 0)
                read(*m_sockets[i], buffers);
        }
    }
}

void DatagramReader::read(DatagramSocket &socket, DatagramSocket::Buffers &buffers)
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
}

} // namespace nimb
