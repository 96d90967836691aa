#include "platform/udp_winsock.h"

#include "on_own_network.h"
#include "print_qt.h"
#include "protocol/address_text.h"
#include "raw_peer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include <sys/socket.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::Optional;
using testing::UnorderedElementsAre;
using namespace std::string_literals;

/// A port that no other test process uses at the same time.
std::uint16_t testPort()
{
    return static_cast<std::uint16_t>(10000 + getpid() % 10000);
}

/// One that differs from it.
std::uint16_t otherTestPort()
{
    return static_cast<std::uint16_t>(testPort() + 10000);
}

struct Heard {
    std::string bytes;
    std::string source;

    bool operator==(const Heard &) const = default;
    friend void PrintTo(const Heard &heard, std::ostream *out)
    {
        *out << testing::PrintToString(heard.bytes.substr(0, 80)) << " from " << heard.source;
    }
};

/// A copy's socket that notes all it hears.
struct Copy {
    explicit Copy(const QString &address = {}) : socket(drops, readAddress(address))
    {
        socket.setLocalPort(testPort());
        socket.setRemotePort(testPort());
        socket.DataArrival = [this](std::size_t byteCount) {
            const std::string bytes = socket.GetData(byteCount);
            heard.push_back({bytes, socket.RemoteHostIP().toText()});
        };
        socket.Error = [this] { ++errors; };
    }

    void sendTo(std::optional<Ipv4Address> address, const std::string &bytes)
    {
        socket.setRemoteHost(address);
        socket.SendData(bytes);
    }

    bool hears(std::size_t count)
    {
        return QTest::qWaitFor([this, count] { return heard.size() >= count; }, 20000);
    }

    /// Heard, or counted as lost.
    bool knowsOf(std::size_t count)
    {
        return QTest::qWaitFor(
            [this, count] { return heard.size() + drops.of(Drop::notReceived) + drops.of(Drop::tooLoud) >= count; },
            60000);
    }

    DropCounts drops;
    UdpWinsock socket;
    std::vector<Heard> heard;
    int errors = 0;
};

std::string everyByte()
{
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes.push_back(static_cast<char>(value));
    return bytes;
}

TEST(UdpWinsock, SendsExactlyTheBytesGivenFromItsOwnAddressAndPort)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    copy.sendTo(Ipv4Address(127, 0, 1, 2), "?ONLINE 127.0.1.1 PC-ANN Ann Lee");
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "");
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "-a\0b\xff"s);

    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"?ONLINE 127.0.1.1 PC-ANN Ann Lee", "127.0.1.1", testPort()}));
    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"", "127.0.1.1", testPort()}));
    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"-a\0b\xff"s, "127.0.1.1", testPort()}));
    EXPECT_EQ(copy.drops.of(Drop::notSent), 0U);
}

TEST(UdpWinsock, AnnouncesEachDatagramWithItsSizeAndItsSource)
{
    const RawPeer ann("127.0.1.2", testPort());
    const RawPeer ben("127.0.1.3", testPort());
    Copy copy("127.0.1.1");
    std::vector<std::size_t> sizes;
    copy.socket.DataArrival = [&, note = copy.socket.DataArrival](std::size_t byteCount) {
        sizes.push_back(byteCount);
        note(byteCount);
    };
    ASSERT_TRUE(copy.socket.bind());

    ann.send("127.0.1.1", testPort(), "!ONLINE 127.0.1.2 PC Ann");
    ben.send("127.0.1.1", testPort(), "Buzz");

    ASSERT_TRUE(copy.hears(2));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"!ONLINE 127.0.1.2 PC Ann", "127.0.1.2"}, Heard{"Buzz", "127.0.1.3"}));
    EXPECT_THAT(sizes, ElementsAre(24U, 4U));
}

TEST(UdpWinsock, KeepsReceivingAfterADatagramOfNoBytes)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    for (const char *bytes : {"", "one", "", "", "two"})
        peer.send("127.0.1.1", testPort(), bytes);

    ASSERT_TRUE(copy.hears(5));
    EXPECT_THAT(copy.heard,
                ElementsAre(Heard{"", "127.0.1.2"}, Heard{"one", "127.0.1.2"}, Heard{"", "127.0.1.2"},
                            Heard{"", "127.0.1.2"}, Heard{"two", "127.0.1.2"}));
}

TEST(UdpWinsock, PassesEveryByteValueBothWays)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    copy.sendTo(Ipv4Address(127, 0, 1, 2), everyByte());
    const auto sent = peer.receive();
    peer.send("127.0.1.1", testPort(), everyByte());

    EXPECT_THAT(sent, Optional(Field(&RawPeer::Datagram::bytes, everyByte())));
    ASSERT_TRUE(copy.hears(1));
    EXPECT_EQ(copy.heard.front().bytes, everyByte());
}

TEST(UdpWinsock, PassesTheLargestDatagramBothWays)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    std::string largest(65507, 'x');
    largest.front() = '<';
    largest.back() = '>';

    copy.sendTo(Ipv4Address(127, 0, 1, 2), largest);
    const auto sent = peer.receive();
    ASSERT_TRUE(peer.send("127.0.1.1", testPort(), largest));

    ASSERT_TRUE(sent);
    EXPECT_TRUE(sent->bytes == largest) << sent->bytes.size() << " bytes";
    ASSERT_TRUE(copy.hears(1));
    EXPECT_TRUE(copy.heard.front().bytes == largest) << copy.heard.front().bytes.size() << " bytes";
}

TEST(UdpWinsock, CountsADatagramThatIsTooLargeAndGoesOn)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    copy.sendTo(Ipv4Address(127, 0, 1, 2), std::string(65508, 'x'));
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "next");

    EXPECT_THAT(peer.receive(), Optional(Field(&RawPeer::Datagram::bytes, "next")));
    EXPECT_EQ(copy.drops.of(Drop::notSent), 1U);
    EXPECT_EQ(copy.errors, 1);
}

TEST(UdpWinsock, SharesItsPortWithNobody)
{
    auto first = std::make_unique<Copy>("127.0.1.1");
    Copy second("127.0.1.1");
    Copy onAllInterfaces;
    ASSERT_TRUE(first->socket.bind());

    EXPECT_FALSE(second.socket.bind());
    EXPECT_FALSE(second.socket.isBound());
    EXPECT_FALSE(onAllInterfaces.socket.bind());

    first.reset();
    EXPECT_TRUE(second.socket.bind());
    EXPECT_TRUE(second.socket.isBound());
}

TEST(UdpWinsock, LetsNoOtherProgramShareItsPortEvenIfThatProgramIsWilling)
{
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    const auto opened = DatagramSocket::open({Ipv4Address(127, 0, 1, 1), testPort()}, DatagramSocket::Sharing::shared);
    const auto *const error = std::get_if<DatagramSocket::SystemError>(&opened);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number, EADDRINUSE);
}

TEST(UdpWinsock, IsFreeToBindAgainOnceBound)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    EXPECT_TRUE(copy.socket.bind());
    EXPECT_TRUE(copy.socket.bind());

    peer.send("127.0.1.1", testPort(), "still here");
    ASSERT_TRUE(copy.hears(1));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"still here", "127.0.1.2"}));
}

TEST(UdpWinsock, DoesNotBindBeforeItHasAPort)
{
    DropCounts drops;
    UdpWinsock socket(drops, Ipv4Address(127, 0, 1, 1));
    EXPECT_FALSE(socket.bind());
    socket.setLocalPort(testPort());
    EXPECT_TRUE(socket.bind());
}

TEST(UdpWinsock, TwoCopiesOnDifferentPortsDoNotSeeEachOther)
{
    Copy here("127.0.1.1");
    Copy there("127.0.1.2");
    there.socket.setLocalPort(otherTestPort());
    const RawPeer witness("127.0.1.3", testPort());
    ASSERT_TRUE(here.socket.bind());
    ASSERT_TRUE(there.socket.bind());

    here.sendTo(Ipv4Address(127, 0, 1, 2), "to nobody");
    witness.send("127.0.1.2", otherTestPort(), "to you");

    ASSERT_TRUE(there.hears(1));
    EXPECT_THAT(there.heard, ElementsAre(Heard{"to you", "127.0.1.3"}));
}

TEST(UdpWinsock, WithoutAnAddressHearsWhateverReachesTheMachine)
{
    const RawPeer peer("127.0.1.2", otherTestPort());
    Copy copy;
    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.0.7.7", testPort(), "one");
    peer.send("127.255.255.255", testPort(), "all");

    ASSERT_TRUE(copy.hears(2));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"one", "127.0.1.2"}, Heard{"all", "127.0.1.2"}));
}

TEST(UdpWinsock, LeavesFromTheAddressOfThisMachineThatIsAskedForUntilAnotherIs)
{
    const RawPeer peer("127.0.1.2", otherTestPort());
    Copy copy;
    copy.socket.setRemotePort(otherTestPort());
    ASSERT_TRUE(copy.socket.bind());
    copy.socket.setSource(Ipv4Address(127, 0, 1, 7));
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "from seven");
    copy.socket.setSource(std::nullopt);
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "as usual");
    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"from seven", "127.0.1.7", testPort()}));
    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"as usual", "127.0.0.1", testPort()}));
}

TEST(UdpWinsock, LeavesAsTheSystemChoosesWhereTheAddressIsNotThisMachinesAnyMore)
{
    const RawPeer peer("127.0.1.2", otherTestPort());
    Copy copy;
    copy.socket.setRemotePort(otherTestPort());
    ASSERT_TRUE(copy.socket.bind());
    copy.socket.setSource(Ipv4Address(192, 0, 2, 77));
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "all the same");
    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"all the same", "127.0.0.1", testPort()}));
    EXPECT_EQ(copy.drops.of(Drop::notSent), 0U);
}

TEST(UdpWinsock, TakesAMalformedAddressForNone)
{
    const RawPeer peer("127.0.1.2", otherTestPort());
    Copy copy("127.0.1");
    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.0.7.7", testPort(), "one");

    ASSERT_TRUE(copy.hears(1));
}

TEST(UdpWinsock, EveryCopyOnTheLoopbackNetworkHearsABroadcastWithItsSendersAddress)
{
    Copy ann("127.0.1.1");
    Copy ben("127.0.1.2");
    Copy eve("127.0.1.3");
    ASSERT_TRUE(ann.socket.bind());
    ASSERT_TRUE(ben.socket.bind());
    ASSERT_TRUE(eve.socket.bind());

    eve.socket.setBroadcast(true);
    eve.sendTo(Ipv4Address(127, 255, 255, 255), "?ONLINE 127.0.1.3 PC Eve");

    ASSERT_TRUE(ann.hears(1));
    ASSERT_TRUE(ben.hears(1));
    EXPECT_THAT(ann.heard, ElementsAre(Heard{"?ONLINE 127.0.1.3 PC Eve", "127.0.1.3"}));
    EXPECT_THAT(ben.heard, ElementsAre(Heard{"?ONLINE 127.0.1.3 PC Eve", "127.0.1.3"}));
}

TEST(UdpWinsock, SendsNoBroadcastUnlessItIsAllowed)
{
    Copy ann("127.0.1.1");
    Copy eve("127.0.1.3");
    ASSERT_TRUE(ann.socket.bind());
    ASSERT_TRUE(eve.socket.bind());

    eve.sendTo(Ipv4Address(127, 255, 255, 255), "before");
    EXPECT_EQ(eve.drops.of(Drop::notSent), 1);
    eve.socket.setBroadcast(true);
    eve.sendTo(Ipv4Address(127, 255, 255, 255), "meant");
    eve.socket.setBroadcast(false);
    eve.sendTo(Ipv4Address(127, 255, 255, 255), "after");
    EXPECT_EQ(eve.drops.of(Drop::notSent), 2);
    eve.sendTo(Ipv4Address(127, 0, 1, 1), "to one");

    ASSERT_TRUE(ann.hears(2));
    EXPECT_THAT(ann.heard, UnorderedElementsAre(Heard{"meant", "127.0.1.3"}, Heard{"to one", "127.0.1.3"}));
}

TEST(UdpWinsock, AnswersABroadcastFromItsOwnAddress)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    copy.socket.DataArrival = [&](std::size_t byteCount) {
        copy.socket.GetData(byteCount);
        copy.sendTo(copy.socket.RemoteHostIP(), "answer");
    };
    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.255.255.255", testPort(), "question");
    ASSERT_TRUE(QTest::qWaitFor([&] { return peer.hasWaiting(); }));

    EXPECT_EQ(peer.receive(), (RawPeer::Datagram{"answer", "127.0.1.1", testPort()}));
}

TEST(UdpWinsock, DoesWithoutBroadcastsWhenAnotherProgramHoldsTheirAddress)
{
    const RawPeer greedy("127.255.255.255", testPort());
    const RawPeer peer("127.0.1.2", testPort());
    ASSERT_TRUE(greedy.isBound());
    Copy copy("127.0.1.1");

    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.0.1.1", testPort(), "hello");
    ASSERT_TRUE(copy.hears(1));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"hello", "127.0.1.2"}));
}

TEST(UdpWinsock, CountsWhatIsSentWhileNotBoundAndLetsNothingOut)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");

    copy.sendTo(Ipv4Address(127, 0, 1, 2), "one");
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "two");
    EXPECT_EQ(copy.drops.of(Drop::notSent), 2U);

    ASSERT_TRUE(copy.socket.bind());
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "three");
    EXPECT_THAT(peer.receive(), Optional(Field(&RawPeer::Datagram::bytes, "three")));
    EXPECT_EQ(copy.drops.of(Drop::notSent), 2U);
}

TEST(UdpWinsock, CountsWhatIsSentToAnythingButADottedAddressAndSendsItNowhere)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    const std::vector<std::string> texts
        = {"",           "localhost",  "127.0.1",      "127.0.1.2.", "127.0.1.256",     "127.0.1.-2",
           " 127.0.1.2", "127.0.01.2", "127.0.1.2:80", "2130706690", "::ffff:7f00:102", "127.0.1.\u0662"};

    for (const std::string &text : texts) {
        copy.sendTo(Ipv4Address(127, 0, 1, 2), "before");
        copy.sendTo(readAddress(QString::fromStdString(text)), "lost");
    }
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "end");

    EXPECT_EQ(copy.drops.of(Drop::notSent), texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_THAT(peer.receive(), Optional(Field(&RawPeer::Datagram::bytes, "before")));
    EXPECT_THAT(peer.receive(), Optional(Field(&RawPeer::Datagram::bytes, "end")));
}

TEST(UdpWinsock, SurvivesSendingToAPortWhereNobodyListens)
{
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    for (int i = 0; i < 5; ++i)
        copy.sendTo(Ipv4Address(127, 0, 1, 2), "anybody?");
    EXPECT_EQ(copy.drops.of(Drop::notSent), 0U);

    const RawPeer peer("127.0.1.2", testPort());
    copy.sendTo(Ipv4Address(127, 0, 1, 2), "hello");
    const auto sent = peer.receive();
    peer.send("127.0.1.1", testPort(), "hello yourself");

    EXPECT_THAT(sent, Optional(Field(&RawPeer::Datagram::bytes, "hello")));
    ASSERT_TRUE(copy.hears(1));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"hello yourself", "127.0.1.2"}));
    EXPECT_TRUE(copy.socket.isBound());
}

TEST(UdpWinsock, AFloodLetsOtherEventsInAfterEveryBatch)
{
    Copy copy("127.0.1.1");
    int arrivals = 0;
    int sinceOtherEvent = 0;
    int longestRun = 0;
    int otherEvents = 0;
    QEventLoop loop;
    copy.socket.setRemoteHost(Ipv4Address(127, 0, 1, 1));
    copy.socket.DataArrival = [&](std::size_t byteCount) {
        longestRun = std::max(longestRun, ++sinceOtherEvent);
        const std::string bytes = copy.socket.GetData(byteCount);
        if (++arrivals <= 20000)
            copy.socket.SendData(bytes); // so there is always more to read
        if (arrivals == 20200)
            loop.quit();
    };
    QTimer other;
    other.callOnTimeout([&] {
        sinceOtherEvent = 0;
        ++otherEvents;
    });
    other.start(0);
    ASSERT_TRUE(copy.socket.bind());
    for (int i = 0; i < 200; ++i)
        copy.socket.SendData("again");

    loop.exec(); // the test's time limit ends it if datagrams are lost

    EXPECT_EQ(arrivals, 20200);
    EXPECT_LE(longestRun, 64);
    EXPECT_GE(otherEvents, 20200 / 64);
}

TEST(UdpWinsock, TimersKeepFiringThroughAFloodWithoutEnd)
{
    Copy copy("127.0.1.1");
    int arrivals = 0;
    int ticks = 0;
    copy.socket.setRemoteHost(Ipv4Address(127, 0, 1, 1));
    copy.socket.DataArrival = [&](std::size_t byteCount) {
        ++arrivals;
        copy.socket.SendData(copy.socket.GetData(byteCount));
    };
    ASSERT_TRUE(copy.socket.bind());
    for (int i = 0; i < 200; ++i)
        copy.socket.SendData("again");

    QEventLoop loop;
    QTimer timer;
    timer.callOnTimeout([&] {
        if (++ticks == 20)
            loop.quit();
    });
    timer.start(10);
    loop.exec(); // the test's time limit ends it if the timer starves

    EXPECT_EQ(ticks, 20);
    EXPECT_GT(arrivals, 200);
}

TEST(UdpWinsock, HearsEveryDatagramOfABurst)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    // A little at a time, so that even a small buffer has room.
    for (std::size_t i = 1; i <= 20000; ++i) {
        peer.send("127.0.1.1", testPort(), "burst");
        if (i % 50 == 0) {
            ASSERT_TRUE(copy.hears(i));
        }
    }

    EXPECT_EQ(copy.heard.size(), 20000U);
    EXPECT_EQ(copy.drops.of(Drop::notReceived), 0U);
}

TEST(UdpWinsock, OneWhoFloodsKeepsNobodyElseWaiting)
{
    const RawPeer loud("127.0.1.2", testPort());
    const RawPeer quiet("127.0.1.3", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    for (int i = 0; i < 1000; ++i)
        loud.send("127.0.1.1", testPort(), "junk");
    quiet.send("127.0.1.1", testPort(), "-hello");

    ASSERT_TRUE(copy.hears(1001));

    const auto hello = std::ranges::find(copy.heard, Heard{"-hello", "127.0.1.3"});
    ASSERT_NE(hello, copy.heard.end());
    EXPECT_LT(hello - copy.heard.begin(), 1000);
}

TEST(UdpWinsock, AcquaintancesDoNotWaitForStrangersWhoCameEarlier)
{
    std::vector<std::unique_ptr<RawPeer>> strangers;
    for (int i = 1; i <= 250; ++i)
        strangers.push_back(std::make_unique<RawPeer>("127.0.9." + std::to_string(i), testPort()));
    const RawPeer ann("127.0.1.2", testPort());
    const RawPeer ben("127.0.1.3", testPort());
    Copy copy("127.0.1.1");
    copy.socket.setAcquainted(Ipv4Address(127, 0, 1, 2), true);
    copy.socket.setAcquainted(Ipv4Address(127, 0, 9, 250), true);
    ASSERT_TRUE(copy.socket.bind());
    copy.socket.setAcquainted(Ipv4Address(127, 0, 1, 3), true);
    copy.socket.setAcquainted(Ipv4Address(127, 0, 9, 250), false);
    for (int i = 1; i < 250; ++i)
        strangers[std::size_t(i - 1)]->send("127.0.1.1", testPort(), "-hello");
    ann.send("127.0.1.1", testPort(), "-one");
    ben.send("127.0.1.1", testPort(), "-two");
    strangers.back()->send("127.0.1.1", testPort(), "-hello");

    ASSERT_TRUE(copy.hears(252));

    const auto placeOf = [&](const Heard &heard) { return std::ranges::find(copy.heard, heard) - copy.heard.begin(); };
    EXPECT_LT(placeOf({"-one", "127.0.1.2"}), 249);
    EXPECT_LT(placeOf({"-two", "127.0.1.3"}), 249);
    EXPECT_EQ(copy.heard.back(), (Heard{"-hello", "127.0.9.250"})) << "an acquaintance no longer";
}

#ifdef __linux__
TEST(UdpWinsock, CountsExactlyWhatTheSystemDroppedForWantOfRoom)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());

    std::size_t sent = 0;
    const auto send = [&](const std::string &bytes) {
        peer.send("127.0.1.1", testPort(), bytes);
        ++sent;
    };
    for (const char *end : {"end of one", "end of two"}) {
        for (int i = 0; i < 20000; ++i) // faster than it is read, as far as a test can be
            send(std::string(1400, 'x'));
        // What was lost is told with the next datagram that arrives.
        do {
            send(end);
        } while (!QTest::qWaitFor([&] { return !copy.heard.empty() && copy.heard.back().bytes == end; }, 1000));
    }

    EXPECT_EQ(copy.heard.size() + copy.drops.of(Drop::notReceived) + copy.drops.of(Drop::tooLoud), sent);
}

TEST(UdpWinsock, ReadsBackTheBufferThatTheSystemGranted)
{
    // What any socket of this machine is granted that asks for as much; the system tells twice of what it counts.
    const int any = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    int size = 4194304;
    socklen_t length = sizeof size;
    ASSERT_EQ(setsockopt(any, SOL_SOCKET, SO_RCVBUF, &size, sizeof size), 0);
    ASSERT_EQ(getsockopt(any, SOL_SOCKET, SO_RCVBUF, &size, &length), 0);
    close(any);
    Copy copy("127.0.1.1");
    EXPECT_EQ(copy.socket.receiveBufferBytes(), 0);

    ASSERT_TRUE(copy.socket.bind());

    EXPECT_EQ(copy.socket.receiveBufferBytes(), size / 2);
    EXPECT_GT(copy.socket.receiveBufferBytes(), 0);
}
#endif

TEST(UdpWinsock, HandlesOneDatagramCompletelyBeforeTheNextEvenIfTheHandlerRunsAnEventLoop)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    int depth = 0;
    int deepest = 0;
    copy.socket.DataArrival = [&, note = copy.socket.DataArrival](std::size_t byteCount) {
        deepest = std::max(deepest, ++depth);
        QEventLoop dialog;
        QTimer::singleShot(20, &dialog, &QEventLoop::quit);
        dialog.exec();
        note(byteCount);
        --depth;
    };
    ASSERT_TRUE(copy.socket.bind());

    for (const char *bytes : {"1", "2", "3"})
        peer.send("127.0.1.1", testPort(), bytes);
    peer.send("127.255.255.255", testPort(), "4");

    ASSERT_TRUE(copy.hears(4));
    EXPECT_EQ(deepest, 1);
    EXPECT_THAT(copy.heard,
                testing::UnorderedElementsAre(Heard{"1", "127.0.1.2"}, Heard{"2", "127.0.1.2"}, Heard{"3", "127.0.1.2"},
                                              Heard{"4", "127.0.1.2"}));
}

TEST(UdpWinsock, GivesOutADatagramOnceAndNeverMoreThanItHeld)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    std::vector<std::string> taken;
    copy.socket.DataArrival = [&](std::size_t) {
        taken.push_back(copy.socket.GetData(3));
        taken.push_back(copy.socket.GetData(3));
    };
    ASSERT_TRUE(copy.socket.bind());
    EXPECT_EQ(copy.socket.GetData(10), "");

    peer.send("127.0.1.1", testPort(), "four");
    peer.send("127.0.1.1", testPort(), "2!");

    ASSERT_TRUE(QTest::qWaitFor([&] { return taken.size() == 4; }));
    EXPECT_THAT(taken, ElementsAre("fou", "", "2!", ""));
}

TEST(UdpWinsock, AHandlerThatTakesNothingDoesNotHoldUpTheNextDatagram)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    int arrivals = 0;
    copy.socket.DataArrival = [&, note = copy.socket.DataArrival](std::size_t byteCount) {
        if (++arrivals == 2)
            note(byteCount);
    };
    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.0.1.1", testPort(), "first");
    peer.send("127.0.1.1", testPort(), "second");

    ASSERT_TRUE(copy.hears(1));
    EXPECT_THAT(copy.heard, ElementsAre(Heard{"second", "127.0.1.2"}));
}

TEST(UdpWinsock, NeedsNoHandlers)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    const auto note = std::exchange(copy.socket.DataArrival, nullptr);
    copy.socket.Error = nullptr;
    ASSERT_TRUE(copy.socket.bind());

    peer.send("127.0.1.1", testPort(), "unheard");
    copy.sendTo(Ipv4Address(127, 0, 1, 2), std::string(70000, 'x'));
    QCoreApplication::processEvents();
    copy.socket.DataArrival = note;
    peer.send("127.0.1.1", testPort(), "heard");

    ASSERT_TRUE(QTest::qWaitFor([&] { return !copy.heard.empty() && copy.heard.back().bytes == "heard"; }));
}

TEST(UdpWinsock, ChildProcessesDoNotKeepItsPort)
{
    auto copy = std::make_unique<Copy>("127.0.1.1");
    ASSERT_TRUE(copy->socket.bind());
    QProcess child;
    child.start("cat", {});
    ASSERT_TRUE(child.waitForStarted());

    copy.reset();
    const RawPeer next("127.0.1.1", testPort());

    EXPECT_TRUE(next.isBound());
    child.closeWriteChannel();
    child.waitForFinished();
}

TEST(UdpWinsock, TellsTheFixedIdentity)
{
    DropCounts drops;
    const UdpWinsock socket(drops, Ipv4Address(127, 0, 1, 1), "PC-ANN");
    EXPECT_EQ(socket.LocalIP(), Ipv4Address(127, 0, 1, 1));
    EXPECT_EQ(socket.LocalHostName(), "PC-ANN");
    EXPECT_TRUE(socket.RemoteHostIP().isUnspecified());
}

/// On a machine of the test's own.
class UdpWinsockOfAMachine : public OnOwnNetwork
{
protected:
    void arrange() override
    {
        ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
        ASSERT_TRUE(runIp({"address", "add", "10.1.0.1/32", "dev", "lo"}));
    }
};

TEST_F(UdpWinsockOfAMachine, ListensNoMoreWhereItsAddressHasGoneAndAgainWhereItIsBack)
{
    Copy me(QStringLiteral("10.1.0.1"));
    ASSERT_TRUE(me.socket.bind());
    me.socket.networksChanged();
    EXPECT_TRUE(me.socket.isBound()) << "it is still there";
    ASSERT_TRUE(runIp({"address", "del", "10.1.0.1/32", "dev", "lo"}));
    me.socket.networksChanged();
    EXPECT_FALSE(me.socket.isBound());
    EXPECT_FALSE(me.socket.bind());
    EXPECT_EQ(me.socket.bindFailure(), BindFailure::addressNotHere);
    ASSERT_TRUE(runIp({"address", "add", "10.1.0.1/32", "dev", "lo"}));
    ASSERT_TRUE(me.socket.bind());
    me.sendTo(Ipv4Address(10, 1, 0, 1), "hello");
    ASSERT_TRUE(me.hears(1));
    EXPECT_EQ(me.heard.front(), (Heard{"hello", "10.1.0.1"}));
}

TEST_F(UdpWinsockOfAMachine, ASocketForEveryInterfaceOutlivesThemAll)
{
    Copy me;
    ASSERT_TRUE(me.socket.bind());
    ASSERT_TRUE(runIp({"address", "del", "10.1.0.1/32", "dev", "lo"}));
    ASSERT_TRUE(runIp({"link", "set", "lo", "down"}));
    me.socket.networksChanged();
    EXPECT_TRUE(me.socket.isBound());
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    ASSERT_TRUE(runIp({"address", "add", "10.1.0.2/32", "dev", "lo"}));
    me.sendTo(Ipv4Address(10, 1, 0, 2), "hello");
    EXPECT_TRUE(me.hears(1));
}

TEST_F(UdpWinsockOfAMachine, TheWayToAPeerDecidesWhichAddressItSees)
{
    for (const auto &[card, address] : {std::pair("eth0", "10.2.0.1/24"), std::pair("eth1", "10.3.0.1/24")}) {
        ASSERT_TRUE(runIp({"link", "add", card, "type", "bridge"}));
        ASSERT_TRUE(runIp({"address", "add", address, "dev", card}));
        ASSERT_TRUE(runIp({"link", "set", card, "up"}));
    }
    const Ipv4Address first(10, 2, 0, 9), second(10, 3, 0, 9);
    Copy me;
    EXPECT_EQ(me.socket.addressTowards(first), Ipv4Address(10, 2, 0, 1));
    EXPECT_EQ(me.socket.addressTowards(second), Ipv4Address(10, 3, 0, 1));
    EXPECT_EQ(me.socket.addressTowards(Ipv4Address(10, 3, 0, 255)), Ipv4Address(10, 3, 0, 1)) << "everybody there";
    EXPECT_EQ(me.socket.addressTowards(Ipv4Address(192, 0, 2, 1)), std::nullopt) << "no way leads there";
    EXPECT_EQ(me.socket.addressTowards(Ipv4Address(127, 0, 1, 1)), std::nullopt) << "it stays within this machine";

    ASSERT_TRUE(runIp({"address", "del", "10.3.0.1/24", "dev", "eth1"}));
    ASSERT_TRUE(runIp({"address", "add", "10.3.0.7/24", "dev", "eth1"}));
    EXPECT_EQ(me.socket.addressTowards(second), Ipv4Address(10, 3, 0, 1)) << "it was asked the system again";
    me.socket.networksChanged();
    EXPECT_EQ(me.socket.addressTowards(second), Ipv4Address(10, 3, 0, 7));

    me.socket.setSource(Ipv4Address(10, 2, 0, 1));
    EXPECT_EQ(me.socket.addressTowards(second), std::nullopt) << "somebody has chosen";
    EXPECT_EQ(Copy(QStringLiteral("10.2.0.1")).socket.addressTowards(second), std::nullopt) << "it is fixed";
}

TEST(UdpWinsock, AnnouncesAtOnceWhatWaitsWhenItIsAskedTo)
{
    const RawPeer peer("127.0.1.2", testPort());
    Copy copy("127.0.1.1");
    ASSERT_TRUE(copy.socket.bind());
    constexpr std::size_t sent = 3 * UdpWinsock::batchSize;
    for (std::size_t i = 0; i < sent; ++i)
        ASSERT_TRUE(peer.send("127.0.1.1", testPort(), "-" + std::to_string(i)));
    // No event loop runs: only the reader works, and it may take a while to be done.
    QDeadlineTimer patience(20000);
    while (copy.heard.size() < sent && !patience.hasExpired()) {
        copy.socket.announceWaiting();
        std::this_thread::yield();
    }
    ASSERT_EQ(copy.heard.size(), sent);
    EXPECT_EQ(copy.heard.back().bytes, "-" + std::to_string(sent - 1));
}

TEST_F(UdpWinsockOfAMachine, MayStopListeningWhileADatagramIsHandled)
{
    Copy me(QStringLiteral("10.1.0.1"));
    ASSERT_TRUE(me.socket.bind());
    me.socket.DataArrival = [&me](std::size_t byteCount) {
        me.heard.push_back({me.socket.GetData(byteCount), {}});
        runIp({"address", "del", "10.1.0.1/32", "dev", "lo"});
        me.socket.networksChanged();
    };
    me.sendTo(Ipv4Address(10, 1, 0, 1), "one");
    me.sendTo(Ipv4Address(10, 1, 0, 1), "two");
    ASSERT_TRUE(me.hears(1));
    EXPECT_FALSE(me.socket.isBound());
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace
} // namespace nimb::test
