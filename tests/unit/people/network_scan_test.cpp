#include "people/network_scan.h"

#include "copy.h"
#include "dialog_recorders.h"
#include "simulated_subnet.h"

#include <gmock/gmock.h>

#include <set>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class NetworkScanTest : public testing::Test, protected ScanSurroundings
{
protected:
    void click(const char *text) { scan.Command1_Click(QString::fromUtf8(text)); }
};

TEST_F(NetworkScanTest, OffersTheOwnAddressAsAStartingPoint)
{
    EXPECT_EQ(scan.Form_Load(), QStringLiteral("192.168.1.5"));
}

TEST_F(NetworkScanTest, AsksAnAddressAtOnceWithTheQuestionOfTheAnnouncement)
{
    click("192.168.7.20");
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.7.20", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(resolver.names, IsEmpty());
    EXPECT_THAT(shown.lines(), ElementsAre("--- asking 192.168.7.20 who is there ---"));
}

TEST_F(NetworkScanTest, AsksBroadcastAddresses)
{
    click("192.168.1.255");
    click("255.255.255.255");
    EXPECT_THAT(socket.sent,
                ElementsAre(To{"192.168.1.255", "?ONLINE 192.168.1.5 HERE Me"},
                            To{"255.255.255.255", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(resolver.names, IsEmpty());
}

TEST_F(NetworkScanTest, BlanksAroundTheTextDoNotCount)
{
    click("  10.0.0.2\t");
    click(" PC-ANN ");
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(resolver.names, ElementsAre("PC-ANN"));
}

TEST_F(NetworkScanTest, NumbersWithZerosBeforeThemAreDecimal)
{
    click("192.168.010.005");
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.10.5", "?ONLINE 192.168.1.5 HERE Me"}));
}

TEST_F(NetworkScanTest, ARangeIsAskedAddressByAddressButNotItsEndsNorOneself)
{
    click("192.168.1.77/29");
    EXPECT_THAT(
        socket.sent,
        ElementsAre(
            To{"192.168.1.73", "?ONLINE 192.168.1.5 HERE Me"}, To{"192.168.1.74", "?ONLINE 192.168.1.5 HERE Me"},
            To{"192.168.1.75", "?ONLINE 192.168.1.5 HERE Me"}, To{"192.168.1.76", "?ONLINE 192.168.1.5 HERE Me"},
            To{"192.168.1.77", "?ONLINE 192.168.1.5 HERE Me"}, To{"192.168.1.78", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(shown.lines(), ElementsAre("--- asking 192.168.1.77/29 who is there ---"));
    socket.sent.clear();
    click("192.168.1.6/30");
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.1.6", "?ONLINE 192.168.1.5 HERE Me"}));
    socket.sent.clear();
    click("192.168.1.8/31");
    EXPECT_THAT(socket.sent,
                ElementsAre(To{"192.168.1.8", "?ONLINE 192.168.1.5 HERE Me"},
                            To{"192.168.1.9", "?ONLINE 192.168.1.5 HERE Me"}));
    socket.sent.clear();
    click("192.168.1.10/32");
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.1.10", "?ONLINE 192.168.1.5 HERE Me"}));
}

TEST_F(NetworkScanTest, AWholeNetworkOfTwoHundredAndFiftyFourIsAsked)
{
    click("10.0.0.0/24");
    time.advance(2500ms);
    std::set<std::string> asked;
    for (const To &to : socket.sent)
        asked.insert(to.ip);
    EXPECT_EQ(asked.size(), 254U);
    EXPECT_EQ(asked.count("10.0.0.0") + asked.count("10.0.0.255"), 0U);
}

TEST_F(NetworkScanTest, ALargerRangeIsRefused)
{
    click("10.0.0.0/23");
    click("0.0.0.0/0");
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(),
                ElementsAre("10.0.0.0/23 has too many addresses to be asked one by one: the largest range is /24.",
                            "0.0.0.0/0 has too many addresses to be asked one by one: the largest range is /24."));
}

TEST_F(NetworkScanTest, ItIsSaidThatTheOwnAddressIsOnesOwn)
{
    click("192.168.1.5");
    EXPECT_THAT(shown.lines(),
                ElementsAre("--- 192.168.1.5 is your own address: nobody else hears what is sent there ---"));
    EXPECT_THAT(socket.sent, ElementsAre(To{"192.168.1.5", "?ONLINE 192.168.1.5 HERE Me"}));
    shown.clear();
    ownAddresses.own = {Ipv4Address(172, 16, 0, 5)};
    click("172.16.0.5");
    click("127.0.0.1");
    click("192.168.1.5/32");
    click("MY-OTHER-NAME");
    resolver.answer(0, Ipv4Address(127, 0, 1, 1));
    EXPECT_THAT(shown.lines(),
                ElementsAre("--- 172.16.0.5 is your own address: nobody else hears what is sent there ---",
                            "--- 127.0.0.1 is your own address: nobody else hears what is sent there ---",
                            "--- 192.168.1.5 is your own address: nobody else hears what is sent there ---",
                            "--- 127.0.1.1 is your own address: nobody else hears what is sent there ---"));
    shown.clear();
    time.advance(5s);
    EXPECT_THAT(shown.lines(), IsEmpty()) << "nothing more is to be said of oneself";
}

TEST_F(NetworkScanTest, EveryAddressIsAskedEvenWhereNobodyCanBe)
{
    click("224.0.0.1");
    click("240.0.0.1");
    EXPECT_THAT(
        socket.sent,
        ElementsAre(To{"224.0.0.1", "?ONLINE 192.168.1.5 HERE Me"}, To{"240.0.0.1", "?ONLINE 192.168.1.5 HERE Me"}));
}

TEST_F(NetworkScanTest, AnEmptyTextDoesNothing)
{
    click("");
    click("   ");
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

class NoName : public NetworkScanTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(NoName, AndNoAddressIsSaidAtOnceAndNobodyIsAsked)
{
    click(GetParam());
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, IsEmpty());
    EXPECT_THAT(shown.lines(),
                ElementsAre("\"" + std::string(GetParam())
                            + "\" is neither a name nor the address of a computer or a network, so nobody was asked."));
}

INSTANTIATE_TEST_SUITE_P(NetworkScan, NoName,
                         testing::Values("192.168.1", "192.168.1.1.1", "192.168.1.256", "192.168.1.", "192.168.1.-1",
                                         "192.168.1.+1", "192.168.1.0001", "192.168. 1.1", "0x7f.0.0.1", "::1",
                                         "fe80::1", "10.0.0.0/33", "10.0.0.0/-1", "10.0.0.0/x", "10.0.0/24", "/24",
                                         "\xD9\xA1.2.3.4", "$(reboot)", "two words", "a,b", "a..b", ".", "42"));

class Name : public NetworkScanTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(Name, IsLookedUp)
{
    click(GetParam());
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, ElementsAre(GetParam()));
    EXPECT_THAT(shown.lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(NetworkScan, Name,
                         testing::Values("PC-ANN", "pc-ann.example.", "1.2.3.x", "3com", "my_printer",
                                         "b\xC3\xBC"
                                         "cher.example",
                                         "\xD1\x84\xD0\xB0\xD0\xB9\xD0\xBB"));

TEST_F(NetworkScanTest, ANameIsAskedWhenItsAddressIsFound)
{
    click("PC-ANN");
    EXPECT_THAT(socket.sent, IsEmpty());
    resolver.answer(0, Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(shown.lines(), ElementsAre("--- asking PC-ANN who is there ---"));
}

TEST_F(NetworkScanTest, ANameThatIsNotFoundIsSaidInTheLogAndNobodyIsAsked)
{
    click("PC-ANN");
    resolver.answer(0, std::nullopt);
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), ElementsAre("No address was found for \"PC-ANN\", so nobody was asked."));
}

TEST_F(NetworkScanTest, TheLogNamesWhatWasTypedOnOneLineAndNotWithoutEnd)
{
    scan.Command1_Click(QStringLiteral("a\r\nb") + QString(300, u'x') + u'.');
    EXPECT_THAT(shown.lines(),
                ElementsAre("\"a b" + std::string(252, 'x')
                            + "\" is neither a name nor the address of a computer or a network, so nobody was asked."));
}

TEST_F(NetworkScanTest, AnAnswerFindsItsWayWhenTheScanIsGone)
{
    {
        NetworkScan passing(common, search, resolver, log);
        passing.Command1_Click(QStringLiteral("PC-ANN"));
        passing.Command1_Click(QStringLiteral("PC-BEN"));
    }
    resolver.answer(1, std::nullopt);
    resolver.answer(0, Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(
        shown.lines(),
        ElementsAre("No address was found for \"PC-BEN\", so nobody was asked.", "--- asking PC-ANN who is there ---"));
}

// --- whole copies on one subnet

class NetworkScanOnASubnet : public testing::Test
{
protected:
    /// And gives the others a second and a half.
    void scanFor(const char *text)
    {
        NetworkScan(me.common, me.engine.search(), resolver, me.engine.log()).Command1_Click(QLatin1String(text));
        network.settle();
        me.advance(1500ms);
        network.settle();
    }

    SimulatedSubnet network{QStringLiteral("192.168.1.")};
    Copy me{{.ip = QStringLiteral("192.168.1.5"), .host = QStringLiteral("HERE")}, &network};
    Copy ann{
        {.ip = QStringLiteral("192.168.1.20"), .host = QStringLiteral("PC-ANN"), .nickname = QStringLiteral("Ann")},
        &network};
    Copy ben{
        {.ip = QStringLiteral("192.168.1.30"), .host = QStringLiteral("PC-BEN"), .nickname = QStringLiteral("Ben")},
        &network};
    RecorderResolver resolver;
};

TEST_F(NetworkScanOnASubnet, ABroadcastReachesEverybodyAndEachOneIsAdded)
{
    scanFor("192.168.1.255");
    EXPECT_THAT(ann.names(), ElementsAre("Me"));
    EXPECT_THAT(ben.names(), ElementsAre("Me"));
    EXPECT_THAT(me.names(), ElementsAre("Ann", "Ben"));
    EXPECT_EQ(me.contact("192.168.1.20").presence, Presence::online);
    EXPECT_EQ(me.contact("192.168.1.30").workstation, QStringLiteral("PC-BEN"));
}

TEST_F(NetworkScanOnASubnet, TheOwnQuestionIsNotAnswered)
{
    scanFor("192.168.1.5");
    EXPECT_THAT(me.names(), IsEmpty());
    EXPECT_THAT(me.sent(), ElementsAre(To{"192.168.1.5", "?ONLINE 192.168.1.5 HERE Me"}));
}

} // namespace
} // namespace nimb::test
