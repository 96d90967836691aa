#include "base/own_state_entry.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(OwnStateEntry, OfAPersonalisedStateShowsBaseAndText)
{
    const OwnStateEntry entry = personalizedEntry(BaseState::busy, QStringLiteral("In a meeting"));
    EXPECT_EQ(entry.text, QStringLiteral("Busy - In a meeting"));
    EXPECT_EQ(entry.picture, Picture::busy);
    EXPECT_EQ(entry.personalizedText, QStringLiteral("In a meeting"));
    EXPECT_EQ(entry.base, BaseState::busy);
}

TEST(OwnStateEntry, IsStoredAsTheDigitOfItsPictureAndItsText)
{
    EXPECT_EQ(storedForm(personalizedEntry(BaseState::online, QStringLiteral("on the phone"))),
              QStringLiteral("1on the phone"));
    EXPECT_EQ(storedForm(personalizedEntry(BaseState::busy, QStringLiteral("In a meeting"))),
              QStringLiteral("4In a meeting"));
    EXPECT_EQ(storedForm(personalizedEntry(BaseState::away, QStringLiteral("a - b"))), QStringLiteral("5a - b"));
}

TEST(OwnStateEntry, IsReadFromAnyPictureAndStoredAgainAsItWas)
{
    const struct {
        const char *value, *text;
        std::optional<BaseState> base;
    } known[] = {{"1on the phone", "Online - on the phone", BaseState::online},
                 {"4In a meeting", "Busy - In a meeting", BaseState::busy},
                 {"5Back - at five", "Away - Back - at five", BaseState::away},
                 {"6hidden", "Invisible - hidden", BaseState::invisible},
                 {"4", "Busy - ", BaseState::busy},
                 {"2x", "Yellow - x", std::nullopt},
                 {"3x", "Red - x", std::nullopt}};
    for (const auto &[value, text, base] : known) {
        const std::optional<OwnStateEntry> entry = entryOfStored(QLatin1String(value));
        ASSERT_TRUE(entry) << value;
        EXPECT_EQ(entry->text, QLatin1String(text));
        EXPECT_EQ(entry->base, base) << value;
        EXPECT_EQ(storedForm(*entry), QLatin1String(value));
    }
}

TEST(OwnStateEntry, IsNoneWhereNoDigitOfAPictureStandsFirst)
{
    for (const char *value : {"", "Lunch", "0x", "7x", "9x", "-4", " 4x"})
        EXPECT_FALSE(entryOfStored(QString::fromUtf8(value))) << value;
}

} // namespace
} // namespace nimb
