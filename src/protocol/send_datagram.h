// Sending, as every caller does it.
#pragma once

#include "protocol/datagram.h"
#include "protocol/winsock.h"

namespace nimb
{

/// The two steps of sending: set the remote host, send the text. Without an address nothing is sent.
inline void sendBytes(Winsock &socket, std::optional<Ipv4Address> to, const std::string &bytes)
{
    socket.setRemoteHost(to);
    socket.SendData(bytes);
}

inline void sendDatagram(Winsock &socket, std::optional<Ipv4Address> to, const wire::Datagram &datagram)
{
    sendBytes(socket, to, wire::serialise(datagram));
}

} // namespace nimb
