#include "platform/socket_wait.h"

#include <winsock2.h>

namespace nimb
{

/// The pipe first.
struct SocketWait::Watched {
    std::vector<WSAEVENT> events;
    std::vector<SOCKET> sockets;
    std::vector<bool> ready;
};

SocketWait::SocketWait(const WakePipe &end, const std::vector<DatagramSocket *> &sockets)
    : m_watched(std::make_unique<Watched>())
{
    m_watched->events.push_back(reinterpret_cast<WSAEVENT>(end.readable()));
    for (const DatagramSocket *const socket : sockets) {
        const WSAEVENT event = WSACreateEvent();
        WSAEventSelect(static_cast<SOCKET>(socket->descriptor()), event, FD_READ);
        m_watched->events.push_back(event);
        m_watched->sockets.push_back(static_cast<SOCKET>(socket->descriptor()));
    }
    m_watched->ready.resize(sockets.size());
}

SocketWait::~SocketWait()
{
    for (std::size_t i = 0; i < m_watched->sockets.size(); ++i) {
        WSAEventSelect(m_watched->sockets[i], nullptr, 0);
        WSACloseEvent(m_watched->events[i + 1]);
    }
}

SocketWait::Outcome SocketWait::wait(std::optional<std::chrono::milliseconds> longest)
{
    Watched &watched = *m_watched;
    constexpr BOOL oneIsEnough = FALSE, notAlertable = FALSE;
    const DWORD first
        = WSAWaitForMultipleEvents(static_cast<DWORD>(watched.events.size()), watched.events.data(), oneIsEnough,
                                   longest ? static_cast<DWORD>(longest->count()) : WSA_INFINITE, notAlertable);
    if (first == WSA_WAIT_TIMEOUT)
        return Outcome::timeOut;
    if (first == WSA_WAIT_EVENT_0)
        return Outcome::ended;
    // The event is taken back before the socket is read: what comes in between sets it anew.
    for (std::size_t i = 0; i < watched.sockets.size(); ++i) {
        WSANETWORKEVENTS what = {};
        WSAEnumNetworkEvents(watched.sockets[i], watched.events[i + 1], &what);
        watched.ready[i] = (what.lNetworkEvents & FD_READ) != 0;
    }
    return first == WSA_WAIT_FAILED ? Outcome::nothing : Outcome::ready;
}

bool SocketWait::isReady(std::size_t socket) const
{
    return m_watched->ready[socket];
}

} // namespace nimb
