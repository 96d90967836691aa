#include "copy.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

class UnknownDatagramsTest : public testing::Test
{
protected:
    UnknownDatagramsTest()
    {
        copy.settleStart();
        copy.view.log.pieces.clear();
    }

    int linesWith(const char *text) const { return static_cast<int>(copy.view.log.text().count(QLatin1String(text))); }

    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}}}};
};

TEST_F(UnknownDatagramsTest, EachHasItsLine)
{
    copy.arrive("10.0.0.2", "hello");
    copy.arrive("10.0.0.2", "!FOO");
    copy.advance(5s);

    EXPECT_EQ(copy.view.log.text(),
              "--- garbage received  (hello) ---\r\n--- unsupported command received (!FOO) ---\r\n");
}

TEST_F(UnknownDatagramsTest, OfOneSenderTwentyASecondHaveALineAndOneLineCountsTheRest)
{
    for (int i = 0; i < 1000; ++i)
        copy.arrive("10.0.0.2", i % 2 == 0 ? "junk" : "!JUNK");
    EXPECT_EQ(linesWith("received"), 20);

    copy.advance(1s);

    EXPECT_EQ(linesWith("received"), 21);
    EXPECT_EQ(linesWith("--- 980 more that nobody understands received from 10.0.0.2 ---\r\n"), 1);
}

TEST_F(UnknownDatagramsTest, TheNextSecondHasLinesAgain)
{
    for (int i = 0; i < 21; ++i)
        copy.arrive("10.0.0.2", "junk");
    copy.advance(1s);
    copy.arrive("10.0.0.2", "again");

    EXPECT_EQ(linesWith("(again)"), 1);
    copy.advance(5s);
    EXPECT_EQ(linesWith("more that nobody understands"), 1);
}

TEST_F(UnknownDatagramsTest, OneSendersFloodTakesNoLineFromAnother)
{
    for (int i = 0; i < 1000; ++i)
        copy.arrive("10.0.0.2", "junk");
    copy.arrive("10.0.0.3", "hello");

    EXPECT_EQ(linesWith("(hello)"), 1);
}

TEST_F(UnknownDatagramsTest, MessagesAreNotCountedAmongThem)
{
    for (int i = 0; i < 100; ++i)
        copy.arrive("10.0.0.2", "-hello");
    copy.arrive("10.0.0.2", "junk");

    EXPECT_EQ(linesWith("(junk)"), 1);
}

} // namespace
} // namespace nimb::test
