#include "platform/datagram_socket.h"

#include "platform/socket_address.h"
#include "platform/socket_start.h"

#include <array>
#include <cerrno>
#include <utility>

#include <mswsock.h>

namespace nimb
{
namespace
{

constexpr auto noDescriptor = static_cast<DatagramSocket::Descriptor>(INVALID_SOCKET);

SOCKET handleOf(DatagramSocket::Descriptor descriptor)
{
    return static_cast<SOCKET>(descriptor);
}

bool set(SOCKET socket, int option, int value)
{
    return setsockopt(socket, SOL_SOCKET, option, reinterpret_cast<const char *>(&value), sizeof value) == 0;
}

/// Otherwise another program can take the port that this one holds.
bool claim(SOCKET socket, DatagramSocket::Sharing sharing)
{
    return set(socket, sharing == DatagramSocket::Sharing::shared ? SO_REUSEADDR : SO_EXCLUSIVEADDRUSE, 1);
}

bool neverBlocks(SOCKET socket)
{
    u_long on = 1;
    return ioctlsocket(socket, static_cast<long>(FIONBIO), &on) == 0;
}

/// What is sent to a port where nobody listens comes back, and fails the next read. Versions without this setting say
/// so in receive(), where it counts for nothing either.
void leaveOutEchoes(SOCKET socket)
{
    BOOL off = FALSE;
    DWORD unused = 0;
    WSAIoctl(socket, SIO_UDP_CONNRESET, &off, sizeof off, nullptr, 0, &unused, nullptr, nullptr);
}

/// The numbers of Winsock are its own; whoever reads an error knows those of errno.
int asErrno(int error)
{
    switch (error) {
    case WSAEADDRINUSE:
        return EADDRINUSE;
    case WSAEADDRNOTAVAIL:
        return EADDRNOTAVAIL;
    case WSAEACCES: // also for a port that another program holds for itself alone
        return EACCES;
    default:
        return error;
    }
}

bool isEchoOfClosedPort(int error)
{
    return error == WSAECONNRESET || error == WSAENETRESET;
}

/// Winsock says "not allowed" for a port that somebody else claims; whoever tries to share it hears the truth.
bool isTaken(Ipv4Endpoint local)
{
    const SOCKET probe = WSASocketW(AF_INET, SOCK_DGRAM, IPPROTO_UDP, nullptr, 0, WSA_FLAG_NO_HANDLE_INHERIT);
    if (probe == INVALID_SOCKET)
        return false;
    const sockaddr_in address = toSystem(local);
    const bool failed = ::bind(probe, general(address), sizeof address) != 0;
    const int error = WSAGetLastError();
    closesocket(probe);
    return failed && error == WSAEADDRINUSE;
}

/// Sends with a note from which of this machine's addresses the datagram leaves; null where Winsock has no such call.
LPFN_WSASENDMSG sendWithNote(SOCKET socket)
{
    GUID which = WSAID_WSASENDMSG;
    LPFN_WSASENDMSG found = nullptr;
    DWORD size = 0;
    const int failed = WSAIoctl(socket, SIO_GET_EXTENSION_FUNCTION_POINTER, &which, sizeof which, &found, sizeof found,
                                &size, nullptr, nullptr);
    return failed == 0 ? found : nullptr;
}

bool sendFrom(SOCKET socket, sockaddr_in destination, std::string_view bytes, Ipv4Address source)
{
    static const LPFN_WSASENDMSG send = sendWithNote(socket); // the same for every socket of this kind
    if (!send)
        return false;
    WSABUF data = {static_cast<ULONG>(bytes.size()), const_cast<char *>(bytes.data())}; // it is read only
    alignas(WSACMSGHDR) std::array<char, WSA_CMSG_SPACE(sizeof(in_pktinfo))> note = {};
    WSAMSG message = {};
    message.name = general(destination);
    message.namelen = sizeof destination;
    message.lpBuffers = &data;
    message.dwBufferCount = 1;
    message.Control = {static_cast<ULONG>(note.size()), note.data()};
    WSACMSGHDR *const part = WSA_CMSG_FIRSTHDR(&message);
    part->cmsg_level = IPPROTO_IP;
    part->cmsg_type = IP_PKTINFO;
    part->cmsg_len = WSA_CMSG_LEN(sizeof(in_pktinfo));
    reinterpret_cast<in_pktinfo *>(WSA_CMSG_DATA(part))->ipi_addr.s_addr = htonl(source.number());
    DWORD sent = 0;
    return send(socket, &message, 0, &sent, nullptr, nullptr) == 0;
}

} // namespace

std::variant<DatagramSocket, DatagramSocket::SystemError> DatagramSocket::open(Ipv4Endpoint local, Sharing sharing)
{
    if (!startSockets())
        return SystemError{ENETDOWN};
    DatagramSocket socket(
        static_cast<Descriptor>(WSASocketW(AF_INET, SOCK_DGRAM, IPPROTO_UDP, nullptr, 0, WSA_FLAG_NO_HANDLE_INHERIT)));
    const SOCKET handle = handleOf(socket.descriptor());
    const sockaddr_in address = toSystem(local);
    const bool usable = handle != INVALID_SOCKET && neverBlocks(handle) && claim(handle, sharing)
        && ::bind(handle, general(address), sizeof address) == 0;
    if (!usable) {
        const int error = asErrno(WSAGetLastError());
        return SystemError{error == EACCES && isTaken(local) ? EADDRINUSE : error};
    }
    leaveOutEchoes(handle);
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
        closesocket(handleOf(m_descriptor));
}

int DatagramSocket::growReceiveBuffer(int bytes)
{
    const SOCKET handle = handleOf(m_descriptor);
    set(handle, SO_RCVBUF, bytes);
    int granted = 0;
    int size = sizeof granted;
    const bool told = getsockopt(handle, SOL_SOCKET, SO_RCVBUF, reinterpret_cast<char *>(&granted), &size) == 0;
    return told ? granted : 0;
}

void DatagramSocket::growSendBuffer(int bytes)
{
    set(handleOf(m_descriptor), SO_SNDBUF, bytes);
}

void DatagramSocket::setBroadcast(bool allowed)
{
    set(handleOf(m_descriptor), SO_BROADCAST, allowed ? 1 : 0);
}

bool DatagramSocket::send(Ipv4Endpoint destination, std::string_view bytes, std::optional<Ipv4Address> source)
{
    const SOCKET handle = handleOf(m_descriptor);
    const sockaddr_in address = toSystem(destination);
    if (source && sendFrom(handle, address, bytes, *source))
        return true;
    if (source)
        return false;
    const auto attempt = [&] {
        return ::sendto(handle, bytes.data(), static_cast<int>(bytes.size()), 0, general(address), sizeof address);
    };
    int sent = attempt();
    if (sent == SOCKET_ERROR && isEchoOfClosedPort(WSAGetLastError()))
        sent = attempt();
    return sent != SOCKET_ERROR;
}

DatagramSocket::Buffers::Buffers() : m_bytes(new char[count * size])
{
    m_datagrams.reserve(count);
}

/// One call a datagram: there is none that takes many. Losses stay uncounted, for Windows does not tell them.
DatagramSocket::Reception DatagramSocket::receive(Buffers &buffers)
{
    Reception reception;
    buffers.m_datagrams.clear();
    while (buffers.m_datagrams.size() < Buffers::count) {
        char *const room = buffers.buffer(buffers.m_datagrams.size());
        sockaddr_in source = {};
        int addressSize = sizeof source;
        const int received = ::recvfrom(handleOf(m_descriptor), room, static_cast<int>(Buffers::size), 0,
                                        general(source), &addressSize);
        if (received != SOCKET_ERROR) {
            buffers.m_datagrams.push_back({fromSystem(source), {room, static_cast<std::size_t>(received)}});
            continue;
        }
        const int error = WSAGetLastError();
        if (isEchoOfClosedPort(error))
            continue;
        reception.failed = error != WSAEWOULDBLOCK && buffers.m_datagrams.empty();
        break;
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
    const SOCKET handle = handleOf(socket->descriptor());
    const sockaddr_in address = toSystem(destination);
    sockaddr_in own = {};
    int size = sizeof own;
    if (::connect(handle, general(address), sizeof address) != 0 || getsockname(handle, general(own), &size) != 0)
        return std::nullopt;
    return fromSystem(own).address;
}

} // namespace nimb
