// The system's look-up of the names of hosts.
#pragma once

#include "protocol/ipv4_address.h"

#include <optional>
#include <string>

namespace nimb
{

/// First IPv4 address of a name in the form that the system takes; may take as long as the system likes. From any
/// thread.
std::optional<Ipv4Address> lookUpHost(const std::string &name);

} // namespace nimb
