#include "wire_peer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

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
    : m_address(address), m_port(port), m_socket(address, port)
{
    EXPECT_TRUE(m_socket.isBound()) << "cannot bind to " << address << ':' << port;
}

bool WirePeer::couldBind(const std::string &address, std::uint16_t port)
{
    return RawPeer(address, port).isBound();
}

void WirePeer::send(const std::string &to, std::uint16_t port, std::string_view bytes) const
{
    EXPECT_TRUE(m_socket.send(to, port, bytes)) << std::strerror(errno);
}

std::optional<Heard> WirePeer::hear(std::chrono::milliseconds limit)
{
    std::optional<Heard> heard = m_socket.receive(limit);
    EXPECT_TRUE(!heard || heard->moment != 0ns) << "the system tells no arrival time";
    return heard;
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
