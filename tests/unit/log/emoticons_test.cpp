#include "log/emoticons.h"

#include "base/limits.h"
#include "log/emoticon_tables.h"
#include "recorders.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

using test::RecorderLog;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Colour anyColour = 0xC08000;

/// The number of the emoticon picture that a fragment carries; 0 for another fragment.
int pictureNumber(const QString &fragment)
{
    const QString opening = QStringLiteral("{\\pict\\picw318\\pich318\\wmetafile8 ");
    if (!fragment.startsWith(opening) || !fragment.endsWith(QLatin1Char('}')))
        return 0;
    const QString hex = fragment.mid(opening.size()).chopped(1);
    for (std::size_t picture = 1; picture <= 9; ++picture) {
        if (emoticonTables.pictureHex(picture) == hex)
            return static_cast<int>(picture);
    }
    return 0;
}

/// Each insertion: texts in quotes, pictures as <number alternative>.
std::vector<std::string> insertions(const QString &body)
{
    RecorderLog log;
    AddTextWithEmoticons(log, body, anyColour);
    std::vector<std::string> list;
    for (const RecorderLog::Piece &piece : log.pieces) {
        if (piece.fragment.isEmpty())
            list.push_back('\'' + piece.text.toStdString() + '\'');
        else
            list.push_back('<' + std::to_string(pictureNumber(piece.fragment)) + ' ' + piece.text.toStdString() + '>');
    }
    return list;
}

std::vector<std::string> insertions(const char *body)
{
    return insertions(QString::fromUtf8(body));
}

struct Row {
    const char *text;
    const char *drawn;
};

TEST(Emoticons, EveryTextOfTheTableIsDrawnAsItsPicture)
{
    const std::array<Row, 18> table = {{{":-))", "<1 :-))>"},
                                        {":))", "<1 :))>"},
                                        {":-((", "<2 :-((>"},
                                        {":((", "<2 :((>"},
                                        {":-)", "<3 :-)>"},
                                        {":)", "<3 :)>"},
                                        {":-(", "<4 :-(>"},
                                        {":(", "<4 :(>"},
                                        {":-|", "<5 :-|>"},
                                        {":|", "<5 :|>"},
                                        {":-p", "<6 :-p>"},
                                        {":p", "<6 :p>"},
                                        {";-)", "<7 ;-)>"},
                                        {";)", "<7 ;)>"},
                                        {";-p", "<8 ;-p>"},
                                        {";p", "<8 ;p>"},
                                        {":-D", "<9 :-D>"},
                                        {":D", "<9 :D>"}}};
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(emoticonTables.texts[i], QLatin1String(table[i].text));
        EXPECT_THAT(insertions(table[i].text), ElementsAre("''", table[i].drawn, "''"));
    }
}

TEST(Emoticons, LettersInUpperCaseAreDrawnToo)
{
    EXPECT_THAT(insertions(":P"), ElementsAre("''", "<6 :P>", "''"));
    EXPECT_THAT(insertions(":-P"), ElementsAre("''", "<6 :-P>", "''"));
    EXPECT_THAT(insertions(";P"), ElementsAre("''", "<8 ;P>", "''"));
    EXPECT_THAT(insertions(";-P"), ElementsAre("''", "<8 ;-P>", "''"));
}

TEST(Emoticons, ALowerCaseGrinStaysText)
{
    EXPECT_THAT(insertions(":d"), ElementsAre("''", "':'", "'d'"));
    EXPECT_THAT(insertions(":-d"), ElementsAre("''", "':'", "'-d'"));
}

TEST(Emoticons, TextAroundAPictureStays)
{
    EXPECT_THAT(insertions("Hi :-)) there"), ElementsAre("'Hi '", "<1 :-))>", "' there'"));
}

TEST(Emoticons, TheLongerOneWins)
{
    EXPECT_THAT(insertions(":-)))"), ElementsAre("''", "<1 :-))>", "')'"));
    EXPECT_THAT(insertions(":(("), ElementsAre("''", "<2 :((>", "''"));
    EXPECT_THAT(insertions(";))"), ElementsAre("''", "<7 ;)>", "')'"));
}

TEST(Emoticons, TwoInARowAreTwoPictures)
{
    EXPECT_THAT(insertions(":-):-)"), ElementsAre("''", "<3 :-)>", "''", "<3 :-)>", "''"));
}

TEST(Emoticons, AColonAloneIsText)
{
    EXPECT_THAT(insertions(":"), ElementsAre("''", "':'", "''"));
}

TEST(Emoticons, AColonBetweenLettersIsInsertedInThreePieces)
{
    EXPECT_THAT(insertions("a:b"), ElementsAre("'a'", "':'", "'b'"));
}

TEST(Emoticons, OnlyTheFirstTriggerOfADoubledOneIsText)
{
    EXPECT_THAT(insertions("::)"), ElementsAre("''", "':'", "''", "<3 :)>", "''"));
    EXPECT_THAT(insertions(";:p"), ElementsAre("''", "';'", "''", "<6 :p>", "''"));
}

TEST(Emoticons, TheEleventhStaysText)
{
    const std::vector<std::string> list = insertions(QStringLiteral(":)").repeated(11));
    EXPECT_EQ(std::count(list.begin(), list.end(), "<3 :)>"), 10);
    EXPECT_EQ(list.at(list.size() - 2), "':)'");
    EXPECT_EQ(list.back(), "''");
}

TEST(Emoticons, TenPicturesAreCountedPerText)
{
    RecorderLog log;
    for (int message = 0; message < 2; ++message)
        AddTextWithEmoticons(log, QStringLiteral(":)").repeated(10), anyColour);
    EXPECT_EQ(std::count_if(log.pieces.begin(), log.pieces.end(),
                            [](const RecorderLog::Piece &piece) { return !piece.fragment.isEmpty(); }),
              20);
}

TEST(Emoticons, AnEmptyTextInsertsTheEmptyText)
{
    EXPECT_THAT(insertions(""), ElementsAre("''"));
}

TEST(Emoticons, EveryPieceOfTextHasTheColour)
{
    RecorderLog log;
    AddTextWithEmoticons(log, QStringLiteral("a:b ;) c"), 0x0080FF);
    for (const RecorderLog::Piece &piece : log.pieces)
        EXPECT_EQ(piece.colour, 0x0080FFu) << piece.text.toStdString();
}

TEST(Emoticons, ATextThatIsTooLongIsCutBeforeItIsSplit)
{
    RecorderLog log;
    AddTextWithEmoticons(log, QStringLiteral("x").repeated(limits::shownTextLength + 5), anyColour);
    EXPECT_TRUE(log.text().endsWith(QStringLiteral("x... (5 more characters)"))) << log.lastLine();
}

TEST(Emoticons, ParticipantsHaveEightColours)
{
    EXPECT_THAT(emoticonTables.participantColours,
                ElementsAre(0xC00000u, 0x008000u, 0x0000FFu, 0xC08000u, 0xAA00FFu, 0x0080FFu, 0xC000C0u, 0x008080u));
}

TEST(Emoticons, TheLinesOfABodyContinueTheOneThatItsPrefixBegan)
{
    RecorderLog log;
    AddTextWithEmoticons(log, QStringLiteral("one\r\ntwo :) three"), anyColour);
    appendText(log, QStringLiteral("\r\n"), anyColour);
    std::vector<bool> continues;
    for (const RecorderLog::Piece &piece : log.pieces)
        continues.push_back(piece.continues);
    EXPECT_THAT(continues, ElementsAre(true, true, true, false));
}

} // namespace
} // namespace nimb
