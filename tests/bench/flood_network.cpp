#include "flood_network.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb::bench
{
namespace
{

using Clock = std::chrono::steady_clock;

/// As many as one call to the system sends or receives; the program receives as many.
constexpr std::size_t batch = 64;
constexpr int roomAsked = 4 * 1024 * 1024;

[[noreturn]] void giveUp(const char *what)
{
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

in_addr systemAddress(const std::string &dotted)
{
    in_addr address = {};
    inet_pton(AF_INET, dotted.c_str(), &address);
    return address;
}

sockaddr_in systemEndpoint(const Endpoint &endpoint)
{
    sockaddr_in result = {};
    result.sin_family = AF_INET;
    result.sin_addr = systemAddress(endpoint.address);
    result.sin_port = htons(endpoint.port);
    return result;
}

/// The source address travels beside the datagram.
struct Slot {
    iovec data = {};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> extras = {};

    msghdr headerFor(const Parcel &parcel, sockaddr_in &destination)
    {
        data = {const_cast<char *>(parcel.bytes.data()), parcel.bytes.size()};
        msghdr header = {};
        header.msg_name = &destination;
        header.msg_namelen = sizeof destination;
        header.msg_iov = &data;
        header.msg_iovlen = 1;
        header.msg_control = extras.data();
        header.msg_controllen = extras.size();
        cmsghdr *const part = CMSG_FIRSTHDR(&header);
        part->cmsg_level = IPPROTO_IP;
        part->cmsg_type = IP_PKTINFO;
        part->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
        in_pktinfo info = {};
        info.ipi_spec_dst = systemAddress(parcel.source);
        std::memcpy(CMSG_DATA(part), &info, sizeof info);
        return header;
    }
};

/// Reads until nothing comes for half a second after `complete`.
std::size_t countArrivals(int descriptor, const std::atomic<bool> &complete)
{
    std::vector<std::array<char, 2048>> room(batch);
    std::array<iovec, batch> data = {};
    std::array<mmsghdr, batch> headers = {};
    for (std::size_t i = 0; i < batch; ++i) {
        data[i] = {room[i].data(), room[i].size()};
        headers[i].msg_hdr.msg_iov = &data[i];
        headers[i].msg_hdr.msg_iovlen = 1;
    }
    std::size_t arrived = 0;
    for (;;) {
        const bool last = complete;
        pollfd watched = {.fd = descriptor, .events = POLLIN, .revents = 0};
        if (poll(&watched, 1, 500) == 0 && last)
            return arrived;
        const int received = recvmmsg(descriptor, headers.data(), batch, MSG_DONTWAIT, nullptr);
        arrived += static_cast<std::size_t>(std::max(0, received));
    }
}

} // namespace

int openReceiver(const Endpoint &local, int limit, int &granted)
{
    const int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = systemEndpoint(local);
    if (descriptor < 0 || bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        giveUp("flood: cannot bind");
    const int asked = limit > 0 ? std::min(roomAsked, limit) : roomAsked;
    setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &asked, sizeof asked);
    socklen_t size = sizeof granted;
    getsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &granted, &size);
    granted /= 2; // the system tells twice of what it counts
    return descriptor;
}

Sender::Sender(Endpoint destination)
    : m_destination(std::move(destination)), m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    if (m_descriptor < 0)
        giveUp("flood: no socket");
    setsockopt(m_descriptor, SOL_SOCKET, SO_SNDBUF, &roomAsked, sizeof roomAsked);
}

Sender::~Sender()
{
    close(m_descriptor);
}

double Sender::send(const std::vector<Parcel> &parcels, double perSecond) const
{
    const Clock::time_point start = Clock::now();
    for (std::size_t sent = 0; sent < parcels.size(); sent += batch) {
        if (perSecond > 0)
            std::this_thread::sleep_until(start
                                          + std::chrono::duration_cast<Clock::duration>(
                                              std::chrono::duration<double>(static_cast<double>(sent) / perSecond)));
        sendSome(&parcels[sent], std::min(batch, parcels.size() - sent));
    }
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void Sender::sendSome(const Parcel *first, std::size_t count) const
{
    std::array<Slot, batch> slots;
    std::array<mmsghdr, batch> headers = {};
    sockaddr_in destination = systemEndpoint(m_destination);
    for (std::size_t i = 0; i < count; ++i)
        headers[i].msg_hdr = slots[i].headerFor(first[i], destination);
    for (std::size_t sent = 0; sent < count;) {
        const int more = sendmmsg(m_descriptor, &headers[sent], static_cast<unsigned>(count - sent), 0);
        if (more < 0 && errno != EINTR)
            giveUp("flood: cannot send");
        sent += static_cast<std::size_t>(std::max(0, more));
    }
}

std::size_t lostByBareLoop(const Endpoint &at, const std::vector<Parcel> &parcels, int bufferLimit)
{
    int granted = 0;
    const int descriptor = openReceiver(at, bufferLimit, granted);
    std::atomic<bool> complete = false;
    std::size_t arrived = 0;
    std::thread reader([&] { arrived = countArrivals(descriptor, complete); });
    Sender(at).send(parcels);
    complete = true;
    reader.join();
    close(descriptor);
    return parcels.size() - arrived;
}

std::uint64_t lostBySystem(const Endpoint &socket)
{
    std::array<char, 32> wanted = {};
    std::snprintf(wanted.data(), wanted.size(), "%08X:%04X", systemAddress(socket.address).s_addr, socket.port);
    std::ifstream table("/proc/net/udp");
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::vector<std::string> words;
        for (std::string word; fields >> word;)
            words.push_back(word);
        if (words.size() > 2 && words[1] == wanted.data())
            return std::stoull(words.back());
    }
    giveUp("flood: the socket is not in /proc/net/udp");
}

} // namespace nimb::bench
