#include "welcome/tip_reader.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace nimb
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> lines(const QByteArray &bytes)
{
    TipReader reader(bytes);
    std::vector<std::string> read;
    while (const std::optional<QString> line = reader.readLine())
        read.push_back(line->toStdString());
    return read;
}

std::vector<std::string> items(const QByteArray &bytes)
{
    TipReader reader(bytes);
    std::vector<std::string> read;
    while (const std::optional<QString> item = reader.readItem())
        read.push_back(item->toStdString());
    return read;
}

// --- lines

TEST(TipReader, LinesEndWithEveryKindOfBreak)
{
    EXPECT_THAT(lines("one\r\ntwo\nthree\rfour"), ElementsAre("one", "two", "three", "four"));
}

TEST(TipReader, ABreakAtTheEndBeginsNoFurtherLine)
{
    EXPECT_THAT(lines("one\r\n"), ElementsAre("one"));
    EXPECT_THAT(lines("one\n"), ElementsAre("one"));
    EXPECT_THAT(lines("one\r"), ElementsAre("one"));
}

TEST(TipReader, EmptyLinesAreLines)
{
    EXPECT_THAT(lines("\r\n\r\none\n\ntwo\r\r"), ElementsAre("", "", "one", "", "two", ""));
    EXPECT_THAT(lines("\n\r"), ElementsAre("", "")) << "only CR LF is one break";
}

TEST(TipReader, AnEmptyFileHasNoLine)
{
    EXPECT_THAT(lines(""), IsEmpty());
    EXPECT_THAT(items(""), IsEmpty());
    TipReader reader("");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_FALSE(reader.skipLine());
}

TEST(TipReader, AByteOrderMarkIsSkippedAtTheStartAlone)
{
    EXPECT_THAT(lines("\xEF\xBB\xBFone\ntwo"), ElementsAre("one", "two"));
    EXPECT_THAT(lines("\xEF\xBB\xBF"), IsEmpty());
    EXPECT_THAT(lines("one\n\xEF\xBB\xBFtwo"), ElementsAre("one", "\xEF\xBB\xBFtwo"));
    EXPECT_THAT(lines("\xEF\xBB"), ElementsAre("\xC3\xAF\xC2\xBB")) << "half a mark is text";
}

TEST(TipReader, EveryLineIsUtf8WhereItCanBeAndWesternOtherwise)
{
    EXPECT_THAT(lines("gr\xC3\xBC\xC3\x9F\ngr\xFC\xDF\n\x80"),
                ElementsAre("gr\xC3\xBC\xC3\x9F", "gr\xC3\xBC\xC3\x9F", "\xE2\x82\xAC"));
}

TEST(TipReader, ItemsAreDecodedWithTheirWholeLine)
{
    EXPECT_THAT(items("\xC3\xBC,\xFC"), ElementsAre("\xC3\x83\xC2\xBC", "\xC3\xBC"))
        << "a line is shown with the same characters whole and in pieces";
}

TEST(TipReader, ZeroBytesAreText)
{
    EXPECT_THAT(lines(QByteArray("a\0b\nc", 5)), ElementsAre(std::string("a\0b", 3), "c"));
}

// --- items

TEST(TipReader, ACommaEndsAnItemAndSoDoesTheLine)
{
    EXPECT_THAT(items("one,two\r\nthree"), ElementsAre("one", "two", "three"));
}

TEST(TipReader, BlanksBeforeAnItemAreSkipped)
{
    EXPECT_THAT(items("  one , \ttwo \n three"), ElementsAre("one ", "two ", "three"));
    EXPECT_THAT(items(" \none"), ElementsAre("", "one")) << "but no line break";
}

TEST(TipReader, CommasSideBySideHoldEmptyItems)
{
    EXPECT_THAT(items(",,one"), ElementsAre("", "", "one"));
    EXPECT_THAT(items("one,\ntwo"), ElementsAre("one", "", "two"));
    EXPECT_THAT(items("\n\n"), ElementsAre("", ""));
}

TEST(TipReader, NoCommaOfAQuotationEndsAnItem)
{
    EXPECT_THAT(items("\"one, two\",three"), ElementsAre("one, two", "three"));
    EXPECT_THAT(items("say \"a, b\" aloud, then go"), ElementsAre("say \"a, b\" aloud", "then go"));
}

TEST(TipReader, OnlyQuotesAroundTheWholeItemAreRemoved)
{
    EXPECT_THAT(items("\"one\""), ElementsAre("one"));
    EXPECT_THAT(items("  \"one\" \t,two"), ElementsAre("one", "two"));
    EXPECT_THAT(items("\"\""), ElementsAre(""));
    EXPECT_THAT(items("\"Buzz\" calls"), ElementsAre("\"Buzz\" calls"));
    EXPECT_THAT(items("\"a\" and \"b\""), ElementsAre("\"a\" and \"b\""));
}

TEST(TipReader, AnOpenQuotationEndsWithItsLine)
{
    EXPECT_THAT(items("\"one, two\nthree, four"), ElementsAre("\"one, two", "three", "four"));
    EXPECT_THAT(items("\""), ElementsAre("\""));
}

// --- both together

TEST(TipReader, ALineAfterAnItemIsTheRestOfItsLine)
{
    TipReader reader("one, two, three\nfour");
    EXPECT_EQ(reader.readItem(), QStringLiteral("one"));
    EXPECT_EQ(reader.readLine(), QStringLiteral(" two, three"));
    EXPECT_EQ(reader.readItem(), QStringLiteral("four"));
    EXPECT_EQ(reader.readLine(), std::nullopt);
}

TEST(TipReader, SkippingAfterAnItemSkipsTheRestOfItsLine)
{
    TipReader reader("one, two\nthree");
    reader.readItem();
    EXPECT_TRUE(reader.skipLine());
    EXPECT_EQ(reader.readLine(), QStringLiteral("three"));
    EXPECT_FALSE(reader.skipLine());
}

TEST(TipReader, TheEndIsReachedWithTheLastItemAndNotBefore)
{
    TipReader reader("one,two\n");
    EXPECT_FALSE(reader.atEnd());
    reader.readItem();
    EXPECT_FALSE(reader.atEnd());
    reader.readItem();
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.readItem(), std::nullopt);
}

TEST(TipReader, RewindingBeginsAnewBehindTheMark)
{
    TipReader reader("\xEF\xBB\xBFone,two\nthree");
    reader.readItem();
    reader.rewind();
    EXPECT_EQ(reader.readLine(), QStringLiteral("one,two"));
    reader.readLine();
    reader.rewind();
    EXPECT_EQ(reader.readItem(), QStringLiteral("one"));
}

} // namespace
} // namespace nimb
