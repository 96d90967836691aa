#include "protocol/traced_winsock.h"

#include "simulated_network.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using enum TracedDatagram::Direction;
class DatagramTraceTest : public testing::Test
{
protected:
    std::vector<std::string> beginnings() const
    {
        std::vector<std::string> all;
        for (const TracedDatagram &datagram : trace.datagrams())
            all.push_back(datagram.beginning);
        return all;
    }

    const Ipv4Address peerAddress{10, 0, 0, 2};
    DatagramTrace trace;
};

TEST_F(DatagramTraceTest, KeepsTheOrderOfWhatGoesInAndOut)
{
    const auto before = std::chrono::system_clock::now();
    trace.note(out, peerAddress, "?ONLINE");
    trace.note(in, peerAddress, "!ONLINE");
    const std::vector<TracedDatagram> all = trace.datagrams();
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_EQ(all[0].direction, out);
    EXPECT_EQ(all[1].direction, in);
    EXPECT_EQ(all[1].peer, peerAddress);
    EXPECT_EQ(all[1].size, 7U);
    EXPECT_EQ(all[1].beginning, "!ONLINE");
    EXPECT_GE(all[0].time, before);
    EXPECT_LE(all[0].time, all[1].time);
}

TEST_F(DatagramTraceTest, KeepsTheLastFifty)
{
    for (int i = 1; i <= 120; ++i)
        trace.note(in, peerAddress, std::to_string(i));
    const std::vector<std::string> all = beginnings();
    ASSERT_THAT(all, SizeIs(50));
    EXPECT_EQ(all.front(), "71");
    EXPECT_EQ(all[1], "72");
    EXPECT_EQ(all.back(), "120");
}

TEST_F(DatagramTraceTest, OfALongDatagramKeepsTheBeginningAndTheSize)
{
    trace.note(in, peerAddress, std::string(60000, 'x'));
    EXPECT_EQ(trace.datagrams().front().size, 60000U);
    EXPECT_EQ(trace.datagrams().front().beginning, std::string(200, 'x'));
}

TEST_F(DatagramTraceTest, TellsOfWhatComesInAndNotOfWhatGoesOut)
{
    std::vector<std::string> told;
    trace.arrived = [&told](Ipv4Address from, std::string_view bytes) {
        told.push_back(from.toText() + " " + std::string(bytes));
    };
    trace.note(out, peerAddress, "one");
    trace.note(in, peerAddress, "two");
    EXPECT_THAT(told, ElementsAre("10.0.0.2 two"));
}

TEST_F(DatagramTraceTest, TheTracedSocketBehavesAsTheOther)
{
    SimulatedWinsock socket(QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr);
    {
        TracedWinsock traced(socket, trace);
        traced.setLocalPort(5549);
        traced.setRemotePort(5550);
        EXPECT_EQ(socket.localPort, 5549);
        EXPECT_EQ(socket.remotePort, 5550);
        EXPECT_TRUE(traced.bind());
        EXPECT_TRUE(traced.isBound());
        EXPECT_EQ(traced.LocalIP(), Ipv4Address(10, 0, 0, 1));
        EXPECT_EQ(traced.LocalHostName(), QStringLiteral("HERE"));
        traced.setSource(Ipv4Address(10, 0, 0, 9));
        EXPECT_EQ(traced.source(), Ipv4Address(10, 0, 0, 9));
        traced.setBroadcast(true);
        traced.setRemoteHost(Ipv4Address(10, 0, 0, 255));
        traced.SendData("?ONLINE");
        EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.255", "?ONLINE"}));

        std::string got;
        traced.DataArrival = [&](std::size_t byteCount) { got = traced.GetData(byteCount); };
        socket.arrive(QStringLiteral("10.0.0.2"), "!ONLINE");
        EXPECT_EQ(got, "!ONLINE");
        EXPECT_EQ(traced.RemoteHostIP(), peerAddress);
        EXPECT_THAT(beginnings(), ElementsAre("?ONLINE", "!ONLINE"));
        EXPECT_EQ(trace.datagrams().front().peer, Ipv4Address(10, 0, 0, 255));
        bool failed = false;
        traced.Error = [&failed] { failed = true; };
        socket.Error();
        EXPECT_TRUE(failed);
    }
    EXPECT_FALSE(socket.DataArrival) << "nobody listens any more";
}

TEST_F(DatagramTraceTest, ADatagramForWhichNobodyListensIsNotTakenFromTheSocket)
{
    SimulatedWinsock socket(QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr);
    const TracedWinsock traced(socket, trace);
    socket.arrive(QStringLiteral("10.0.0.2"), "!ONLINE");
    EXPECT_THAT(beginnings(), IsEmpty());
}

} // namespace
} // namespace nimb::test
