// Addresses as the socket calls of the system take them.
#pragma once

#include "platform/datagram_socket.h"

#if __has_include(<winsock2.h>)
#include <winsock2.h>

// It builds on what stands above.
#include <ws2tcpip.h>
#else
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace nimb
{

inline sockaddr_in toSystem(Ipv4Endpoint endpoint)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(endpoint.address.number());
    address.sin_port = htons(endpoint.port);
    return address;
}

inline Ipv4Endpoint fromSystem(const sockaddr_in &address)
{
    return {Ipv4Address::of(ntohl(address.sin_addr.s_addr)), ntohs(address.sin_port)};
}

/// The socket calls take every kind of address through a pointer to the general one.
inline const sockaddr *general(const sockaddr_in &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}
inline sockaddr *general(sockaddr_in &address)
{
    return reinterpret_cast<sockaddr *>(&address);
}

} // namespace nimb
