#include "protocol/ipv4_address.h"

#include <gmock/gmock.h>

#include <set>

namespace nimb
{
namespace
{

using testing::Eq;
using testing::Optional;

constexpr auto skipped = Ipv4Address::LeadingZeros::skipped;

TEST(Ipv4Address, IsReadFromFourDecimalNumbers)
{
    EXPECT_THAT(Ipv4Address::parse("0.0.0.0"), Optional(Ipv4Address()));
    EXPECT_THAT(Ipv4Address::parse("127.0.1.2"), Optional(Ipv4Address(127, 0, 1, 2)));
    EXPECT_THAT(Ipv4Address::parse("192.168.10.254"), Optional(Ipv4Address(192, 168, 10, 254)));
    EXPECT_THAT(Ipv4Address::parse("9.99.100.199"), Optional(Ipv4Address(9, 99, 100, 199)));
    EXPECT_THAT(Ipv4Address::parse("255.255.255.255"), Optional(Ipv4Address(255, 255, 255, 255)));
}

TEST(Ipv4Address, NothingElseIsOne)
{
    for (const char *const text : {"",
                                   ".",
                                   "...",
                                   "1.2.3",
                                   "1.2.3.",
                                   "1.2.3.4.",
                                   ".1.2.3.4",
                                   "1.2.3.4.5",
                                   "1..3.4",
                                   "1...4",
                                   "1.2.3.256",
                                   "256.1.2.3",
                                   "1.2.3.999",
                                   "1.2.3.1000",
                                   "1.2.3.4 ",
                                   " 1.2.3.4",
                                   "1. 2.3.4",
                                   "1.2.3.+4",
                                   "1.2.3.-4",
                                   "1.2.3.4\n",
                                   "1.2.3.4x",
                                   "x1.2.3.4",
                                   "0x1.2.3.4",
                                   "1.2.3.4/8",
                                   "1.2.3.4:80",
                                   "16909060",
                                   "127.1",
                                   "1.2.3.4,",
                                   "1,2,3,4",
                                   "host",
                                   "::1",
                                   "::1.2.3.4",
                                   "[1.2.3.4]",
                                   "1.2.3.4294967300",
                                   "1.2.3.\xD9\xA4",
                                   "\xEF\xBC\x91.2.3.4",
                                   "1.2.3.1e1",
                                   "a.b.c.d"})
        EXPECT_THAT(Ipv4Address::parse(text), Eq(std::nullopt)) << testing::PrintToString(text);
}

TEST(Ipv4Address, IsNotReadPastANul)
{
    EXPECT_THAT(Ipv4Address::parse(std::string_view("1.2.3.4\0", 8)), Eq(std::nullopt));
    EXPECT_THAT(Ipv4Address::parse(std::string_view("1.2.3.4\0.5", 10)), Eq(std::nullopt));
    EXPECT_THAT(Ipv4Address::parse(std::string_view("1.2.\0.4", 7)), Eq(std::nullopt));
}

TEST(Ipv4Address, IsReadToTheEndOfTheViewAndNoFurther)
{
    EXPECT_THAT(Ipv4Address::parse(std::string_view("1.2.3.45", 7)), Optional(Ipv4Address(1, 2, 3, 4)));
}

TEST(Ipv4Address, ZerosBeforeANumberAreRefusedUnlessTheyMayBeSkipped)
{
    for (const char *const text : {"192.168.000.005", "01.2.3.4", "1.02.3.4", "1.2.003.4", "1.2.3.00"})
        EXPECT_THAT(Ipv4Address::parse(text), Eq(std::nullopt)) << text;
    EXPECT_THAT(Ipv4Address::parse("192.168.000.005", skipped), Optional(Ipv4Address(192, 168, 0, 5)));
    EXPECT_THAT(Ipv4Address::parse("010.020.030.040", skipped), Optional(Ipv4Address(10, 20, 30, 40)));
    EXPECT_THAT(Ipv4Address::parse("1.2.3.4", skipped), Optional(Ipv4Address(1, 2, 3, 4)));
    for (const char *const text : {"1.2.3.0004", "1.2.3.0255", "1.2.3.", "1.2.3.256", "0x1.2.3.4", "+01.2.3.4", ""})
        EXPECT_THAT(Ipv4Address::parse(text, skipped), Eq(std::nullopt)) << text;
}

TEST(Ipv4Address, IsWrittenAsItIsRead)
{
    EXPECT_EQ(Ipv4Address().toText(), "0.0.0.0");
    EXPECT_EQ(Ipv4Address(127, 0, 1, 2).toText(), "127.0.1.2");
    EXPECT_EQ(Ipv4Address(10, 20, 200, 0).toText(), "10.20.200.0");
    EXPECT_EQ(Ipv4Address(255, 255, 255, 255).toText(), "255.255.255.255");
}

TEST(Ipv4Address, ItsNumberIsInTheOrderOfItsText)
{
    EXPECT_EQ(Ipv4Address(127, 0, 1, 2).number(), 0x7F000102U);
    EXPECT_EQ(Ipv4Address::of(0xC0A80AFEU), Ipv4Address(192, 168, 10, 254));
}

TEST(Ipv4Address, IsComparedAndSortedByItsNumbers)
{
    EXPECT_NE(Ipv4Address(1, 2, 3, 4), Ipv4Address(4, 3, 2, 1));
    const std::set<Ipv4Address> sorted = {{10, 0, 0, 10}, {10, 0, 0, 9}, {9, 255, 0, 0}, {200, 0, 0, 0}};
    EXPECT_THAT(sorted,
                testing::ElementsAre(Ipv4Address(9, 255, 0, 0), Ipv4Address(10, 0, 0, 9), Ipv4Address(10, 0, 0, 10),
                                     Ipv4Address(200, 0, 0, 0)));
}

TEST(Ipv4Address, KnowsTheLoopbackNetwork)
{
    EXPECT_TRUE(Ipv4Address(127, 0, 0, 1).isLoopback());
    EXPECT_TRUE(Ipv4Address(127, 0, 0, 0).isLoopback());
    EXPECT_TRUE(Ipv4Address(127, 255, 255, 255).isLoopback());
    EXPECT_FALSE(Ipv4Address(126, 255, 255, 255).isLoopback());
    EXPECT_FALSE(Ipv4Address(128, 0, 0, 0).isLoopback());
    EXPECT_FALSE(Ipv4Address(1, 0, 0, 127).isLoopback());
}

TEST(Ipv4Address, KnowsWhichAreOfOneHost)
{
    for (const Ipv4Address one : {Ipv4Address(1, 0, 0, 0), Ipv4Address(10, 0, 0, 2), Ipv4Address(127, 0, 1, 2),
                                  Ipv4Address(192, 168, 1, 255), Ipv4Address(223, 255, 255, 255)})
        EXPECT_TRUE(one.isUnicast()) << one.toText();
    for (const Ipv4Address other :
         {Ipv4Address(), Ipv4Address(0, 1, 2, 3), Ipv4Address(0, 255, 255, 255), Ipv4Address(224, 0, 0, 1),
          Ipv4Address(240, 0, 0, 1), Ipv4Address(255, 255, 255, 255)})
        EXPECT_FALSE(other.isUnicast()) << other.toText();
}

TEST(Ipv4Address, OnlyOneIsUnspecified)
{
    EXPECT_TRUE(Ipv4Address(0, 0, 0, 0).isUnspecified());
    EXPECT_FALSE(Ipv4Address(0, 0, 0, 1).isUnspecified());
}

} // namespace
} // namespace nimb
