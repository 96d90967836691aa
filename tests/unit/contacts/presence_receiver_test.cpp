#include "copy.h"

#include "base/limits.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// Ann is online, Ben offline; the announcement of the start is over.
class PresenceReceiverTest : public testing::Test
{
protected:
    PresenceReceiverTest() { copy.settleStart({"10.0.0.2"}); }

    /// Opens Ann's private window and empties its log.
    RecorderLog &annsLog()
    {
        copy.arrive("10.0.0.2", "-x");
        copy.window(1).log.clear();
        copy.sent();
        return copy.window(1).log;
    }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(PresenceReceiverTest, AContactThatComesOnlineIsShownLoggedAndNotified)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC-BEN Big Ben");
    EXPECT_EQ(copy.contact("10.0.0.3").presence, Presence::online);
    EXPECT_EQ(copy.contact("10.0.0.3").nickname, QStringLiteral("Big Ben"));
    EXPECT_EQ(copy.contact("10.0.0.3").workstation, QStringLiteral("PC-BEN"));
    EXPECT_EQ(copy.contact("10.0.0.3").sortKey, QStringLiteral("A_BIG BEN"));
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ben is now called Big Ben ---",
                            "--- 21/11/2026 @ 14:05 - Big Ben went online ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x808080u);
    EXPECT_THAT(copy.notifications.rows, ElementsAre("Big Ben is online [green]"));
    EXPECT_EQ(copy.notifications.starts, 1);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PresenceReceiverTest, AnOnlineContactThatSaysSoAgainIsLoggedAgainButNotNotified)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - Ann went online ---"));
    EXPECT_THAT(copy.notifications.rows, IsEmpty());
}

TEST_F(PresenceReceiverTest, ABusyOrAwayContactThatComesOnlineIsNotNotified)
{
    copy.arrive("10.0.0.2", "!STATUS AWAY");
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.notifications.rows, IsEmpty());
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::online);
    EXPECT_EQ(copy.contact("10.0.0.2").state, QString());
}

TEST_F(PresenceReceiverTest, AQuestionIsAnsweredWithPresenceAndState)
{
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS Online"}));
    copy.engine.ownState().choose(1);
    copy.sent();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!ONLINE 10.0.0.1 HERE Me"}));
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::away, QStringLiteral("Back at five")));
    copy.sent();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.sent(),
                ElementsAre(To{"10.0.0.2", "!ONLINE 10.0.0.1 HERE Me"}, To{"10.0.0.2", "!STATUS AWAY Back at five"}));
}

TEST_F(PresenceReceiverTest, WhoIsOnlineInOwnWordsAnswersWithoutAState)
{
    EXPECT_TRUE(copy.engine.ownState().addPersonalized(BaseState::online, QStringLiteral("on the phone")));
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!STATUS ONLINE on the phone"}));
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "!ONLINE 10.0.0.1 HERE Me"}));
}

TEST_F(PresenceReceiverTest, ANameOfWhichNothingCanBeSeenIsUnknown)
{
    for (const char *const blank :
         {" ", "   ", "\xE3\x85\xA4", "\xE2\x80\x8B\xE2\x80\x8E ", "\xE2\xA0\x80", "\xE3\x80\x80"}) {
        copy.arrive("10.0.0.2", std::string("!ONLINE 10.0.0.2 PC ") + blank);
        EXPECT_EQ(copy.contact("10.0.0.2").nickname, QStringLiteral("[unknown]"));
    }
}

TEST_F(PresenceReceiverTest, AContactThatChangesItsNameIsSaidInTheLog)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC The boss");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ann is now called The boss ---",
                            "--- 21/11/2026 @ 14:05 - The boss went online ---"));
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 OTHER-PC The boss");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - The boss went online ---"));
}

TEST_F(PresenceReceiverTest, AContactThatIsNamelessForAWhileHasChangedItsNameAllTheSame)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC ");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ann is now called [unknown] ---",
                            "--- 21/11/2026 @ 14:05 - [unknown] went online ---"));
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC ");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - [unknown] went online ---"));
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC The boss");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ann is now called The boss ---",
                            "--- 21/11/2026 @ 14:05 - The boss went online ---"));
}

TEST_F(PresenceReceiverTest, AContactThatTakesItsNameBackIsSaidToHaveDoneSo)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC ");
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - [unknown] is now called Ann ---",
                            "--- 21/11/2026 @ 14:05 - Ann went online ---"));
}

TEST_F(PresenceReceiverTest, TheFirstNameOfAContactIsNoChange)
{
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC  ");
    ASSERT_EQ(copy.contact("10.0.0.9").nickname, QStringLiteral("[unknown]"));
    copy.view.log.clear();
    copy.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Cleo");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - Cleo went online ---"));
}

TEST_F(PresenceReceiverTest, OnlyTheAnswerToAQuestionOfOursIsOne)
{
    copy.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Cleo");
    copy.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Cleo");
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC Cleo");
    EXPECT_FALSE(copy.contact("10.0.0.9").hasAnswered) << "nobody has asked";
    copy.announce();
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC Cleo");
    EXPECT_FALSE(copy.contact("10.0.0.9").hasAnswered) << "a question of its own";
    copy.announce();
    copy.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC Cleo");
    EXPECT_TRUE(copy.contact("10.0.0.9").hasAnswered);
}

TEST_F(PresenceReceiverTest, AnInvisibleCopyDoesNotAnswer)
{
    copy.engine.ownState().choose(4);
    copy.sent();
    copy.arrive("10.0.0.2", "?ONLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PresenceReceiverTest, WithFewerThanThreeSpacesARowKeepsItsTextsAndStillCounts)
{
    copy.arrive("10.0.0.3", "?ONLINE 10.0.0.3 OTHER");
    EXPECT_EQ(copy.contact("10.0.0.3").nickname, QStringLiteral("Ben"));
    EXPECT_EQ(copy.contact("10.0.0.3").workstation, QStringLiteral("PC"));
    EXPECT_EQ(copy.contact("10.0.0.3").presence, Presence::online);
    EXPECT_EQ(copy.sent().size(), 2u);
    copy.arrive("10.0.0.3", "!OFFLINE");
    EXPECT_EQ(copy.contact("10.0.0.3").presence, Presence::offline);
}

TEST_F(PresenceReceiverTest, AFarewellIsShownLoggedAndNotified)
{
    copy.arrive("10.0.0.2", "!STATUS BUSY");
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Other Name");
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::offline);
    EXPECT_EQ(copy.contact("10.0.0.2").sortKey, QStringLiteral("C_ANN"));
    EXPECT_EQ(copy.contact("10.0.0.2").state, QString());
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - Ann has gone offline ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x808080u);
    EXPECT_THAT(copy.notifications.rows, ElementsAre("Ann is offline [red]"));
}

TEST_F(PresenceReceiverTest, StateWordsMatchWithoutRegardToCase)
{
    for (const char *busy : {"!STATUS BUSY", "!STATUS busy", "!STATUS Busy", "!STATUS busybody"}) {
        copy.arrive("10.0.0.2", busy);
        EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::busy) << busy;
        EXPECT_EQ(copy.contact("10.0.0.2").sortKey, QStringLiteral("AbANN"));
    }
    copy.arrive("10.0.0.2", "!STATUS aWaY");
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::away);
    EXPECT_EQ(copy.contact("10.0.0.2").sortKey, QStringLiteral("AwANN"));
    for (const char *other : {"!STATUS ONLINE", "!STATUS Invisible", "!STATUS lunch", "!STATUS", "!STATUS bus"}) {
        copy.arrive("10.0.0.2", other);
        EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::online) << other;
        EXPECT_EQ(copy.contact("10.0.0.2").sortKey, QStringLiteral("A_ANN"));
    }
}

TEST_F(PresenceReceiverTest, AStateChangeIsLoggedWithoutItsText)
{
    copy.arrive("10.0.0.2", "!STATUS away Back at five");
    EXPECT_EQ(copy.contact("10.0.0.2").state, QStringLiteral("away - Back at five"));
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - Ann changed his state to 'away'  ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0xC08000u);
}

TEST_F(PresenceReceiverTest, ABusyContactSortsAfterAllOnlineOnesAndBeforeEveryAwayOne)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC Zed");
    copy.arrive("10.0.0.2", "!STATUS BUSY");
    EXPECT_THAT(copy.names(), ElementsAre("Zed", "Ann"));
    copy.arrive("10.0.0.3", "!STATUS AWAY");
    EXPECT_THAT(copy.names(), ElementsAre("Ann", "Zed"));
}

TEST_F(PresenceReceiverTest, PresenceIsLoggedInThePrivateWindow)
{
    RecorderLog &log = annsLog();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    copy.arrive("10.0.0.2", "!STATUS BUSY");
    copy.arrive("10.0.0.2", "!STATUS BUSY till %1");
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(log.lines(),
                ElementsAre("[21/11/2026 @ 14:05] Ann is online",
                            "[21/11/2026 @ 14:05] Ann changed his state to 'BUSY'",
                            "[21/11/2026 @ 14:05] Ann changed his state to 'BUSY - till %1'",
                            "[21/11/2026 @ 14:05] Ann has gone offline"));
    EXPECT_EQ(log.colourOfLastPiece(), 0x808080u);
}

TEST_F(PresenceReceiverTest, PrivateWindowsStaySilentWhenTheOptionIsOff)
{
    RecorderLog &log = annsLog();
    copy.common.options.presenceLines = false;
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    copy.arrive("10.0.0.2", "!STATUS BUSY");
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC Ann");
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PresenceReceiverTest, DuringAnAnnouncementOnlyTheMainLogTells)
{
    RecorderLog &log = annsLog();
    copy.announce();
    copy.view.log.clear();
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    copy.arrive("10.0.0.3", "!OFFLINE 10.0.0.3 PC Ben");
    EXPECT_EQ(copy.view.log.lines().size(), 2u);
    EXPECT_THAT(copy.notifications.rows, IsEmpty());
    EXPECT_EQ(copy.notifications.starts, 0);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PresenceReceiverTest, UnknownCommandsAndGarbageAreLogged)
{
    copy.arrive("10.0.0.2", "!FOO");
    copy.arrive("10.0.0.2", "?");
    copy.arrive("10.0.0.2", "hello");
    copy.arrive("10.0.0.2", "");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- unsupported command received (!FOO) ---", "--- unsupported command received (?) ---",
                            "--- garbage received  (hello) ---", "--- garbage received  () ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x0000C0u);
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PresenceReceiverTest, QuotedGarbageStaysOnItsLine)
{
    copy.arrive("10.0.0.2", "a\r\n--- Ben went online ---\tb");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- garbage received  (a --- Ben went online --- b) ---"));
}

TEST_F(PresenceReceiverTest, LongGarbageIsQuotedInPart)
{
    copy.arrive("10.0.0.2", std::string(60000, 'x'));
    EXPECT_THAT(copy.view.log.lastLine(), testing::EndsWith("x... (52000 more characters)) ---"));
}

TEST_F(PresenceReceiverTest, NamesCannotForgeLines)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann\r\n--- Ben went online ---");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ann is now called Ann --- Ben went online --- ---",
                            "--- 21/11/2026 @ 14:05 - Ann --- Ben went online --- went online ---"));
    copy.arrive("10.0.0.2", "!STATUS a\r\nb");
    EXPECT_EQ(copy.contact("10.0.0.2").state, QStringLiteral("a b"));
}

TEST_F(PresenceReceiverTest, ALongNameIsWholeInTheListAndShortInTheNotification)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3 PC " + std::string(300, 'n'));
    EXPECT_EQ(copy.contact("10.0.0.3").nickname, QString(255, u'n'));
    EXPECT_THAT(copy.notifications.rows, ElementsAre(std::string(64, 'n') + "… is online [green]"));
}

TEST_F(PresenceReceiverTest, AnEmptyNicknameIsUnknown)
{
    copy.arrive("10.0.0.3", "!ONLINE 10.0.0.3  ");
    EXPECT_EQ(copy.contact("10.0.0.3").nickname, QStringLiteral("[unknown]"));
    EXPECT_EQ(copy.contact("10.0.0.3").workstation, QStringLiteral("[unknown]"));
}

TEST_F(PresenceReceiverTest, ANewPeerIsAddedButItsFirstQuestionIsNotAnswered)
{
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC-ZOE Zoe the First");
    ASSERT_TRUE(copy.knows("10.0.0.9"));
    EXPECT_EQ(copy.contact("10.0.0.9").nickname, QStringLiteral("Zoe the First"));
    EXPECT_EQ(copy.contact("10.0.0.9").workstation, QStringLiteral("PC-ZOE"));
    EXPECT_EQ(copy.contact("10.0.0.9").presence, Presence::online);
    EXPECT_EQ(copy.contact("10.0.0.9").sortKey, QStringLiteral("A_ZOE THE FIRST"));
    EXPECT_EQ(copy.contact("10.0.0.9").state, QString());
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(copy.view.log.lines(), IsEmpty());
    EXPECT_THAT(copy.notifications.rows, IsEmpty());
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC-ZOE Zoe");
    EXPECT_EQ(copy.sent().size(), 2u);
}

TEST_F(PresenceReceiverTest, AStrangersFarewellMakesAnOfflineRow)
{
    copy.arrive("10.0.0.9", "!OFFLINE 10.0.0.9 PC-ZOE Zoe");
    EXPECT_EQ(copy.contact("10.0.0.9").presence, Presence::offline);
    EXPECT_EQ(copy.contact("10.0.0.9").sortKey, QStringLiteral("C_ZOE"));
}

TEST_F(PresenceReceiverTest, TheSourceAddressCountsNotTheClaimedOne)
{
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.77 PC-ZOE Zoe");
    EXPECT_TRUE(copy.knows("10.0.0.9"));
    EXPECT_FALSE(copy.knows("10.0.0.77"));
}

TEST_F(PresenceReceiverTest, OwnAndLoopbackDatagramsNeverAddARow)
{
    copy.arrive("10.0.0.1", "?ONLINE 10.0.0.1 HERE Me");
    copy.arrive("127.0.0.1", "?ONLINE 127.0.0.1 HERE Me");
    EXPECT_FALSE(copy.knows("10.0.0.1"));
    EXPECT_FALSE(copy.knows("127.0.0.1"));
    EXPECT_EQ(copy.drops.of(Drop::stranger), 1u) << "an echo of the own question is no loss";
}

TEST_F(PresenceReceiverTest, OtherDatagramsOfStrangersLeaveNoTrace)
{
    copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC-ZOE");
    copy.arrive("10.0.0.9", "-hello");
    copy.arrive("10.0.0.9", "!STATUS BUSY");
    copy.arrive("10.0.0.9", "nonsense");
    EXPECT_FALSE(copy.knows("10.0.0.9"));
    EXPECT_THAT(copy.view.log.lines(), IsEmpty());
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_THAT(copy.privateForms.views, IsEmpty());
    EXPECT_EQ(copy.drops.of(Drop::stranger), 4u);
}

TEST_F(PresenceReceiverTest, AStoredListThatStrangersHaveFilledTakesNewcomers)
{
    CopySetup setup;
    for (int i = 0; i < 10000; ++i)
        setup.contacts.push_back({QStringLiteral("20.0.%1.%2").arg(i / 250).arg(i % 250 + 1), QStringLiteral("N")});
    Copy full(setup);
    full.settleStart();
    full.arrive("10.0.0.9", "!ONLINE 10.0.0.9 PC-ZOE Zoe");
    EXPECT_TRUE(full.knows("10.0.0.9"));
    EXPECT_EQ(full.engine.contacts().rowCount(), 10000);
    setup.contacts.pop_back();
    Copy almost(setup);
    almost.settleStart();
    for (int i = 1; i <= 5; ++i) {
        const std::string ip = "10.0.0." + std::to_string(i + 10);
        almost.arrive(ip.c_str(), "!ONLINE " + ip + " PC N");
    }
    EXPECT_TRUE(almost.knows("10.0.0.11") && almost.knows("10.0.0.15")) << "newcomers do not push each other out";
}

TEST_F(PresenceReceiverTest, AStoredListThatTheUserMayHaveFilledStays)
{
    CopySetup setup;
    for (int i = 0; i < 8999; ++i)
        setup.contacts.push_back({QStringLiteral("20.0.%1.%2").arg(i / 250).arg(i % 250 + 1), QStringLiteral("N")});
    Copy own(setup);
    EXPECT_FALSE(own.engine.contacts().firstToMakeRoom());
}

TEST_F(PresenceReceiverTest, StrangersCannotFillTheListWithoutEnd)
{
    for (int i = 0; i < 10050; ++i) {
        const std::string ip
            = "20." + std::to_string(i / 65536) + '.' + std::to_string(i / 256 % 256) + '.' + std::to_string(i % 256);
        copy.arrive(ip.c_str(), "!ONLINE " + ip + " PC N");
    }
    EXPECT_EQ(copy.engine.contacts().rowCount(), 10000);
    EXPECT_EQ(copy.drops.of(Drop::madeRoom), 52u) << "nobody of them has ever answered";
    EXPECT_EQ(copy.drops.of(Drop::tooManyContacts), 0u);
    EXPECT_TRUE(copy.knows("10.0.0.2") && copy.knows("10.0.0.3")) << "whom the user has added";
    EXPECT_FALSE(copy.knows("20.0.0.51"));
    EXPECT_TRUE(copy.knows("20.0.0.52") && copy.knows("20.0.39.65"));
    copy.arrive("224.0.0.5", "!ONLINE 224.0.0.5 PC N");
    EXPECT_EQ(copy.drops.of(Drop::badAddress), 1u);
}

} // namespace
} // namespace nimb::test
