#include "welcome/tip_of_the_day.h"

#include "base/settings.h"

#include "recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

class TipOfTheDayTest : public testing::Test
{
protected:
    TipOfTheDay make()
    {
        return TipOfTheDay(store, [this] {
            ++openings;
            return file;
        });
    }
    /// Opens the dialog with a stored counter.
    std::string openedAt(const char *counter)
    {
        store.put("Options", "TipOTDayNum", QLatin1String(counter));
        tips.emplace(make());
        return told(tips->Form_Load());
    }
    std::string next() { return told(tips->nextbtn_Click()); }
    /// What unloading leaves in the store.
    std::string counterAfterUnload()
    {
        EXPECT_EQ(tips->Form_Unload(true), std::nullopt);
        return store.value("Options", "TipOTDayNum");
    }

    MemoryStore store;
    std::optional<QByteArray> file = QByteArrayLiteral("alpha\r\nbeta\r\ngamma\r\n");
    int openings = 0;
    std::optional<TipOfTheDay> tips;

private:
    /// Number in the caption and text, whose empty lines around it are checked and left out.
    static std::string told(const ShownTip &tip)
    {
        const std::string caption = tip.caption.toStdString();
        const std::string start = "Tip of the Day - Tip #";
        if (caption.rfind(start, 0) != 0 || !tip.text.startsWith(QLatin1String("\r\n"))
            || !tip.text.endsWith(QLatin1String("\r\n")) || tip.text.size() < 4)
            return "not a tip: " + caption + ": " + tip.text.toStdString();
        return caption.substr(start.size()) + ": " + tip.text.mid(2, tip.text.size() - 4).toStdString();
    }
};

const std::string noTips
    = "\r\nThere are no tips to show: the file TOTD.txt, which came with the program, is missing or "
      "cannot be read.\r\n";

// --- opening

TEST_F(TipOfTheDayTest, TheTextStandsBetweenAnEmptyFirstAndLastLine)
{
    TipOfTheDay dialog = make();
    const ShownTip tip = dialog.Form_Load();
    EXPECT_EQ(tip.text, QStringLiteral("\r\nalpha\r\n"));
    EXPECT_EQ(tip.caption, QStringLiteral("Tip of the Day - Tip #1"));
}

TEST_F(TipOfTheDayTest, TwoBarsAreALineBreak)
{
    file = "up||down";
    EXPECT_EQ(openedAt("0"), "1: up\r\ndown");
    file = "a|b|||c||";
    EXPECT_EQ(openedAt("0"), "1: a|b\r\n|c\r\n");
}

TEST_F(TipOfTheDayTest, OpeningShowsTheLineOfTheStoredNumber)
{
    EXPECT_EQ(openedAt("0"), "1: alpha");
    EXPECT_EQ(openedAt("1"), "2: beta");
    EXPECT_EQ(openedAt("2"), "3: gamma");
}

TEST_F(TipOfTheDayTest, OpeningShowsALineWithCommasWhole)
{
    file = "first, second, \"third, fourth\"";
    EXPECT_EQ(openedAt("0"), "1: first, second, \"third, fourth\"");
}

TEST_F(TipOfTheDayTest, BehindTheLastLineOpeningCountsOnAtTheFirst)
{
    EXPECT_EQ(openedAt("3"), "1: alpha");
    EXPECT_EQ(openedAt("4"), "1: beta");
    EXPECT_EQ(openedAt("5"), "1: gamma") << "the counter starts over though three lines are read behind the end";
    EXPECT_EQ(openedAt("6"), "1: alpha");
    EXPECT_EQ(openedAt("32767"), "1: beta");
}

TEST_F(TipOfTheDayTest, OpeningReadsTheFileOnce)
{
    openedAt("32766");
    EXPECT_EQ(openings, 1);
}

TEST_F(TipOfTheDayTest, ACounterThatIsNoneCountsAsZero)
{
    for (const char *const stored : {"-1", "-32768", "-99999", "", "abc", "2abc", "1.5", "32768", "99999999999"})
        EXPECT_EQ(openedAt(stored), "1: alpha") << stored;
    EXPECT_EQ(openedAt(" 2 "), "3: gamma");
}

TEST_F(TipOfTheDayTest, ANumberBeyondSixteenBitsStartsOver)
{
    QByteArray longFile;
    for (int line = 0; line <= 32768; ++line)
        longFile += "tip " + QByteArray::number(line) + '\n';
    file = longFile;
    EXPECT_EQ(openedAt("32766"), "32767: tip 32766");
    EXPECT_EQ(next(), "1: tip 0") << "the counter cannot go on";
    EXPECT_EQ(next(), "2: tip 1");
    EXPECT_EQ(openedAt("32767"), "1: tip 0");
    EXPECT_EQ(next(), "2: tip 1");
}

TEST_F(TipOfTheDayTest, NextGoesOnBehindTheLineThatOpeningShowed)
{
    EXPECT_EQ(openedAt("4"), "1: beta");
    EXPECT_EQ(next(), "2: gamma");
    EXPECT_EQ(next(), "1: alpha");
}

// --- next

TEST_F(TipOfTheDayTest, NextShowsEveryTipAndStartsOver)
{
    EXPECT_EQ(openedAt("0"), "1: alpha");
    EXPECT_EQ(next(), "2: beta");
    EXPECT_EQ(next(), "3: gamma") << "the end is met only when nothing is left to read";
    EXPECT_EQ(next(), "1: alpha");
    EXPECT_EQ(next(), "2: beta");
}

TEST_F(TipOfTheDayTest, NextShowsATipWithCommasInPieces)
{
    file = "alpha\nred,  green, \"blue, or azure\"||\ngamma, delta";
    openedAt("0");
    EXPECT_EQ(next(), "2: red");
    EXPECT_EQ(next(), "3: green");
    EXPECT_EQ(next(), "4: \"blue, or azure\"\r\n");
    EXPECT_EQ(next(), "5: gamma");
    EXPECT_EQ(next(), "6: delta");
    EXPECT_EQ(next(), "1: alpha");
}

TEST_F(TipOfTheDayTest, NextTakesQuotesAway)
{
    file = "alpha\n\"one, two||three\", four";
    openedAt("0");
    EXPECT_EQ(next(), "2: one, two\r\nthree");
    EXPECT_EQ(next(), "3: four");
}

TEST_F(TipOfTheDayTest, StartingOverShowsTheFirstLineWhole)
{
    file = "one, two\nthree";
    openedAt("1");
    EXPECT_EQ(next(), "1: one, two");
    EXPECT_EQ(next(), "2: three");
}

TEST_F(TipOfTheDayTest, TheFileIsReadAnewOnlyWhenItStartsOver)
{
    openedAt("0");
    file = "new";
    EXPECT_EQ(next(), "2: beta");
    EXPECT_EQ(next(), "3: gamma");
    EXPECT_EQ(openings, 1);
    EXPECT_EQ(next(), "1: new");
    EXPECT_EQ(openings, 2);
}

TEST_F(TipOfTheDayTest, AnEmptyFileShowsAnEmptyTip)
{
    file = "";
    EXPECT_EQ(openedAt("0"), "1: ");
    EXPECT_EQ(next(), "1: ");
    EXPECT_EQ(openedAt("7"), "1: ");
    EXPECT_EQ(counterAfterUnload(), "1");
}

// --- files that are not as they should be

TEST_F(TipOfTheDayTest, AMissingFileIsSaidInOneSentence)
{
    file.reset();
    TipOfTheDay dialog = make();
    const ShownTip tip = dialog.Form_Load();
    EXPECT_EQ(tip.text.toStdString(), noTips);
    EXPECT_EQ(tip.caption, QStringLiteral("Tip of the Day"));
    EXPECT_EQ(dialog.nextbtn_Click().text.toStdString(), noTips);
}

TEST_F(TipOfTheDayTest, AMissingFileCountsNoTip)
{
    file.reset();
    openedAt("2");
    next();
    EXPECT_EQ(counterAfterUnload(), "2");
}

TEST_F(TipOfTheDayTest, NextFindsAFileThatCameBack)
{
    file.reset();
    openedAt("2");
    file = "back\nagain";
    EXPECT_EQ(next(), "1: back");
    EXPECT_EQ(next(), "2: again");
}

TEST_F(TipOfTheDayTest, AFileThatVanishesIsMissedWhenItStartsOver)
{
    openedAt("1");
    file.reset();
    EXPECT_EQ(next(), "3: gamma");
    EXPECT_EQ(tips->nextbtn_Click().text.toStdString(), noTips);
    file = "back";
    EXPECT_EQ(next(), "1: back");
}

TEST_F(TipOfTheDayTest, WhatNoBoxCanShowBecomesBlanks)
{
    file = QByteArray("a\0b\x1B\x7F", 5) + "\tc";
    EXPECT_EQ(openedAt("0"), "1: a b  \tc");
}

TEST_F(TipOfTheDayTest, AHugeLineIsShownInPart)
{
    file = QByteArray(100000, 'x');
    EXPECT_EQ(openedAt("0"), "1: " + std::string(8000, 'x') + "... (92000 more characters)");
}

// --- settings

TEST_F(TipOfTheDayTest, IsShownAtStartWhenTheOptionIsExactlyOne)
{
    EXPECT_TRUE(tipsAtStart(store)) << "unless somebody has switched it off";
    for (const char *const value : {"0", "", "01", "1 ", "-1", "true", "2"}) {
        store.put("Options", "TipOTDay", QLatin1String(value));
        EXPECT_FALSE(tipsAtStart(store)) << value;
        EXPECT_FALSE(make().showsAtStart()) << value;
    }
    store.put("Options", "TipOTDay", QStringLiteral("1"));
    EXPECT_TRUE(tipsAtStart(store));
    EXPECT_TRUE(make().showsAtStart());
}

TEST_F(TipOfTheDayTest, UnloadingSavesBothSettingsAtOnce)
{
    openedAt("0");
    next();
    EXPECT_EQ(tips->Form_Unload(false), std::nullopt);
    EXPECT_THAT(store.order, ElementsAre("Options/TipOTDay", "Options/TipOTDayNum"));
    EXPECT_EQ(store.value("Options", "TipOTDay"), "0");
    EXPECT_EQ(store.value("Options", "TipOTDayNum"), "2");
    EXPECT_EQ(store.saves, 1);
    EXPECT_EQ(tips->Form_Unload(true), std::nullopt);
    EXPECT_EQ(store.value("Options", "TipOTDay"), "1");
}

TEST_F(TipOfTheDayTest, TheNextOpeningShowsTheTipAfterTheLast)
{
    openedAt("0");
    EXPECT_EQ(openedAt(counterAfterUnload().c_str()), "2: beta");
    EXPECT_EQ(openedAt(counterAfterUnload().c_str()), "3: gamma");
    EXPECT_EQ(openedAt(counterAfterUnload().c_str()), "1: alpha");
}

TEST_F(TipOfTheDayTest, AFailedSaveIsReturned)
{
    openedAt("0");
    store.failure = QStringLiteral("The disk is full.");
    EXPECT_EQ(tips->Form_Unload(true), QStringLiteral("The disk is full."));
}

} // namespace
} // namespace nimb::test
