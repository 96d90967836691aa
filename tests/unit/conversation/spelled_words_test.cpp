#include "conversation/spelled_words.h"

#include <gmock/gmock.h>

#include <string>

namespace nimb
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> words(const QString &text)
{
    std::vector<std::string> all;
    for (const WordPlace &place : wordsToCheck(text))
        all.push_back(text.mid(place.start, place.length).toStdString());
    return all;
}

TEST(SpelledWords, AreWhatStandsBetweenBlanksAndPunctuation)
{
    EXPECT_THAT(words(QStringLiteral("Hello, world! (see \"plan\")\nnext/last line...")),
                ElementsAre("Hello", "world", "see", "plan", "next", "last", "line"));
    EXPECT_THAT(words(QString()), IsEmpty());
    EXPECT_THAT(words(QStringLiteral(" \n\t ")), IsEmpty());
}

TEST(SpelledWords, HaveTheirPlaceInTheText)
{
    EXPECT_THAT(wordsToCheck(QStringLiteral("  ab, cde")), ElementsAre(WordPlace{2, 2}, WordPlace{6, 3}));
}

TEST(SpelledWords, AnApostropheBetweenLettersBelongsToTheWord)
{
    EXPECT_THAT(words(QStringLiteral("don't 'quoted' don\u2019t dogs' 'tis")),
                ElementsAre("don't", "quoted", "don\u2019t", "dogs", "tis"));
    EXPECT_EQ(dictionaryForm(u"don\u2019t"), QStringLiteral("don't"));
}

TEST(SpelledWords, OfWordsWithHyphensEachPartCounts)
{
    EXPECT_THAT(words(QStringLiteral("well-known e-mail -- dash")), ElementsAre("well", "known", "mail", "dash"));
}

TEST(SpelledWords, LettersOfEveryScriptCount)
{
    EXPECT_THAT(words(QStringLiteral("Grüße Ελένη Дмитрий cafe\u0301")),
                ElementsAre("Grüße", "Ελένη", "Дмитрий", "cafe\u0301"));
    EXPECT_THAT(words(QStringLiteral("\u4F60\u597D \u3053\u3093 \u0E2A\u0E27\u0E31\u0E2A")), IsEmpty());
}

TEST(SpelledWords, AddressesAreLeftOut)
{
    EXPECT_THAT(words(QStringLiteral("see http://fileserver/plns/2026 www.exmple.org mailto:pual pual@exmple.org "
                                     "(https://exmple.org), ok")),
                ElementsAre("see", "ok"));
}

TEST(SpelledWords, WordsWithDigitsOrUnderscoresAreLeftOut)
{
    EXPECT_THAT(words(QStringLiteral("3rd abc123 log_bench x2y fine 42")), ElementsAre("fine"));
}

TEST(SpelledWords, AbbreviationsAndSingleLettersAreLeftOut)
{
    EXPECT_THAT(words(QStringLiteral("NATO I a ÄÖ DON'T Nato iPhone")), ElementsAre("Nato", "iPhone"));
}

TEST(SpelledWords, EmoticonsAreLeftOut)
{
    EXPECT_THAT(words(QStringLiteral(":)) :(( :) :( :| :p ;) ;p :D \U0001F600")), IsEmpty());
}

TEST(SpelledWords, WhatIsTooLongIsNoWord)
{
    EXPECT_THAT(wordsToCheck(QString(64, u'x')), ElementsAre(WordPlace{0, 64}));
    EXPECT_THAT(wordsToCheck(QString(65, u'x')), IsEmpty());
}

TEST(SpelledWords, ACaretBehindTheLastLetterIsAtTheWord)
{
    constexpr WordPlace word{2, 3};
    EXPECT_FALSE(word.touches(1));
    EXPECT_TRUE(word.touches(2));
    EXPECT_TRUE(word.touches(5));
    EXPECT_FALSE(word.touches(6));
}

} // namespace
} // namespace nimb
