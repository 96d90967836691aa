#include "platform/host_lookup.h"

#include "platform/winsock_start.h"

#include <memory>

#include <winsock2.h>

// They build on what stands above.
#include <ws2tcpip.h>

namespace nimb
{

std::optional<Ipv4Address> lookUpHost(const std::string &name)
{
    if (!startWinsock())
        return std::nullopt;
    addrinfo wanted = {};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo *found = nullptr;
    if (getaddrinfo(name.c_str(), nullptr, &wanted, &found) != 0)
        return std::nullopt;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(found, &freeaddrinfo);
    for (const addrinfo *one = found; one; one = one->ai_next) {
        if (one->ai_family == AF_INET)
            return Ipv4Address::of(ntohl(reinterpret_cast<const sockaddr_in *>(one->ai_addr)->sin_addr.s_addr));
    }
    return std::nullopt;
}

} // namespace nimb
