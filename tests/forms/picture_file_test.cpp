#include "base/limits.h"
#include "options/picture_file.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;

/// A picture with detail everywhere, so that no format can guess what is missing.
QImage noise(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            state = state * 1664525 + 1013904223;
            image.setPixel(x, y, state >> 8 | 0xFF000000);
        }
    }
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("cannot write %s", format);
    return bytes;
}

ReadPicture read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readPicture(buffer);
}

std::string problemOf(const ReadPicture &read)
{
    const auto *const problem = std::get_if<QString>(&read);
    return problem ? problem->toStdString() : std::string();
}

/// An animation of two frames, 2 by 2 pixels: red, then blue.
QByteArray animation()
{
    const auto frame = [](char index) {
        // Control extension, descriptor, code size 2, one block: clear, four pixels, end.
        QByteArray bytes("\x21\xF9\x04\x00\x0A\x00\x00\x00\x2C\x00\x00\x00\x00\x02\x00\x02\x00\x00\x02", 19);
        bytes += index == 0 ? QByteArray("\x03\x04\x00\x05\x00", 5) : QByteArray("\x03\x4C\x12\x05\x00", 5);
        return bytes;
    };
    return QByteArray("GIF89a\x02\x00\x02\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 19) + frame(0) + frame(1) + ";";
}

TEST(PictureFile, ReadsEveryFormatThatTheFilterNamesAndMore)
{
    for (const char *const format : {"jpg", "bmp", "png", "ppm"}) {
        const ReadPicture picture = read(encoded(noise(64, 48), format));
        ASSERT_TRUE(std::holds_alternative<QImage>(picture)) << format << ": " << problemOf(picture);
        EXPECT_EQ(std::get<QImage>(picture).size(), QSize(64, 48)) << format;
    }
}

TEST(PictureFile, TakesTheFirstPictureOfAnAnimation)
{
    const ReadPicture picture = read(animation());
    ASSERT_TRUE(std::holds_alternative<QImage>(picture)) << problemOf(picture);
    EXPECT_EQ(std::get<QImage>(picture).pixelColor(0, 0), QColor(Qt::red));
}

TEST(PictureFile, APictureThatEndsTooEarlyIsDamagedInEveryFormat)
{
    for (const char *const format : {"jpg", "bmp", "png", "ppm"}) {
        const QByteArray whole = encoded(noise(64, 48), format);
        for (const int percent : {99, 90, 50, 25}) {
            const QByteArray part = whole.left(whole.size() * percent / 100);
            EXPECT_THAT(problemOf(read(part)), testing::StartsWith("This picture is damaged")) << format << percent;
        }
    }
    const QByteArray gif = animation();
    EXPECT_EQ(problemOf(read(gif.left(19 + 20))), "This picture is damaged.");
}

TEST(PictureFile, TheFirstBytesAloneAreNoPicture)
{
    EXPECT_EQ(problemOf(read({})), "This is no picture that NIMB-Chat can read.");
    EXPECT_THAT(problemOf(read("BM")), HasSubstr("This picture is damaged"));
    EXPECT_EQ(problemOf(read("GIF8")), "This is no picture that NIMB-Chat can read.");
    EXPECT_EQ(problemOf(read("hello, I am a text")), "This is no picture that NIMB-Chat can read.");
}

TEST(PictureFile, OnePixelIsAPicture)
{
    const ReadPicture picture = read(encoded(noise(1, 1), "bmp"));
    ASSERT_TRUE(std::holds_alternative<QImage>(picture)) << problemOf(picture);
    EXPECT_EQ(std::get<QImage>(picture).size(), QSize(1, 1));
}

TEST(PictureFile, MoreThanFiftyMegapixelsAreRefusedByTheirHeader)
{
    QByteArray bitmap = encoded(noise(2, 2), "bmp");
    bitmap.replace(18, 8, QByteArray("\x40\x1F\x00\x00\x40\x1F\x00\x00", 8)); // 8000 by 8000
    EXPECT_THAT(problemOf(read(bitmap)), HasSubstr("more than 50 megapixels"));
    bitmap.replace(18, 8, QByteArray("\x20\x4E\x00\x00\x20\x4E\x00\x00", 8)); // 20000 by 20000
    EXPECT_THAT(problemOf(read(bitmap)), HasSubstr("far too large"));
    QByteArray gif = animation();
    for (const int place : {6, 19 + 8 + 5})
        gif.replace(place, 4, QByteArray("\x20\x4E\x20\x4E", 4));
    EXPECT_THAT(problemOf(read(gif)), HasSubstr("more than 50 megapixels"));
}

TEST(PictureFile, JustUnderTheLimitIsRead)
{
    QImageReader::setAllocationLimit(limits::pictureFileMemory); // as the program does when it starts
    QImage large(7000, 7100, QImage::Format_Mono);
    large.fill(0);
    const ReadPicture picture = read(encoded(large, "bmp"));
    EXPECT_TRUE(std::holds_alternative<QImage>(picture)) << problemOf(picture);
}

TEST(PictureFile, APictureWithoutAFileHasTheSameLimit)
{
    EXPECT_THAT(problemOf(checkPicture(QImage(10000, 5001, QImage::Format_Mono))),
                HasSubstr("more than 50 megapixels"));
    EXPECT_FALSE(problemOf(checkPicture(QImage())).empty());
    EXPECT_TRUE(std::holds_alternative<QImage>(checkPicture(noise(3, 3))));
}

TEST(PictureFile, WhatIsTransparentStandsOnWhite)
{
    QImage clear(2, 2, QImage::Format_ARGB32);
    clear.fill(qRgba(255, 0, 0, 0));
    const ReadPicture picture = read(encoded(clear, "png"));
    EXPECT_EQ(std::get<QImage>(picture).pixelColor(1, 1), QColor(Qt::white));
}

TEST(PictureFile, TheContentsDecideNotTheSuffix)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("wrong.jpg"));
    ASSERT_TRUE(noise(5, 5).save(path, "bmp"));
    EXPECT_TRUE(std::holds_alternative<QImage>(readPictureFile(path)));
}

TEST(PictureFile, WhatCannotBeOpenedIsSaidByItsName)
{
    const QTemporaryDir folder;
    EXPECT_EQ(problemOf(readPictureFile(folder.filePath(QStringLiteral("none.jpg")))),
              "\"none.jpg\" cannot be opened.");
    EXPECT_THAT(problemOf(readPictureFile(folder.path())), HasSubstr("cannot be opened"));
    EXPECT_THAT(problemOf(readPictureFile(QStringLiteral("/dev/zero"))), HasSubstr("cannot be opened"));
}

} // namespace
} // namespace nimb::test
