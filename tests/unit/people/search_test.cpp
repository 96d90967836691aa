#include "people/search.h"

#include "copy.h"
#include "simulated_subnet.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class SearchTest : public testing::Test
{
protected:
    SearchTest() { me.ownAddresses.broadcast = {everybody}; }

    Search &search() { return me.engine.search(); }
    void ask(Ipv4Address address) { search().ask({{address}}, addressText(address)); }
    void pass(std::chrono::milliseconds time)
    {
        for (; time > 0ms; time -= 100ms) {
            network.settle();
            me.advance(100ms);
        }
        network.settle();
    }
    void askNetwork()
    {
        std::vector<SearchTarget> targets;
        for (unsigned i = 0; i < 254; ++i)
            targets.push_back({Ipv4Address::of(Ipv4Address(10, 7, 0, 1).number() + i)});
        search().ask(targets, QStringLiteral("10.7.0.0/24"));
    }
    std::string lastLine() { return me.view.log.lines().back(); }

    const Ipv4Address everybody{10, 0, 0, 255};
    SimulatedSubnet network{QStringLiteral("10.0.0.")};
    Copy me{{.ip = QStringLiteral("10.0.0.1"), .host = QStringLiteral("HERE")}, &network};
    Copy ann{{.ip = QStringLiteral("10.0.0.2"), .host = QStringLiteral("PC-ANN"), .nickname = QStringLiteral("Ann")},
             &network};
    Copy ben{{.ip = QStringLiteral("10.0.0.3"), .host = QStringLiteral("PC-BEN"), .nickname = QStringLiteral("Ben")},
             &network};
};

TEST_F(SearchTest, ANewcomerFindsEverybodyWithOneSearch)
{
    ask(everybody);
    EXPECT_EQ(lastLine(), "--- asking 10.0.0.255 who is there ---");
    pass(2s);
    EXPECT_THAT(me.names(), ElementsAre("Ann", "Ben"));
    EXPECT_THAT(ann.names(), ElementsAre("Me"));
    EXPECT_THAT(
        me.sent(),
        ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}));
    pass(1s);
    EXPECT_EQ(lastLine(), "--- 2 answered: Ann, Ben; 2 new ---");
}

TEST_F(SearchTest, WhoAnswersTheFirstQuestionIsNotAskedAgain)
{
    ask(Ipv4Address(10, 0, 0, 2));
    pass(3s);
    EXPECT_THAT(me.names(), ElementsAre("Ann"));
    me.sent();
    ask(Ipv4Address(10, 0, 0, 2));
    pass(3s);
    EXPECT_THAT(me.sent(), ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}));
    EXPECT_EQ(lastLine(), "--- 1 answered: Ann; 0 new ---");
}

TEST_F(SearchTest, SilenceIsSaid)
{
    ask(Ipv4Address(10, 0, 0, 77));
    pass(2900ms);
    EXPECT_EQ(lastLine(), "--- asking 10.0.0.77 who is there ---");
    pass(100ms);
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
    EXPECT_THAT(me.sent(), SizeIs(2));
}

TEST_F(SearchTest, TheLineAboutSilenceNamesTheDoctorAndOpensIt)
{
    ask(Ipv4Address(10, 0, 0, 77));
    pass(3s);
    EXPECT_EQ(lastLine(),
              "--- nobody answered: nobody may be there, a firewall may be in the way, or the network may "
              "keep its machines apart; Help, Network doctor... looks which ---");
    std::vector<std::string> commands;
    for (const RecorderLog::Piece &piece : me.view.log.pieces) {
        if (!piece.command.isEmpty())
            commands.push_back(piece.text.toStdString() + ": " + piece.command.toStdString());
    }
    EXPECT_THAT(commands, ElementsAre("Help, Network doctor...: networkDoctor"));
}

TEST_F(SearchTest, OfTwoAddressesOnOneNetworkTheOwnOneAsks)
{
    me.ownAddresses.running = {{QStringLiteral("wlan0"), Ipv4Address(10, 0, 0, 9), everybody},
                               {QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), everybody},
                               {QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 8), everybody},
                               {QStringLiteral("eth1"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 0, 255)}};
    EXPECT_EQ(
        search().networks(),
        (std::vector<SearchedNetwork>{{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), everybody},
                                      {QStringLiteral("eth1"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 0, 255)}}));
}

TEST_F(SearchTest, NobodyIsAskedOnceTheProgramEnds)
{
    search().end();
    ask(Ipv4Address(10, 0, 0, 2));
    EXPECT_THAT(me.sent(), IsEmpty());
}

TEST_F(SearchTest, SomebodyElseWhoComesMeanwhileIsNoAnswer)
{
    ask(Ipv4Address(10, 0, 0, 77));
    me.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    pass(3s);
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
}

TEST_F(SearchTest, WhoComesWhenItIsOverIsNoAnswer)
{
    ask(Ipv4Address(10, 0, 0, 77));
    pass(3s);
    me.arrive("10.0.0.77", "?ONLINE 10.0.0.77 PC-LATE Late");
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
    ask(Ipv4Address(10, 0, 0, 78));
    pass(3s);
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
}

TEST_F(SearchTest, TwoSearchesAtATimeHaveTheirOwnAnswers)
{
    ask(Ipv4Address(10, 0, 0, 2));
    pass(500ms);
    ask(Ipv4Address(10, 0, 0, 77));
    pass(2500ms);
    EXPECT_EQ(lastLine(), "--- 1 answered: Ann; 1 new ---");
    pass(500ms);
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
}

TEST_F(SearchTest, AWholeNetworkIsAskedAHundredASecond)
{
    askNetwork();
    EXPECT_THAT(me.sent(), SizeIs(10));
    pass(900ms);
    EXPECT_THAT(me.sent(), SizeIs(90));
    pass(2600ms);
    EXPECT_THAT(me.sent(), SizeIs(154 + 254));
    EXPECT_EQ(lastLine(), "--- asking 10.7.0.0/24 who is there ---");
    pass(2000ms);
    EXPECT_THAT(lastLine(), StartsWith("--- nobody answered"));
    EXPECT_THAT(me.sent(), IsEmpty());
}

TEST_F(SearchTest, HowFarALongSearchHasComeIsShownUntilEverybodyHasBeenAskedTwice)
{
    ask(everybody);
    EXPECT_EQ(me.view.searchProgress, std::nullopt) << "one question is no work";
    askNetwork();
    EXPECT_EQ(me.view.searchProgress, (SearchProgress{10, 254}));
    pass(1s);
    EXPECT_EQ(me.view.searchProgress, (SearchProgress{110, 254}));
    pass(1500ms);
    EXPECT_EQ(me.view.searchProgress, (SearchProgress{254, 254}));
    pass(1s);
    EXPECT_EQ(me.view.searchProgress, std::nullopt);
}

TEST_F(SearchTest, ASearchThatIsStoppedAsksNobodyElse)
{
    askNetwork();
    pass(500ms);
    me.sent();
    search().stop();
    EXPECT_EQ(lastLine(), "--- stopped when 60 of 254 had been asked ---");
    EXPECT_EQ(me.view.searchProgress, std::nullopt);
    pass(5s);
    EXPECT_THAT(me.sent(), IsEmpty());
    EXPECT_EQ(lastLine(), "--- stopped when 60 of 254 had been asked ---");
}

TEST_F(SearchTest, WhoAnsweredBeforeTheSearchWasStoppedIsTold)
{
    askNetwork();
    me.arrive("10.7.0.3", "!ONLINE 10.7.0.3 PC Early");
    search().stop();
    EXPECT_EQ(lastLine(), "--- 1 answered: Early; 1 new ---");
}

TEST_F(SearchTest, StoppingLeavesShortSearchesAlone)
{
    ask(everybody);
    search().stop();
    pass(3s);
    EXPECT_EQ(lastLine(), "--- 2 answered: Ann, Ben; 2 new ---");
    const std::size_t lines = me.view.log.lines().size();
    search().stop();
    EXPECT_THAT(me.view.log.lines(), SizeIs(lines));
}

TEST_F(SearchTest, OfACrowdTheFirstTwentyAreNamed)
{
    ask(everybody);
    for (int i = 10; i < 35; ++i) {
        const std::string ip = "10.0.0." + std::to_string(i);
        me.arrive(ip.c_str(), "!ONLINE " + ip + " PC Guest" + std::to_string(i));
    }
    pass(3s);
    EXPECT_THAT(lastLine(), StartsWith("--- 27 answered: Guest10, Guest11, "));
    EXPECT_THAT(lastLine(), EndsWith(", Guest29, 7 more; 27 new ---"));
}

TEST_F(SearchTest, AQuestionThroughACardNamesItsAddressAndLeavesFromIt)
{
    const Ipv4Address card(192, 168, 7, 1);
    search().ask({{Ipv4Address(192, 168, 7, 255), card}}, QStringLiteral("192.168.7.255"));
    EXPECT_THAT(me.sent(), ElementsAre(To{"192.168.7.255", "?ONLINE 192.168.7.1 HERE Me"}));
    EXPECT_EQ(me.socket.sources.back(), card);
    ask(Ipv4Address(10, 0, 0, 77));
    EXPECT_EQ(me.socket.sources.back(), std::nullopt);
    EXPECT_FALSE(me.socket.broadcast);
}

TEST_F(SearchTest, EverybodyOnEveryNetworkIsAskedThroughItsCard)
{
    me.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)},
                               {QStringLiteral("wlan0"), Ipv4Address(172, 16, 3, 9), Ipv4Address(172, 16, 255, 255)}};
    me.socket.sources.clear();
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- asking everybody on 10.0.0.255 (eth0), 172.16.255.255 (wlan0) who is there ---");
    EXPECT_THAT(
        me.sent(),
        ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}, To{"172.16.255.255", "?ONLINE 172.16.3.9 HERE Me"}));
    EXPECT_THAT(me.socket.sources, ElementsAre(Ipv4Address(10, 0, 0, 1), Ipv4Address(172, 16, 3, 9)));
    pass(3s);
    EXPECT_EQ(lastLine(), "--- 2 answered: Ann, Ben; 2 new ---");
}

TEST_F(SearchTest, NobodyIsAskedWhereNobodyElseWouldHearOrTheFixedAddressDoesNotReach)
{
    me.ownAddresses.running = {{QStringLiteral("tun0"), Ipv4Address(10, 8, 0, 2)},
                               {QStringLiteral("wlan0"), Ipv4Address(172, 16, 3, 9), Ipv4Address(172, 16, 255, 255)},
                               {QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- asking everybody on 172.16.255.255 (wlan0), 10.0.0.255 (eth0) who is there ---");
    me.ownAddresses.fixed = true;
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- asking everybody on 10.0.0.255 (eth0) who is there ---");
}

TEST_F(SearchTest, WhereTheOwnAddressIsChosenItsNetworkAloneIsAsked)
{
    me.ownAddresses.running = {{QStringLiteral("wlan0"), Ipv4Address(172, 16, 3, 9), Ipv4Address(172, 16, 255, 255)},
                               {QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    me.common.ownCard = QStringLiteral("eth0");
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- asking everybody on 10.0.0.255 (eth0) who is there ---");
    me.common.ownCard = QStringLiteral("eth9");
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- asking everybody on 172.16.255.255 (wlan0), 10.0.0.255 (eth0) who is there ---");
}

TEST_F(SearchTest, WhoIsBusyIsFoundBusy)
{
    me.common.ownPresence.base = BaseState::busy;
    ask(everybody);
    EXPECT_THAT(me.sent(), ElementsAre(To{"10.0.0.255", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.255", "!STATUS BUSY"}));
    pass(2s);
    EXPECT_EQ(ann.contact("10.0.0.1").presence, Presence::busy);
}

TEST_F(SearchTest, WhoIsInvisibleAsksNobodyByThatClick)
{
    me.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), everybody}};
    me.common.ownPresence.base = BaseState::invisible;
    search().findEverybody();
    EXPECT_EQ(lastLine(),
              "--- nobody was asked: you are invisible, and the question would show everybody that you are "
              "there ---");
    EXPECT_THAT(me.sent(), IsEmpty());
}

TEST_F(SearchTest, WhoBecomesInvisibleMeanwhileAsksNobodyAnyMore)
{
    ask(everybody);
    pass(500ms);
    me.sent();
    me.common.ownPresence.base = BaseState::invisible;
    pass(4s);
    EXPECT_THAT(me.sent(), IsEmpty());
    EXPECT_EQ(lastLine(), "--- nobody is asked any more: you are invisible ---");
}

TEST_F(SearchTest, AProgramThatEndsAsksNobodyAnyMore)
{
    askNetwork();
    me.engine.mainWindow().Form_Unload();
    me.sent();
    EXPECT_EQ(me.view.searchProgress, std::nullopt);
    pass(4s);
    EXPECT_THAT(me.sent(), IsEmpty());
}

TEST_F(SearchTest, AScanOfWhoIsInvisibleTellsNoState)
{
    me.common.ownPresence.base = BaseState::invisible;
    ask(Ipv4Address(10, 0, 0, 2));
    pass(2s);
    EXPECT_THAT(me.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(SearchTest, WithoutACardNobodyCanBeAsked)
{
    me.ownAddresses.running.clear();
    search().findEverybody();
    EXPECT_EQ(lastLine(), "--- nobody can be asked: no network is connected ---");
    EXPECT_THAT(me.sent(), IsEmpty());
}

TEST_F(SearchTest, ACopyOfTheLoopbackNetworkAsksThatOne)
{
    Copy here{{.ip = QStringLiteral("127.0.3.1"), .host = QStringLiteral("HERE")}};
    here.engine.search().findEverybody();
    EXPECT_EQ(here.view.log.lines().back(), "--- asking everybody on 127.255.255.255 (this computer) who is there ---");
    EXPECT_THAT(here.sent(), ElementsAre(To{"127.255.255.255", "?ONLINE 127.0.3.1 HERE Me"}));
}

TEST_F(SearchTest, WhereNoNetworkIsConnectedThatIsWhyNobodyAnswers)
{
    Copy here{{.ip = QStringLiteral("127.0.0.1"), .host = QStringLiteral("HERE")}};
    here.engine.search().findEverybody();
    for (int tick = 0; tick < 40; ++tick)
        here.advance(100ms);
    EXPECT_EQ(here.view.log.lines().back(),
              "--- nobody answered: no network is connected, so only this computer was asked ---");
}

TEST_F(SearchTest, ANetworkToWhichNoWayLeadsIsSaidAtOnce)
{
    me.ownAddresses.unreachable = {Ipv4Address(172, 16, 0, 9)};
    ask(Ipv4Address(172, 16, 0, 9));
    EXPECT_EQ(lastLine(), "No network of this computer leads to 172.16.0.9, so nobody was asked.");
    pass(4s);
    EXPECT_THAT(me.sent(), IsEmpty());
    EXPECT_EQ(lastLine(), "No network of this computer leads to 172.16.0.9, so nobody was asked.");
    search().ask({{Ipv4Address(172, 16, 0, 9)}, {Ipv4Address(10, 0, 0, 2)}}, QStringLiteral("two"));
    EXPECT_EQ(lastLine(), "--- asking two who is there ---") << "one of them can be reached";
}

TEST_F(SearchTest, NobodyToAskIsNoSearch)
{
    const std::size_t lines = me.view.log.lines().size();
    search().ask({}, QStringLiteral("nobody"));
    pass(4s);
    EXPECT_THAT(me.view.log.lines(), SizeIs(lines));
    EXPECT_THAT(me.sent(), IsEmpty());
}

} // namespace
} // namespace nimb::test
