// One UDP socket of the operating system. Every system call of the transport stands here and nowhere else.
#pragma once

#include "protocol/ipv4_address.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

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

    struct Datagram {
        Ipv4Endpoint source;
        std::string_view bytes; ///< in the buffers that it was received into
    };

    /// Room for what one call of receive() takes. Memory that no datagram was long enough to reach is never touched.
    class Buffers
    {
    public:
        Buffers();

        static constexpr std::size_t count = 64; ///< read at once

    private:
        friend class DatagramSocket;
        static constexpr std::size_t size = 65536; ///< the largest datagram that IPv4 can carry fits in

        char *buffer(std::size_t index) const { return m_bytes.get() + index * size; }

        std::unique_ptr<char[]> m_bytes;
        std::vector<Datagram> m_datagrams;
    };

    struct Reception {
        std::span<const Datagram> datagrams = {}; ///< valid until the buffers are used again
        std::uint32_t newlyLost = 0; ///< datagrams the system dropped for want of room since the last one told
        bool failed = false;         ///< of no use to anybody but a counter
    };

    struct SystemError {
        int number; ///< as errno has it, on every system
    };

    /// Of the operating system: a small number, or a handle as wide as a pointer.
    using Descriptor = std::intptr_t;

    /// The error when the address and port are taken or may not be used.
    [[nodiscard]] static std::variant<DatagramSocket, SystemError> open(Ipv4Endpoint local, Sharing sharing);

    DatagramSocket(DatagramSocket &&other) noexcept;
    DatagramSocket &operator=(DatagramSocket &&other) noexcept;
    ~DatagramSocket();

    /// For a notifier to watch; it stays the property of this object.
    Descriptor descriptor() const { return m_descriptor; }

    /// Asks for room for this many bytes of waiting datagrams and returns what the system granted.
    int growReceiveBuffer(int bytes);
    /// The same for datagrams on their way out.
    void growSendBuffer(int bytes);
    /// Whether datagrams to broadcast addresses are sent; at first they are not.
    void setBroadcast(bool allowed);

    /// False when the system did not take the datagram. source: an address of this machine from which it leaves.
    [[nodiscard]] bool send(Ipv4Endpoint destination, std::string_view bytes,
                            std::optional<Ipv4Address> source = std::nullopt);
    /// Takes what waits, as far as there are buffers. Does not wait. May run while another thread sends.
    Reception receive(Buffers &buffers);

private:
    explicit DatagramSocket(Descriptor descriptor) : m_descriptor(descriptor) { }

    Descriptor m_descriptor;
    std::uint32_t m_lostSoFar = 0;
};

/// The own address that the system would put on a datagram to this destination, broadcast ones included; nothing where
/// it knows no way. from: the address of the socket that sends it. Nothing is sent.
std::optional<Ipv4Address> sourceAddressTowards(Ipv4Endpoint destination, Ipv4Address from = {});

} // namespace nimb
