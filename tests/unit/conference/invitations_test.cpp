#include "copy.h"

#include "base/limits.h"

namespace nimb
{
namespace
{

using test::Copy;
using test::CopySetup;
using test::To;
using testing::ElementsAre;
using testing::IsEmpty;

using namespace std::chrono_literals;

class InvitationsTest : public testing::Test
{
protected:
    InvitationsTest() { copy.settleStart({"10.0.0.2", "10.0.0.3"}); }

    Invitations &invitations() { return copy.engine.invitations(); }
    void invite(const char *ip, int number) { copy.arrive(ip, "?CONF INVITE #" + std::to_string(number)); }
    /// Key, picture and age of every row.
    std::vector<std::string> rows()
    {
        std::vector<std::string> list;
        InvitationList &model = invitations().list();
        for (int row = 0; row < model.rowCount(); ++row)
            list.push_back((model.index(row, 0).data(InvitationList::KeyRole).toString() + QLatin1Char(' ')
                            + model.index(row, 0).data(InvitationList::PictureRole).toString() + QLatin1Char(' ')
                            + model.index(row, InvitationList::Age).data().toString())
                               .toStdString());
        return list;
    }

    Copy copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(InvitationsTest, ARowSaysWhoInvitedAndWhen)
{
    invite("10.0.0.2", 3);
    InvitationList &model = invitations().list();
    EXPECT_EQ(model.index(0, InvitationList::Text).data().toString(),
              QStringLiteral("21/11/2026 14:05:10 - Ann invited you to a conference"));
    EXPECT_EQ(model.index(0, InvitationList::Arrived).data().toString(), QStringLiteral("21/11/2026 14:05:10"));
    EXPECT_EQ(model.index(0, InvitationList::Number).data().toString(), QStringLiteral("3"));
    EXPECT_EQ(model.index(0, 0).data(InvitationList::TagRole).toString(), QStringLiteral("10.0.0.2"));
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 0 minute(s)"));
    EXPECT_THAT(copy.invitationsView.shows, ElementsAre("without focus"));
    EXPECT_THAT(copy.sent(), IsEmpty()) << "nothing is answered at once";
}

TEST_F(InvitationsTest, ASecondOneOfTheSameKindReplacesTheFirst)
{
    invite("10.0.0.2", 3);
    invite("10.0.0.3", 3);
    copy.advance(60s);
    invite("10.0.0.2", 3);
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.3:3 green 1 minute(s)", "IP10.0.0.2:3 green 0 minute(s)"));
}

TEST_F(InvitationsTest, NumbersThatNoHostGivesAreDropped)
{
    for (const int number : {0, -1})
        invite("10.0.0.2", number);
    copy.arrive("10.0.0.2", "?CONF INVITE #40000");
    EXPECT_THAT(rows(), IsEmpty());
    invite("10.0.0.2", 32767);
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:32767 green 0 minute(s)"));
}

TEST_F(InvitationsTest, AcceptingOpensTheWindowAndAgrees)
{
    invite("10.0.0.2", 3);
    invitations().ConfAgreebtn_Click(0);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 AGREE")));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(copy.conferenceForms.views.size(), 1u);
    EXPECT_EQ(copy.invitationsView.shows.back(), "hidden") << "nothing is left to show";
}

TEST_F(InvitationsTest, AcceptingWithoutAFreeSlotKeepsItPending)
{
    for (int i = 0; i < 5; ++i)
        copy.engine.conferences().mnuCreateNewConf();
    invite("10.0.0.2", 3);
    invitations().ConfAgreebtn_Click(0);
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 0 minute(s)"));
}

TEST_F(InvitationsTest, AcceptingWhatOneIsInAlreadyRaisesItsWindow)
{
    invite("10.0.0.2", 3);
    invitations().ConfAgreebtn_Click(0);
    invite("10.0.0.2", 3);
    copy.sent();
    invitations().ConfAgreebtn_Click(0);
    EXPECT_EQ(copy.conferenceForms.views.size(), 1u);
    EXPECT_EQ(copy.conference(1).shows, 2);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 AGREE")));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(InvitationsTest, DenyingAnswersAndRemoves)
{
    invite("10.0.0.2", 3);
    invite("10.0.0.3", 1);
    invitations().ConfDenybtn_Click(0);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.3:1 green 0 minute(s)"));
    EXPECT_THAT(copy.invitationsView.shows, ElementsAre("without focus", "without focus"));
}

TEST_F(InvitationsTest, DenyingAllKeepsTheRowsUntilTheyAreCleared)
{
    invite("10.0.0.2", 3);
    invite("10.0.0.3", 1);
    invitations().ConfDenyAllbtn_Click();
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY"), To("10.0.0.3", "!CONF INVITE #1 DENY")));
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 red Refused", "IP10.0.0.3:1 red Refused"));
    invitations().ConfDenyAllbtn_Click();
    invitations().ConfAgreebtn_Click(0);
    EXPECT_THAT(copy.sent(), IsEmpty()) << "what is refused is not answered again";
    invite("10.0.0.2", 4);
    invitations().clearbtn_Click();
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:4 green 0 minute(s)"));
    EXPECT_NE(copy.invitationsView.shows.back(), "hidden");
    invitations().ConfDenyAllbtn_Click();
    invitations().clearbtn_Click();
    EXPECT_EQ(copy.invitationsView.shows.back(), "hidden");
}

TEST_F(InvitationsTest, AgesCountWholeMinutes)
{
    invite("10.0.0.2", 3);
    copy.advance(59s);
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 0 minute(s)"));
    copy.advance(61s);
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 2 minute(s)"));
    copy.advance(24h);
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 546 minute(s)")) << "seconds are kept in 16 bits";
}

TEST_F(InvitationsTest, AreRefusedAtTheLimitOfTheirAge)
{
    invitations().setAutorefuse(true);
    invitations().setAutorefuseMins(QStringLiteral("3"));
    invite("10.0.0.2", 3);
    copy.advance(179s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(5s);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 red Autorefused"));
    copy.advance(1h);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(InvitationsTest, ALimitOfZeroRefusesAtTheNextTick)
{
    invitations().setAutorefuse(true);
    invitations().setAutorefuseMins(QStringLiteral("0"));
    invite("10.0.0.2", 3);
    copy.advance(5s);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
}

TEST_F(InvitationsTest, AgeGivesNobodyAwayWhoIsInvisible)
{
    invitations().setAutorefuse(true);
    invitations().setAutorefuseMins(QStringLiteral("0"));
    copy.engine.ownState().choose(4);
    copy.sent();
    invite("10.0.0.2", 3);
    copy.advance(60s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 1 minute(s)"));
    copy.common.ownPresence.base = BaseState::online;
    copy.advance(5s);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
}

TEST_F(InvitationsTest, AgeThrowsNobodyOutOfAConference)
{
    invitations().setAutorefuse(true);
    invite("10.0.0.2", 3);
    invitations().ConfAgreebtn_Click(0);
    invite("10.0.0.2", 3);
    copy.sent();
    copy.advance(10min);
    EXPECT_THAT(copy.sent(), IsEmpty()) << "a refusal would end the conference that the user is in";
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 green 10 minute(s)"));
    copy.conference(1).conference.closed();
    copy.sent();
    copy.advance(5s);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF INVITE #3 DENY")));
}

TEST_F(InvitationsTest, NoTimerRunsWhileNothingIsPending)
{
    invite("10.0.0.2", 3);
    invitations().ConfDenyAllbtn_Click();
    copy.advance(5s);
    EXPECT_FALSE(copy.time->nextDue());
}

TEST_F(InvitationsTest, AClosedConferenceCannotBeJoined)
{
    invite("10.0.0.2", 3);
    copy.arrive("10.0.0.3", "!CONF CLOSE #3");
    EXPECT_TRUE(invitations().isPending(0)) << "only its host closes it";
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    EXPECT_THAT(rows(), ElementsAre("IP10.0.0.2:3 red Closed"));
    invitations().ConfAgreebtn_Click(0);
    EXPECT_THAT(copy.conferenceForms.views, IsEmpty());
}

TEST_F(InvitationsTest, TheMinutesAreANumberOfSixteenBits)
{
    EXPECT_EQ(invitations().setAutorefuseMins(QStringLiteral("abc")), QStringLiteral("0"));
    EXPECT_EQ(invitations().setAutorefuseMins(QStringLiteral("12abc")), QStringLiteral("12"));
    EXPECT_EQ(invitations().setAutorefuseMins(QStringLiteral("99999")), QStringLiteral("32767"));
    EXPECT_EQ(invitations().setAutorefuseMins(QStringLiteral("-99999")), QStringLiteral("-32768"));
    EXPECT_EQ(invitations().setAutorefuseMins(QStringLiteral("2.5")), QStringLiteral("2"));
}

TEST_F(InvitationsTest, TheirSettingsAreKept)
{
    EXPECT_FALSE(copy.invitationsView.autorefuse);
    EXPECT_EQ(copy.invitationsView.autorefuseMins, 5);
    invitations().setAutorefuse(true);
    invitations().setAutorefuseMins(QStringLiteral("7"));
    copy.engine.mainWindow().Form_Unload();
    EXPECT_EQ(copy.settings.value("Settings", "AutorefuseConf"), "1");
    EXPECT_EQ(copy.settings.value("Settings", "AutorefuseConfMins"), "7");
    Copy next(CopySetup{.settings = {{"Settings/AutorefuseConf", "1"}, {"Settings/AutorefuseConfMins", "7"}}});
    EXPECT_TRUE(next.invitationsView.autorefuse);
    EXPECT_EQ(next.invitationsView.autorefuseMins, 7);
}

TEST_F(InvitationsTest, RowsThatAreNotThereAreLeftAlone)
{
    for (const int row : {-1, 0, 7}) {
        invitations().ConfAgreebtn_Click(row);
        invitations().ConfDenybtn_Click(row);
    }
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(InvitationsTest, AFloodOfOneHostHasItsLimitAndKeepsNobodyElseOut)
{
    for (int number = 1; number <= 1000; ++number)
        invite("10.0.0.2", number);
    EXPECT_EQ(invitations().list().rowCount(), limits::invitationsOfHost);
    EXPECT_EQ(copy.drops.of(Drop::tooManyInvitations), 1000u - limits::invitationsOfHost);
    EXPECT_EQ(copy.drops.of(Drop::noConference), 0u);
    invite("10.0.0.3", 1);
    EXPECT_EQ(rows().back(), "IP10.0.0.3:1 green 0 minute(s)");
    invite("10.0.0.2", 7);
    EXPECT_EQ(rows().back(), "IP10.0.0.2:7 green 0 minute(s)") << "one that is renewed needs no room";
}

TEST_F(InvitationsTest, OnesThatAreOverMakeRoomForNewOnesOfTheirHost)
{
    for (int number = 1; number <= limits::invitationsOfHost; ++number)
        invite("10.0.0.2", number);
    copy.arrive("10.0.0.2", "!CONF CLOSE #4");
    copy.arrive("10.0.0.2", "!CONF CLOSE #9");
    invite("10.0.0.2", 900);
    invite("10.0.0.2", 901);
    invite("10.0.0.2", 902);
    EXPECT_EQ(invitations().list().rowCount(), limits::invitationsOfHost);
    EXPECT_LT(invitations().list().rowOf(Ipv4Address(10, 0, 0, 2), 4), 0);
    EXPECT_LT(invitations().list().rowOf(Ipv4Address(10, 0, 0, 2), 9), 0);
    EXPECT_GE(invitations().list().rowOf(Ipv4Address(10, 0, 0, 2), 901), 0);
    EXPECT_LT(invitations().list().rowOf(Ipv4Address(10, 0, 0, 2), 902), 0) << "all the others still wait";
}

TEST(Invitations, AFullListMakesRoomByWhatIsOverWhoeverSentIt)
{
    CopySetup setup;
    const auto hostAddress = [](int host) { return Ipv4Address(10, 0, 1, static_cast<std::uint8_t>(host)); };
    constexpr int hosts = limits::invitations / limits::invitationsOfHost + 1;
    for (int host = 0; host < hosts; ++host)
        setup.contacts.push_back({addressText(hostAddress(host)), QStringLiteral("Host")});
    Copy copy(setup);
    const auto invite = [&copy, &hostAddress](int host, int number) {
        return copy.engine.invitations().arrived(hostAddress(host), static_cast<std::int16_t>(number));
    };
    for (int host = 0; host < hosts - 1; ++host) {
        for (int number = 1; number <= limits::invitationsOfHost; ++number)
            EXPECT_TRUE(invite(host, number));
    }
    EXPECT_FALSE(invite(hosts - 1, 1));
    EXPECT_EQ(copy.engine.invitations().list().rowCount(), limits::invitations);
    copy.engine.invitations().closed(Ipv4Address(10, 0, 1, 3), 5);
    invite(hosts - 1, 1);
    EXPECT_EQ(copy.engine.invitations().list().rowCount(), limits::invitations);
    EXPECT_GE(copy.engine.invitations().list().rowOf(hostAddress(hosts - 1), 1), 0);
    EXPECT_LT(copy.engine.invitations().list().rowOf(Ipv4Address(10, 0, 1, 3), 5), 0);
}

} // namespace
} // namespace nimb
