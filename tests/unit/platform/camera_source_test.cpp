#include "platform/camera_source.h"

#include <gtest/gtest.h>

#include <QCameraDevice>
#include <QMediaDevices>
#include <QTest>

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
    if (frame) {
        EXPECT_EQ(frame->size(), 7500);
    }
}

} // namespace
} // namespace nimb
