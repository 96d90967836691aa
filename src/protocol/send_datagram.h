// Sending, as every caller does it.
#pragma once

#include "protocol/datagram.h"
#include "protocol/winsock.h"

namespace nimb
{

/// The two steps of sending: set the remote host, send the text.
inline void sendDatagram(Winsock &socket, const QString &address, const wire::Datagram &datagram)
{
    socket.setRemoteHost(address);
    socket.SendData(wire::serialise(datagram));
}

} // namespace nimb
