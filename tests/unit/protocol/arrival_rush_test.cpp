#include "protocol/arrival_rush.h"

#include <gtest/gtest.h>

namespace nimb::test
{
namespace
{

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr ArrivalRush::Time start{std::chrono::hours(1)};

TEST(ArrivalRush, ComesWithAsManyAsNobodyWrites)
{
    ArrivalRush rush;
    EXPECT_FALSE(rush.isOn());
    rush.note(20, start);
    EXPECT_FALSE(rush.isOn());
    rush.note(12, start + milliseconds(1));
    EXPECT_TRUE(rush.isOn());
}

TEST(ArrivalRush, IsNotWhatComesOverALongerTime)
{
    ArrivalRush rush;
    for (int i = 0; i < 1000; ++i) {
        rush.note(10, start + milliseconds(i));
        ASSERT_FALSE(rush.isOn()) << i;
    }
}

TEST(ArrivalRush, LastsWhileOneByOneComesFast)
{
    ArrivalRush rush;
    for (int i = 0; i < 1000; ++i)
        rush.note(1, start + i * microseconds(20));
    EXPECT_TRUE(rush.isOn());
}

TEST(ArrivalRush, IsOverWhenNothingComes)
{
    ArrivalRush rush;
    rush.note(1000, start);
    rush.pause();
    EXPECT_FALSE(rush.isOn());
    rush.note(1, start + milliseconds(1));
    EXPECT_FALSE(rush.isOn());
}

TEST(ArrivalRush, IsOverWhenOnlyFewCome)
{
    ArrivalRush rush;
    rush.note(1000, start);
    for (int i = 1; i <= 9; ++i)
        rush.note(5, start + milliseconds(i));
    EXPECT_FALSE(rush.isOn());
}

TEST(ArrivalRush, OneThatEndedUnseenIsNoneAnyMore)
{
    ArrivalRush rush;
    rush.note(1000, start);
    rush.note(1, start + seconds(5));
    EXPECT_FALSE(rush.isOn());
}

TEST(ReadersLead, IsTheLongestUntilAllIsSpent)
{
    ReadersLead lead(milliseconds(100), milliseconds(250));
    auto now = start;
    EXPECT_EQ(lead.allowed(now), milliseconds(100));
    lead.spent(now += milliseconds(100));
    EXPECT_EQ(lead.allowed(now), milliseconds(100));
    lead.spent(now += milliseconds(100));
    EXPECT_EQ(lead.allowed(now), milliseconds(0));
}

TEST(ReadersLead, ComesBackAtHalfTheSpeedOfTheClock)
{
    ReadersLead lead(milliseconds(100), milliseconds(100));
    EXPECT_EQ(lead.allowed(start), milliseconds(100));
    lead.spent(start + milliseconds(100));
    EXPECT_EQ(lead.allowed(start + milliseconds(298)), milliseconds(0));
    EXPECT_EQ(lead.allowed(start + milliseconds(300)), milliseconds(100));
}

TEST(ReadersLead, WhatWasNotSpentIsLeft)
{
    ReadersLead lead(milliseconds(100), milliseconds(200));
    EXPECT_EQ(lead.allowed(start), milliseconds(100));
    lead.spent(start + milliseconds(1));
    EXPECT_EQ(lead.allowed(start + milliseconds(1)), milliseconds(100));
    lead.spent(start + milliseconds(100));
    EXPECT_EQ(lead.allowed(start + milliseconds(100)), milliseconds(100));
}

TEST(ReadersLead, IsNeverMoreThanAllHoweverLongNothingHappened)
{
    ReadersLead lead(milliseconds(100), milliseconds(100));
    EXPECT_EQ(lead.allowed(start), milliseconds(100));
    const auto later = start + std::chrono::hours(20);
    EXPECT_EQ(lead.allowed(later), milliseconds(100));
    lead.spent(later + milliseconds(100));
    EXPECT_EQ(lead.allowed(later + milliseconds(100)), milliseconds(0));
}

} // namespace
} // namespace nimb::test
