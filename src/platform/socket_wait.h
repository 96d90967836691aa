// Waiting until one of several sockets has something to read, or somebody wants the waiting to end.
#pragma once

#include "platform/datagram_socket.h"
#include "platform/wake_pipe.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace nimb
{

class SocketWait
{
public:
    enum class Outcome {
        ended,   ///< the pipe was woken
        ready,   ///< some of the sockets are
        timeOut, ///< nothing came
        nothing, ///< something else woke the thread: wait again
    };

    /// Both outlive it.
    SocketWait(const WakePipe &end, const std::vector<DatagramSocket *> &sockets);
    ~SocketWait();
    SocketWait(const SocketWait &) = delete;
    SocketWait &operator=(const SocketWait &) = delete;

    /// Without a time as long as it takes.
    Outcome wait(std::optional<std::chrono::milliseconds> longest);
    /// By the place of the socket in the list; after a wait that ended as ready.
    bool isReady(std::size_t socket) const;

private:
    struct Watched;
    std::unique_ptr<Watched> m_watched;
};

} // namespace nimb
