#include "conversation/emoji_stock.h"

#include "print_qt.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

TEST(EmojiStock, WhatWasUsedLastComesFirstAndOnce)
{
    Common common;
    int told = 0;
    EmojiStock stock(common, [&told] { ++told; });
    for (const char *const emoji : {"😀", "👍", "👍", "😀"})
        stock.use(QString::fromUtf8(emoji));
    EXPECT_THAT(stock.recent(), ElementsAre(QStringLiteral("😀"), QStringLiteral("👍")));
    EXPECT_EQ(told, 3) << "the second thumb changed nothing";
    EXPECT_EQ(common.recentEmoji, stock.recent());
}

TEST(EmojiStock, TwentyFourAreRemembered)
{
    Common common;
    EmojiStock stock(common, [] {});
    for (int i = 0; i < 30; ++i)
        stock.use(QString::number(i));
    EXPECT_EQ(stock.recent().size(), 24);
    EXPECT_EQ(stock.recent().front(), QStringLiteral("29"));
    EXPECT_EQ(stock.recent().back(), QStringLiteral("6"));
}

} // namespace
} // namespace nimb::test
