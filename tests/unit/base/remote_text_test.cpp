#include "base/remote_text.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(RemoteText, ACutNeverSplitsASurrogatePairOrALineBreak)
{
    EXPECT_EQ(cutText(QStringLiteral("abcd"), 4), QStringLiteral("abcd"));
    EXPECT_EQ(cutText(QStringLiteral("abcd"), 3), QStringLiteral("abc"));
    EXPECT_EQ(cutText(QStringLiteral("ab\U0001F600"), 3), QStringLiteral("ab"));
    EXPECT_EQ(cutText(QStringLiteral("ab\U0001F600x"), 4), QStringLiteral("ab\U0001F600"));
    EXPECT_EQ(cutText(QStringLiteral("ab\r\ncd"), 3), QStringLiteral("ab"));
    EXPECT_EQ(cutText(QStringLiteral("ab\r\ncd"), 4), QStringLiteral("ab\r\n"));
    EXPECT_EQ(cutText(QStringLiteral("ab"), 0), QString());
}

TEST(RemoteText, ANameCannotForgeALine)
{
    EXPECT_EQ(remoteName(QStringLiteral("Ann\r\n--- Ben\tx\n")), QStringLiteral("Ann --- Ben x "));
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\u2028B\u2029C\u0085D\u000BE")), QStringLiteral("A B C D E"));
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\0B\uFDD0C\uFFFCD", 7)), QStringLiteral("A B C D"));
}

TEST(RemoteText, DirectionOverridesAreDroppedInNames)
{
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\u202Enn\u202C\u2067x\u2069")), QStringLiteral("Annx"));
    // Marks that only say which way a letter goes belong to names of such scripts.
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\u200Fb")), QString::fromUtf16(u"A\u200Fb"));
}

TEST(RemoteText, WhatShowsNothingIsDroppedInNames)
{
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\u200Bn\u00ADn\uFEFF\u2060")), QStringLiteral("Ann"));
    EXPECT_EQ(remoteName(QString::fromUtf16(u"\u3164A\uFFA0n\u115Fn\u2800")), QStringLiteral("Ann"));
    EXPECT_EQ(remoteName(QString::fromUcs4(U"A\U00013430n\U0001343Fn\U00016FE4")), QStringLiteral("Ann"));
    EXPECT_EQ(remoteName(QString::fromUtf16(u"A\u200Dnn\uFE0F\u034F")), QStringLiteral("Ann"));
    EXPECT_EQ(remoteName(QString::fromUcs4(U"Ann\U000E0041\U000E0100", 5)), QStringLiteral("Ann"));
    EXPECT_EQ(remoteName(QString::fromUtf16(u"\u0645\u200C")), QString::fromUtf16(u"\u0645")) << "joins nothing";
}

TEST(RemoteText, JoinersInsideWordsAndEmojiStayInNames)
{
    for (const char16_t *const name :
         {u"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645", // a Persian word
          u"\u0915\u094D\u200D\u0937",                         // Devanagari
          u"Zoe \U0001F469\u200D\U0001F4BB", u"\u2764\uFE0F\u200D\U0001F525", u"\U0001F3F3\uFE0F\u200D\U0001F308",
          u"1\uFE0F\u20E3", u"\U0001F3F4\U000E0067\U000E0062\U000E007F", u"\U0001F44B\U0001F3FD"})
        EXPECT_EQ(remoteName(QString::fromUtf16(name)), QString::fromUtf16(name));
}

TEST(RemoteText, NamesAreKeptTo255Characters)
{
    EXPECT_EQ(remoteName(QString(300, u'x')).size(), 255);
    EXPECT_EQ(remoteName(QString(255, u'x')).size(), 255);
    const QString letters(254, QChar(0x0915));
    EXPECT_EQ(remoteName(letters + QChar(0x200D) + QChar(0x0915)), letters) << "what joined nothing any more is gone";
}

TEST(RemoteText, EveryLineBreakOfAMessageIsCrLf)
{
    EXPECT_EQ(remoteBody(QStringLiteral("a\nb\rc\r\nd\te")), QStringLiteral("a\r\nb\r\nc\r\nd\te"));
    EXPECT_EQ(remoteBody(QString::fromUtf16(u"a\u2029b")), QStringLiteral("a\r\nb"));
    EXPECT_EQ(remoteBody(QString::fromUtf16(u"a\u0007b\u001Bc")), QStringLiteral("a b c"));
}

TEST(RemoteText, AnOpenDirectionOverrideEndsWithItsLine)
{
    EXPECT_EQ(shownText(QString::fromUtf16(u"a\u202Eb\r\nc")), QString::fromUtf16(u"a\u202Eb\u202C\r\nc"));
    EXPECT_EQ(shownText(QString::fromUtf16(u"\u2067\u202Ex")), QString::fromUtf16(u"\u2067\u202Ex\u202C\u2069"));
    EXPECT_EQ(shownText(QString::fromUtf16(u"\u202Ex\u202C")), QString::fromUtf16(u"\u202Ex\u202C"));
}

TEST(RemoteText, ALongTextIsShownInPartAndSaysSo)
{
    EXPECT_EQ(shownText(QString(8000, u'x')), QString(8000, u'x'));
    EXPECT_EQ(shownText(QString(8123, u'x')), QString(8000, u'x') + QStringLiteral("... (123 more characters)"));
}

TEST(RemoteText, ManyLinesAreShownInPartAndSaySo)
{
    const QString line = QStringLiteral("x\r\n");
    EXPECT_EQ(shownText(line.repeated(199) + u'x'), line.repeated(199) + u'x');
    EXPECT_EQ(shownText(line.repeated(200)), line.repeated(199) + QStringLiteral("x... (1 more lines)"));
    EXPECT_EQ(shownText(line.repeated(20000)), line.repeated(199) + QStringLiteral("x... (19801 more lines)"));
    EXPECT_EQ(shownText(QString(8001, u'x') + line.repeated(300)),
              QString(8000, u'x') + QStringLiteral("... (901 more characters)"));
}

TEST(RemoteText, NamesInMenusAreShortAndBearNoAccessKey)
{
    EXPECT_EQ(menuName(QStringLiteral("A & B")), QStringLiteral("A && B"));
    EXPECT_EQ(menuName(QString(65, u'x')), QString(64, u'x') + QChar(0x2026));
    EXPECT_EQ(menuName(QString(64, u'x')), QString(64, u'x'));
}

} // namespace
} // namespace nimb
