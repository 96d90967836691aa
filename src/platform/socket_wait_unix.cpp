#include "platform/socket_wait.h"

#include <poll.h>

namespace nimb
{

/// The pipe first.
struct SocketWait::Watched {
    std::vector<pollfd> descriptors;
};

SocketWait::SocketWait(const WakePipe &end, const std::vector<DatagramSocket *> &sockets)
    : m_watched(std::make_unique<Watched>())
{
    const auto watch = [this](std::intptr_t descriptor) {
        m_watched->descriptors.push_back({.fd = static_cast<int>(descriptor), .events = POLLIN, .revents = 0});
    };
    watch(end.readable());
    for (const DatagramSocket *const socket : sockets)
        watch(socket->descriptor());
}

SocketWait::~SocketWait() = default;

SocketWait::Outcome SocketWait::wait(std::optional<std::chrono::milliseconds> longest)
{
    std::vector<pollfd> &descriptors = m_watched->descriptors;
    const int ready = ::poll(descriptors.data(), descriptors.size(), longest ? static_cast<int>(longest->count()) : -1);
    if (ready < 0)
        return Outcome::nothing; // a signal came in between
    if (descriptors.front().revents != 0)
        return Outcome::ended;
    return ready == 0 ? Outcome::timeOut : Outcome::ready;
}

bool SocketWait::isReady(std::size_t socket) const
{
    return m_watched->descriptors[socket + 1].revents != 0;
}

} // namespace nimb
