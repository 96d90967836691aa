#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Announcement, AsksEveryContactInListOrderAndTellsTheFreshState)
{
    Copy copy({.contacts = {{"10.0.0.3", "Ben"}, {"10.0.0.2", "Ann"}}});
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"},
                            To{"10.0.0.3", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.3", "!STATUS Online"}));
    EXPECT_FALSE(copy.view.rescanEnabled);
    EXPECT_TRUE(copy.common.announcing);
}

/// Ann is reached through the first card of the machine, Zoe through the second one.
CopySetup onTwoNetworks()
{
    return {.contacts = {{"10.0.0.2", "Ann"}, {"10.2.0.2", "Zoe"}}, .loaded = false};
}

TEST(Announcement, EachContactIsToldTheAddressOfTheWayToIt)
{
    Copy copy(onTwoNetworks());
    copy.socket.ways[Ipv4Address(10, 2, 0, 2)] = Ipv4Address(10, 2, 0, 1);
    copy.engine.mainWindow().Form_Load();
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"},
                            To{"10.2.0.2", "?ONLINE 10.2.0.1 HERE Me"}, To{"10.2.0.2", "!STATUS Online"}));
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC-ANN Ann");
    copy.arrive("10.2.0.2", "?ONLINE 10.2.0.2 PC-ZOE Zoe");
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"},
                            To{"10.2.0.2", "!ONLINE 10.2.0.1 HERE Me"}, To{"10.2.0.2", "!STATUS Online"}));
    copy.engine.search().ask({{Ipv4Address(10, 2, 0, 2)}}, QStringLiteral("Zoe"));
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.2.0.2", "?ONLINE 10.2.0.1 HERE Me"}));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!OFFLINE 10.0.0.1 HERE Me"}, To{"10.2.0.2", "!OFFLINE 10.2.0.1 HERE Me"}));
}

TEST(Announcement, TheAddressOfAChosenCardIsToldToEverybody)
{
    Copy copy(onTwoNetworks());
    copy.socket.ways[Ipv4Address(10, 2, 0, 2)] = Ipv4Address(10, 2, 0, 1);
    copy.settings.put({{"Settings/OwnNetworkCard", QStringLiteral("eth0")}});
    copy.engine.mainWindow().Form_Load();
    EXPECT_THAT(copy.sent(), testing::Contains(To{"10.2.0.2", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST(Announcement, MarksOnlyTheSilentContactsOffline)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}});
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-ANN Ann");
    copy.advance(999ms);
    EXPECT_EQ(copy.contact("10.0.0.3").presence, Presence::unknown);
    EXPECT_TRUE(copy.common.announcing);
    copy.advance(1ms);
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::online);
    EXPECT_EQ(copy.contact("10.0.0.3").presence, Presence::offline);
    EXPECT_EQ(copy.contact("10.0.0.3").sortKey, QStringLiteral("C_BEN"));
    EXPECT_TRUE(copy.view.rescanEnabled);
    EXPECT_FALSE(copy.common.announcing);
    EXPECT_EQ(copy.view.menuRefreshes, 1);
}

TEST(Announcement, TurnsContactsYellowWithCapitalKeysAndEmptiesTheirState)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart({"10.0.0.2"});
    copy.arrive("10.0.0.2", "!STATUS BUSY");
    copy.announce();
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::unknown);
    EXPECT_EQ(copy.contact("10.0.0.2").sortKey, QStringLiteral("B_ANN"));
    EXPECT_EQ(copy.contact("10.0.0.2").state, QString());
}

TEST(Announcement, TheStateOnlineInCapitalsIsNotTold)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.engine.ownState().choose(1);
    copy.sent();
    copy.announce();
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}));
}

TEST(Announcement, APersonalisedTextIsTold)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.settleStart();
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::busy, QStringLiteral("In a meeting")));
    copy.announce();
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "?ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS BUSY In a meeting"}));
}

TEST(Announcement, RunningAgainStartsTheSecondOver)
{
    Copy copy({.contacts = {{"10.0.0.2", "Ann"}}});
    copy.advance(900ms);
    copy.announce();
    copy.advance(900ms);
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::unknown);
    copy.advance(100ms);
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::offline);
}

class LongAnnouncement : public testing::Test
{
protected:
    static CopySetup thousand()
    {
        CopySetup setup;
        for (int i = 0; i < 1000; ++i)
            setup.contacts.push_back({QStringLiteral("10.0.%1.%2").arg(i / 200 + 1).arg(i % 200 + 1),
                                      QStringLiteral("N%1").arg(i, 4, 10, QLatin1Char('0'))});
        return setup;
    }
    /// How many were sent since the last call.
    std::size_t questions()
    {
        const std::vector<To> sent = copy.sent();
        return static_cast<std::size_t>(
            std::ranges::count_if(sent, [](const To &one) { return one.bytes.starts_with("?ONLINE"); }));
    }

    Copy copy{thousand()};
};

TEST_F(LongAnnouncement, ReadsAnswersBetweenItsBatches)
{
    EXPECT_LT(copy.socket.sent.size(), 2000u);
    const QString first = QString::fromStdString(copy.socket.sent.front().ip);
    copy.arrive(first.toLatin1().constData(), "!ONLINE x PC N0000");
    copy.advance(3000ms);
    EXPECT_EQ(copy.sent().size(), 2000u);
    EXPECT_EQ(copy.engine.contacts().find(first)->presence, Presence::online);
    EXPECT_EQ(copy.engine.contacts().at(1).presence, Presence::offline);
    EXPECT_EQ(copy.engine.contacts().at(999).presence, Presence::offline);
}

TEST_F(LongAnnouncement, HasAtMost512QuestionsUnanswered)
{
    copy.advance(0ms);
    EXPECT_EQ(questions(), 512u);
    copy.advance(949ms);
    EXPECT_EQ(questions(), 0u);
    copy.advance(151ms);
    EXPECT_EQ(questions(), 488u) << "a second of silence frees a place";
    EXPECT_TRUE(copy.common.announcing);
    copy.advance(1000ms);
    EXPECT_FALSE(copy.common.announcing);
}

TEST_F(LongAnnouncement, AnAnswerMakesRoomForTheNextQuestionAtOnce)
{
    copy.advance(0ms);
    std::vector<To> asked = copy.sent();
    for (int round = 0; round < 4; ++round) {
        for (const To &one : asked) {
            if (one.bytes.starts_with("?ONLINE"))
                copy.arrive(one.ip.c_str(), "!ONLINE");
        }
        copy.advance(0ms);
        asked = copy.sent();
    }
    int unknown = 0, online = 0;
    for (int row = 0; row < 1000; ++row) {
        unknown += copy.engine.contacts().at(row).presence == Presence::unknown;
        online += copy.engine.contacts().at(row).presence == Presence::online;
    }
    EXPECT_EQ(unknown, 0);
    EXPECT_EQ(online, 1000) << "in no time";
}

TEST_F(LongAnnouncement, TurnsAContactYellowOnlyWithItsOwnQuestion)
{
    copy.advance(2000ms);
    copy.announce();
    int unknown = 0;
    for (int row = 0; row < 1000; ++row)
        unknown += copy.engine.contacts().at(row).presence == Presence::unknown;
    EXPECT_GT(unknown, 0);
    EXPECT_LT(unknown, 1000);
}

TEST_F(LongAnnouncement, EndsWhenItsUserBecomesInvisible)
{
    constexpr int invisible = 4; // counted from 1
    copy.advance(0ms);
    EXPECT_EQ(questions(), 512u);
    copy.engine.ownState().choose(invisible);
    copy.sent();
    copy.advance(999ms);
    EXPECT_TRUE(copy.common.announcing);
    copy.advance(1ms);
    EXPECT_FALSE(copy.common.announcing);
    copy.advance(10000ms);
    EXPECT_THAT(copy.sent(), testing::IsEmpty());
}

TEST_F(LongAnnouncement, SkipsContactsRemovedMeanwhileAndWaitsAfterTheLastQuestion)
{
    copy.engine.contacts().remove(QStringLiteral("10.0.5.200"));
    copy.advance(1000ms);
    for (const To &datagram : copy.sent())
        EXPECT_NE(datagram.ip, "10.0.5.200");
    EXPECT_TRUE(copy.common.announcing);
    copy.advance(999ms);
    EXPECT_TRUE(copy.common.announcing);
    copy.advance(1ms);
    EXPECT_FALSE(copy.common.announcing);
}

} // namespace
} // namespace nimb::test
