#include "protocol/datagram_trace.h"

namespace nimb
{

void DatagramTrace::note(TracedDatagram::Direction direction, Ipv4Address peer, std::string_view bytes)
{
    if (m_ring.size() < datagramsKept)
        m_ring.emplace_back();
    TracedDatagram &place = m_ring[m_next];
    m_next = (m_next + 1) % datagramsKept;
    place.time = std::chrono::system_clock::now();
    place.direction = direction;
    place.peer = peer;
    place.size = bytes.size();
    place.beginning.assign(bytes.substr(0, bytesKept)); // into the memory of the one that was there
    if (direction == TracedDatagram::Direction::in && arrived)
        arrived(peer, bytes);
}

std::vector<TracedDatagram> DatagramTrace::datagrams() const
{
    std::vector<TracedDatagram> inOrder;
    inOrder.reserve(m_ring.size());
    const std::size_t oldest = m_ring.size() < datagramsKept ? 0 : m_next;
    for (std::size_t i = 0; i < m_ring.size(); ++i)
        inOrder.push_back(m_ring[(oldest + i) % m_ring.size()]);
    return inOrder;
}

} // namespace nimb
