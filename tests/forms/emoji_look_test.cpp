#include "widgets/emoji_look.h"

#include "conversation/message_input.h"
#include "log/rich_text_log.h"

#include <gmock/gmock.h>

#include <QFontInfo>
#include <QTest>
#include <QTextBlock>

namespace nimb
{

void PrintTo(const TextPlace &place, std::ostream *out)
{
    *out << place.start << '+' << place.length;
}

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const QString redHeart = QStringLiteral("\u2764\uFE0F");

std::vector<TextPlace> in(const char *text)
{
    return emojiIn(QString::fromUtf8(text));
}

TEST(EmojiIn, LettersAndSignsThatAreTextAreNone)
{
    EXPECT_THAT(in("1 + 1 = 2, ÄÖÜ, 漢字, \u2764, \u263A\uFE0E, \u00A9"), IsEmpty());
    EXPECT_THAT(in(""), IsEmpty());
    EXPECT_THAT(in("\uFE0F\u200D"), IsEmpty()) << "they join nothing";
}

TEST(EmojiIn, WhatIsAPictureByItselfOrMadeOneByTheCharacterBehindIt)
{
    EXPECT_THAT(in("a \u2764\uFE0F b"), ElementsAre(TextPlace{2, 2}));
    EXPECT_THAT(in("\u2615 and \U0001F600"), ElementsAre(TextPlace{0, 1}, TextPlace{6, 2}));
    EXPECT_THAT(in("\u270C\U0001F3FD"), ElementsAre(TextPlace{0, 3})) << "a hand with a skin";
    EXPECT_THAT(in("a1\uFE0F\u20E3b"), ElementsAre(TextPlace{1, 3})) << "a key";
}

TEST(EmojiIn, WhatIsJoinedIsOnePlace)
{
    const char *const couple = "x\U0001F469\u200D\u2764\uFE0F\u200D\U0001F468y";
    EXPECT_THAT(in(couple), ElementsAre(TextPlace{1, 8}));
    EXPECT_THAT(in("\U0001F469\u200D\u2695"), ElementsAre(TextPlace{0, 4}));
}

class EmojiInColour : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!QFontInfo(QFont(QStringLiteral("emoji"))).family().contains(QStringLiteral("Color")))
            GTEST_SKIP() << "no font of coloured emoji";
    }
};

int redPoints(QWidget &view)
{
    const QImage picture = view.grab().toImage();
    int red = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor point = picture.pixelColor(x, y);
            red += point.red() > 180 && point.green() < 90 && point.blue() < 90 ? 1 : 0;
        }
    }
    return red;
}

int looksIn(const QTextDocument &document)
{
    return static_cast<int>(document.firstBlock().layout()->formats().size());
}

TEST_F(EmojiInColour, ARedHeartIsRedInTheLogAndNothingOfItStandsInTheDocument)
{
    RichTextLogEdit log;
    log.resize(200, 80);
    log.show();
    appendText(log, QStringLiteral("I ") + redHeart + QStringLiteral(" it"), 0);
    log.writeGathered();
    EXPECT_GT(redPoints(*log.viewport()), 20);
    EXPECT_EQ(log.toPlainText(), QStringLiteral("I ") + redHeart + QStringLiteral(" it"));
    const QTextBlock line = log.document()->firstBlock();
    int pieces = 0;
    for (auto it = line.begin(); !it.atEnd(); ++it, ++pieces)
        EXPECT_FALSE(it.fragment().charFormat().hasProperty(QTextFormat::FontFamilies));
    EXPECT_EQ(pieces, 1);
}

TEST_F(EmojiInColour, ARedHeartIsRedInTheInputAndUndoneInOneStep)
{
    MessageInput input;
    input.resize(200, 80);
    input.show();
    int changes = 0;
    QObject::connect(&input, &QPlainTextEdit::textChanged, &input, [&changes] { ++changes; });
    input.insertPlainText(redHeart);
    EXPECT_EQ(changes, 1);
    EXPECT_GT(redPoints(*input.viewport()), 20);
    EXPECT_EQ(input.toPlainText(), redHeart);
    input.undo();
    EXPECT_EQ(input.toPlainText(), QString());
    EXPECT_EQ(looksIn(*input.document()), 0);
}

TEST_F(EmojiInColour, ACoupleOfThreePicturesTakesTheRoomOfOne)
{
    MessageInput input;
    const auto widthOf = [&input](const QString &text) {
        input.setPlainText(text);
        input.moveCursor(QTextCursor::End);
        return input.cursorRect().left();
    };
    input.resize(300, 80);
    input.show();
    const int none = widthOf({});
    const int one = widthOf(redHeart) - none;
    EXPECT_GT(one, 0);
    EXPECT_EQ(widthOf(QString::fromUtf8("\U0001F469\u200D\u2764\uFE0F\u200D\U0001F468")) - none, one);
}

TEST(EmojiLookTest, WhatAnInputMethodComposesKeepsItsOwnLook)
{
    MessageInput input;
    input.show();
    input.setFocus();
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    QInputMethodEvent composing(redHeart, {{QInputMethodEvent::TextFormat, 0, 2, underlined}});
    QCoreApplication::sendEvent(&input, &composing);
    const QList<QTextLayout::FormatRange> formats = input.document()->firstBlock().layout()->formats();
    ASSERT_FALSE(formats.isEmpty());
    EXPECT_TRUE(formats.front().format.fontUnderline());
}

} // namespace
} // namespace nimb
