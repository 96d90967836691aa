// Another machine's socket, made of plain system calls, so that what the program sends and hears is seen from outside.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nimb::test
{

class RawPeer
{
public:
    struct Datagram {
        std::string bytes;
        std::string sourceAddress; ///< dotted
        std::uint16_t sourcePort = 0;
        std::chrono::nanoseconds moment{}; ///< when the system took it in; comparable between peers

        /// The moment says nothing of what was sent.
        bool operator==(const Datagram &other) const
        {
            return bytes == other.bytes && sourceAddress == other.sourceAddress && sourcePort == other.sourcePort;
        }
    };

    /// Binds to the dotted address, exclusively; see isBound().
    RawPeer(const std::string &address, std::uint16_t port);
    ~RawPeer();
    RawPeer(RawPeer &&other) noexcept;
    RawPeer &operator=(RawPeer &&) = delete;

    bool isBound() const { return m_bound; }
    bool send(const std::string &address, std::uint16_t port, std::string_view bytes) const;
    /// Waits until one is there; empty when there is none for that long.
    std::optional<Datagram> receive(std::chrono::milliseconds limit = std::chrono::seconds(10)) const;
    bool hasWaiting() const;
    /// For whoever waits for several.
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
    bool m_bound;
};

} // namespace nimb::test
