#include "copy.h"

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// A private window with Ann, who is online; nothing sent yet.
class PrivateChatTest : public testing::Test
{
protected:
    PrivateChatTest()
    {
        copy.settleStart({"10.0.0.2"});
        copy.engine.contactCommands().mnuPrivateChat(QStringLiteral("10.0.0.2"));
        copy.sent();
    }
    RecorderPrivateView &window() { return copy.window(1); }
    PrivateChat &chat() { return window().chat; }
    void annWrites(const std::string &text) { copy.arrive("10.0.0.2", "-" + text); }
    std::vector<std::string> sentBytes()
    {
        std::vector<std::string> bytes;
        for (const To &datagram : copy.sent())
            bytes.push_back(datagram.bytes);
        return bytes;
    }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}}}};
};

TEST_F(PrivateChatTest, OpensWithTheReadyLineInGrey)
{
    EXPECT_THAT(window().log.lines(), ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:05:10] Ready »"));
    EXPECT_EQ(window().log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_EQ(window().log.lastFont, copy.common.logFont);
    EXPECT_EQ(window().font, copy.common.logFont);
}

TEST_F(PrivateChatTest, SendsWhatWasTypedAndLogsIt)
{
    EXPECT_TRUE(chat().send(QStringLiteral("hello there")));
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "-hello there"}));
    EXPECT_EQ(window().log.lastLine(), "Me> hello there");
    EXPECT_EQ(window().log.pieces[1].colour, 0x123456u);
    EXPECT_EQ(window().log.pieces[2].colour, 0x123456u);
}

TEST_F(PrivateChatTest, WhatIsWrittenToWhomNobodyKnowsToBeThereIsMarkedOnceThatHasLasted)
{
    copy.engine.contacts().change(QStringLiteral("10.0.0.2"), [](Contact &ann) { ann.setUnheard(); });
    EXPECT_TRUE(chat().send(QStringLiteral("while an announcement is under way")));
    copy.advance(1500ms);
    EXPECT_EQ(window().shownPeer.delivery, Delivery::doubtful);
    EXPECT_TRUE(chat().send(QStringLiteral("later")));
    copy.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_TRUE(chat().send(QStringLiteral("she is there")));
    copy.arrive("10.0.0.2", "!OFFLINE 10.0.0.2 PC-ANN Ann");
    EXPECT_EQ(window().shownPeer.delivery, Delivery::lost);
    EXPECT_TRUE(chat().send(QStringLiteral("she is gone")));
    std::vector<bool> lost;
    for (const LogMessage &message : window().log.messages)
        lost.push_back(message.fate == MessageFate::lost);
    EXPECT_THAT(lost, ElementsAre(false, true, false, true));
}

TEST_F(PrivateChatTest, EmptyInputSendsNothing)
{
    EXPECT_FALSE(chat().send({}));
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PrivateChatTest, BlanksAndBreaksAloneAreSentAsAnEmptyMessage)
{
    EXPECT_TRUE(chat().send(QStringLiteral("  \r\n ")));
    EXPECT_THAT(sentBytes(), ElementsAre("-"));
    EXPECT_EQ(window().log.lastLine(), "Me> ");
}

TEST_F(PrivateChatTest, BlanksAndBreaksAtTheEndsGoThoseInsideStay)
{
    EXPECT_TRUE(chat().send(QStringLiteral("  hello\r\n\r\n")));
    EXPECT_TRUE(chat().send(QStringLiteral(" a \r\n b ")));
    EXPECT_THAT(sentBytes(), ElementsAre("-hello", "-a \r\n b"));
}

TEST_F(PrivateChatTest, OnlyTheFirst2000CharactersAreSent)
{
    EXPECT_TRUE(chat().send(QString(2500, u'x')));
    EXPECT_THAT(sentBytes(), ElementsAre("-" + std::string(2000, 'x')));
}

TEST_F(PrivateChatTest, TheCutComesBeforeTheTrimming)
{
    EXPECT_TRUE(chat().send(QString(1999, u'x') + QStringLiteral("  y")));
    EXPECT_THAT(sentBytes(), ElementsAre("-" + std::string(1999, 'x')));
}

TEST_F(PrivateChatTest, AReceivedMessageIsLoggedInDarkBlue)
{
    annWrites("hello");
    EXPECT_EQ(window().log.lastLine(), "Ann> hello");
    for (std::size_t piece = 1; piece < window().log.pieces.size(); ++piece)
        EXPECT_EQ(window().log.pieces[piece].colour, 0xC00000u);
    EXPECT_EQ(window().lastMessage, QStringLiteral("Last message: 21/11/2026 @ 14:05:10"));
    EXPECT_EQ(window().liveTypeHidden, 1);
}

TEST_F(PrivateChatTest, AReceivedMessageIsTrimmed)
{
    annWrites(" \r\n hello\r\nyou \r\n");
    EXPECT_THAT(window().log.text().toStdString(), testing::EndsWith("Ann> hello\r\nyou\r\n"));
}

TEST_F(PrivateChatTest, MarkupIsText)
{
    annWrites("<b>bold</b> <img src=x>");
    EXPECT_EQ(window().log.lastLine(), "Ann> <b>bold</b> <img src=x>");
}

TEST_F(PrivateChatTest, AVeryLongMessageIsShownInPart)
{
    annWrites(std::string(60000, 'x'));
    EXPECT_THAT(window().log.lastLine(), testing::EndsWith("x... (52000 more characters)"));
}

TEST_F(PrivateChatTest, ABusyUserRepliesAutomaticallyOnceASecond)
{
    copy.engine.ownState().choose(2);
    copy.engine.ownState().setAutoReply(true);
    copy.sent();
    annWrites("one");
    annWrites("two");
    EXPECT_THAT(copy.sent(), ElementsAre(To{"10.0.0.2", "-[AutoReply] I'm busy, please do not disturb"}));
    copy.advance(999ms);
    annWrites("three");
    EXPECT_THAT(copy.sent(), IsEmpty());
    copy.advance(1ms);
    annWrites("four");
    EXPECT_THAT(sentBytes(), ElementsAre("-[AutoReply] I'm busy, please do not disturb"));
    EXPECT_EQ(window().log.lastLine(), "Ann> four");
}

TEST_F(PrivateChatTest, AnAwayUserRepliesWithTheAwayText)
{
    copy.engine.ownState().choose(3);
    copy.engine.ownState().setAutoReply(true);
    copy.sent();
    annWrites("one");
    EXPECT_THAT(sentBytes(), ElementsAre("-[AutoReply] At the moment I'm not at my PC"));
}

TEST_F(PrivateChatTest, AnAutomaticReplyIsNeverAnsweredAutomatically)
{
    for (const int state : {2, 3}) {
        copy.engine.ownState().choose(state);
        copy.engine.ownState().setAutoReply(true);
        copy.sent();
        annWrites("[AutoReply] I'm busy");
        annWrites("[AutoReply] ");
        EXPECT_THAT(copy.sent(), IsEmpty());
        EXPECT_EQ(window().log.lastLine(), "Ann> [AutoReply]");
    }
    annWrites("about [AutoReply] ");
    EXPECT_THAT(sentBytes(), ElementsAre("-[AutoReply] At the moment I'm not at my PC"));
}

TEST_F(PrivateChatTest, NobodyRepliesWhoDidNotSwitchItOn)
{
    copy.engine.ownState().choose(2);
    copy.common.autoReply.onAway = true;
    copy.sent();
    annWrites("one");
    EXPECT_THAT(copy.sent(), IsEmpty());
}

TEST_F(PrivateChatTest, ClearingStartsTheLogAnew)
{
    annWrites("hello");
    copy.advance(60000ms);
    chat().preparewindow();
    EXPECT_THAT(window().log.lines(), ElementsAre("« NIMB-Chat [today:21/11/2026 - now:14:06:10] Ready »"));
}

TEST_F(PrivateChatTest, DateAndTimeAreInTheUsersForm)
{
    EXPECT_EQ(chat().dateAndTime(), QStringLiteral("21/11/2026 14:05:10"));
}

TEST_F(PrivateChatTest, NewTextFlashesAWindowInTheBackground)
{
    copy.common.windowFlashingAvailable = true;
    chat().outtext_Change();
    EXPECT_EQ(window().flashes, 1);
    window().inBackground = false;
    chat().outtext_Change();
    EXPECT_EQ(window().flashes, 1);
    window().inBackground = true;
    copy.common.windowFlashingAvailable = false;
    chat().outtext_Change();
    EXPECT_EQ(window().flashes, 1);
}

TEST_F(PrivateChatTest, ClosingHidesUnlessTheOptionIsExactly1)
{
    for (const std::int16_t value : std::initializer_list<std::int16_t>{0, 2, -1}) {
        copy.common.options.closedWindowsGo = Switch::ofNumber(value);
        EXPECT_EQ(chat().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::hide) << value;
        EXPECT_EQ(chat().Form_QueryUnload(UnloadMode::code), CloseDecision::unload) << value;
        EXPECT_EQ(chat().Form_QueryUnload(UnloadMode::sessionEnd), CloseDecision::unload) << value;
    }
    copy.common.options.closedWindowsGo = true;
    EXPECT_EQ(chat().Form_QueryUnload(UnloadMode::closeBox), CloseDecision::unload);
}

} // namespace
} // namespace nimb::test
