// The thread that empties the sockets as fast as the system fills them, whatever the rest of the program is doing.
#pragma once

#include "platform/datagram_socket.h"
#include "platform/wake_pipe.h"
#include "protocol/arrival_queue.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

namespace nimb
{

/// Reads from its making to its end, and does nothing but reading: what arrived waits here until the one thread of the
/// rules takes it. Sleeps while nothing arrives.
class DatagramReader
{
public:
    struct Batch {
        std::vector<Arrival> arrivals;
        ArrivalQueue::Losses losses = {}; ///< had no room here
        std::uint64_t lostBySystem = 0;   ///< had no room in the system
        std::uint64_t errors = 0;         ///< of the sockets
    };

    /// The sockets stay their owner's, who may send with them meanwhile, and outlive the reader. Throws
    /// std::system_error when the system has no thread or descriptor left.
    DatagramReader(std::vector<DatagramSocket *> sockets, std::size_t capacity,
                   std::set<Ipv4Address> acquaintances = {});
    ~DatagramReader();

    /// Readable while there is something to take.
    int readable() const { return m_somethingWaits.readable(); }
    /// As ArrivalQueue::setAcquainted().
    void setAcquainted(Ipv4Address sender, bool acquainted);
    /// At most so many datagrams, and all counts since the last call. Waits while the system has more than the reader
    /// has read, but no longer than limits::readersLead, and not again within that time: with fewer processors than
    /// busy threads whoever handles a burst takes the time from whoever keeps it from being lost.
    Batch take(std::size_t most);

private:
    void run();
    /// Whether there may be more.
    bool read(DatagramSocket &socket, DatagramSocket::Buffers &buffers);
    void setBehind(bool isBehind);
    void letCatchUp(std::unique_lock<std::mutex> &lock);

    std::vector<DatagramSocket *> m_sockets;
    WakePipe m_somethingWaits;
    WakePipe m_end;
    std::mutex m_mutex; ///< guards all that follows but the thread
    ArrivalQueue m_queue;
    Batch m_counts;          ///< without arrivals
    bool m_isBehind = false; ///< the last reading was full, so more may be there
    std::condition_variable m_hasCaughtUp;
    std::chrono::steady_clock::time_point m_nextLead; ///< not before then
    std::thread m_thread;
};

} // namespace nimb
