#include "conversation/emoji_table.h"

#include "print_qt.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

const QString elephant = QStringLiteral("\U0001F418");

EmojiTable tableIn(const char *language)
{
    return EmojiTable({QLatin1String(language)});
}

std::string nameIn(const EmojiTable &table, const QString &emoji)
{
    const std::optional<std::size_t> found = table.find(emoji);
    return found ? table.all()[*found].name.toString().toStdString() : "none";
}

std::vector<std::string> found(const EmojiTable &table, const char *typed)
{
    std::vector<std::string> texts;
    for (const std::size_t emoji : table.search(QString::fromUtf8(typed)))
        texts.push_back(table.all()[emoji].text.toString().toStdString());
    return texts;
}

TEST(EmojiTable, NamesEmojiInSixLanguages)
{
    const QString heart = QStringLiteral("\u2764\uFE0F");
    const QString thumb = QStringLiteral("\U0001F44D");
    const QString dog = QStringLiteral("\U0001F415");
    const QString germany = QStringLiteral("\U0001F1E9\U0001F1EA");
    const struct {
        const char *language, *heart, *thumb, *dog, *germany;
    } names[] = {
        {"en", "red heart", "thumbs up", "dog", "flag: Germany"},
        {"de", "rotes Herz", "Daumen hoch", "Hund", "Flagge: Deutschland"},
        {"fr", "cœur rouge", "pouce vers le haut", "chien", "drapeau : Allemagne"},
        {"es", "corazón rojo", "pulgar hacia arriba", "perro", "Bandera: Alemania"},
        {"it", "cuore rosso", "pollice in su", "cane", "bandiera: Germania"},
        {"pl", "czerwone serce", "kciuk w górę", "pies", "flaga: Niemcy"},
    };
    for (const auto &row : names) {
        const EmojiTable table = tableIn(row.language);
        EXPECT_EQ(nameIn(table, heart), row.heart);
        EXPECT_EQ(nameIn(table, thumb), row.thumb);
        EXPECT_EQ(nameIn(table, dog), row.dog);
        // Some put a blank that does not break, or another one, before the colon.
        EXPECT_EQ(QString::fromStdString(nameIn(table, germany)).simplified().remove(u' ').remove(QChar(0x202F)),
                  QString::fromUtf8(row.germany).remove(u' '));
    }
}

TEST(EmojiTable, TakesTheFirstLanguageThatItKnowsAndOtherwiseEnglish)
{
    const auto nameOfDog
        = [](const QStringList &languages) { return nameIn(EmojiTable(languages), QStringLiteral("\U0001F415")); };
    EXPECT_EQ(nameOfDog({QStringLiteral("de-AT"), QStringLiteral("fr")}), "Hund");
    EXPECT_EQ(nameOfDog({QStringLiteral("nl-NL"), QStringLiteral("fr-BE"), QStringLiteral("en")}), "chien");
    EXPECT_EQ(nameOfDog({QStringLiteral("C")}), "dog");
    EXPECT_EQ(nameOfDog({}), "dog");
}

TEST(EmojiTable, EveryEmojiIsThereOnceWithANameInEveryLanguage)
{
    for (const char *const language : {"en", "de", "fr", "es", "it", "pl"}) {
        const EmojiTable table = tableIn(language);
        std::set<QString> texts;
        for (const EmojiTable::Emoji &emoji : table.all()) {
            EXPECT_TRUE(texts.insert(emoji.text.toString()).second) << emoji.text.toString().toStdString();
            EXPECT_FALSE(emoji.name.isEmpty()) << emoji.text.toString().toStdString();
        }
        EXPECT_GT(texts.size(), 1500u);
    }
}

TEST(EmojiTable, FollowsTheGroupsOfUnicodeWithoutSkinTones)
{
    const EmojiTable table = tableIn("en");
    std::vector<std::string> firsts;
    int group = -1;
    for (const EmojiTable::Emoji &emoji : table.all()) {
        EXPECT_GE(emoji.group, group);
        if (emoji.group != group)
            firsts.push_back(emoji.text.toString().toStdString());
        group = emoji.group;
    }
    EXPECT_THAT(firsts, ElementsAre("😀", "👋", "🐵", "🍇", "🌍", "🎃", "👓", "🏧", "🏁"));
    EXPECT_EQ(nameIn(table, QStringLiteral("\U0001F44D\U0001F3FD")), "none") << "thumbs up: medium skin tone";
    std::set<QString> names;
    for (int i = 0; i < EmojiTable::groups; ++i)
        names.insert(EmojiTable::groupName(i));
    EXPECT_EQ(names.size(), std::size_t(EmojiTable::groups));
}

TEST(EmojiTable, FindsByTheWordsOfTheUsersLanguageAndOfEnglish)
{
    const EmojiTable german = tableIn("de");
    EXPECT_THAT(found(german, "applaudieren"), Contains("👏")) << "a keyword, not in the name";
    EXPECT_THAT(found(german, "clapping"), Contains("👏"));
    EXPECT_THAT(found(german, "rotes HERZ"), Contains("❤️"));
    EXPECT_THAT(found(german, "heart red"), Contains("❤️"));
    EXPECT_THAT(found(tableIn("en"), "applaudieren"), IsEmpty());
    EXPECT_THAT(found(german, "Herz Elefant"), Not(Contains("❤️")));
    EXPECT_THAT(found(german, "xyzzy"), IsEmpty());
}

TEST(EmojiTable, NeedsNoAccents)
{
    EXPECT_THAT(found(tableIn("fr"), "elephant"), Contains(elephant.toStdString()));
    EXPECT_THAT(found(tableIn("fr"), "Éléphant"), Contains(elephant.toStdString()));
    EXPECT_THAT(found(tableIn("pl"), "slon"), Contains(elephant.toStdString()));
    EXPECT_THAT(found(tableIn("pl"), "SŁOŃ"), Contains(elephant.toStdString()));
    EXPECT_THAT(found(tableIn("de"), "weisses herz"), Contains("🤍"));
}

TEST(EmojiTable, WhatBeginsWithTheWordComesFirst)
{
    const std::vector<std::string> ants = found(tableIn("en"), "ant");
    ASSERT_THAT(ants, IsSupersetOf({"🐜", "🐘"}));
    EXPECT_LT(std::ranges::find(ants, "🐜"), std::ranges::find(ants, "🐘")) << "though elephants come first in Unicode";
    const std::vector<std::string> high = found(tableIn("en"), "hi");
    ASSERT_THAT(high, IsSupersetOf({"🥾", "🐔"}));
    EXPECT_LT(std::ranges::find(high, "🥾"), std::ranges::find(high, "🐔")) << "a hiking boot before a chicken";
}

TEST(EmojiTable, ANameThatBeginsWithTheWordComesBeforeOneThatHoldsIt)
{
    const std::vector<std::string> thumbs = found(tableIn("en"), "thumb");
    ASSERT_THAT(thumbs, IsSupersetOf({"👍", "🫰"}));
    EXPECT_EQ(thumbs.front(), "👍") << "before a hand with index finger and thumb crossed";
    EXPECT_EQ(found(tableIn("de"), "Daumen").front(), "👍");
}

} // namespace
} // namespace nimb::test
