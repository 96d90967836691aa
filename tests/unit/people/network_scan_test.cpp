#include "people/network_scan.h"

#include "copy.h"
#include "dialog_recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

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
    EXPECT_THAT(shown.lines(), IsEmpty());
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

TEST_F(NetworkScanTest, AnEmptyTextDoesNothing)
{
    click("");
    click("   ");
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

class NoDottedAddress : public NetworkScanTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(NoDottedAddress, IsTakenForAName)
{
    click(GetParam());
    EXPECT_THAT(socket.sent, IsEmpty());
    EXPECT_THAT(resolver.names, ElementsAre(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(NetworkScan, NoDottedAddress,
                         testing::Values("PC-ANN", "192.168.1", "192.168.1.1.1", "192.168.1.256", "192.168.1.",
                                         "192.168.1.-1", "192.168.1.+1", "192.168.1.0001", "192.168. 1.1", "1.2.3.x",
                                         "0x7f.0.0.1", "::1", "fe80::1", "\xD9\xA1.2.3.4", "$(reboot)"));

TEST_F(NetworkScanTest, ANameIsAskedWhenItsAddressIsFound)
{
    click("PC-ANN");
    EXPECT_THAT(socket.sent, IsEmpty());
    resolver.answer(0, Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(shown.lines(), IsEmpty());
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
    resolver.answer(0, std::nullopt);
    EXPECT_THAT(shown.lines(),
                ElementsAre("No address was found for \"a b" + std::string(252, 'x') + "\", so nobody was asked."));
}

TEST_F(NetworkScanTest, AnAnswerFindsItsWayWhenTheScanIsGone)
{
    {
        NetworkScan passing(common, sender, resolver, log);
        passing.Command1_Click(QStringLiteral("PC-ANN"));
        passing.Command1_Click(QStringLiteral("PC-BEN"));
    }
    resolver.answer(1, std::nullopt);
    resolver.answer(0, Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(socket.sent, ElementsAre(To{"10.0.0.2", "?ONLINE 192.168.1.5 HERE Me"}));
    EXPECT_THAT(shown.lines(), ElementsAre("No address was found for \"PC-BEN\", so nobody was asked."));
}

TEST_F(NetworkScanTest, AQuestionThatCannotBeSentIsNotReported)
{
    SimulatedWinsock unbound(QStringLiteral("192.168.1.5"), QStringLiteral("HERE"), nullptr);
    const PresenceSender mute(common, unbound);
    NetworkScan(common, mute, resolver, log).Command1_Click(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(unbound.sent, IsEmpty());
    EXPECT_THAT(shown.lines(), IsEmpty());
}

// --- whole copies on one subnet

/// Delivers what goes to 192.168.1.255 to everybody there, its sender included.
class Subnet : public SimulatedNetwork
{
public:
    void send(const QString &from, const QString &to, const std::string &bytes) override
    {
        if (to != QLatin1String("192.168.1.255")) {
            SimulatedNetwork::send(from, to, bytes);
            return;
        }
        for (int last = 1; last < 255; ++last)
            SimulatedNetwork::send(from, QStringLiteral("192.168.1.%1").arg(last), bytes);
    }
};

class NetworkScanOnASubnet : public testing::Test
{
protected:
    void scanFor(const char *text)
    {
        NetworkScan(me.common, sender, resolver, me.engine.log()).Command1_Click(QLatin1String(text));
        network.settle();
    }

    Subnet network;
    Copy me{{.ip = QStringLiteral("192.168.1.5"), .host = QStringLiteral("HERE")}, &network};
    Copy ann{
        {.ip = QStringLiteral("192.168.1.20"), .host = QStringLiteral("PC-ANN"), .nickname = QStringLiteral("Ann")},
        &network};
    Copy ben{
        {.ip = QStringLiteral("192.168.1.30"), .host = QStringLiteral("PC-BEN"), .nickname = QStringLiteral("Ben")},
        &network};
    PresenceSender sender{me.common, me.socket};
    RecorderResolver resolver;
};

TEST_F(NetworkScanOnASubnet, ABroadcastReachesEverybodyAndWhoKnowsUsAnswersAndIsAdded)
{
    scanFor("192.168.1.255");
    // Whoever has not heard of us before takes note of us and keeps silent.
    EXPECT_THAT(ann.names(), ElementsAre("Me"));
    EXPECT_THAT(ben.names(), ElementsAre("Me"));
    EXPECT_THAT(me.names(), IsEmpty());

    scanFor("192.168.1.255");
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
