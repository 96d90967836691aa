// Messages that a host relays a second with few and with many participants, over real sockets, against a bare loop of
// sendto to the same addresses in the same run; and the memory that a participant takes.
//
//   relay_bench [seconds a measurement [participants...]]
//
// Messages are handed to the engine as if they had arrived; what it sends goes through the system to 127.0.x.y, where
// one socket for each address takes it. The two are measured in turns, and the best turn of each counts.
#include "platform/udp_winsock.h"
#include "raw_peer.h"
#include "silent_log.h"
#include "whole_engine.h"

#include <QCoreApplication>

#include <arpa/inet.h>
#include <malloc.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace nimb::test
{
namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::uint16_t port = 45549;
constexpr int turns = 5;
constexpr Ipv4Address hostAddress{127, 0, 99, 1};

Ipv4Address addressOf(int participant)
{
    return {127, 0, static_cast<std::uint8_t>(participant / 250 + 1), static_cast<std::uint8_t>(participant % 250 + 1)};
}

[[noreturn]] void giveUp(const char *why)
{
    std::fprintf(stderr, "relay_bench: %s\n", why);
    std::exit(1);
}

sockaddr_in endpoint(Ipv4Address ip)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(ip.number());
    return address;
}

/// One socket for each address, so that the system delivers what is sent; what does not fit is dropped by it.
class Receivers
{
public:
    explicit Receivers(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_peers.emplace_back(addressOf(i).toText(), port);
            if (!m_peers.back().isBound())
                giveUp("cannot bind");
        }
    }

    /// Both contestants find them empty; returns how many waited.
    std::uint64_t drain()
    {
        std::uint64_t taken = 0;
        for (const RawPeer &peer : m_peers) {
            while (peer.receive(std::chrono::milliseconds(0)))
                ++taken;
        }
        return taken;
    }

private:
    std::vector<RawPeer> m_peers;
};

struct Host : WholeEngine<UdpWinsock, SilentViews> {
    Host()
        : WholeEngine(std::make_shared<VirtualTime>(),
                      [](DropCounts &counts) { return UdpWinsock(counts, hostAddress, QStringLiteral("HERE")); })
    {
        common.ownIP = hostAddress;
        common.ownNickname = QStringLiteral("Host");
        socket.setLocalPort(port);
        socket.setRemotePort(port);
        if (!socket.bind())
            giveUp("the host cannot bind");
    }

    void addContacts(int count)
    {
        for (int i = 0; i < count; ++i)
            addPresent(addressOf(i), QStringLiteral("Contact %1").arg(i));
    }
    void gather(int count)
    {
        engine.conferences().mnuCreateNewConf();
        for (int i = 0; i < count; ++i)
            engine.conferences().mnuInvite2Conf(1, addressOf(i));
        for (int i = 0; i < count; ++i)
            receive(addressOf(i), "!CONF INVITE #1 AGREE");
    }
};

/// Calls of `message` a second.
template <class Message> double rate(std::chrono::duration<double> span, const Message &message)
{
    const Clock::time_point start = Clock::now();
    std::uint64_t count = 0;
    std::chrono::duration<double> passed{0};
    do {
        for (int i = 0; i < 16; ++i, ++count)
            message();
        passed = Clock::now() - start;
    } while (passed < span);
    return static_cast<double>(count) / passed.count();
}

/// A message of 60 characters to `participants`, one of whom writes it.
double measure(int participants, std::chrono::duration<double> span)
{
    Receivers receivers(participants);
    Host host;
    host.addContacts(participants);
    host.gather(participants);
    const std::string body(60, 'm');
    const std::string arriving = '+' + addressOf(0).toText() + " #1 " + body;

    std::vector<sockaddr_in> others;
    for (int i = 1; i < participants; ++i)
        others.push_back(endpoint(addressOf(i)));
    const int bare = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    bool allSent = true;
    const auto relay = [&] { host.receive(addressOf(0), arriving); };
    const auto loop = [&] {
        for (const sockaddr_in &other : others) {
            const ssize_t sent = sendto(bare, arriving.data(), arriving.size(), 0,
                                        reinterpret_cast<const sockaddr *>(&other), sizeof other);
            allSent = allSent && sent == static_cast<ssize_t>(arriving.size());
        }
    };

    receivers.drain();
    relay();
    if (receivers.drain() != others.size())
        giveUp("one message did not reach each of the others once");
    double relayed = 0, looped = 0;
    for (int turn = 0; turn < turns; ++turn) {
        relayed = std::max(relayed, rate(span / turns, relay));
        receivers.drain();
        looped = std::max(looped, rate(span / turns, loop));
        receivers.drain();
    }
    close(bare);
    if (!allSent || host.drops.of(Drop::notSent) > 0)
        std::printf("some datagrams were not sent (engine: %llu)\n",
                    static_cast<unsigned long long>(host.drops.of(Drop::notSent)));
    const double ratio = relayed / looped;
    std::printf("%4d participants: %8.0f messages/s relayed (%8.0f datagrams/s), bare loop %8.0f, ratio %.2f\n",
                participants, relayed, relayed * static_cast<double>(others.size()), looped, ratio);
    return ratio;
}

/// Bytes on the heap that one more participant takes, beyond the contact that it is anyway.
void measureMemory(int participants)
{
    Host host;
    host.addContacts(participants);
    host.engine.conferences().mnuCreateNewConf();
    const std::size_t before = mallinfo2().uordblks;
    for (int i = 0; i < participants; ++i)
        host.engine.conferences().mnuInvite2Conf(1, addressOf(i));
    for (int i = 0; i < participants; ++i)
        host.receive(addressOf(i), "!CONF INVITE #1 AGREE");
    const std::size_t after = mallinfo2().uordblks;
    std::printf("%4d participants: %.0f bytes each\n", participants,
                static_cast<double>(after - before) / participants);
}

} // namespace
} // namespace nimb::test

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const double seconds = argumentCount > 1 ? std::atof(arguments[1]) : 2;
    bool allFast = true;
    std::vector<int> counts = {5, 50, 200};
    if (argumentCount > 2) {
        counts.clear();
        std::transform(arguments + 2, arguments + argumentCount, std::back_inserter(counts), std::atoi);
    }
    for (const int participants : counts)
        allFast = nimb::test::measure(participants, std::chrono::duration<double>(seconds)) >= 0.5 && allFast;
    nimb::test::measureMemory(200);
    std::puts(allFast ? "the goal of half the bare loop's speed is met" : "slower than half the bare loop");
    return allFast ? 0 : 1;
}
