#include "history/found_words.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// What is marked of the text.
std::vector<std::string> marked(const QStringList &words, const QString &text)
{
    std::vector<std::string> all;
    for (const FoundWord &word : findWords(words, text))
        all.push_back(text.sliced(word.begin, word.end - word.begin).toStdString());
    return all;
}

TEST(FoundWords, AreFoundWithoutRegardToAccentsAndCase)
{
    EXPECT_THAT(marked({"cafe"}, QStringLiteral("A Caf\u00E9, two CAF\u00C9S")), ElementsAre("Caf\u00E9", "CAF\u00C9"));
    EXPECT_THAT(marked({QStringLiteral("CAF\u00C9")}, QStringLiteral("cafe")), ElementsAre("cafe"));
    EXPECT_THAT(marked({"uber", "a"}, QStringLiteral("\u00DCber \u01DF")), ElementsAre("\u00DCber", "\u01DF"));
}

TEST(FoundWords, HaveTheirMarksWithThem)
{
    EXPECT_THAT(marked({"cafe", "x"}, QStringLiteral("cafe\u0301 x")), ElementsAre("cafe\u0301", "x"));
    EXPECT_THAT(marked({QStringLiteral("e\u0301")}, QStringLiteral("\u00E9e")), ElementsAre("\u00E9", "e"));
}

TEST(FoundWords, StandWhereTheyDoBehindCharactersOfTwoUnits)
{
    EXPECT_EQ(findWords({"b"}, QStringLiteral("\U0001F600\u00E9b")), (std::vector<FoundWord>{{3, 4}}));
    EXPECT_EQ(findWords({QStringLiteral("\U0001F600")}, QStringLiteral("a\U0001F600")),
              (std::vector<FoundWord>{{1, 3}}));
}

TEST(FoundWords, OfOtherScriptsAreFoundAsTheyAre)
{
    EXPECT_THAT(marked({QStringLiteral("\u0438")}, QStringLiteral("\u0439 \u0418")), ElementsAre("\u0418"));
    EXPECT_THAT(marked({QStringLiteral("\uD558")}, QStringLiteral("\uD55C")), IsEmpty());
    EXPECT_THAT(marked({QStringLiteral("\u304B")}, QStringLiteral("\u304C")), IsEmpty());
}

TEST(FoundWords, AreNoneOfNothing)
{
    EXPECT_THAT(findWords({}, QStringLiteral("a")), IsEmpty());
    EXPECT_THAT(findWords({QString(), QStringLiteral("\u0301")}, QStringLiteral("a\u0301")), IsEmpty());
    EXPECT_THAT(findWords({"ab"}, QStringLiteral("a")), IsEmpty());
}

} // namespace
} // namespace nimb::test
