#include "platform/datagram_socket.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb
{
namespace
{

constexpr int noDescriptor = -1;

sockaddr_in toSystem(Ipv4Endpoint endpoint)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(endpoint.address.number());
    address.sin_port = htons(endpoint.port);
    return address;
}

Ipv4Endpoint fromSystem(const sockaddr_in &address)
{
    return {Ipv4Address::of(ntohl(address.sin_addr.s_addr)), ntohs(address.sin_port)};
}

// The socket calls take every kind of address through a pointer to the general one.
const sockaddr *general(const sockaddr_in &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}
sockaddr *general(sockaddr_in &address)
{
    return reinterpret_cast<sockaddr *>(&address);
}

bool switchOn(int descriptor, int option)
{
    const int on = 1;
    return setsockopt(descriptor, SOL_SOCKET, option, &on, sizeof on) == 0;
}

bool neverBlocksNorInherits(int descriptor)
{
    const int flags = fcntl(descriptor, F_GETFL);
    return flags != -1 && fcntl(descriptor, F_SETFL, flags | O_NONBLOCK) == 0
        && fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0;
}

bool bindTo(int descriptor, Ipv4Endpoint local)
{
    const sockaddr_in address = toSystem(local);
    return ::bind(descriptor, general(address), sizeof address) == 0;
}

/// The error tells of an earlier datagram that nobody listened for, not of the call that returned it.
bool isEchoOfClosedPort(int error)
{
    return error == ECONNREFUSED || error == ECONNRESET;
}

#ifdef SO_RXQ_OVFL
/// The system's running count of lost datagrams; it comes along only once something was lost.
std::optional<std::uint32_t> lostCount(msghdr &message)
{
    for (cmsghdr *part = CMSG_FIRSTHDR(&message); part != nullptr; part = CMSG_NXTHDR(&message, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SO_RXQ_OVFL)
            continue;
        std::uint32_t count = 0;
        std::memcpy(&count, CMSG_DATA(part), sizeof count);
        return count;
    }
    return std::nullopt;
}
#endif

} // namespace

std::variant<DatagramSocket, DatagramSocket::SystemError> DatagramSocket::open(Ipv4Endpoint local, Sharing sharing)
{
    DatagramSocket socket(::socket(AF_INET, SOCK_DGRAM, 0)); // closes it on every way out
    const int descriptor = socket.descriptor();
    const bool usable = descriptor != noDescriptor && neverBlocksNorInherits(descriptor)
        && (sharing != Sharing::shared || switchOn(descriptor, SO_REUSEADDR)) && bindTo(descriptor, local);
    if (!usable)
        return SystemError{errno};
    // Without these two the socket still serves: broadcasts stay unsent, losses uncounted.
    switchOn(descriptor, SO_BROADCAST);
#ifdef SO_RXQ_OVFL
    switchOn(descriptor, SO_RXQ_OVFL);
#endif
    return socket;
}

DatagramSocket::DatagramSocket(DatagramSocket &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, noDescriptor)), m_lostSoFar(other.m_lostSoFar)
{
}

DatagramSocket &DatagramSocket::operator=(DatagramSocket &&other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_lostSoFar, other.m_lostSoFar);
    return *this;
}

DatagramSocket::~DatagramSocket()
{
    if (m_descriptor != noDescriptor)
        ::close(m_descriptor);
}

int DatagramSocket::growReceiveBuffer(int bytes)
{
    setsockopt(m_descriptor, SOL_SOCKET, SO_RCVBUF, &bytes, sizeof bytes);
    int granted = 0;
    socklen_t size = sizeof granted;
    if (getsockopt(m_descriptor, SOL_SOCKET, SO_RCVBUF, &granted, &size) != 0)
        return 0;
#ifdef __linux__
    granted /= 2; // Linux doubles what it grants, for its own book-keeping, and reports the double.
#endif
    return granted;
}

void DatagramSocket::growSendBuffer(int bytes)
{
    setsockopt(m_descriptor, SOL_SOCKET, SO_SNDBUF, &bytes, sizeof bytes);
}

bool DatagramSocket::send(Ipv4Endpoint destination, std::string_view bytes)
{
    const sockaddr_in address = toSystem(destination);
    const auto attempt
        = [&] { return ::sendto(m_descriptor, bytes.data(), bytes.size(), 0, general(address), sizeof address); };
    auto sent = attempt();
    if (sent < 0 && (errno == EINTR || isEchoOfClosedPort(errno)))
        sent = attempt();
    return sent >= 0;
}

DatagramSocket::Arrival DatagramSocket::receive(Buffer &buffer)
{
    sockaddr_in source = {};
    iovec data = {buffer.data(), buffer.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(std::uint32_t))> extras = {};
    msghdr message = {};
    message.msg_name = &source;
    message.msg_namelen = sizeof source;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = extras.data();
    message.msg_controllen = extras.size();

    const auto size = ::recvmsg(m_descriptor, &message, 0);
    if (size < 0) {
        const bool nothing = errno == EAGAIN || errno == EWOULDBLOCK;
        return {.outcome = nothing ? Outcome::nothing : Outcome::error};
    }
    Arrival arrival{.outcome = Outcome::datagram, .size = static_cast<std::size_t>(size), .source = fromSystem(source)};
#ifdef SO_RXQ_OVFL
    const std::uint32_t lost = lostCount(message).value_or(m_lostSoFar);
    arrival.newlyLost = lost - std::exchange(m_lostSoFar, lost); // the count may wrap around
#endif
    return arrival;
}

std::optional<Ipv4Address> sourceAddressTowards(Ipv4Endpoint destination)
{
    const auto opened = DatagramSocket::open({}, DatagramSocket::Sharing::exclusive);
    const auto *const socket = std::get_if<DatagramSocket>(&opened);
    if (!socket)
        return std::nullopt;
    const sockaddr_in address = toSystem(destination);
    if (::connect(socket->descriptor(), general(address), sizeof address) != 0)
        return std::nullopt;
    sockaddr_in own = {};
    socklen_t size = sizeof own;
    if (getsockname(socket->descriptor(), general(own), &size) != 0)
        return std::nullopt;
    return fromSystem(own).address;
}

} // namespace nimb
