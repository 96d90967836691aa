#include "base/presence.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(Presence, IsShownByItsPicture)
{
    EXPECT_EQ(pictureKey(pictureOf(Presence::online)), QStringLiteral("green"));
    EXPECT_EQ(pictureKey(pictureOf(Presence::busy)), QStringLiteral("busy"));
    EXPECT_EQ(pictureKey(pictureOf(Presence::away)), QStringLiteral("away"));
    EXPECT_EQ(pictureKey(pictureOf(Presence::unknown)), QStringLiteral("yellow"));
    EXPECT_EQ(pictureKey(pictureOf(Presence::offline)), QStringLiteral("red"));
}

TEST(Presence, ComesFirstInTheSortKeyThatTheNicknameEnds)
{
    EXPECT_EQ(sortKeyOf(Presence::online, QStringLiteral("ANN")), QStringLiteral("A_ANN"));
    EXPECT_EQ(sortKeyOf(Presence::busy, QStringLiteral("ANN")), QStringLiteral("AbANN"));
    EXPECT_EQ(sortKeyOf(Presence::away, QStringLiteral("ANN")), QStringLiteral("AwANN"));
    EXPECT_EQ(sortKeyOf(Presence::unknown, QStringLiteral("Ann")), QStringLiteral("B_Ann"));
    EXPECT_EQ(sortKeyOf(Presence::offline, QStringLiteral("ANN")), QStringLiteral("C_ANN"));
}

TEST(Presence, OfABusyOrAwayPeerMeansThatItIsThere)
{
    EXPECT_TRUE(isPresent(Presence::online));
    EXPECT_TRUE(isPresent(Presence::busy));
    EXPECT_TRUE(isPresent(Presence::away));
    EXPECT_FALSE(isPresent(Presence::unknown));
    EXPECT_FALSE(isPresent(Presence::offline));
}

} // namespace
} // namespace nimb
