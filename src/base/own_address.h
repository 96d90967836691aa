// Which of this machine's addresses a datagram carries.
#pragma once

#include "base/Common.h"
#include "protocol/winsock.h"

#include <optional>

namespace nimb
{

/// The one of the way to that peer, where nobody has chosen another: on the network of a second card nobody knows the
/// address of the first.
inline Ipv4Address ownAddressTowards(const Common &common, const Winsock &socket, std::optional<Ipv4Address> peer)
{
    return peer ? socket.addressTowards(*peer).value_or(common.ownIP) : common.ownIP;
}

} // namespace nimb
