// The thread that empties the sockets as fast as the system fills them, whatever the rest of the program is doing.
#pragma once

#include "base/limits.h"
#include "platform/datagram_socket.h"
#include "platform/wake_pipe.h"
#include "protocol/arrival_queue.h"
#include "protocol/arrival_rush.h"

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
        bool rushes = false;              ///< more is coming in at this moment
    };

    /// The sockets stay their owner's, who may send with them meanwhile, and outlive the reader. Throws
    /// std::system_error when the system has no thread or descriptor left.
    DatagramReader(std::vector<DatagramSocket *> sockets, std::size_t capacity,
                   std::set<Ipv4Address> acquaintances = {});
    ~DatagramReader();

    /// Readable while there is something to take.
    WakePipe::Handle readable() const { return m_somethingWaits.readable(); }
    /// As ArrivalQueue::setAcquainted().
    void setAcquainted(Ipv4Address sender, bool acquainted);
    /// At most so many datagrams, and all counts since the last call. While datagrams rush in it waits, within
    /// limits::readersLead and limits::readersLeadInAll: with fewer processors than busy threads whoever handles a
    /// burst takes the time from whoever keeps it from being lost.
    Batch take(std::size_t most);
    /// Whatever is here, at once.
    Batch takeAll();

private:
    void run();
    /// How many.
    std::size_t read(DatagramSocket &socket, DatagramSocket::Buffers &buffers);
    void tellOfRush(bool isOn);
    Batch takeUpTo(std::size_t most);
    void letReadFirst(std::unique_lock<std::mutex> &lock);

    std::vector<DatagramSocket *> m_sockets;
    WakePipe m_somethingWaits;
    WakePipe m_end;
    std::mutex m_mutex; ///< guards all that follows but the thread
    ArrivalQueue m_queue;
    Batch m_counts; ///< without arrivals
    bool m_rushes = false;
    std::condition_variable m_rushIsOver;
    ReadersLead m_lead{limits::readersLead, limits::readersLeadInAll};
    std::thread m_thread;
};

} // namespace nimb
