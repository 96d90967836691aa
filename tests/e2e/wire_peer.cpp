#include "wire_peer.h"

#include <algorithm>
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

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int noDescriptor = -1;

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

/// Invalid when the address is taken.
int boundSocket(const std::string &address, std::uint16_t port)
{
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const sockaddr_in local = systemAddress(address, port);
    if (::bind(descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local) == 0)
        return descriptor;
    ::close(descriptor);
    return noDescriptor;
}

void switchOn(int descriptor, int option, int value = 1)
{
    EXPECT_EQ(::setsockopt(descriptor, SOL_SOCKET, option, &value, sizeof value), 0) << std::strerror(errno);
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
    ADD_FAILURE() << "the system tells no arrival time";
    return 0ns;
}

} // namespace

std::uint16_t freePort()
{
    // Test processes that run at the same time look at different ports first.
    constexpr int lowest = 12000;
    constexpr int count = 20000;
    const int start = static_cast<int>(getpid()) * 7;
    for (int i = 0; i < count; ++i) {
        const auto port = static_cast<std::uint16_t>(lowest + (start + i) % count);
        if (WirePeer::couldBind("0.0.0.0", port))
            return port;
    }
    ADD_FAILURE() << "no port is free";
    return 0;
}

WirePeer::WirePeer(const std::string &address, std::uint16_t port)
    : m_address(address), m_port(port), m_descriptor(boundSocket(address, port))
{
    EXPECT_NE(m_descriptor, noDescriptor) << "cannot bind to " << address << ':' << port;
    switchOn(m_descriptor, SO_BROADCAST);
    switchOn(m_descriptor, SO_TIMESTAMPNS);
    switchOn(m_descriptor, SO_RCVBUF, 4 * 1024 * 1024);
}

WirePeer::WirePeer(WirePeer &&other) noexcept
    : m_address(other.m_address), m_port(other.m_port), m_descriptor(std::exchange(other.m_descriptor, noDescriptor))
{
}

WirePeer::~WirePeer()
{
    if (m_descriptor != noDescriptor)
        ::close(m_descriptor);
}

bool WirePeer::couldBind(const std::string &address, std::uint16_t port)
{
    const int descriptor = boundSocket(address, port);
    if (descriptor == noDescriptor)
        return false;
    ::close(descriptor);
    return true;
}

void WirePeer::send(const std::string &to, std::uint16_t port, std::string_view bytes) const
{
    const sockaddr_in destination = systemAddress(to, port);
    const auto sent = ::sendto(m_descriptor, bytes.data(), bytes.size(), 0,
                               reinterpret_cast<const sockaddr *>(&destination), sizeof destination);
    EXPECT_EQ(sent, static_cast<ssize_t>(bytes.size())) << std::strerror(errno);
}

std::optional<Heard> WirePeer::hear(std::chrono::milliseconds limit)
{
    pollfd watched = {m_descriptor, POLLIN, 0};
    if (::poll(&watched, 1, static_cast<int>(limit.count())) != 1)
        return std::nullopt;
    std::string buffer(65536, '\0');
    sockaddr_in source = {};
    iovec data = {buffer.data(), buffer.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(timespec))> extras = {};
    msghdr message = {};
    message.msg_name = &source;
    message.msg_namelen = sizeof source;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = extras.data();
    message.msg_controllen = extras.size();
    const ssize_t size = ::recvmsg(m_descriptor, &message, 0);
    if (size < 0)
        return std::nullopt;
    buffer.resize(static_cast<std::size_t>(size));
    return Heard{buffer, dotted(source), momentOf(message)};
}

std::string WirePeer::next()
{
    const std::optional<Heard> heard = hear();
    EXPECT_TRUE(heard) << m_address << " hears nothing";
    return heard ? heard->bytes : "(silence)";
}

std::string WirePeer::nextButTyping()
{
    return hearWhere([](const std::string &bytes) { return bytes != "!TYPING" && !bytes.starts_with("!LIVETYPE "); })
        .bytes;
}

Heard WirePeer::hearWhere(const std::function<bool(const std::string &)> &fits)
{
    const auto end = Clock::now() + patience();
    while (const auto heard = hear(std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now())))) {
        if (fits(heard->bytes))
            return *heard;
    }
    ADD_FAILURE() << m_address << " does not hear what it waits for";
    return {};
}

std::vector<std::string> WirePeer::hearUntil(std::string_view last)
{
    std::vector<std::string> all;
    const auto end = Clock::now() + patience();
    while (const auto heard = hear(std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now())))) {
        all.push_back(heard->bytes);
        if (heard->bytes == last)
            break;
    }
    return all;
}

std::vector<std::string> WirePeer::waiting()
{
    std::vector<std::string> all;
    while (const auto heard = hear(0ms))
        all.push_back(heard->bytes);
    return all;
}

} // namespace nimb::test
