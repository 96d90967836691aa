// Sending, as every caller does it.
#pragma once

#include "protocol/address_text.h"
#include "protocol/datagram.h"
#include "protocol/winsock.h"

namespace nimb
{

/// The two steps of sending: set the remote host, send the text.
inline void sendBytes(Winsock &socket, std::optional<Ipv4Address> to, const std::string &bytes)
{
    socket.setRemoteHost(to);
    socket.SendData(bytes);
}

inline void sendDatagram(Winsock &socket, std::optional<Ipv4Address> to, const wire::Datagram &datagram)
{
    sendBytes(socket, to, wire::serialise(datagram));
}

// To the address that a row or a window bears as its text. A text that is no address is nobody's.
inline void sendBytes(Winsock &socket, const QString &to, const std::string &bytes)
{
    sendBytes(socket, readAddress(to), bytes);
}

inline void sendDatagram(Winsock &socket, const QString &to, const wire::Datagram &datagram)
{
    sendDatagram(socket, readAddress(to), datagram);
}

} // namespace nimb
