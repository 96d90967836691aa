#include "protocol/wire_text.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QStringConverter>

namespace nimb
{
namespace
{

TEST(WireText, AsciiTravelsAsItIs)
{
    EXPECT_EQ(toWire(QStringLiteral("hello :) ~")), "hello :) ~");
    EXPECT_EQ(fromWire("hello :) ~"), QStringLiteral("hello :) ~"));
}

TEST(WireText, WesternTextTravelsInTheWesternCodePage)
{
    EXPECT_EQ(toWire(QStringLiteral("Käse für 5 € – »gut«")), "K\xE4se f\xFCr 5 \x80 \x96 \xBBgut\xAB");
    EXPECT_EQ(fromWire("K\xE4se f\xFCr 5 \x80 \x96 \xBBgut\xAB"), QStringLiteral("Käse für 5 € – »gut«"));
}

TEST(WireText, OtherTextTravelsAsUtf8)
{
    EXPECT_EQ(toWire(QStringLiteral("привет")), "\xD0\xBF\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82");
    EXPECT_EQ(fromWire("\xD0\xBF\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82"), QStringLiteral("привет"));
    EXPECT_EQ(toWire(QStringLiteral("\U0001F600")), "\xF0\x9F\x98\x80");
    EXPECT_EQ(fromWire("\xF0\x9F\x98\x80"), QStringLiteral("\U0001F600"));
}

TEST(WireText, WesternTextThatLooksLikeUtf8TravelsAsUtf8)
{
    EXPECT_EQ(toWire(QStringLiteral("Ã¤")), "\xC3\x83\xC2\xA4");
    EXPECT_EQ(fromWire("\xC3\x83\xC2\xA4"), QStringLiteral("Ã¤"));
}

TEST(WireText, BytesThatAreNoUtf8AreWestern)
{
    EXPECT_EQ(fromWire("\xC3"), QStringLiteral("Ã"));
    EXPECT_EQ(fromWire("\xC0\xAF"), QStringLiteral("À¯"));
    EXPECT_EQ(fromWire("\xED\xA0\x80"), QString::fromUtf16(u"\u00ED\u00A0\u20AC"));
}

TEST(WireText, UndefinedBytesAreTheControlCharactersOfTheSameValue)
{
    EXPECT_EQ(fromWire("\x81\x8D\x8F\x90\x9D"), QString::fromUtf16(u"\u0081\u008D\u008F\u0090\u009D"));
    EXPECT_EQ(toWire(QString::fromUtf16(u"\u0081\u008D\u008F\u0090\u009D")), "\x81\x8D\x8F\x90\x9D");
}

TEST(WireText, ByteOrderMarksAndNulsSurvive)
{
    const QString text = QString::fromUtf16(u"\uFEFFa\0b\uFEFF", 5);
    EXPECT_EQ(fromWire(toWire(text)), text);
    EXPECT_EQ(toWire(QString(1, QChar(u'\0'))), std::string(1, '\0'));
}

TEST(WireText, EveryByteDecodesAsQtsOwnTableSays)
{
    QStringDecoder western("windows-1252");
    if (!western.isValid())
        return SUCCEED() << "this Qt build knows no windows-1252";
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const bool undefined = byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
        if (undefined)
            continue;
        EXPECT_EQ(fromWire(std::string_view(&c, 1)), QString(western.decode(QByteArrayView(&c, 1)))) << byte;
    }
}

TEST(WireText, EveryWellFormedTextComesBack)
{
    QRandomGenerator random(20261121);
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (int i = random.bounded(12); i >= 0; --i) {
            const char32_t limits[] = {0x80, 0x100, 0x2200, 0xFFFF, 0x10FFFF};
            const char32_t c = random.bounded(quint32(limits[random.bounded(5)]) + 1);
            if (c < 0xD800 || c > 0xDFFF)
                text += QString::fromUcs4(&c, 1);
        }
        ASSERT_EQ(fromWire(toWire(text)), text) << "round " << round;
    }
}

TEST(OneWord, HasHyphensForBlanksAndNoneAtTheEnds)
{
    EXPECT_EQ(oneWord(QStringLiteral("PC-ANN")), QStringLiteral("PC-ANN"));
    EXPECT_EQ(oneWord(QStringLiteral(" Ann's \t old\u00A0PC ")), QStringLiteral("Ann's-old-PC"));
    EXPECT_EQ(oneWord(QStringLiteral(" ")), QString());
    EXPECT_EQ(oneWord({}), QString());
}

} // namespace
} // namespace nimb
