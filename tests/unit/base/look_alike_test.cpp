#include "base/look_alike.h"

#include <gtest/gtest.h>

#include <array>

namespace nimb
{
namespace
{

bool alike(const char16_t *one, const char16_t *other)
{
    return lookOf(QString::fromUtf16(one)) == lookOf(QString::fromUtf16(other));
}

TEST(LookAlike, CaseWidthAndBlanksDoNotTellNamesApart)
{
    EXPECT_TRUE(alike(u"Ann", u"ANN"));
    EXPECT_TRUE(alike(u"Ann", u"\uFF21\uFF4E\uFF4E")); // fullwidth
    EXPECT_TRUE(alike(u"Ann Lee", u" Ann\u00A0 Lee "));
    EXPECT_TRUE(alike(u"\u0416\u0443\u043A", u"\u0436\u0423\u041A"));
    EXPECT_TRUE(alike(u"Jos\u00E9", u"Jose\u0301"));
}

TEST(LookAlike, LettersOfOtherAlphabetsThatLookLikeLatinOnesDoNotEither)
{
    EXPECT_TRUE(alike(u"Ann", u"\u0410nn"));                  // Cyrillic A
    EXPECT_TRUE(alike(u"ANN", u"\u0391\u039D\u039D"));        // Greek Alpha Nu Nu
    EXPECT_TRUE(alike(u"Boss", u"\u0412\u043E\u0455\u0455")); // Cyrillic throughout
    EXPECT_TRUE(alike(u"Mike", u"\u041C\u0456\u043A\u0435")); // Cyrillic throughout
    EXPECT_TRUE(alike(u"paypal", u"\u0440\u0430\u0443\u0440\u0430\u04CF"));
    EXPECT_TRUE(alike(u"Otto", u"0tt\u03BF"));
}

TEST(LookAlike, NeitherDoStrokesAndPairsOfLetters)
{
    EXPECT_TRUE(alike(u"Ilse", u"llse"));
    EXPECT_TRUE(alike(u"Bill", u"Bi11"));
    EXPECT_TRUE(alike(u"Tom", u"Torn"));
}

TEST(LookAlike, NeitherDoesWhatShowsNothing)
{
    EXPECT_TRUE(alike(u"Ann", u"A\u200Fnn"));
    EXPECT_TRUE(alike(u"Ann", u"A\u200Bn\u00ADn"));
}

TEST(LookAlike, OtherNamesAreTold)
{
    EXPECT_FALSE(alike(u"Ann", u"Anne"));
    EXPECT_FALSE(alike(u"Ann", u"Ben"));
    EXPECT_FALSE(alike(u"Jose", u"Jos\u00E9"));
    EXPECT_FALSE(alike(u"Ann Lee", u"AnnLee"));
    EXPECT_FALSE(alike(u"\u0416\u0443\u043A", u"\u0416\u0430\u043A"));
}

} // namespace
} // namespace nimb
