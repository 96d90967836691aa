// What every conversation does, whatever its kind.
#include "copy.h"

#include "conversation/conversation.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A kind of its own: everything goes out in brackets and is written down.
class Echo : public Conversation
{
public:
    Echo(const Services &services, ConversationView &view) : Conversation(services, [this] { ++unloads; }), m_view(view)
    {
    }
    using Conversation::appendLine;
    using Conversation::appendReceived;
    using Conversation::end;

    CloseDecision Form_QueryUnload(UnloadMode) override { return CloseDecision::unload; }
    KeptConversation keptAs() const override { return {.address = QStringLiteral("10.0.0.9")}; }

    std::vector<std::string> delivered;
    int unloads = 0;

private:
    ConversationView &conversationView() const override { return m_view; }
    QString openingLine(const QString &date, const QString &time) const override
    {
        return QStringLiteral("Since %1, %2").arg(date, time);
    }
    QString textToSend(const QString &typed) const override { return QStringLiteral("[%1]").arg(typed); }
    FileOffers::Recipients fileRecipients() const override { return {}; }
    void deliver(const QString &text) override { delivered.push_back(text.toStdString()); }

    ConversationView &m_view;
};

class ConversationTest : public testing::Test
{
protected:
    Copy copy;
    RecorderConversationView view;
    Echo conversation{{copy.common, copy.socket, *copy.time, copy.engine.history(), copy.engine.transfers()}, view};
};

TEST_F(ConversationTest, ItsLogBeginsWithItsOwnOpeningLineInGrey)
{
    conversation.appendLine(QStringLiteral("of no use any more"), 0x123456);
    conversation.Clearbtn_Click();
    EXPECT_THAT(view.log.lines(), ElementsAre("Since 21/11/2026, 14:05:09"));
    EXPECT_EQ(view.log.colourOfLastPiece(), 0xA0A0A0u);
    EXPECT_EQ(view.log.lastFont, copy.common.logFont);
    EXPECT_EQ(view.font, copy.common.logFont);
}

TEST_F(ConversationTest, WhatIsTypedGoesOutAsItsKindWantsItAndIsLoggedSo)
{
    EXPECT_TRUE(conversation.send(QStringLiteral("hello :)")));
    EXPECT_THAT(conversation.delivered, ElementsAre("[hello :)]"));
    EXPECT_THAT(view.log.lines(), ElementsAre("Me> [hello :)]"));
    EXPECT_THAT(view.log.pieces, SizeIs(5)) << "name, text, picture, text, line break";
    EXPECT_EQ(view.log.pieces.front().colour, 0x123456u);
    EXPECT_EQ(view.log.colourOfLastPiece(), 0x123456u);
}

TEST_F(ConversationTest, NothingTypedIsNothingSent)
{
    EXPECT_FALSE(conversation.send({}));
    EXPECT_THAT(conversation.delivered, IsEmpty());
    EXPECT_THAT(view.log.lines(), IsEmpty());
}

TEST_F(ConversationTest, TheCutComesFirst)
{
    EXPECT_TRUE(conversation.send(QString(2500, u'x')));
    EXPECT_THAT(conversation.delivered, ElementsAre("[" + std::string(2000, 'x') + "]"));
}

TEST_F(ConversationTest, NothingIsSentOnceItIsOver)
{
    EXPECT_FALSE(conversation.isOver());
    conversation.end();
    EXPECT_TRUE(conversation.isOver());
    EXPECT_FALSE(view.inputEnabled);
    EXPECT_FALSE(conversation.send(QStringLiteral("hello")));
    EXPECT_THAT(conversation.delivered, IsEmpty());
}

TEST_F(ConversationTest, AReceivedMessageIsShownWithItsTime)
{
    conversation.appendReceived({QStringLiteral("Ann"), 0xC00000}, QStringLiteral("hello\r\nyou"));
    EXPECT_THAT(view.log.lines(), ElementsAre("Ann> hello", "you"));
    EXPECT_EQ(view.log.colourOfLastPiece(), 0xC00000u);
    EXPECT_EQ(view.lastMessage, QStringLiteral("Last message: 21/11/2026 @ 14:05:09"));
}

TEST_F(ConversationTest, DateAndTimeAreInTheUsersForm)
{
    EXPECT_EQ(conversation.dateAndTime(), QStringLiteral("21/11/2026 14:05:09"));
}

TEST_F(ConversationTest, NewTextFlashesAWindowInTheBackgroundWhereThatCanBe)
{
    copy.common.windowFlashingAvailable = true;
    conversation.outtext_Change();
    EXPECT_EQ(view.flashes, 1);
    view.inBackground = false;
    conversation.outtext_Change();
    EXPECT_EQ(view.flashes, 1);
    view.inBackground = true;
    copy.common.windowFlashingAvailable = false;
    conversation.outtext_Change();
    EXPECT_EQ(view.flashes, 1);
}

TEST_F(ConversationTest, ItsOwnerHearsThatItsWindowIsClosed)
{
    conversation.closed();
    EXPECT_EQ(conversation.unloads, 1);
}

} // namespace
} // namespace nimb::test
