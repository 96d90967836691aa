// The latest datagrams in and out, for whoever looks why somebody is not reached.
#pragma once

#include "protocol/ipv4_address.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace nimb
{

struct TracedDatagram {
    enum class Direction { in, out };

    std::chrono::system_clock::time_point time;
    Direction direction = Direction::in;
    Ipv4Address peer; ///< where it comes from or goes to; unspecified where it goes nowhere
    std::size_t size = 0;
    std::string beginning; ///< at most DatagramTrace::bytesKept of it
};

/// Keeps the last ones. Whatever a flood may bring, a datagram costs one short copy.
class DatagramTrace
{
public:
    static constexpr std::size_t datagramsKept = 50;
    static constexpr std::size_t bytesKept = 200;

    void note(TracedDatagram::Direction direction, Ipv4Address peer, std::string_view bytes);
    /// The oldest first.
    std::vector<TracedDatagram> datagrams() const;

    /// Called for each datagram that comes in, before it is handled; null as long as nobody waits for one.
    std::function<void(Ipv4Address from, std::string_view bytes)> arrived;

private:
    std::vector<TracedDatagram> m_ring;
    std::size_t m_next = 0; ///< where the next one goes once all places are taken
};

} // namespace nimb
