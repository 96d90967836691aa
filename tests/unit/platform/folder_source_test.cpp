#include "platform/folder_source.h"

#include "widgets/avatar_image.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace nimb
{
namespace
{

class FolderSourceTest : public testing::Test
{
protected:
    void put(const char *name, const QColor &colour, QSize size = QSize(80, 60))
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(folder.filePath(QLatin1String(name))));
    }
    void putText(const char *name, const QByteArray &content)
    {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QColor colourOf(const std::optional<QByteArray> &frame)
    {
        return frame ? avatarImage(*frame).pixelColor(25, 25) : QColor();
    }

    QTemporaryDir folder;
};

TEST_F(FolderSourceTest, ShowsItsPicturesInTurnByName)
{
    put("2.png", QColor(0, 255, 0));
    put("1.png", QColor(255, 0, 0));
    put("3.png", QColor(0, 0, 255), QSize(1, 1));
    FolderSource source(folder.path());
    for (int turn = 0; turn < 2; ++turn) {
        EXPECT_EQ(colourOf(source.frame()), QColor(255, 0, 0));
        EXPECT_EQ(colourOf(source.frame()), QColor(0, 255, 0));
        EXPECT_EQ(colourOf(source.frame()), QColor(0, 0, 255));
    }
    EXPECT_FALSE(source.problem());
}

TEST_F(FolderSourceTest, AFrameIsBlueGreenRedWithoutGaps)
{
    put("1.png", QColor(1, 2, 3));
    const std::optional<QByteArray> frame = FolderSource(folder.path()).frame();
    ASSERT_TRUE(frame);
    ASSERT_EQ(frame->size(), 7500);
    for (int i = 0; i < 7500; i += 3)
        ASSERT_EQ(frame->mid(i, 3), QByteArray("\x03\x02\x01")) << i;
}

TEST_F(FolderSourceTest, WhatIsNoPictureIsPassedOver)
{
    putText("0.txt", "no picture");
    putText("1.png", QByteArray("\x89PNG\r\n\x1A\n and then nothing"));
    put("2.png", QColor(255, 0, 0));
    FolderSource source(folder.path());
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(colourOf(source.frame()), QColor(255, 0, 0));
}

TEST_F(FolderSourceTest, WithoutAnyPictureItSaysSo)
{
    putText("0.txt", "no picture");
    FolderSource source(folder.path());
    EXPECT_FALSE(source.frame());
    ASSERT_TRUE(source.problem());
    EXPECT_TRUE(source.problem()->contains(QStringLiteral("There is no picture to show in")));
}

TEST_F(FolderSourceTest, PicturesThatVanishEndIt)
{
    put("1.png", QColor(255, 0, 0));
    FolderSource source(folder.path());
    EXPECT_TRUE(source.frame());
    QFile::remove(folder.filePath(QStringLiteral("1.png")));
    EXPECT_FALSE(source.frame());
    EXPECT_TRUE(source.problem());
}

TEST_F(FolderSourceTest, AFolderThatIsNotThereHasNoPictures)
{
    FolderSource source(folder.filePath(QStringLiteral("missing")));
    EXPECT_FALSE(source.frame());
    EXPECT_TRUE(source.problem());
}

TEST(AvatarImage, EveryByteComesBack)
{
    QByteArray body;
    for (int i = 0; i < 7500; ++i)
        body.append(static_cast<char>(i * 37 % 256));
    EXPECT_EQ(avatarBody(avatarImage(body)), body);
}

TEST(AvatarImage, TheFirstPixelIsTheUpperLeftOneAndItsFirstByteBlue)
{
    QByteArray body(7500, '\0');
    body[0] = '\xC0';
    body[1] = '\x80';
    body[2] = '\x01';
    body[3 * (49 + 50 * 10) + 2] = '\xFF';
    const QImage image = avatarImage(body);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0x01, 0x80, 0xC0));
    EXPECT_EQ(image.pixelColor(49, 10), QColor(255, 0, 0));
}

TEST(AvatarImage, AnyOtherNumberOfBytesIsNone)
{
    for (const int length : {0, 1, 7499, 7501, 60000})
        EXPECT_TRUE(avatarImage(QByteArray(length, 'x')).isNull()) << length;
    EXPECT_TRUE(avatarBody(QImage()).isEmpty());
}

TEST_F(FolderSourceTest, MoreThanFiftyMegapixelsArePassedOver)
{
    QImage large(10000, 5001, QImage::Format_Mono);
    large.fill(1);
    ASSERT_TRUE(large.save(folder.filePath(QStringLiteral("1.png"))));
    put("2.png", QColor(255, 0, 0));
    FolderSource source(folder.path());
    EXPECT_EQ(colourOf(source.frame()), QColor(255, 0, 0));
    EXPECT_EQ(colourOf(source.frame()), QColor(255, 0, 0));
}

} // namespace
} // namespace nimb
