#include "platform/host_lookup.h"

#include "platform/socket_address.h"
#include "platform/socket_start.h"

#include <memory>

namespace nimb
{

std::optional<Ipv4Address> lookUpHost(const std::string &name)
{
    if (!startSockets())
        return std::nullopt;
    addrinfo wanted = {};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo *found = nullptr;
    if (getaddrinfo(name.c_str(), nullptr, &wanted, &found) != 0)
        return std::nullopt;
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> owner(found, [](addrinfo *list) { freeaddrinfo(list); });
    for (const addrinfo *one = found; one; one = one->ai_next) {
        if (one->ai_family == AF_INET)
            return fromSystem(*reinterpret_cast<const sockaddr_in *>(one->ai_addr)).address;
    }
    return std::nullopt;
}

} // namespace nimb
