// One UDP socket of the operating system. Every system call of the transport stands here and nowhere else.
#pragma once

#include "protocol/ipv4_address.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace nimb
{

struct Ipv4Endpoint {
    Ipv4Address address = {}; ///< the unspecified one stands for every interface when bound
    std::uint16_t port = 0;   ///< in host byte order
};

/// Owns the descriptor of a bound IPv4 socket that never blocks and is not inherited by child processes.
class DatagramSocket
{
public:
    enum class Sharing {
        exclusive, ///< fails while any other socket holds the address and port
        shared,    ///< for a broadcast address: every socket bound this way gets its own copy of each datagram
    };
    enum class Outcome { datagram, nothing, error };

    struct Arrival {
        Outcome outcome = Outcome::nothing;
        std::size_t size = 0; ///< bytes of the datagram, zero included
        Ipv4Endpoint source = {};
        std::uint32_t newlyLost = 0; ///< datagrams the system dropped for want of room since the last one told
    };

    /// The largest datagram that IPv4 can carry fits in.
    using Buffer = std::array<char, 65536>;

    struct SystemError {
        int number; ///< as errno has it
    };

    /// The error when the address and port are taken or may not be used.
    [[nodiscard]] static std::variant<DatagramSocket, SystemError> open(Ipv4Endpoint local, Sharing sharing);

    DatagramSocket(DatagramSocket &&other) noexcept;
    DatagramSocket &operator=(DatagramSocket &&other) noexcept;
    ~DatagramSocket();

    /// For a notifier to watch; it stays the property of this object.
    int descriptor() const { return m_descriptor; }

    /// Asks for room for this many bytes of waiting datagrams and returns what the system granted.
    int growReceiveBuffer(int bytes);
    /// The same for datagrams on their way out.
    void growSendBuffer(int bytes);

    /// False when the system did not take the datagram.
    [[nodiscard]] bool send(Ipv4Endpoint destination, std::string_view bytes);
    /// Takes one waiting datagram into the buffer.
    Arrival receive(Buffer &buffer);

private:
    explicit DatagramSocket(int descriptor) : m_descriptor(descriptor) { }

    int m_descriptor;
    std::uint32_t m_lostSoFar = 0;
};

/// The own address that the system would put on a datagram to this destination. Nothing is sent.
std::optional<Ipv4Address> sourceAddressTowards(Ipv4Endpoint destination);

} // namespace nimb
