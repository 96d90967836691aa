// Another machine's socket, made of plain system calls, so that what the program sends and hears is seen from outside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace nimb::test
{

/// A port that no other test process uses at the same time.
std::uint16_t testPort();
/// One that differs from it.
std::uint16_t otherTestPort();

class RawPeer
{
public:
    struct Datagram {
        std::string bytes;
        std::string sourceAddress;
        std::uint16_t sourcePort = 0;

        bool operator==(const Datagram &) const = default;
    };

    /// Binds to the dotted address, exclusively; see isBound().
    RawPeer(const std::string &address, std::uint16_t port);
    ~RawPeer();
    RawPeer(const RawPeer &) = delete;
    RawPeer &operator=(const RawPeer &) = delete;

    bool isBound() const { return m_bound; }
    bool send(const std::string &address, std::uint16_t port, const std::string &bytes) const;
    /// Waits until one is there; empty after ten seconds without any.
    std::optional<Datagram> receive() const;
    bool hasWaiting() const;

private:
    int m_descriptor;
    bool m_bound;
};

} // namespace nimb::test
