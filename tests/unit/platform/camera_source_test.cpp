#include "platform/camera_source.h"

#include <gtest/gtest.h>

#include <QCameraDevice>
#include <QMediaDevices>
#include <QTest>
#include <QVideoFrame>

#include <algorithm>

namespace nimb
{
namespace
{

TEST(CameraSource, WithoutACameraItSaysSo)
{
    if (!QMediaDevices::defaultVideoInput().isNull())
        GTEST_SKIP() << "there is a camera here";
    CameraSource source;
    EXPECT_FALSE(source.frame());
    ASSERT_TRUE(source.problem());
    EXPECT_EQ(*source.problem(), QStringLiteral("There is no camera."));
}

TEST(CameraSource, GivesAFrameWhereThereIsACamera)
{
    if (QMediaDevices::defaultVideoInput().isNull())
        GTEST_SKIP() << "there is no camera here";
    CameraSource source;
    std::optional<QByteArray> frame;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (frame = source.frame()) || source.problem(); }, 10000));
    EXPECT_EQ(source.problem().value_or(QString()), QString());
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->size(), 7500);
}

TEST(CameraSource, ACameraThatHasSeenNothingGivesNoFrame)
{
    EXPECT_FALSE(frameOf(QVideoFrame()));
}

/// What a camera hands over: black, but blue from column 40 to 59 of 100, the middle fifth.
QVideoFrame blueStripe()
{
    QVideoFrame seen(QVideoFrameFormat(QSize(100, 50), QVideoFrameFormat::Format_BGRX8888));
    EXPECT_TRUE(seen.map(QVideoFrame::WriteOnly));
    for (int row = 0; row < seen.height(); ++row) {
        uchar *const pixels = seen.bits(0) + std::ptrdiff_t(row) * seen.bytesPerLine(0);
        for (int column = 0; column < seen.width(); ++column) {
            const bool isBlue = column >= 40 && column < 60;
            std::copy_n(isBlue ? "\xff\0\0\xff" : "\0\0\0\xff", 4, pixels + std::ptrdiff_t(4) * column);
        }
    }
    seen.unmap();
    return seen;
}

TEST(CameraSource, ItsFrameIsTheMiddleOfWhatTheCameraSees)
{
    const std::optional<QByteArray> frame = frameOf(blueStripe());
    ASSERT_TRUE(frame);
    ASSERT_EQ(frame->size(), 7500);
    const auto pixel = [&frame](int column) { return frame->mid(3 * column, 3).toHex(); };
    EXPECT_EQ(pixel(14), "000000");
    EXPECT_EQ(pixel(15), "ff0000");
    EXPECT_EQ(pixel(34), "ff0000");
    EXPECT_EQ(pixel(35), "000000");
}

} // namespace
} // namespace nimb
