// Sending, as every caller does it.
#pragma once

#include "protocol/datagram.h"
#include "protocol/winsock.h"

namespace nimb
{

/// The two steps of sending: set the remote host, send the text.
inline void sendBytes(Winsock &socket, const QString &address, const std::string &bytes)
{
    socket.setRemoteHost(address);
    socket.SendData(bytes);
}

inline void sendDatagram(Winsock &socket, const QString &address, const wire::Datagram &datagram)
{
    sendBytes(socket, address, wire::serialise(datagram));
}

} // namespace nimb
