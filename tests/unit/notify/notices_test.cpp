#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const NoticePlace fromAnn{NoticeWindow::privateChat, Ipv4Address(10, 0, 0, 2)};
const NoticePlace fromBen{NoticeWindow::privateChat, Ipv4Address(10, 0, 0, 3)};

class NoticesTest : public testing::Test
{
protected:
    NoticesTest() { copy.settleStart({"10.0.0.2", "10.0.0.3"}); }

    Options &options() { return copy.common.options; }
    const std::vector<std::string> &lines() { return copy.notifications.lines; }
    void openWindow() { copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2")); }
    void lookAtWindow()
    {
        copy.window(1).inBackground = false;
        copy.window(1).chat.endSeen();
    }
    void muteAnn() { copy.engine.contactCommands().mnuMuteContact(QStringLiteral("10.0.0.2"), true); }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(NoticesTest, AMessageAtWhichNobodyLooksIsTold)
{
    copy.arrive("10.0.0.2", "-Did you see\r\nthe new plan?");
    EXPECT_THAT(lines(), ElementsAre("Ann: Did you see the new plan?"));
    const Notice &notice = copy.notifications.shown.at(fromAnn);
    EXPECT_EQ(notice.title, QStringLiteral("Ann"));
    EXPECT_EQ(notice.text, QStringLiteral("Did you see the new plan?"));
    EXPECT_TRUE(notice.mayBeAnswered);
}

TEST_F(NoticesTest, AMessageInTheActiveWindowIsNotTold)
{
    openWindow();
    lookAtWindow();
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NoticesTest, EachSenderHasOneNoticeThatCounts)
{
    copy.arrive("10.0.0.2", "-one");
    copy.arrive("10.0.0.2", "-two");
    copy.arrive("10.0.0.3", "-hello");
    copy.arrive("10.0.0.2", "-three");
    EXPECT_THAT(lines(), ElementsAre("Ann: one")) << "more than one notice a second";
    copy.advance(1000ms);
    EXPECT_THAT(lines(), ElementsAre("Ann: one", "Ben: hello", "Ann (3): three"));
    EXPECT_EQ(copy.notifications.shown.size(), 2u);
    EXPECT_EQ(copy.notifications.shown.at(fromAnn).title, QStringLiteral("Ann (3)"));
    copy.advance(5000ms);
    EXPECT_FALSE(copy.time->nextDue()) << "a timer still runs";
}

TEST_F(NoticesTest, WhoHasLookedIsToldOfWhatIsNewOnly)
{
    copy.arrive("10.0.0.2", "-one");
    copy.arrive("10.0.0.2", "-two");
    lookAtWindow();
    EXPECT_THAT(copy.notifications.shown, IsEmpty()) << "the notice still stands";
    copy.advance(1000ms);
    EXPECT_THAT(lines(), ElementsAre("Ann: one")) << "what has been read was told";
    copy.window(1).inBackground = true;
    copy.arrive("10.0.0.2", "-three");
    EXPECT_THAT(lines(), ElementsAre("Ann: one", "Ann: three"));
}

TEST_F(NoticesTest, LookingWhereNothingWasToldWithdrawsNothing)
{
    openWindow();
    lookAtWindow();
    EXPECT_THAT(copy.notifications.withdrawn, IsEmpty());
}

TEST_F(NoticesTest, ARemovedContactTakesItsNoticeAlong)
{
    copy.arrive("10.0.0.2", "-hello");
    copy.engine.contactCommands().mnuRemoveUser(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.notifications.shown, IsEmpty());
}

TEST_F(NoticesTest, AStrangerWhoMakesRoomInAFullListTakesItsNoticesAlong)
{
    copy.arrive("10.0.0.4", "?ONLINE 10.0.0.4 PC Dora");
    copy.arrive("10.0.0.4", "!BUZZ");
    copy.arrive("10.0.0.4", "?CONF INVITE #3");
    copy.advance(1000ms);
    ASSERT_EQ(copy.notifications.shown.size(), 2u);
    copy.arrive("10.0.0.4", "!OFFLINE");
    ContactList &contacts = copy.engine.contacts();
    for (auto i = std::uint32_t(contacts.rowCount()); i < limits::contactsFromStrangers; ++i) {
        Contact filling;
        filling.ip = Ipv4Address::of(Ipv4Address(10, 1, 0, 0).number() + i);
        contacts.add(std::move(filling));
    }
    copy.arrive("10.0.0.5", "?ONLINE 10.0.0.5 PC Eve");
    ASSERT_FALSE(copy.knows("10.0.0.4")) << "it has not made room";
    EXPECT_THAT(copy.notifications.shown, IsEmpty());
}

TEST_F(NoticesTest, TheTextIsShownOnlyWhereTheUserWantsThat)
{
    options().showMessageText = false;
    copy.arrive("10.0.0.2", "-secret");
    copy.advance(1000ms);
    copy.arrive("10.0.0.2", "-secret too");
    EXPECT_THAT(lines(), ElementsAre("Ann: new message", "Ann (2): new messages"));
}

TEST_F(NoticesTest, ABuzzIsNoMessage)
{
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.advance(1000ms);
    copy.arrive("10.0.0.2", "-hello");
    copy.advance(1000ms);
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.advance(1000ms);
    copy.arrive("10.0.0.2", "-there");
    EXPECT_THAT(lines(),
                ElementsAre("Ann buzzes you", "Ann: hello · Ann buzzes you", "Ann buzzes you (2) · 1 new message",
                            "Ann (2): there · Ann buzzes you (2)"));
    EXPECT_EQ(copy.notifications.shown.at(fromAnn).title, QStringLiteral("Ann (2)"));
}

TEST_F(NoticesTest, ABuzzIsToldBesideTheMessagesOfTheSameMoment)
{
    copy.arrive("10.0.0.2", "-one");
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.arrive("10.0.0.2", "-two");
    copy.advance(1000ms);
    EXPECT_EQ(lines().back(), "Ann (2): two · Ann buzzes you");
}

TEST_F(NoticesTest, ALongTextIsCut)
{
    copy.arrive("10.0.0.2", "-" + std::string(1000, 'x'));
    EXPECT_THAT(lines(), ElementsAre("Ann: " + std::string(200, 'x') + "\u2026"));
}

TEST_F(NoticesTest, SwitchedOffNothingIsTold)
{
    options().notifyMessages = false;
    copy.arrive("10.0.0.2", "-hello");
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(NoticesTest, WhoIsBusyIsToldNothingAndHearsNothing)
{
    options().soundForMessage = options().soundForInvitation = options().soundForOnline = true;
    copy.engine.ownState().choose(2);
    ASSERT_EQ(copy.common.ownPresence.base, BaseState::busy);
    copy.arrive("10.0.0.2", "-hello");
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.arrive("10.0.0.2", "!OFFLINE");
    copy.arrive("10.0.0.2", "!ONLINE");
    copy.advance(1000ms);
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_EQ(copy.sound.notices, 0);
    EXPECT_EQ(copy.contact("10.0.0.2").unread(), 1) << "it is counted all the same";
    copy.engine.ownState().choose(1);
    copy.arrive("10.0.0.2", "-there");
    EXPECT_THAT(lines(), ElementsAre("Ann (2): there")) << "a buzz that is over calls nobody any more";
}

TEST_F(NoticesTest, OfAMutedContactNothingIsToldNorHeard)
{
    options().soundForMessage = options().soundForInvitation = options().soundForOnline = true;
    muteAnn();
    copy.arrive("10.0.0.2", "-hello");
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.arrive("10.0.0.2", "!OFFLINE");
    copy.arrive("10.0.0.2", "!ONLINE");
    copy.advance(1000ms);
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_THAT(copy.notifications.rows, IsEmpty());
    EXPECT_EQ(copy.sound.notices, 0);
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(lines(), ElementsAre("Ben: hello"));
    EXPECT_EQ(copy.sound.notices, 1);
}

TEST_F(NoticesTest, TheWaitingMessagesOfACrowdAreToldToo)
{
    options().privateWindowsOnTop = true;
    copy.arrive("10.0.0.2", "-hello");
    for (int i = 0; i < 60; ++i) {
        const std::string ip = "10.0.1." + std::to_string(i + 1);
        copy.arrive(ip.c_str(), "!ONLINE " + ip + " PC N" + std::to_string(i));
        copy.arrive(ip.c_str(), "-hello");
        copy.advance(1000ms);
    }
    EXPECT_EQ(copy.notifications.lines.back(), "N59: hello");
}

TEST_F(NoticesTest, OfACrowdThatWritesAtOnceTheLastTenAreTold)
{
    for (int i = 1; i <= 50; ++i)
        copy.engine.notices().message(Ipv4Address(10, 0, 1, static_cast<std::uint8_t>(i)), QStringLiteral("N%1").arg(i),
                                      QStringLiteral("hello"));
    copy.advance(1000ms);
    EXPECT_THAT(lines(),
                ElementsAre("N1: hello", "N41: hello", "N42: hello", "N43: hello", "N44: hello", "N45: hello",
                            "N46: hello", "N47: hello", "N48: hello", "N49: hello", "N50: hello"));
}

// --- sounds

TEST_F(NoticesTest, NothingSoundsUnlessTheUserWantsIt)
{
    copy.arrive("10.0.0.2", "-hello");
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    copy.arrive("10.0.0.2", "!OFFLINE");
    copy.arrive("10.0.0.2", "!ONLINE");
    EXPECT_EQ(copy.sound.notices, 0);
}

TEST_F(NoticesTest, ThereIsOneSoundASecondAtMost)
{
    options().soundForMessage = true;
    for (int i = 0; i < 100; ++i)
        copy.arrive("10.0.0.2", "-hello");
    EXPECT_EQ(copy.sound.notices, 1);
    copy.advance(999ms);
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_EQ(copy.sound.notices, 1);
    copy.advance(1ms);
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_EQ(copy.sound.notices, 2);
    EXPECT_EQ(copy.sound.alarms, 0);
}

TEST_F(NoticesTest, AMessageSoundsWithoutBeingShownWhereThatIsChosen)
{
    options().soundForMessage = true;
    options().notifyMessages = false;
    copy.arrive("10.0.0.2", "-hello");
    EXPECT_EQ(copy.sound.notices, 1);
}

TEST_F(NoticesTest, WhoComesOnlineSoundsAndWhoGoesDoesNot)
{
    options().soundForOnline = true;
    copy.arrive("10.0.0.2", "!OFFLINE");
    EXPECT_EQ(copy.sound.notices, 0);
    copy.arrive("10.0.0.2", "!ONLINE");
    EXPECT_EQ(copy.sound.notices, 1);
    copy.advance(1000ms);
    copy.arrive("10.0.0.2", "!ONLINE");
    EXPECT_EQ(copy.sound.notices, 1) << "she was there already";
    EXPECT_THAT(copy.notifications.rows, ElementsAre("Ann is offline [red]", "Ann is online [green]"));
}

TEST_F(NoticesTest, AnInvitationSoundsWhereThatIsSwitchedOn)
{
    options().soundForInvitation = true;
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    EXPECT_EQ(copy.sound.notices, 1);
}

// --- invitations and conferences

TEST_F(NoticesTest, AnInvitationIsToldUntilItsWindowIsLookedAt)
{
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    EXPECT_THAT(lines(), ElementsAre("Ann invites you to a conference"));
    const NoticePlace place{NoticeWindow::invitations, Ipv4Address(10, 0, 0, 2)};
    EXPECT_FALSE(copy.notifications.shown.at(place).mayBeAnswered);
    copy.engine.invitations().Form_Activate();
    EXPECT_THAT(copy.notifications.shown, IsEmpty());
}

TEST_F(NoticesTest, AnInvitationInTheActiveWindowIsNotTold)
{
    copy.invitationsView.active = true;
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    EXPECT_THAT(lines(), IsEmpty());
}

class ConferenceNoticesTest : public NoticesTest
{
protected:
    ConferenceNoticesTest()
    {
        ConferenceTable &table = copy.engine.conferences();
        table.mnuCreateNewConf();
        for (const char *const ip : {"10.0.0.2", "10.0.0.3"}) {
            table.mnuInvite2Conf(1, QString::fromLatin1(ip));
            copy.arrive(ip, "!CONF INVITE #1 AGREE");
        }
        copy.sent();
    }
};

TEST_F(ConferenceNoticesTest, EachWriterInTheBackgroundIsTold)
{
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 hello");
    copy.arrive("10.0.0.3", "+10.0.0.3 #1 hi");
    copy.advance(1000ms);
    EXPECT_THAT(lines(), ElementsAre("Ann in conference #1: hello", "Ben in conference #1: hi"));
    copy.conference(1).inBackground = false;
    copy.conference(1).conference.endSeen();
    EXPECT_THAT(copy.notifications.shown, IsEmpty());
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 again");
    EXPECT_EQ(lines().size(), 2u) << "the window is active";
}

TEST_F(ConferenceNoticesTest, AClosedConferenceTakesItsNoticesAlong)
{
    copy.arrive("10.0.0.2", "+10.0.0.2 #1 hello");
    copy.conference(1).conference.closed();
    EXPECT_THAT(copy.notifications.shown, IsEmpty());
}

TEST_F(ConferenceNoticesTest, AnAnswerGoesToTheConference)
{
    copy.engine.answerNotice({NoticeWindow::conference, Ipv4Address(10, 0, 0, 2), 1}, QStringLiteral("yes"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "+10.0.0.1 #1 yes"), To("10.0.0.3", "+10.0.0.1 #1 yes")));
    EXPECT_EQ(copy.conference(1).log.lastLine(), "Me> yes");
}

TEST_F(ConferenceNoticesTest, ANoticeOpensItsConference)
{
    const int shows = copy.conference(1).shows;
    copy.engine.openNotice({NoticeWindow::conference, Ipv4Address(10, 0, 0, 2), 1});
    EXPECT_EQ(copy.conference(1).shows, shows + 1);
    copy.engine.openNotice({NoticeWindow::conference, Ipv4Address(10, 0, 0, 2), 4});
}

// --- what the user does with a notice

TEST_F(NoticesTest, ANoticeOpensItsConversation)
{
    copy.arrive("10.0.0.2", "-hello");
    copy.engine.openNotice(fromAnn);
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::minimised, ShowMode::active));
}

TEST_F(NoticesTest, ANoticeOpensTheInvitations)
{
    copy.arrive("10.0.0.2", "?CONF INVITE #1");
    copy.engine.openNotice({NoticeWindow::invitations, Ipv4Address(10, 0, 0, 2)});
    EXPECT_EQ(copy.invitationsView.shows.back(), "window");
}

TEST_F(NoticesTest, AnAnswerIsSentAndStandsInTheLog)
{
    copy.arrive("10.0.0.2", "-hello");
    copy.sent();
    copy.engine.answerNotice(fromAnn, QStringLiteral("hello\nyourself"));
    EXPECT_THAT(copy.sent(), ElementsAre(To("10.0.0.2", "-hello\r\nyourself")));
    EXPECT_EQ(copy.window(1).log.lines().at(2), "Me> hello");
    EXPECT_THAT(copy.window(1).shows, ElementsAre(ShowMode::minimised)) << "the window came up";
}

TEST_F(NoticesTest, AnAnswerToAMessageWithoutAWindowMakesOneThatStaysHidden)
{
    copy.engine.answerNotice(fromBen, QStringLiteral("hello"));
    EXPECT_EQ(copy.window(1).log.lastLine(), "Me> hello");
    EXPECT_TRUE(copy.window(1).hidden);
}

TEST_F(NoticesTest, AnAnswerToNobodyOrOfNothingIsNotSent)
{
    copy.arrive("10.0.0.2", "-hello");
    copy.sent();
    copy.engine.answerNotice(fromAnn, QString());
    copy.engine.answerNotice({NoticeWindow::privateChat, Ipv4Address(10, 0, 0, 99)}, QStringLiteral("hello"));
    copy.engine.answerNotice({NoticeWindow::conference, Ipv4Address(10, 0, 0, 2), 3}, QStringLiteral("hello"));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

} // namespace
} // namespace nimb::test
