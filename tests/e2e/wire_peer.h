// Another machine on the network, which speaks bytes and knows nothing of the program's own code.
#pragma once

#include "desktop.h"
#include "raw_peer.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nimb::test
{

/// A UDP port above the reserved and below the passing ones that no socket on this machine has at the moment.
std::uint16_t freePort();

using Heard = RawPeer::Datagram;

class WirePeer
{
public:
    /// Binds exclusively to a dotted address; a test failure when that is impossible.
    WirePeer(const std::string &address, std::uint16_t port);

    /// Whether nobody is bound to this address and port.
    static bool couldBind(const std::string &address, std::uint16_t port);

    const std::string &address() const { return m_address; }

    /// One datagram, to the peer's own port or to another one.
    void send(const std::string &to, std::string_view bytes) const { send(to, m_port, bytes); }
    void send(const std::string &to, std::uint16_t port, std::string_view bytes) const;

    /// The next datagram; empty when none comes in time.
    std::optional<Heard> hear(std::chrono::milliseconds limit = patience());
    /// Its bytes; a test failure and "(silence)" when none comes in time.
    std::string next();
    /// The same, passing over what says that somebody is typing.
    std::string nextButTyping();
    /// Passes over the others; a test failure and no bytes when none fits in time.
    Heard hearWhere(const std::function<bool(const std::string &)> &fits);
    /// Everything up to the first datagram with these bytes, which is the last element unless it did not come in time.
    std::vector<std::string> hearUntil(std::string_view last);
    /// Everything that is there already.
    std::vector<std::string> waiting();

private:
    std::string m_address;
    std::uint16_t m_port;
    RawPeer m_socket;
};

} // namespace nimb::test
