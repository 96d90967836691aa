#include "files/zip_layout.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

ZipLayout smallArchive()
{
    const QDateTime noon(QDate(2026, 11, 23), QTime(12, 0, 2));
    return ZipLayout(
        {{QStringLiteral("A/"), 0, noon}, {QStringLiteral("A/b.txt"), 9, noon}, {QStringLiteral("A/ü"), 0, noon}});
}

/// All of it, as a reader would get it who asks byte by byte.
QByteArray bytesOf(const ZipLayout &zip, const QByteArray &content, quint32 sum)
{
    QByteArray all;
    for (quint64 place = 0; place < zip.size(); ++place) {
        const ZipLayout::Piece piece = zip.at(place);
        const auto at
            = [&](const QByteArray &bytes, quint64 offset) { all += bytes.at(static_cast<qsizetype>(offset)); };
        if (const auto *header = std::get_if<ZipLayout::Header>(&piece))
            at(zip.header(header->entry), header->offset);
        else if (const auto *bytes = std::get_if<ZipLayout::FileBytes>(&piece))
            at(content, bytes->offset);
        else if (const auto *behind = std::get_if<ZipLayout::Sum>(&piece))
            at(zip.sum(behind->entry, behind->entry == 1 ? sum : 0), behind->offset);
        else if (const auto *row = std::get_if<ZipLayout::Directory>(&piece))
            at(zip.directory(row->entry, row->entry == 1 ? sum : 0), row->offset);
        else
            at(zip.end(), std::get<ZipLayout::End>(piece).offset);
    }
    return all;
}

TEST(Crc32, IsTheOneOfZip)
{
    EXPECT_EQ(crc32(0, std::string_view("123456789")), 0xCBF43926U);
    EXPECT_EQ(crc32(0, std::string_view()), 0U);
    EXPECT_EQ(crc32(crc32(0, std::string_view("12345")), std::string_view("6789")), 0xCBF43926U);
    EXPECT_EQ(crc32(0, std::string_view("The quick brown fox jumps over the lazy dog")), 0x414FA339U);
}

TEST(ZipLayout, IsTheArchiveThatTheFormatAsksFor)
{
    // Header, name, sizes; then the bytes, and their sum and sizes.
    const QByteArray folder = "504b03042d00000800000160775d00000000ffffffffffffffff02001400"
                              "412f"
                              "0100100000000000000000000000000000000000";
    const QByteArray file = "504b03042d00080800000160775d00000000ffffffffffffffff07001400"
                            "412f622e747874"
                            "0100100009000000000000000900000000000000"
                            "313233343536373839"
                            "504b07082639f4cb09000000000000000900000000000000";
    const QByteArray directoryOfFile = "504b01022d032d00080800000160775d2639f4cbffffffffffffffff07001c00"
                                       "00000000000000"
                                       "00a481ffffffff"
                                       "412f622e747874"
                                       "01001800090000000000000009000000000000003400000000000000";
    const QByteArray end = "504b06062c000000000000002d032d000000000000000000"
                           "03000000000000000300000000000000eb00000000000000dc00000000000000"
                           "504b060700000000c70100000000000001000000"
                           "504b050600000000ffffffffffffffffffffffff0000";
    const QByteArray all = bytesOf(smallArchive(), "123456789", 0xCBF43926).toHex();
    EXPECT_EQ(all.left(folder.size()).toStdString(), folder.toStdString());
    EXPECT_EQ(all.mid(folder.size(), file.size()).toStdString(), file.toStdString());
    EXPECT_EQ(all.mid(2 * (220 + 76), directoryOfFile.size()).toStdString(), directoryOfFile.toStdString());
    EXPECT_EQ(all.right(end.size()).toStdString(), end.toStdString());
    EXPECT_EQ(all.size(), 2 * (455 + 98));
}

TEST(ZipLayout, KnowsWhereTheBytesOfEachFileLie)
{
    const ZipLayout zip = smallArchive();
    const auto place = std::get<ZipLayout::FileBytes>(zip.at(52 + 57 + 4));
    EXPECT_EQ(place.entry, 1U);
    EXPECT_EQ(place.offset, 4U);
    EXPECT_EQ(place.length, 5U);
}

TEST(ZipLayout, HoldsFilesBeyondFourGigabytes)
{
    const quint64 large = 20'000'000'000;
    const ZipLayout zip({{QStringLiteral("a"), large}, {QStringLiteral("b"), large}});
    EXPECT_EQ(std::get<ZipLayout::FileBytes>(zip.at(51 + large + 24 + 51 + large - 1)).length, 1U);
    EXPECT_EQ(zip.size(), 2 * (51 + large + 24) + 2 * 75 + 98);
}

TEST(ZipLayout, MayBeEmpty)
{
    const ZipLayout zip({});
    EXPECT_EQ(zip.size(), 98U);
    EXPECT_EQ(std::get<ZipLayout::End>(zip.at(97)).offset, 97U);
}

} // namespace
} // namespace nimb
