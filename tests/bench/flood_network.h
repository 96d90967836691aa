// Datagrams by the ten thousand from any loopback address, and what the system tells of the socket that they go to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nimb::bench
{

struct Endpoint {
    std::string address; ///< dotted
    std::uint16_t port;
};

struct Parcel {
    std::string source; ///< dotted, any address of this machine
    std::string bytes;
};

/// A socket that asks for as much room as the program does, but no more than the limit; 0 is none. Returns its
/// descriptor, and what the system granted in `granted`.
int openReceiver(const Endpoint &local, int limit, int &granted);

/// Sends from whatever source each parcel names, through one socket.
class Sender
{
public:
    explicit Sender(Endpoint destination);
    ~Sender();
    Sender(const Sender &) = delete;
    Sender &operator=(const Sender &) = delete;

    /// As many a second as that, or as fast as the system takes them when 0. Returns the seconds that it took.
    double send(const std::vector<Parcel> &parcels, double perSecond = 0) const;

private:
    void sendSome(const Parcel *first, std::size_t count) const;

    Endpoint m_destination;
    int m_descriptor;
};

/// How many of these a loop that does nothing but reading loses, from one source, unpaced.
std::size_t lostByBareLoop(const Endpoint &at, const std::vector<Parcel> &parcels, int bufferLimit);

/// What the system dropped at this socket since it was opened, for want of room.
std::uint64_t lostBySystem(const Endpoint &socket);

} // namespace nimb::bench
