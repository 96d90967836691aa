// Who this machine is on the network.
#pragma once

#include "protocol/ipv4_address.h"

#include <QString>

#include <optional>

namespace nimb
{

/// The fixed address when there is one; otherwise the one that the default route uses, else the first one
/// of any interface that is not loopback, else 127.0.0.1.
Ipv4Address ownAddress(std::optional<Ipv4Address> fixed);

/// The fixed name unless it is empty; otherwise the system's. Never empty, and one word: blanks become hyphens.
QString ownHostName(const std::optional<QString> &fixed);

} // namespace nimb
