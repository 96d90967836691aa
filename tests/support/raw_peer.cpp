#include "raw_peer.h"

#include <array>
#include <cstring>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

constexpr int noDescriptor = -1;
/// Room for a conversation that nobody reads meanwhile.
constexpr int receiveBuffer = 4 * 1024 * 1024;

sockaddr_in systemAddress(const std::string &address, std::uint16_t port)
{
    sockaddr_in result = {};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    inet_pton(AF_INET, address.c_str(), &result.sin_addr);
    return result;
}

std::string dotted(const sockaddr_in &address)
{
    std::array<char, INET_ADDRSTRLEN> text = {};
    inet_ntop(AF_INET, &address.sin_addr, text.data(), text.size());
    return text.data();
}

void switchOn(int descriptor, int option, int value = 1)
{
    setsockopt(descriptor, SOL_SOCKET, option, &value, sizeof value);
}

bool readable(int descriptor, std::chrono::milliseconds limit)
{
    pollfd watched = {descriptor, POLLIN, 0};
    return poll(&watched, 1, static_cast<int>(limit.count())) == 1;
}

std::chrono::nanoseconds momentOf(msghdr &message)
{
    for (cmsghdr *part = CMSG_FIRSTHDR(&message); part != nullptr; part = CMSG_NXTHDR(&message, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SO_TIMESTAMPNS)
            continue;
        timespec moment = {};
        std::memcpy(&moment, CMSG_DATA(part), sizeof moment);
        return std::chrono::seconds(moment.tv_sec) + std::chrono::nanoseconds(moment.tv_nsec);
    }
    return {};
}

} // namespace

RawPeer::RawPeer(const std::string &address, std::uint16_t port)
    : m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    switchOn(m_descriptor, SO_BROADCAST);
    switchOn(m_descriptor, SO_TIMESTAMPNS);
    switchOn(m_descriptor, SO_RCVBUF, receiveBuffer);
    const sockaddr_in local = systemAddress(address, port);
    m_bound = bind(m_descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local) == 0;
}

RawPeer::RawPeer(RawPeer &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, noDescriptor)), m_bound(std::exchange(other.m_bound, false))
{
}

RawPeer::~RawPeer()
{
    if (m_descriptor != noDescriptor)
        close(m_descriptor);
}

bool RawPeer::send(const std::string &address, std::uint16_t port, std::string_view bytes) const
{
    const sockaddr_in destination = systemAddress(address, port);
    return sendto(m_descriptor, bytes.data(), bytes.size(), 0, reinterpret_cast<const sockaddr *>(&destination),
                  sizeof destination)
        == static_cast<ssize_t>(bytes.size());
}

std::optional<RawPeer::Datagram> RawPeer::receive(std::chrono::milliseconds limit) const
{
    if (!readable(m_descriptor, limit))
        return std::nullopt;
    std::string bytes(65536, '\0');
    sockaddr_in source = {};
    iovec data = {bytes.data(), bytes.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(timespec))> extras = {};
    msghdr message = {};
    message.msg_name = &source;
    message.msg_namelen = sizeof source;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = extras.data();
    message.msg_controllen = extras.size();
    const ssize_t size = recvmsg(m_descriptor, &message, 0);
    if (size < 0)
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(size));
    return Datagram{bytes, dotted(source), ntohs(source.sin_port), momentOf(message)};
}

bool RawPeer::hasWaiting() const
{
    return readable(m_descriptor, std::chrono::milliseconds(0));
}

} // namespace nimb::test
