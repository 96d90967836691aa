#include "raw_peer.h"

#include <array>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

sockaddr_in systemAddress(const std::string &address, std::uint16_t port)
{
    sockaddr_in result = {};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    inet_pton(AF_INET, address.c_str(), &result.sin_addr);
    return result;
}

bool readable(int descriptor, int milliseconds)
{
    pollfd watched = {descriptor, POLLIN, 0};
    return poll(&watched, 1, milliseconds) == 1;
}

} // namespace

std::uint16_t testPort()
{
    return static_cast<std::uint16_t>(10000 + getpid() % 10000);
}

std::uint16_t otherTestPort()
{
    return static_cast<std::uint16_t>(testPort() + 10000);
}

RawPeer::RawPeer(const std::string &address, std::uint16_t port)
    : m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    const int on = 1;
    setsockopt(m_descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    const sockaddr_in local = systemAddress(address, port);
    m_bound = bind(m_descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local) == 0;
}

RawPeer::~RawPeer()
{
    close(m_descriptor);
}

bool RawPeer::send(const std::string &address, std::uint16_t port, const std::string &bytes) const
{
    const sockaddr_in destination = systemAddress(address, port);
    return sendto(m_descriptor, bytes.data(), bytes.size(), 0, reinterpret_cast<const sockaddr *>(&destination),
                  sizeof destination)
        == static_cast<ssize_t>(bytes.size());
}

std::optional<RawPeer::Datagram> RawPeer::receive() const
{
    if (!readable(m_descriptor, 10000))
        return std::nullopt;
    std::array<char, 65536> buffer;
    sockaddr_in source = {};
    socklen_t sourceSize = sizeof source;
    const ssize_t size
        = recvfrom(m_descriptor, buffer.data(), buffer.size(), 0, reinterpret_cast<sockaddr *>(&source), &sourceSize);
    if (size < 0)
        return std::nullopt;
    std::array<char, INET_ADDRSTRLEN> text = {};
    inet_ntop(AF_INET, &source.sin_addr, text.data(), text.size());
    return Datagram{std::string(buffer.data(), static_cast<std::size_t>(size)), text.data(), ntohs(source.sin_port)};
}

bool RawPeer::hasWaiting() const
{
    return readable(m_descriptor, 0);
}

} // namespace nimb::test
