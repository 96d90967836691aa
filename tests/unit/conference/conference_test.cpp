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
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using namespace std::chrono_literals;

/// Ann, Ben and Cleo are online.
class ConferenceTest : public testing::Test
{
protected:
    ConferenceTest() { copy.settleStart({"10.0.0.2", "10.0.0.3", "10.0.0.4"}); }

    ConferenceTable &table() { return copy.engine.conferences(); }
    /// Opens a hosted conference and lets these agree to come.
    Conference &host(const std::vector<const char *> &guests = {})
    {
        table().mnuCreateNewConf();
        Conference &conference = copy.conferenceForms.views.back()->conference;
        for (const char *guest : guests) {
            table().mnuInvite2Conf(conference.identity().fConfN, QString::fromLatin1(guest));
            copy.arrive(guest, "!CONF INVITE #" + std::to_string(conference.identity().ConfNum) + " AGREE");
        }
        copy.sent();
        return conference;
    }
    /// Joins Ann's conference of this number.
    Conference &join(int number = 3)
    {
        copy.arrive("10.0.0.2", "?CONF INVITE #" + std::to_string(number));
        copy.engine.invitations().ConfAgreebtn_Click(copy.engine.invitations().list().rowCount() - 1);
        copy.sent();
        return copy.conferenceForms.views.back()->conference;
    }
    test::RecorderConferenceView &view(std::size_t window = 1) { return copy.conference(window); }
    std::vector<std::string> lines(std::size_t window = 1)
    {
        std::vector<std::string> all = view(window).log.lines();
        all.erase(all.begin()); // the opening line
        return all;
    }
    static std::vector<std::string> rows(Conference &conference)
    {
        std::vector<std::string> list;
        for (const Participant &one : conference.partecipanti().rows())
            list.push_back(one.name.toStdString() + (one.present ? " green" : " blue"));
        return list;
    }

    Copy copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"10.0.0.4", "Cleo"}}}};
};

// --- the window table

TEST_F(ConferenceTest, AHostedOneTakesTheFirstFreeSlot)
{
    Conference &first = host();
    EXPECT_EQ(first.identity().fConfN, 1);
    EXPECT_EQ(first.identity().ConfNum, 1);
    EXPECT_EQ(first.identity().ConfServerIP, Ipv4Address(10, 0, 0, 1));
    EXPECT_TRUE(first.isHostedHere());
    EXPECT_EQ(view().caption, QStringLiteral("Conference #1 (Hosted here) - NIMB-Chat"));
    EXPECT_THAT(view().log.lines(), ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:10] Conference #1 Ready »"));
    EXPECT_EQ(view().log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_THAT(rows(first), ElementsAre("Me (you) green"));
    EXPECT_EQ(view().shows, 1);
    EXPECT_TRUE(copy.view.invitable[1]);
}

TEST_F(ConferenceTest, FiveAreTheMostThatThereCanBe)
{
    for (int i = 0; i < 5; ++i)
        table().mnuCreateNewConf();
    EXPECT_THAT(copy.prompts.told, IsEmpty());
    table().mnuCreateNewConf();
    EXPECT_THAT(copy.prompts.told, ElementsAre("NIMB-Chat: Sorry, conf windows are over!!!"));
    EXPECT_THAT(copy.conferenceForms.views, SizeIs(5));
    view(2).conference.closed();
    EXPECT_FALSE(copy.view.invitable[2]);
    table().mnuCreateNewConf();
    EXPECT_EQ(view(6).conference.identity().fConfN, 2) << "the freed slot";
    EXPECT_TRUE(copy.view.invitable[2]);
}

TEST_F(ConferenceTest, AJoinedOneShowsItsSlotAndSendsItsHostsNumber)
{
    Conference &conference = join(3);
    EXPECT_EQ(view().caption, QStringLiteral("Conference #1 (Hosted by 'Ann') - NIMB-Chat"));
    EXPECT_THAT(view().log.lines().front(), HasSubstr("Conference #1 Ready"));
    EXPECT_FALSE(copy.view.invitable[1]) << "nobody is invited to another's conference";
    EXPECT_TRUE(conference.send(QStringLiteral("hello")));
    conference.refreshlistbtn_Click();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.1 #3 hello"), To("10.0.0.2", "?CONF USERS #3")));
    conference.closed();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF LEAVE #3")));
}

TEST_F(ConferenceTest, LeaveIsTakenOfAllWhenTheScreenHasGone)
{
    host({"10.0.0.2"});
    join(3);
    copy.sent();
    copy.engine.conferences().takeLeave();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF CLOSE #1"), To("10.0.0.2", "!CONF LEAVE #3")));
}

// --- inviting

TEST_F(ConferenceTest, AnInvitedContactIsBlueUntilItAnswers)
{
    Conference &conference = host();
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?CONF INVITE #1")));
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann blue"));
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann blue")) << "one row, however often invited";
    copy.sent();
    copy.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green"));
    EXPECT_THAT(lines(), ElementsAre("--- Ann joined the conference"));
    EXPECT_EQ(view().log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "!CONF USERS #1 10.0.0.1 10.0.0.2"), To("10.0.0.2", "?AVATARHEAD")));
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green"));
}

TEST_F(ConferenceTest, WhoseAvatarIsKnownIsNotAskedForIt)
{
    copy.arrive("10.0.0.2", "!AVATARHEAD today");
    host();
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    copy.sent();
    copy.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF USERS #1 10.0.0.1 10.0.0.2")));
}

TEST_F(ConferenceTest, ARefusalRemovesTheRow)
{
    for (const char *answer : {" DENY", " MAYBE", " agree", ""}) {
        Conference &conference = host();
        table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
        copy.arrive("10.0.0.2", std::string("!CONF INVITE #1") + answer);
        EXPECT_THAT(rows(conference), ElementsAre("Me (you) green")) << answer;
        EXPECT_EQ(lines(copy.conferenceForms.views.size()).back(), "--- Ann refused to partecipate to conf") << answer;
        conference.closed();
    }
}

TEST_F(ConferenceTest, ARefusalOfSomebodyWhoIsPresentRemovesTheRowToo)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.2", "!CONF INVITE #1 DENY");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ben green"));
    EXPECT_EQ(lines().back(), "--- Ann refused to partecipate to conf");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF CLOSE #1"))) << "a window of hers would hear nobody";
    EXPECT_TRUE(conference.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "+10.0.0.1 #1 hello")));
}

TEST_F(ConferenceTest, OnlyTheInvitedAnswer)
{
    Conference &conference = host({"10.0.0.2"});
    copy.arrive("10.0.0.3", "!CONF INVITE #1 AGREE");
    copy.arrive("10.0.0.3", "!CONF INVITE #1 DENY");
    copy.arrive("10.0.0.2", "!CONF INVITE #2 AGREE");
    copy.arrive("10.0.0.2", "!CONF INVITE #6 AGREE");
    copy.arrive("10.0.0.2", "!CONF INVITE #0 AGREE");
    copy.arrive("10.0.0.2", "!CONF INVITE #-1 AGREE");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green"));
    EXPECT_THAT(lines(), ElementsAre("--- Ann joined the conference"));
    // Whoever agrees to what does not stand any more is told that it is over; numbers that nobody gives get no answer.
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.3", "!CONF CLOSE #1"), To("10.0.0.2", "!CONF CLOSE #2"),
                            To("10.0.0.2", "!CONF CLOSE #6")));
    EXPECT_EQ(copy.drops.of(Drop::noConference) + copy.drops.of(Drop::incomplete), 6u);
}

TEST_F(ConferenceTest, AgreeingAgainBringsTheListAlone)
{
    host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF USERS #1 10.0.0.1 10.0.0.2 10.0.0.3")));
    EXPECT_THAT(lines(), SizeIs(2));
}

TEST_F(ConferenceTest, TheOwnRowKeepsItsNameWhateverAContactWithTheOwnAddressIsCalled)
{
    Contact self;
    self.ip = QStringLiteral("10.0.0.1");
    self.nickname = QStringLiteral("My old self");
    copy.engine.contacts().add(self);
    Conference &conference = host();
    copy.arrive("10.0.0.1", "!ONLINE 10.0.0.1 PC Myself");
    ASSERT_EQ(copy.contact("10.0.0.1").nickname, QStringLiteral("Myself"));
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green"));
}

TEST_F(ConferenceTest, WhoHasATextInPlaceOfAnAddressIsListedAndSentNothing)
{
    Contact fred;
    fred.ip = QStringLiteral("somewhere");
    fred.nickname = QStringLiteral("Fred");
    copy.engine.contacts().add(fred);
    Conference &conference = host();
    table().mnuInvite2Conf(1, QStringLiteral("somewhere"));
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Fred blue"));
    conference.kickuserbtn_Click(QStringLiteral("somewhere"));
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green"));
}

// --- colours

TEST_F(ConferenceTest, EverybodyGetsTheLowestFreeColour)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    const auto colour = [&](const char *ip) { return conference.partecipanti().find(QString::fromLatin1(ip))->colour; };
    EXPECT_EQ(colour("10.0.0.2"), 0xC00000u);
    EXPECT_EQ(colour("10.0.0.3"), 0x008000u);
    copy.arrive("10.0.0.2", "!CONF LEAVE #1");
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.4"));
    copy.arrive("10.0.0.4", "!CONF INVITE #1 AGREE");
    EXPECT_EQ(colour("10.0.0.4"), 0xC00000u);
    EXPECT_EQ(colour("10.0.0.3"), 0x008000u) << "colours are kept";
}

TEST(ParticipantColours, GoRoundOnceAllAreTaken)
{
    Participants participants;
    for (int i = 0; i < 11; ++i) {
        const QString ip = QStringLiteral("10.0.0.%1").arg(i);
        participants.add({.ip = ip, .name = ip});
        participants.setPresent(ip);
    }
    EXPECT_EQ(participants.rows()[7].colour, 0x008080u);
    EXPECT_EQ(participants.rows()[8].colour, 0xC00000u);
    EXPECT_EQ(participants.rows()[9].colour, 0x008000u);
    EXPECT_EQ(participants.rows()[10].colour, 0x0000FFu);
}

// --- talking, at the host

TEST_F(ConferenceTest, TheHostSendsToEveryGuestThatIsPresent)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.4"));
    copy.sent();
    EXPECT_TRUE(conference.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.1 #1 hello"), To("10.0.0.3", "+10.0.0.1 #1 hello")));
    EXPECT_EQ(lines().back(), "Me> hello");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0x123456u);
}

TEST_F(ConferenceTest, AGuestsMessageIsRelayedToTheOthersAlone)
{
    host({"10.0.0.2", "10.0.0.3", "10.0.0.4"});
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 hello :)");
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "+10.0.0.3 #1 hello :)"), To("10.0.0.4", "+10.0.0.3 #1 hello :)")));
    EXPECT_EQ(lines().back(), "Ben> hello :)");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0x008000u);
    EXPECT_EQ(view().lastMessage, QStringLiteral("Last message: 21/11/2026 @ 14:05:10"));
}

TEST_F(ConferenceTest, AMessageWithTheHostsAddressIsOfTheOneWhoSentIt)
{
    host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.3", "+10.0.0.1 #1 with the host's address");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.3 #1 with the host's address")));
    EXPECT_EQ(lines().back(), "Ben> with the host's address");
}

TEST_F(ConferenceTest, AGuestMayKnowItselfByAnotherAddress)
{
    host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.3", "+192.168.7.3 #1 from a computer with two addresses");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.3 #1 from a computer with two addresses")));
    EXPECT_EQ(lines().back(), "Ben> from a computer with two addresses");
    const std::size_t before = lines().size();
    copy.arrive("10.0.0.4", "+192.168.7.4 #1 from somebody who does not take part");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(lines(), SizeIs(before));
}

TEST_F(ConferenceTest, WhatAnotherHostRelaysIsNotRelayedOn)
{
    host({"10.0.0.2", "10.0.0.3"});
    const std::size_t before = lines().size();
    copy.arrive("10.0.0.3", "+10.0.0.2 #1 of one of Ben's guests");
    copy.arrive("10.0.0.3", "+10.0.0.4 #1 of a contact of ours");
    copy.engine.contacts().remove(QStringLiteral("10.0.0.2"));
    copy.arrive("10.0.0.3", "+10.0.0.2 #1 of one whom only the conference knows");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "hosts that take each other for guests would never end";
    EXPECT_THAT(lines(), SizeIs(before));
}

TEST_F(ConferenceTest, WhatAHostRelaysWhoMayStillTakeUsForAGuestIsNotRelayedOn)
{
    host({"10.0.0.2", "10.0.0.3"});
    join(1);
    view(2).conference.closed();
    copy.sent();
    const std::size_t before = lines().size();
    copy.arrive("10.0.0.2", "+10.0.0.77 #1 of a guest of Ann's, who has not heard the farewell");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(lines(), SizeIs(before));
    copy.arrive("10.0.0.2", "!CONF CLOSE #1");
    copy.arrive("10.0.0.2", "+192.168.7.2 #1 by myself");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "+10.0.0.2 #1 by myself")));
    EXPECT_EQ(lines().back(), "Ann> by myself");
}

TEST_F(ConferenceTest, WhoHostsAnotherNumberMayKnowItselfByAnotherAddress)
{
    host({"10.0.0.2"});
    join(2);
    copy.arrive("10.0.0.2", "+192.168.7.2 #1 by myself");
    EXPECT_EQ(lines().back(), "Ann> by myself");
}

TEST_F(ConferenceTest, WhoIsInvitedAnewDoesNotLeaveByClosingTheOldWindow)
{
    Conference &conference = host({"10.0.0.2"});
    conference.kickuserbtn_Click(QStringLiteral("10.0.0.2"));
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.2"));
    copy.arrive("10.0.0.2", "!CONF LEAVE #1");
    copy.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green"));
}

TEST_F(ConferenceTest, WhoIsNotPresentIsNeitherShownNorRelayed)
{
    host({"10.0.0.2"});
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.3"));
    copy.sent();
    const std::size_t before = lines().size();
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 only invited");
    copy.arrive("10.0.0.4", "+10.0.0.4 #1 not even that");
    copy.arrive("10.0.0.2", "+10.0.0.2 #2 no such conference");
    copy.arrive("10.0.0.2", "+10.0.0.2 #7 no such slot");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(lines(), SizeIs(before));
    EXPECT_EQ(copy.drops.of(Drop::noConference), 4u);
}

TEST_F(ConferenceTest, BlanksAndBreaksAroundAMessageGo)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    EXPECT_TRUE(conference.send(QStringLiteral("  hello\r\nthere \r\n ")));
    EXPECT_EQ(copy.sent().front(), To("10.0.0.2", "+10.0.0.1 #1 hello\r\nthere"));
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 \r\n hi \r\n");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "+10.0.0.2 #1 hi")));
    EXPECT_EQ(lines().back(), "Ann> hi");
    EXPECT_FALSE(conference.send(QString()));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(ConferenceTest, AMessageIsCutToTwoThousandCharacters)
{
    Conference &conference = host({"10.0.0.2"});
    EXPECT_TRUE(conference.send(QString(2500, u'x')));
    EXPECT_EQ(copy.sent().front(), To("10.0.0.2", "+10.0.0.1 #1 " + std::string(2000, 'x')));
}

// --- talking, as a guest

TEST_F(ConferenceTest, AGuestTalksToTheHostAlone)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 10.0.0.3");
    copy.sent();
    EXPECT_TRUE(conference.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.1 #3 hello")));
    copy.arrive("10.0.0.2", "+10.0.0.3 #3 hi");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "a guest relays nothing";
    EXPECT_EQ(lines().back(), "Ben> hi");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0x008000u);
}

TEST_F(ConferenceTest, AMessageOfAnUnlistedOneIsShownInGrey)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "+10.0.0.4 #3 known to me");
    EXPECT_EQ(lines().back(), "Cleo> known to me");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0x808080u);
    copy.arrive("10.0.0.2", "+10.0.0.99 #3 not even known");
    EXPECT_EQ(lines().back(), "10.0.0.99> not even known");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green"));
    EXPECT_FALSE(copy.knows("10.0.0.99"));
}

TEST_F(ConferenceTest, MessagesOfAJoinedOneComeFromItsHostAlone)
{
    join(3);
    copy.arrive("10.0.0.3", "+10.0.0.3 #3 not the host");
    copy.arrive("10.0.0.2", "+10.0.0.3 #4 another number");
    copy.arrive("10.0.0.2", "+10.0.0.1 #3 my own words");
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ConferenceTest, ANumberThatIsHostedAndJoinedGoesToTheJoinedOneOfItsHost)
{
    host({"10.0.0.2", "10.0.0.3"});
    join(1);
    copy.arrive("10.0.0.2", "+10.0.0.3 #1 relayed by Ann");
    EXPECT_EQ(lines(2).back(), "Ben> relayed by Ann");
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 sent to me");
    EXPECT_EQ(lines(1).back(), "Ben> sent to me");
    copy.sent();
    copy.arrive("10.0.0.2", "+10.0.0.1 #1 to my own conference");
    EXPECT_EQ(lines(1).back(), "Ann> to my own conference");
}

// --- lists

TEST_F(ConferenceTest, AListAddsAndRemovesParticipants)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 10.0.0.3");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    EXPECT_THAT(lines(), ElementsAre("--- Ann joined the conference", "--- Ben joined the conference"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD"), To("10.0.0.3", "?AVATARHEAD")));
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 10.0.0.4");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Cleo green"));
    EXPECT_EQ(lines().back(), "--- Ben left the conference.");
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 10.0.0.4");
    EXPECT_THAT(lines(), SizeIs(4)) << "the same list changes nothing";
}

TEST_F(ConferenceTest, AnUnknownParticipantBecomesAContactAndIsGreeted)
{
    Conference &conference = join(3);
    copy.engine.ownState().choose(2);
    copy.sent();
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.99");
    ASSERT_TRUE(copy.knows("10.0.0.99"));
    EXPECT_EQ(copy.contact("10.0.0.99").nickname, QStringLiteral("(unknown)"));
    EXPECT_EQ(copy.contact("10.0.0.99").presence, Presence::online);
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "?AVATARHEAD"), To("10.0.0.99", "?ONLINE 10.0.0.1 HERE Me"),
                            To("10.0.0.99", "!STATUS BUSY"), To("10.0.0.99", "?AVATARHEAD")));
    copy.arrive("10.0.0.99", "!ONLINE 10.0.0.99 PC Zoe");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Zoe green"));
}

TEST_F(ConferenceTest, WhoIsInvisibleTellsNoUnknownParticipantSo)
{
    Conference &conference = join(3);
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.99");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "(unknown) green"));
    EXPECT_TRUE(copy.knows("10.0.0.99"));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(ConferenceTest, WhoIsInvisibleDoesNotAnswerThoseWhoTakeAnInvitationThatIsNoMore)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.3", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.engine.ownState().choose(1);
    copy.sent();
    copy.arrive("10.0.0.3", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "!CONF CLOSE #1")));
}

TEST_F(ConferenceTest, WhoIsInvisibleLetsGuestsInAndAsksThemNothing)
{
    copy.engine.ownState().choose(4);
    host();
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.3"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "?CONF INVITE #1")));
    copy.arrive("10.0.0.3", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "!CONF USERS #1 10.0.0.1 10.0.0.3")));
}

TEST_F(ConferenceTest, ListsAreTakenFromTheHostAlone)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.3", "!CONF USERS #3 10.0.0.3 10.0.0.77");
    copy.arrive("10.0.0.2", "!CONF USERS #4 10.0.0.2 10.0.0.77");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green"));
    EXPECT_FALSE(copy.knows("10.0.0.77"));
    Conference &hosted = host({"10.0.0.3"});
    copy.arrive("10.0.0.3", "!CONF USERS #2 10.0.0.3 10.0.0.77");
    EXPECT_THAT(rows(hosted), ElementsAre("Me (you) green", "Ben green"));
}

TEST_F(ConferenceTest, AGuestGetsTheListOnceASecond)
{
    host({"10.0.0.2", "10.0.0.3"});
    const To list("10.0.0.2", "!CONF USERS #1 10.0.0.1 10.0.0.2 10.0.0.3");
    for (int i = 0; i < 10; ++i)
        copy.arrive("10.0.0.2", "?CONF USERS #1");
    copy.arrive("10.0.0.2", "!CONF INVITE #1 AGREE");
    EXPECT_THAT(copy.sent(), ElementsAre(list));
    EXPECT_EQ(copy.drops.of(Drop::tooOften), 9u);
    copy.arrive("10.0.0.3", "?CONF USERS #1");
    EXPECT_THAT(copy.sent(), SizeIs(1)) << "others are not concerned";
    copy.advance(999ms);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(1ms);
    EXPECT_THAT(copy.sent(), ElementsAre(list)) << "one of the further questions waited";
    copy.advance(10s);
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.arrive("10.0.0.2", "?CONF USERS #1");
    EXPECT_THAT(copy.sent(), ElementsAre(list));
}

TEST_F(ConferenceTest, WhoLeftWhileItsQuestionForTheListWaitedGetsNone)
{
    host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.2", "?CONF USERS #1");
    copy.arrive("10.0.0.2", "?CONF USERS #1");
    copy.arrive("10.0.0.2", "!CONF LEAVE #1");
    copy.sent();
    copy.advance(2s);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

class FloodOfLists : public ConferenceTest
{
protected:
    /// A list in which Ann has one other guest.
    void list(const std::string &guest) { copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 " + guest); }
    /// As many lists as Ann may send at once; the last one names Ben.
    void spendAll()
    {
        for (int i = 0; i < limits::listsAtOnce; ++i)
            list("10.0.0.3");
    }
};

TEST_F(FloodOfLists, OfTheListsBeyondThoseTakenAtOnceTheLastCountsASecondLater)
{
    Conference &conference = join(3);
    spendAll();
    for (int i = 5; i < 50; ++i)
        list("10.0.0." + std::to_string(i));
    list("10.0.0.4");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    EXPECT_EQ(copy.drops.of(Drop::tooOften), 45u);
    copy.advance(1s);
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Cleo green"));
    EXPECT_FALSE(copy.knows("10.0.0.5"));
    list("10.0.0.3");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Cleo green"));
    copy.advance(1s);
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
}

TEST_F(FloodOfLists, AHostEarnsOneListASecondUntilItHasThemAll)
{
    Conference &conference = join(3);
    spendAll();
    copy.advance(2s);
    list("10.0.0.4");
    list("10.0.0.3");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    list("10.0.0.4");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    copy.advance(std::chrono::seconds(1000));
    spendAll();
    list("10.0.0.4");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
}

TEST_F(FloodOfLists, NothingIsKeptOfAHostThatMaySendThemAllAgain)
{
    const int before = copy.time->timers();
    join(3);
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    list("10.0.0.3");
    join(4);
    copy.arrive("10.0.0.2", "!CONF USERS #4 10.0.0.2 10.0.0.3");
    EXPECT_EQ(copy.time->timers(), before + 1);
    copy.advance(1s);
    EXPECT_EQ(copy.time->timers(), before);
}

TEST_F(FloodOfLists, AListThatWaitsDoesNotOutliveItsConference)
{
    Conference &conference = join(3);
    spendAll();
    list("10.0.0.77");
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    copy.advance(1s);
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    EXPECT_FALSE(copy.knows("10.0.0.77"));
}

TEST_F(ConferenceTest, AddressesThatAreNoneAreLeftOut)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 255.255.255.255 nobody 224.0.0.1 10.0.0.3");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Ben green"));
    EXPECT_EQ(copy.drops.of(Drop::noConference), 3u);
}

TEST_F(ConferenceTest, AListMakesNoContactOfThisMachine)
{
    Conference &conference = join(3);
    const int before = copy.engine.contacts().rowCount();
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 10.0.0.1 127.0.0.1");
    EXPECT_FALSE(copy.knows("127.0.0.1"));
    EXPECT_FALSE(copy.knows("10.0.0.1"));
    EXPECT_EQ(copy.engine.contacts().rowCount(), before);
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "?AVATARHEAD"))) << "and asks it nothing";
    EXPECT_EQ(copy.drops.of(Drop::noConference), 1u) << "its own address is no fault of the host";
}

TEST_F(ConferenceTest, AContactAtTheUsualLoopbackAddressIsListedLikeAnyOther)
{
    Contact here;
    here.ip = QStringLiteral("127.0.0.1");
    here.nickname = QStringLiteral("Here");
    copy.engine.contacts().add(here);
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "!CONF USERS #3 10.0.0.2 127.0.0.1");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ann green", "Here green"));
    EXPECT_EQ(copy.drops.of(Drop::noConference), 0u);
}

TEST_F(ConferenceTest, AHugeListIsCut)
{
    Conference &conference = join(3);
    std::string list = "!CONF USERS #3";
    for (int i = 0; i < 3000; ++i)
        list += " 11.0." + std::to_string(i / 250) + "." + std::to_string(i % 250 + 1);
    copy.arrive("10.0.0.2", list);
    EXPECT_EQ(conference.partecipanti().rowCount(), 1 + static_cast<int>(limits::participants));
}

TEST_F(ConferenceTest, WhoAsksForTheListGetsIt)
{
    host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.3", "?CONF USERS #1");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "!CONF USERS #1 10.0.0.1 10.0.0.2 10.0.0.3")));
    copy.arrive("10.0.0.4", "?CONF USERS #1");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "who does not take part learns nothing";
}

TEST_F(ConferenceTest, AListGoesToTheInvitedTooWithoutNamingThem)
{
    Conference &conference = host({"10.0.0.2"});
    table().mnuInvite2Conf(1, QStringLiteral("10.0.0.3"));
    copy.sent();
    conference.Broadcastlist({});
    EXPECT_THAT(copy.sent(),
                ElementsAre(To("10.0.0.2", "!CONF USERS #1 10.0.0.1 10.0.0.2"),
                            To("10.0.0.3", "!CONF USERS #1 10.0.0.1 10.0.0.2")));
}

// --- leaving and closing

TEST_F(ConferenceTest, WhoLeavesIsRemovedAndTheOthersAreTold)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.2", "!CONF LEAVE #1");
    EXPECT_EQ(lines().back(), "--- Ann left the conference.");
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ben green"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "!CONF USERS #1 10.0.0.1 10.0.0.3")));
    copy.arrive("10.0.0.2", "!CONF LEAVE #1");
    EXPECT_THAT(copy.sent(), IsEmpty()) << "nobody leaves twice";
}

TEST_F(ConferenceTest, AKickedOneIsToldAndRemoved)
{
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    conference.kickuserbtn_Click(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF CLOSE #1"))) << "no list at that moment";
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ben green"));
    EXPECT_EQ(lines().back(), "--- You removed Ann from the conference.");
    conference.kickuserbtn_Click(QStringLiteral("10.0.0.1"));
    conference.kickuserbtn_Click(QString());
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(rows(conference), ElementsAre("Me (you) green", "Ben green"));
}

TEST_F(ConferenceTest, TheHostClosesIt)
{
    Conference &conference = join(3);
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    EXPECT_EQ(lines().back(), "--- This conference is terminated.");
    EXPECT_EQ(view().log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_FALSE(view().inputEnabled);
    EXPECT_FALSE(conference.send(QStringLiteral("too late")));
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(conference.Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload);
    EXPECT_THAT(copy.prompts.asked, IsEmpty());
}

TEST_F(ConferenceTest, NobodyButTheHostClosesIt)
{
    join(3);
    copy.arrive("10.0.0.4", "?CONF INVITE #3");
    copy.arrive("10.0.0.3", "!CONF CLOSE #3");
    EXPECT_TRUE(view().inputEnabled);
    EXPECT_TRUE(copy.engine.invitations().isPending(0));
    host({"10.0.0.3"});
    copy.arrive("10.0.0.3", "!CONF CLOSE #2");
    EXPECT_TRUE(view(2).inputEnabled);
}

TEST_F(ConferenceTest, ClosingTellsTheGuests)
{
    host({"10.0.0.2"}).invite(QStringLiteral("10.0.0.3"));
    copy.sent();
    view().conference.closed();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF CLOSE #1"), To("10.0.0.3", "!CONF CLOSE #1")));
    EXPECT_TRUE(view().gone);
    EXPECT_FALSE(table().at(1));
}

TEST_F(ConferenceTest, ClosingAsksWhereSomebodyWouldBeLeft)
{
    Conference &alone = host();
    EXPECT_EQ(alone.Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload);
    EXPECT_THAT(copy.prompts.asked, IsEmpty());
    Conference &hosted = host({"10.0.0.2"});
    Conference &joined = join(3);
    for (const bool answer : {true, false}) {
        copy.prompts.answer = answer;
        const CloseDecision decision = answer ? CloseDecision::unload : CloseDecision::stay;
        EXPECT_EQ(hosted.Form_QueryUnload(UnloadMode::closeBox), decision);
        EXPECT_EQ(joined.Form_QueryUnload(UnloadMode::closeBox), decision);
    }
    EXPECT_THAT(copy.prompts.asked,
                ElementsAre("NIMB-Chat: Closing that window will terminate the conference. Proceed?",
                            "NIMB-Chat: Leave the conference?",
                            "NIMB-Chat: Closing that window will terminate the conference. Proceed?",
                            "NIMB-Chat: Leave the conference?"));
    EXPECT_EQ(hosted.Form_QueryUnload(UnloadMode::code), CloseDecision::unload);
    EXPECT_EQ(joined.Form_QueryUnload(UnloadMode::sessionEnd), CloseDecision::unload);
    EXPECT_THAT(copy.prompts.asked, SizeIs(4));
}

TEST_F(ConferenceTest, TheEndOfTheProgramClosesAndLeaves)
{
    host({"10.0.0.3"});
    join(3);
    copy.engine.mainWindow().Form_Unload();
    const std::vector<To> sent = copy.sent();
    ASSERT_GE(sent.size(), 2u);
    EXPECT_EQ(sent[0], To("10.0.0.3", "!CONF CLOSE #1"));
    EXPECT_EQ(sent[1], To("10.0.0.2", "!CONF LEAVE #3"));
}

TEST_F(ConferenceTest, WhatAHostSaysInAConferenceThatIsOverHereIsNotForTheGuestsOfAnother)
{
    Conference &hosted = host({"10.0.0.2", "10.0.0.3"});
    Conference &joined = join(1);
    copy.arrive("10.0.0.2", "!CONF CLOSE #1");
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 between us");
    copy.arrive("10.0.0.2", "+10.0.0.4 #1 Cleo says so too");
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(lines(1).back(), "--- Ben joined the conference");
    EXPECT_EQ(lines(2).back(), "--- This conference is terminated.");
    EXPECT_EQ(copy.drops.of(Drop::noConference), 2u);
    EXPECT_EQ(rows(hosted).size(), 3u);
    joined.closed();
    copy.sent();
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 to all of you");
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.3", "+10.0.0.2 #1 to all of you")));
}

TEST_F(ConferenceTest, ATerminatedWindowLeavesUnlessItWasJoinedAgain)
{
    Conference &first = join(3);
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    join(3);
    copy.arrive("10.0.0.2", "+10.0.0.2 #3 welcome back");
    EXPECT_EQ(lines(2).back(), "Ann> welcome back") << "the window that is not terminated";
    first.closed();
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.arrive("10.0.0.2", "!CONF CLOSE #3");
    view(2).conference.closed();
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "!CONF LEAVE #3")));
}

// --- the avatar frame

TEST_F(ConferenceTest, ShowsTheAvatarOfWhoeverWroteLast)
{
    copy.arrive("10.0.0.2", "!AVATARHEAD x");
    copy.arrive("10.0.0.2", "!AVATARBODY " + std::string(7500, 'a'));
    Conference &conference = host({"10.0.0.2", "10.0.0.3"});
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 one");
    EXPECT_EQ(view().avatarLabel, QStringLiteral("Ann"));
    EXPECT_EQ(view().picture, QByteArray(7500, 'a'));
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 two");
    EXPECT_EQ(view().avatarChanges, 1) << "it is there already";
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 three");
    EXPECT_EQ(view().avatarLabel, QStringLiteral("Ben"));
    EXPECT_FALSE(view().picture);
    copy.common.avatarHead = QStringLiteral("mine");
    copy.common.avatarBody = QByteArray(7500, 'm');
    EXPECT_TRUE(conference.send(QStringLiteral("four")));
    EXPECT_EQ(view().avatarLabel, QStringLiteral("Me"));
    EXPECT_EQ(view().picture, QByteArray(7500, 'm'));
}

TEST_F(ConferenceTest, TheOwnAvatarIsTheOneThatPeersGet)
{
    copy.common.avatarHead = QStringLiteral("mine");
    copy.common.avatarBody = QByteArray(7500, 'm');
    copy.engine.ownAvatar().setSource(std::make_unique<test::RecorderPictureSource>(Camera{}, std::nullopt));
    EXPECT_TRUE(host().send(QStringLiteral("smile")));
    EXPECT_EQ(view().avatarLabel, QStringLiteral("Me"));
    EXPECT_EQ(view().picture, QByteArray(7500, 'f'));
}

TEST_F(ConferenceTest, WithoutAHeadThereIsNoOwnAvatar)
{
    copy.common.avatarBody = QByteArray(7500, 'm');
    EXPECT_TRUE(host().send(QStringLiteral("one")));
    EXPECT_EQ(view().avatarLabel, QStringLiteral("Me"));
    EXPECT_FALSE(view().picture);
}

TEST_F(ConferenceTest, FlashesWhileNobodyLooks)
{
    copy.common.windowFlashingAvailable = true;
    Conference &conference = host();
    conference.outtext_Change();
    EXPECT_EQ(view().flashes, 1);
    view().inBackground = false;
    conference.outtext_Change();
    EXPECT_EQ(view().flashes, 1);
}

TEST_F(ConferenceTest, AWriterThatIsNoAddressIsNotShown)
{
    join(3);
    for (const char *const bytes : {"+Bob #3 hello", "+ #3 hello", "+<b>Ben</b> #3 hello", "+255.255.255.255 #3 hello"})
        copy.arrive("10.0.0.2", bytes);
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_EQ(copy.drops.of(Drop::noConference), 4u);
}

// --- several networks

TEST_F(ConferenceTest, AHostBearsForEachGuestTheAddressThatTheGuestKnows)
{
    copy.socket.ways[Ipv4Address(10, 0, 0, 4)] = Ipv4Address(10, 2, 0, 1); // Cleo's way leads through another card
    Conference &conference = host({"10.0.0.3", "10.0.0.4"});
    conference.Broadcastlist({});
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.3", "!CONF USERS #1 10.0.0.1 10.0.0.3 10.0.0.4"},
                            To{"10.0.0.4", "!CONF USERS #1 10.2.0.1 10.0.0.3 10.0.0.4"}));
    EXPECT_TRUE(conference.send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.3", "+10.0.0.1 #1 hello"}, To{"10.0.0.4", "+10.2.0.1 #1 hello"}));
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 hi");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.4", "+10.0.0.3 #1 hi"}));
}

TEST_F(ConferenceTest, AGuestWritesUnderTheAddressThatTheHostKnows)
{
    copy.socket.ways[Ipv4Address(10, 0, 0, 2)] = Ipv4Address(10, 2, 0, 1);
    EXPECT_TRUE(join(3).send(QStringLiteral("hello")));
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "+10.2.0.1 #3 hello"}));
}

} // namespace
} // namespace nimb
