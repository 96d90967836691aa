#include "base/own_presence.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(OwnPresence, IsOnlineAndUnchosenAtFirst)
{
    EXPECT_EQ(stateWord(OwnPresence().base), QLatin1String("Online"));
    EXPECT_EQ(OwnPresence().words, QString());
}

TEST(OwnPresence, TravelsInItsWord)
{
    EXPECT_EQ(stateWord(BaseState::online), QLatin1String("ONLINE"));
    EXPECT_EQ(stateWord(BaseState::busy), QLatin1String("BUSY"));
    EXPECT_EQ(stateWord(BaseState::away), QLatin1String("AWAY"));
    EXPECT_EQ(stateWord(BaseState::invisible), QLatin1String("Invisible"));
}

TEST(OwnPresence, IsShownByNameAndPicture)
{
    EXPECT_EQ(baseName(BaseState::unchosen), QLatin1String("Online"));
    EXPECT_EQ(baseName(BaseState::online), QLatin1String("Online"));
    EXPECT_EQ(baseName(BaseState::busy), QLatin1String("Busy"));
    EXPECT_EQ(baseName(BaseState::away), QLatin1String("Away"));
    EXPECT_EQ(baseName(BaseState::invisible), QLatin1String("Invisible"));
    EXPECT_EQ(pictureKey(pictureOf(BaseState::unchosen)), QStringLiteral("green"));
    EXPECT_EQ(pictureKey(pictureOf(BaseState::online)), QStringLiteral("green"));
    EXPECT_EQ(pictureKey(pictureOf(BaseState::busy)), QStringLiteral("busy"));
    EXPECT_EQ(pictureKey(pictureOf(BaseState::away)), QStringLiteral("away"));
    EXPECT_EQ(pictureKey(pictureOf(BaseState::invisible)), QStringLiteral("invisible"));
}

TEST(OwnPresence, IsKnownByItsPictureUnlessThatStandsForContactsAlone)
{
    EXPECT_EQ(baseStateOf(Picture::green), BaseState::online);
    EXPECT_EQ(baseStateOf(Picture::busy), BaseState::busy);
    EXPECT_EQ(baseStateOf(Picture::away), BaseState::away);
    EXPECT_EQ(baseStateOf(Picture::invisible), BaseState::invisible);
    EXPECT_EQ(baseStateOf(Picture::yellow), std::nullopt);
    EXPECT_EQ(baseStateOf(Picture::red), std::nullopt);
}

TEST(StateWord, OfAPeerMatchesByItsFirstCharactersWithoutRegardToCase)
{
    for (const char *word : {"BUSY", "busy", "Busy", "busybody"})
        EXPECT_EQ(presenceOfStateWord(QLatin1String(word)), Presence::busy) << word;
    for (const char *word : {"AWAY", "away", "aWaY", "Away!"})
        EXPECT_EQ(presenceOfStateWord(QLatin1String(word)), Presence::away) << word;
}

TEST(StateWord, OfAPeerThatIsNotKnownMeansOnline)
{
    for (const char *word : {"ONLINE", "Online", "Invisible", "lunch", "bus", "awa", ""})
        EXPECT_EQ(presenceOfStateWord(QLatin1String(word)), Presence::online) << word;
}

TEST(StateWord, IsFollowedByTheOwnWords)
{
    EXPECT_EQ(withOwnWords(QStringLiteral("BUSY"), QStringLiteral("In a meeting")),
              QStringLiteral("BUSY - In a meeting"));
}

TEST(StateWord, LeavesTheOwnWordsBehindIt)
{
    const auto words = [](const char *state) { return ownWordsOf(QLatin1String(state)); };
    EXPECT_EQ(words("BUSY - In a meeting"), QStringLiteral("In a meeting"));
    EXPECT_EQ(words("Away - Lunch - till two"), QStringLiteral("Lunch - till two"));
    EXPECT_EQ(words("Online - here"), QStringLiteral("here"));
    for (const char *plain : {"", "ONLINE", "Online", "BUSY", "away", "Invisible"})
        EXPECT_EQ(words(plain), QString()) << plain;
    for (const char *unknown : {"Phoning", "BUSYBODY", "Phoning - a client"})
        EXPECT_EQ(words(unknown), QLatin1String(unknown));
}

} // namespace
} // namespace nimb
