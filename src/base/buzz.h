// Buzzing a peer.
#pragma once

#include "base/Common.h"
#include "base/sound.h"
#include "protocol/send_datagram.h"

namespace nimb
{

/// Buzzes the peer, and lets the sender hear it where that is switched on and not muted.
inline void sendBuzz(const Common &common, Winsock &socket, Sound &sound, std::optional<Ipv4Address> ip)
{
    sendDatagram(socket, ip, wire::Buzz{});
    if (common.hearsOwnBuzz())
        sound.playAlarm();
}

} // namespace nimb
