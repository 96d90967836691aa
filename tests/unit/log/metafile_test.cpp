#include "log/metafile.h"

#include "log/emoticon_tables.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

using testing::AnyOf;
using testing::Each;

QByteArray pictureBytes(std::size_t picture)
{
    const QLatin1String hex = emoticonTables.pictureHex(picture);
    return QByteArray::fromHex(QByteArray(hex.data(), hex.size()));
}

/// Words are little-endian.
unsigned wordAt(const QByteArray &bytes, int word)
{
    return static_cast<unsigned char>(bytes[2 * word]) | static_cast<unsigned char>(bytes[2 * word + 1]) << 8;
}

class EmoticonPicture : public testing::TestWithParam<std::size_t>
{
protected:
    QByteArray bytes = pictureBytes(GetParam());
};

INSTANTIATE_TEST_SUITE_P(All, EmoticonPicture, testing::Range<std::size_t>(1, 10));

TEST_P(EmoticonPicture, IsAMetafileOf424BytesInLowerCaseDigits)
{
    const QLatin1String hex = emoticonTables.pictureHex(GetParam());
    EXPECT_EQ(hex.size(), 848);
    EXPECT_THAT(std::string(hex.data(), 848),
                Each(AnyOf(testing::AllOf(testing::Ge('0'), testing::Le('9')),
                           testing::AllOf(testing::Ge('a'), testing::Le('f')))));
    EXPECT_EQ(bytes.size(), 424);
}

TEST_P(EmoticonPicture, BeginsWithTheHeaderAndTheRecordsThatSetTheWindow)
{
    // Type 1, header of 9 words, version 0x0300, 212 words, no objects, largest record 114 words; then window origin
    // 0,0, window extent 12,12, stretching mode.
    EXPECT_EQ(bytes.first(46).toHex(),
              QByteArray("010009000003d400000000007200000000000500"
                         "00000b0200000000"
                         "050000000c020c000c00"
                         "0400000007010300"));
}

TEST_P(EmoticonPicture, StretchesABitmapOf16ColoursOverTheWindow)
{
    // 114 words, function 0x0F43, plain copy, palette of colours, bitmap 12 by 12 from 0,0, window 12 by 12 at 0,0;
    // then a bitmap header of 40 bytes: 12, 12, 1 plane, 4 bits, not compressed.
    EXPECT_EQ(bytes.mid(46, 28).toHex(), QByteArray("72000000430f2000cc0000000c000c00000000000c000c0000000000"));
    EXPECT_EQ(bytes.mid(74, 40).toHex(),
              QByteArray("280000000c0000000c0000000100040000000000"
                         "0000000000000000000000000000000000000000"));
    for (int colour = 0; colour < 16; ++colour)
        EXPECT_EQ(bytes[114 + 4 * colour + 3], 0) << "the fourth byte of a palette entry is unused";
    for (int row = 0; row < 12; ++row)
        EXPECT_EQ(bytes.mid(178 + 8 * row + 6, 2).toHex(), QByteArray("0000")) << "rows are filled up to 8 bytes";
}

TEST_P(EmoticonPicture, EndsAtWord140WithZerosBehind)
{
    EXPECT_EQ(bytes.mid(274, 6).toHex(), QByteArray("030000000000"));
    EXPECT_EQ(bytes.mid(280), QByteArray(144, '\0'));
}

TEST_P(EmoticonPicture, IsDecodedPixelForPixel)
{
    const std::optional<IndexedBitmap> bitmap = decodeMetafile(bytes);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->width, 12);
    EXPECT_EQ(bitmap->height, 12);
    for (int colour = 0; colour < 16; ++colour) {
        const unsigned blueGreen = wordAt(bytes, 57 + 2 * colour), red = wordAt(bytes, 58 + 2 * colour);
        EXPECT_EQ(bitmap->palette[static_cast<std::size_t>(colour)],
                  (red & 0xFF) << 16 | (blueGreen >> 8) << 8 | (blueGreen & 0xFF));
    }
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const auto pair = static_cast<unsigned char>(bytes[178 + 8 * (11 - y) + x / 2]);
            EXPECT_EQ(bitmap->pixels.at(static_cast<std::size_t>(12 * y + x)), x % 2 == 0 ? pair >> 4 : pair & 0xF)
                << x << ',' << y;
        }
    }
}

TEST_P(EmoticonPicture, IsARoundFaceOnItsGround)
{
    const std::optional<IndexedBitmap> bitmap = decodeMetafile(bytes);
    ASSERT_TRUE(bitmap);
    const auto at = [&](int x, int y) { return bitmap->pixels.at(static_cast<std::size_t>(12 * y + x)); };
    EXPECT_EQ(at(0, 0), at(11, 0));
    EXPECT_EQ(at(0, 0), at(0, 11));
    EXPECT_EQ(at(0, 0), at(11, 11));
    for (int i = 2; i < 10; ++i) {
        EXPECT_NE(at(i, i), at(0, 0)) << "the ground shows only around the face";
        EXPECT_NE(at(i, 11 - i), at(0, 0));
    }
}

TEST(EmoticonPictures, DifferOnlyInTheirBitmaps)
{
    const QByteArray first = pictureBytes(1);
    for (std::size_t picture = 2; picture <= 9; ++picture) {
        const QByteArray other = pictureBytes(picture);
        EXPECT_EQ(first.first(178), other.first(178));
        EXPECT_NE(first.mid(178, 96), other.mid(178, 96));
        EXPECT_EQ(first.mid(274), other.mid(274));
    }
}

TEST(Metafile, TheSmileIsTheOneThatWasDrawn)
{
    const std::optional<IndexedBitmap> smile = decodeMetafile(pictureBytes(3));
    ASSERT_TRUE(smile);
    std::string eyesAndMouth;
    for (const std::uint8_t pixel : smile->pixels)
        eyesAndMouth += smile->palette[pixel] == 0x2B2013 ? '#' : ' ';
    EXPECT_EQ(eyesAndMouth,
              "            "
              "            "
              "            "
              "    #  #    "
              "    #  #    "
              "            "
              "            "
              "   #    #   "
              "    ####    "
              "            "
              "            "
              "            ");
}

class DamagedMetafile : public testing::Test
{
protected:
    QByteArray with(int byte, char value) const
    {
        QByteArray changed = bytes;
        changed[byte] = value;
        return changed;
    }

    QByteArray bytes = pictureBytes(3);
};

TEST_F(DamagedMetafile, IsRefusedWhereverItIsCutShort)
{
    // The header tells the whole size, so not even the zeros behind the end record may be missing.
    for (int length = 0; length < 424; ++length)
        EXPECT_FALSE(decodeMetafile(bytes.first(length))) << length;
}

TEST_F(DamagedMetafile, NothingBehindTheEndRecordMatters)
{
    EXPECT_TRUE(decodeMetafile(bytes.first(280) + QByteArray(144, '\xFF')));
    EXPECT_TRUE(decodeMetafile(bytes + "more"));
}

TEST_F(DamagedMetafile, AnotherHeaderIsRefused)
{
    for (const int byte : {0, 2, 4, 5})
        EXPECT_FALSE(decodeMetafile(with(byte, 7))) << byte;
}

TEST_F(DamagedMetafile, WithoutAnEndRecordItIsRefused)
{
    QByteArray endless = bytes;
    // The end becomes a record that says it goes on behind the bytes, then one that takes all of them.
    endless[278] = 1;
    EXPECT_FALSE(decodeMetafile(endless.first(280) + QByteArray(144, '\x01')));
    endless[274] = 75;
    EXPECT_FALSE(decodeMetafile(endless));
}

TEST_F(DamagedMetafile, ARecordThatReachesBeyondTheBytesIsRefused)
{
    EXPECT_FALSE(decodeMetafile(with(18, '\x7F')));
    EXPECT_FALSE(decodeMetafile(with(20, '\x7F'))) << "a size of millions of words";
    EXPECT_FALSE(decodeMetafile(with(21, '\xFF'))) << "a size that would be negative";
    EXPECT_FALSE(decodeMetafile(with(18, '\x00'))) << "a record that never ends";
}

TEST_F(DamagedMetafile, AnotherKindOfBitmapIsRefused)
{
    EXPECT_FALSE(decodeMetafile(with(74, 41))) << "header size";
    EXPECT_FALSE(decodeMetafile(with(78, 13))) << "width";
    EXPECT_FALSE(decodeMetafile(with(80, 1))) << "a width of thousands";
    EXPECT_FALSE(decodeMetafile(with(82, 13))) << "height";
    EXPECT_FALSE(decodeMetafile(with(86, 2))) << "planes";
    EXPECT_FALSE(decodeMetafile(with(88, 8))) << "bits";
    EXPECT_FALSE(decodeMetafile(with(90, 1))) << "compression";
    EXPECT_FALSE(decodeMetafile(with(106, 17))) << "colours";
}

TEST_F(DamagedMetafile, ABitmapLargerThanItsBytesIsRefused)
{
    QByteArray large = bytes;
    for (const int byte : {34, 36, 58, 60, 66, 68, 78, 82}) // wherever its width and height stand
        large[byte] = 13;
    EXPECT_FALSE(decodeMetafile(large)) << "its 13th row would reach into the end record";
    for (const int byte : {34, 36, 58, 60, 66, 68, 78, 82})
        large[byte] = 11;
    EXPECT_TRUE(decodeMetafile(large)) << "a smaller one fits";
}

TEST(PictureFragment, HasOneFormOnly)
{
    const QString fragment = emoticonFragment(3);
    EXPECT_TRUE(decodePictureFragment(fragment));
    EXPECT_TRUE(fragment.startsWith(QStringLiteral("{\\pict\\picw318\\pich318\\wmetafile8 010009000003")));
    EXPECT_EQ(fragment.size(), 34 + 848 + 1);
    EXPECT_FALSE(decodePictureFragment(fragment.chopped(1)));
    EXPECT_TRUE(decodePictureFragment(fragment.chopped(1) + QStringLiteral("00}")));
    EXPECT_FALSE(decodePictureFragment(fragment.chopped(1) + QStringLiteral("0}"))) << "half a byte";
    EXPECT_FALSE(decodePictureFragment(fragment + QLatin1Char('\n')));
    EXPECT_FALSE(decodePictureFragment(QLatin1Char(' ') + fragment));
    EXPECT_FALSE(decodePictureFragment(QString(fragment).replace(u'd', u'g')));
    EXPECT_FALSE(decodePictureFragment(QStringLiteral("{\\pict\\picw318\\pich318\\wmetafile8 }")));
    EXPECT_FALSE(decodePictureFragment(QStringLiteral("{\\rtf1 hello}")));
    EXPECT_FALSE(decodePictureFragment(QString()));
}

} // namespace
} // namespace nimb
