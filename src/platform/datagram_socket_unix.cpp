#include "platform/datagram_socket.h"

#include "platform/socket_address.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace nimb
{
namespace
{

constexpr DatagramSocket::Descriptor noDescriptor = -1;

int numberOf(DatagramSocket::Descriptor descriptor)
{
    return static_cast<int>(descriptor);
}

bool set(int descriptor, int option, bool isOn)
{
    const int value = isOn ? 1 : 0;
    return setsockopt(descriptor, SOL_SOCKET, option, &value, sizeof value) == 0;
}

bool switchOn(int descriptor, int option)
{
    return set(descriptor, option, true);
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

/// Tells the system from which of this machine's addresses a datagram leaves.
class SourceNote
{
public:
    void attachTo(msghdr &message, Ipv4Address source)
    {
        message.msg_control = m_bytes.data();
        message.msg_controllen = m_bytes.size();
        cmsghdr *const part = CMSG_FIRSTHDR(&message);
        part->cmsg_level = IPPROTO_IP;
        part->cmsg_type = IP_PKTINFO;
        part->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
        in_pktinfo info = {};
        info.ipi_spec_dst.s_addr = htonl(source.number());
        std::memcpy(CMSG_DATA(part), &info, sizeof info);
    }

private:
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> m_bytes = {};
};

/// What the system writes beside a datagram.
struct Slot {
    sockaddr_in source = {};
    iovec data = {};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(std::uint32_t))> extras = {};

    /// For a call that receives into this room.
    msghdr headerFor(std::span<char> room)
    {
        data = {room.data(), room.size()};
        msghdr header = {};
        header.msg_name = &source;
        header.msg_namelen = sizeof source;
        header.msg_iov = &data;
        header.msg_iovlen = 1;
        header.msg_control = extras.data();
        header.msg_controllen = extras.size();
        return header;
    }
};

#ifdef __linux__
/// The number received, or -1 with errno.
int receiveMany(int descriptor, std::span<mmsghdr> headers)
{
    return ::recvmmsg(descriptor, headers.data(), static_cast<unsigned>(headers.size()), 0, nullptr);
}
#else
struct mmsghdr {
    msghdr msg_hdr;
    unsigned msg_len;
};

int receiveMany(int descriptor, std::span<mmsghdr> headers)
{
    int received = 0;
    for (mmsghdr &header : headers) {
        const auto size = ::recvmsg(descriptor, &header.msg_hdr, 0);
        if (size < 0)
            return received > 0 ? received : -1;
        header.msg_len = static_cast<unsigned>(size);
        ++received;
    }
    return received;
}
#endif

} // namespace

std::variant<DatagramSocket, DatagramSocket::SystemError> DatagramSocket::open(Ipv4Endpoint local, Sharing sharing)
{
    DatagramSocket socket(::socket(AF_INET, SOCK_DGRAM, 0)); // closes it on every way out
    const int descriptor = numberOf(socket.descriptor());
    const bool usable = socket.descriptor() != noDescriptor && neverBlocksNorInherits(descriptor)
        && (sharing != Sharing::shared || switchOn(descriptor, SO_REUSEADDR)) && bindTo(descriptor, local);
    if (!usable)
        return SystemError{errno};
#ifdef SO_RXQ_OVFL
    switchOn(descriptor, SO_RXQ_OVFL); // without it losses are uncounted
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
        ::close(numberOf(m_descriptor));
}

int DatagramSocket::growReceiveBuffer(int bytes)
{
    setsockopt(numberOf(m_descriptor), SOL_SOCKET, SO_RCVBUF, &bytes, sizeof bytes);
    int granted = 0;
    socklen_t size = sizeof granted;
    if (getsockopt(numberOf(m_descriptor), SOL_SOCKET, SO_RCVBUF, &granted, &size) != 0)
        return 0;
#ifdef __linux__
    granted /= 2; // Linux doubles what it grants, for its own book-keeping, and reports the double.
#endif
    return granted;
}

void DatagramSocket::growSendBuffer(int bytes)
{
    setsockopt(numberOf(m_descriptor), SOL_SOCKET, SO_SNDBUF, &bytes, sizeof bytes);
}

void DatagramSocket::setBroadcast(bool allowed)
{
    set(numberOf(m_descriptor), SO_BROADCAST, allowed);
}

bool DatagramSocket::send(Ipv4Endpoint destination, std::string_view bytes, std::optional<Ipv4Address> source)
{
    sockaddr_in address = toSystem(destination);
    iovec data = {const_cast<char *>(bytes.data()), bytes.size()}; // it is read only
    msghdr message = {};
    message.msg_name = &address;
    message.msg_namelen = sizeof address;
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    SourceNote note;
    if (source)
        note.attachTo(message, *source);
    const auto attempt = [&] { return ::sendmsg(numberOf(m_descriptor), &message, 0); };
    auto sent = attempt();
    if (sent < 0 && (errno == EINTR || isEchoOfClosedPort(errno)))
        sent = attempt();
    return sent >= 0;
}

DatagramSocket::Buffers::Buffers() : m_bytes(new char[count * size])
{
    m_datagrams.reserve(count);
}

DatagramSocket::Reception DatagramSocket::receive(Buffers &buffers)
{
    std::array<Slot, Buffers::count> slots;
    std::array<mmsghdr, Buffers::count> headers = {};
    for (std::size_t i = 0; i < slots.size(); ++i)
        headers[i].msg_hdr = slots[i].headerFor({buffers.buffer(i), Buffers::size});

    const int received = receiveMany(numberOf(m_descriptor), headers);
    if (received < 0)
        return {.failed = errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR};
    Reception reception;
    buffers.m_datagrams.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(received); ++i) {
        buffers.m_datagrams.push_back({fromSystem(slots[i].source), {buffers.buffer(i), headers[i].msg_len}});
#ifdef SO_RXQ_OVFL
        const std::uint32_t lost = lostCount(headers[i].msg_hdr).value_or(m_lostSoFar);
        reception.newlyLost += lost - std::exchange(m_lostSoFar, lost); // the count may wrap around
#endif
    }
    reception.datagrams = buffers.m_datagrams;
    return reception;
}

std::optional<Ipv4Address> sourceAddressTowards(Ipv4Endpoint destination, Ipv4Address from)
{
    auto opened = DatagramSocket::open({from, 0}, DatagramSocket::Sharing::exclusive);
    auto *const socket = std::get_if<DatagramSocket>(&opened);
    if (!socket)
        return std::nullopt;
    socket->setBroadcast(true);
    const sockaddr_in address = toSystem(destination);
    if (::connect(numberOf(socket->descriptor()), general(address), sizeof address) != 0)
        return std::nullopt;
    sockaddr_in own = {};
    socklen_t size = sizeof own;
    if (getsockname(numberOf(socket->descriptor()), general(own), &size) != 0)
        return std::nullopt;
    return fromSystem(own).address;
}

} // namespace nimb
