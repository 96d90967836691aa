#include "private_chat/mood.h"

#include "print_qt.h"

#include <gmock/gmock.h>

#include <QLocale>

namespace nimb
{
namespace
{

using testing::Optional;

TEST(Mood, EveryFourUnitsHaveTheirName)
{
    const std::array names
        = {"Perfect white", "Quite white",   "Brightest green", "Light green", "Green",         "Almost green",
           "Quite green",   "Almost Yellow", "Yellow",          "Yellow",      "Mainly Yellow", "Quite red",
           "Red",           "Dark red",      "Almost black",    "Black"};
    for (int value = 0; value < 64; ++value) {
        const std::optional<MoodMark> mark = Mood::peers(static_cast<std::int16_t>(value));
        ASSERT_TRUE(mark) << value;
        EXPECT_EQ(mark->name, QLatin1String(names[std::size_t(value / 4)])) << value;
        EXPECT_EQ(mark->value, value);
    }
    EXPECT_EQ(Mood::own(3.99F)->name, QStringLiteral("Perfect white"));
    EXPECT_EQ(Mood::own(63.99F)->name, QStringLiteral("Black"));
}

TEST(Mood, TheMarkerTurnsBrightBelowForty)
{
    EXPECT_FALSE(Mood::own(40)->bright);
    EXPECT_TRUE(Mood::own(40.5F)->bright);
    EXPECT_TRUE(Mood::own(41)->bright);
    EXPECT_FALSE(Mood::peers(40)->bright);
    EXPECT_TRUE(Mood::peers(41)->bright);
    EXPECT_EQ(Mood::own(40)->name, QStringLiteral("Mainly Yellow"));
}

TEST(Mood, NothingOutsideTheScaleIsShown)
{
    for (const std::int16_t value : std::initializer_list<std::int16_t>{std::int16_t(-1), std::int16_t(64),
                                                                        std::int16_t(32767), std::int16_t(-32768)})
        EXPECT_FALSE(Mood::peers(value)) << value;
    for (const float value : {-0.5F, 64.0F, 1e30F})
        EXPECT_FALSE(Mood::own(value)) << value;
}

TEST(Mood, HalvesAreRoundedToTheEvenNeighbour)
{
    EXPECT_THAT(Mood::parse(QStringLiteral("3.5")), Optional(4));
    EXPECT_THAT(Mood::parse(QStringLiteral("2.5")), Optional(2));
    EXPECT_THAT(Mood::parse(QStringLiteral("2.51")), Optional(3));
    EXPECT_THAT(Mood::parse(QStringLiteral("63.5")), Optional(64));
    EXPECT_THAT(Mood::parse(QStringLiteral("-0.5")), Optional(0));
}

TEST(Mood, ANumberEndsWhereItEnds)
{
    EXPECT_THAT(Mood::parse(QStringLiteral("  12")), Optional(12));
    EXPECT_THAT(Mood::parse(QStringLiteral("12abc")), Optional(12));
    EXPECT_THAT(Mood::parse(QStringLiteral("12 34")), Optional(12));
    EXPECT_THAT(Mood::parse(QStringLiteral("12,9")), Optional(12));
    EXPECT_THAT(Mood::parse(QStringLiteral("1.2.3")), Optional(1));
    EXPECT_THAT(Mood::parse(QStringLiteral(".6")), Optional(1));
    EXPECT_THAT(Mood::parse(QStringLiteral("7.")), Optional(7));
    EXPECT_THAT(Mood::parse(QStringLiteral("1e1")), Optional(10));
    EXPECT_THAT(Mood::parse(QStringLiteral("1e")), Optional(1));
    EXPECT_THAT(Mood::parse(QStringLiteral("+5")), Optional(5));
    EXPECT_THAT(Mood::parse(QStringLiteral("-5")), Optional(-5));
    EXPECT_THAT(Mood::parse(QStringLiteral("nan")), Optional(0));
    EXPECT_THAT(Mood::parse(QStringLiteral("inf")), Optional(0));
    EXPECT_THAT(Mood::parse(QStringLiteral("-")), Optional(0));
    EXPECT_THAT(Mood::parse(QString()), Optional(0));
}

TEST(Mood, WhatFitsNoSixteenBitsIsNoMood)
{
    EXPECT_THAT(Mood::parse(QStringLiteral("32767")), Optional(32767));
    EXPECT_FALSE(Mood::parse(QStringLiteral("32768")));
    EXPECT_FALSE(Mood::parse(QStringLiteral("-32769")));
    EXPECT_FALSE(Mood::parse(QStringLiteral("1e400")));
    EXPECT_FALSE(Mood::parse(QString(5000, u'9')));
}

TEST(Mood, IsSentWithAPointInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(Mood::toSend(12.5F), QStringLiteral("12.5"));
    EXPECT_EQ(Mood::toSend(40), QStringLiteral("40"));
    EXPECT_EQ(Mood::toSend(0), QStringLiteral("0"));
    EXPECT_THAT(Mood::parse(QStringLiteral("12.6")), Optional(13));
    QLocale::setDefault(before);
}

} // namespace
} // namespace nimb
