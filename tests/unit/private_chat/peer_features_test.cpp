#include "copy.h"

namespace nimb
{
namespace
{

using test::Copy;
using test::CopySetup;
using testing::ElementsAre;
using testing::IsEmpty;

using namespace std::chrono_literals;

class PeerFeaturesTest : public testing::Test
{
protected:
    PeerFeaturesTest() { copy.settleStart({"10.0.0.2"}); }
    void openWindow() { copy.engine.privateWindows().openPrivate(QStringLiteral("10.0.0.2")); }
    std::string activity() { return copy.view.activityPanel.toStdString(); }

    Copy copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(PeerFeaturesTest, ABuzzSoundsAndShowsInTheMainWindow)
{
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(copy.sound.alarms, 1);
    EXPECT_EQ(activity(), "Ann is buzzing you...");
    EXPECT_THAT(copy.privateForms.views, IsEmpty()) << "a buzz opens no window";
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PeerFeaturesTest, ABuzzWithoutAWindowLeavesALineFlashesAndIsTold)
{
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_THAT(copy.view.log.lines(), ElementsAre("--- 21/11/2026 @ 14:05 - Ann buzzes you ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x808080u);
    EXPECT_THAT(copy.view.flashed, ElementsAre("10.0.0.2"));
    EXPECT_THAT(copy.notifications.lines, ElementsAre("Ann buzzes you"));
}

TEST_F(PeerFeaturesTest, ABuzzInAWindowThatIsSeenLeavesNoOtherTrace)
{
    openWindow();
    copy.window(1).inBackground = false;
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_THAT(copy.view.log.lines(), IsEmpty());
    EXPECT_THAT(copy.view.flashed, IsEmpty());
    EXPECT_THAT(copy.notifications.lines, IsEmpty());
}

TEST_F(PeerFeaturesTest, ABuzzInAWindowBehindOthersIsTold)
{
    openWindow();
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_THAT(copy.view.log.lines(), IsEmpty());
    EXPECT_THAT(copy.notifications.lines, ElementsAre("Ann buzzes you"));
}

TEST_F(PeerFeaturesTest, AHiddenWindowIsAsGoodAsNone)
{
    openWindow();
    copy.window(1).hideWindow();
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(copy.window(1).log.lastLine(), "BUZZ!");
    EXPECT_EQ(copy.view.log.lastLine(), "--- 21/11/2026 @ 14:05 - Ann buzzes you ---");
    EXPECT_THAT(copy.view.flashed, ElementsAre("10.0.0.2"));
}

TEST_F(PeerFeaturesTest, AMutedBuzzIsSilentButSeen)
{
    copy.common.buzzmute = true;
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(copy.sound.alarms, 0);
    EXPECT_EQ(activity(), "Ann is buzzing you...");
}

TEST_F(PeerFeaturesTest, ABuzzThatIsSwitchedOffIsSilentButSeen)
{
    for (const std::int16_t off : std::initializer_list<std::int16_t>{0, 2, -1}) {
        copy.common.options.playReceivedBuzz = Switch::ofNumber(off);
        copy.arrive("10.0.0.2", "!BUZZ");
        EXPECT_EQ(copy.sound.alarms, 0);
        EXPECT_EQ(activity(), "Ann is buzzing you...");
    }
}

TEST_F(PeerFeaturesTest, ABuzzStandsInThePrivateWindowToo)
{
    openWindow();
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(copy.window(1).log.lastLine(), "BUZZ!");
    EXPECT_EQ(copy.window(1).log.colourOfLastPiece(), 0x808080u);
    EXPECT_EQ(copy.window(1).peerActivity, QStringLiteral("Ann is buzzing you..."));
    EXPECT_EQ(activity(), "Ann is buzzing you...");
    copy.advance(2500ms);
    EXPECT_EQ(copy.window(1).peerActivity, QString());
    EXPECT_EQ(copy.window(1).log.lastLine(), "BUZZ!");
}

TEST_F(PeerFeaturesTest, ASilentBuzzStandsInAnOpenPrivateWindowAsALoudOneDoes)
{
    openWindow();
    const auto isSeen = [this] {
        copy.window(1).log.clear();
        copy.arrive("10.0.0.2", "!BUZZ");
        EXPECT_EQ(copy.sound.alarms, 0);
        EXPECT_EQ(copy.window(1).peerActivity, QStringLiteral("Ann is buzzing you..."));
        EXPECT_EQ(copy.window(1).log.lastLine(), "BUZZ!");
        copy.advance(2500ms);
    };
    copy.common.buzzmute = true;
    isSeen();
    copy.common.buzzmute = false;
    copy.common.options.playReceivedBuzz = Switch::ofNumber(0);
    isSeen();
}

TEST_F(PeerFeaturesTest, ActivityShowsForTwoAndAHalfSecondsAfterTheLastOne)
{
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.advance(2000ms);
    copy.arrive("10.0.0.3", "!TYPING");
    EXPECT_EQ(activity(), "Ben is typing a message...");
    copy.advance(2499ms);
    EXPECT_EQ(activity(), "Ben is typing a message...");
    copy.advance(1ms);
    EXPECT_EQ(activity(), "");
}

TEST_F(PeerFeaturesTest, ATypingNoticeShowsInThePrivateWindowWhereThereIsOne)
{
    openWindow();
    copy.arrive("10.0.0.2", "!TYPING");
    EXPECT_EQ(copy.window(1).peerActivity, QStringLiteral("Ann is typing a message..."));
    EXPECT_EQ(activity(), "");
    copy.advance(2000ms);
    copy.arrive("10.0.0.2", "!BUZZ");
    copy.advance(2000ms);
    EXPECT_EQ(copy.window(1).peerActivity, QStringLiteral("Ann is buzzing you..."));
    copy.advance(500ms);
    EXPECT_EQ(copy.window(1).peerActivity, QString());
}

TEST_F(PeerFeaturesTest, ALongNameIsCutInThePanels)
{
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC " + std::string(200, 'x'));
    copy.arrive("10.0.0.2", "!BUZZ");
    EXPECT_EQ(activity(), std::string(64, 'x') + "\u2026 is buzzing you...");
}

TEST_F(PeerFeaturesTest, StrangersNeitherBuzzNorType)
{
    copy.arrive("10.0.0.9", "!BUZZ");
    copy.arrive("10.0.0.9", "!TYPING");
    EXPECT_EQ(copy.sound.alarms, 0);
    EXPECT_EQ(activity(), "");
}

TEST_F(PeerFeaturesTest, BuzzingAContactSendsAndIsSilentHere)
{
    copy.engine.contactCommands().mnuBuzzUser(QStringLiteral("10.0.0.2"));
    EXPECT_THAT(copy.sent(), ElementsAre(test::To("10.0.0.2", "!BUZZ")));
    EXPECT_EQ(copy.sound.alarms, 0);
}

TEST_F(PeerFeaturesTest, TheOwnBuzzIsHeardWhereThatIsSwitchedOn)
{
    copy.common.options.playOwnBuzz = true;
    copy.engine.contactCommands().mnuBuzzUser(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(copy.sound.alarms, 1);
    copy.common.buzzmute = true;
    copy.engine.contactCommands().mnuBuzzUser(QStringLiteral("10.0.0.2"));
    EXPECT_EQ(copy.sound.alarms, 1);
    EXPECT_THAT(copy.sent(), ElementsAre(test::To("10.0.0.2", "!BUZZ"), test::To("10.0.0.2", "!BUZZ")));
}

TEST_F(PeerFeaturesTest, BuzzingNobodyDoesNothing)
{
    copy.common.options.playOwnBuzz = true;
    copy.engine.contactCommands().mnuBuzzUser(QString());
    copy.engine.contactCommands().mnuBuzzUser(QStringLiteral("10.0.0.77"));
    EXPECT_THAT(copy.sent(), IsEmpty());
    EXPECT_EQ(copy.sound.alarms, 0);
}

} // namespace
} // namespace nimb
