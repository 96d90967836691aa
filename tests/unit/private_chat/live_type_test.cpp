#include "private_chat/live_type.h"

#include "private_chat/typing_notice.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(TypingNotice, ComesWithTheThirteenthCharacter)
{
    TypingNotice notice;
    for (qsizetype length = 1; length <= 12; ++length)
        EXPECT_FALSE(notice.textChanged(length)) << length;
    EXPECT_TRUE(notice.textChanged(13));
    for (qsizetype length = 14; length <= 25; ++length)
        EXPECT_FALSE(notice.textChanged(length)) << length;
    EXPECT_TRUE(notice.textChanged(26));
}

TEST(TypingNotice, DeletedTextHasToGrowBeyondTheLastOne)
{
    TypingNotice notice;
    EXPECT_TRUE(notice.textChanged(20));
    for (const qsizetype length : {19, 5, 1, 20, 32})
        EXPECT_FALSE(notice.textChanged(length)) << length;
    EXPECT_TRUE(notice.textChanged(33));
}

TEST(TypingNotice, AnEmptiedBoxStartsOver)
{
    TypingNotice notice;
    EXPECT_TRUE(notice.textChanged(2000));
    EXPECT_FALSE(notice.textChanged(0));
    EXPECT_FALSE(notice.textChanged(12));
    EXPECT_TRUE(notice.textChanged(13));
}

TEST(LiveType, SendsTheLastTwoHundredCharactersAsOneLine)
{
    // 10 characters and a break, which counts as one blank: eleven per line, 500 and more in all.
    const QString lines = QStringLiteral("0123456789\r\n").repeated(50);
    const QString sent = liveTypeToSend(lines);
    // The last 200 of "...0123456789 " end in a blank, which goes.
    EXPECT_EQ(sent.size(), 199);
    EXPECT_TRUE(sent.startsWith(QStringLiteral("9 0123456789 ")));
    EXPECT_TRUE(sent.endsWith(QStringLiteral(" 0123456789")));
}

TEST(LiveType, SpacesAroundItAreNotSent)
{
    EXPECT_EQ(liveTypeToSend(QStringLiteral("  hello  world \r\n")), QStringLiteral("hello  world"));
    EXPECT_EQ(liveTypeToSend(QStringLiteral(" \r\n ")), QString());
    EXPECT_EQ(liveTypeToSend(QStringLiteral("\ttab\t")), QStringLiteral("\ttab\t"));
}

TEST(LiveType, ACutSplitsNoSurrogatePair)
{
    const QString typed = QStringLiteral("😀") + QString(199, u'x');
    EXPECT_EQ(liveTypeToSend(typed), QString(199, u'x'));
}

TEST(LiveType, IsShownOnOneLine)
{
    EXPECT_EQ(liveTypeToShow(QStringLiteral("one\r\ntwo\tthree")), QStringLiteral("one two three"));
    EXPECT_EQ(liveTypeToShow(QStringLiteral("a\x01z")), QStringLiteral("a z"));
    EXPECT_EQ(liveTypeToShow(QString()), QString());
}

TEST(LiveType, AHugeTextIsCut)
{
    EXPECT_LT(liveTypeToShow(QString(64000, u'x')).size(), 8100);
}

TEST(LiveType, ThePreviewGrowsWithTheTextUpToAThousandTwips)
{
    EXPECT_EQ(liveTypeHeight(0), 150);
    EXPECT_EQ(liveTypeHeight(1), 225);
    EXPECT_EQ(liveTypeHeight(11), 975);
    EXPECT_EQ(liveTypeHeight(12), 1000);
    EXPECT_EQ(liveTypeHeight(2000), 1000);
}

} // namespace
} // namespace nimb
