#include "files/byte_range.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

constexpr auto noCondition = std::nullopt;

WantedBytes wantedOfThousand(std::string_view range)
{
    return wantedBytes(range, noCondition, "\"tag\"", 1000);
}

TEST(WantedBytes, AreTheWholeWithoutARange)
{
    EXPECT_EQ(wantedOfThousand(""), WantedBytes(WholeFile{}));
}

TEST(WantedBytes, AreThoseOfTheRange)
{
    EXPECT_EQ(wantedOfThousand("bytes=0-499"), WantedBytes(ByteRange{0, 500}));
    EXPECT_EQ(wantedOfThousand("bytes=500-"), WantedBytes(ByteRange{500, 500}));
    EXPECT_EQ(wantedOfThousand("bytes=999-999"), WantedBytes(ByteRange{999, 1}));
    EXPECT_EQ(wantedOfThousand("BYTES = 1-2"), WantedBytes(WholeFile{}));
    EXPECT_EQ(wantedOfThousand(" Bytes= 1 - 2 "), WantedBytes(ByteRange{1, 2}));
}

TEST(WantedBytes, EndWithTheFile)
{
    EXPECT_EQ(wantedOfThousand("bytes=900-4000"), WantedBytes(ByteRange{900, 100}));
    EXPECT_EQ(wantedOfThousand("bytes=900-18446744073709551615"), WantedBytes(ByteRange{900, 100}));
}

TEST(WantedBytes, AreTheLastOnesWhereOnlyTheirNumberIsGiven)
{
    EXPECT_EQ(wantedOfThousand("bytes=-100"), WantedBytes(ByteRange{900, 100}));
    EXPECT_EQ(wantedOfThousand("bytes=-5000"), WantedBytes(ByteRange{0, 1000}));
}

TEST(WantedBytes, LieBeyondTheFile)
{
    EXPECT_EQ(wantedOfThousand("bytes=1000-"), WantedBytes(BeyondFile{}));
    EXPECT_EQ(wantedOfThousand("bytes=-0"), WantedBytes(BeyondFile{}));
    EXPECT_EQ(wantedBytes("bytes=0-", noCondition, "\"tag\"", 0), WantedBytes(BeyondFile{}));
}

TEST(WantedBytes, AreTheWholeWhereTheRangeCannotBeRead)
{
    for (const char *const range :
         {"bytes=", "bytes=-", "bytes=a-b", "bytes=5-4", "bytes=1-2,4-5", "lines=1-2", "bytes=--1", "bytes=+1-2",
          "bytes=99999999999999999999-", "bytes=1-99999999999999999999", "bytes=-99999999999999999999", "bytes"})
        EXPECT_EQ(wantedOfThousand(range), WantedBytes(WholeFile{})) << range;
}

TEST(WantedBytes, AreTheWholeWhereTheFileIsNoLongerTheOneMeant)
{
    EXPECT_EQ(wantedBytes("bytes=5-", "\"tag\"", "\"tag\"", 10), WantedBytes(ByteRange{5, 5}));
    EXPECT_EQ(wantedBytes("bytes=5-", "\"other\"", "\"tag\"", 10), WantedBytes(WholeFile{}));
    EXPECT_EQ(wantedBytes("bytes=5-", "W/\"tag\"", "\"tag\"", 10), WantedBytes(WholeFile{}));
}

} // namespace
} // namespace nimb
