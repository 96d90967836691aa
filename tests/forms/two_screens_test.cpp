// One screen above the other: the way of the pop-up ends where the other screen begins.
#include "notify/frmNotify.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QScreen>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

TEST(TwoScreens, TheParkedPopUpIsNotSeenOnTheScreenBelow)
{
    VirtualTime time;
    Common common;
    NotifySlide slide(common, time);
    frmNotify window(slide);
    slide.Form_Load(window);
    ASSERT_EQ(QGuiApplication::primaryScreen()->name(), QStringLiteral("1, upper"));
    EXPECT_GE(window.y(), 600);
    EXPECT_FALSE(window.isVisible());
}

TEST(TwoScreens, WhileItRisesOnlyThePartOnItsOwnScreenIsSeen)
{
    VirtualTime time;
    Common common;
    NotifySlide slide(common, time);
    frmNotify window(slide);
    slide.Form_Load(window);
    slide.add({QStringLiteral("Ann is online"), Presence::online, Ipv4Address(10, 0, 0, 2)});
    slide.startTimer();
    time.advance(500ms);
    ASSERT_LT(window.y(), 600);
    ASSERT_GT(window.geometry().bottom(), 600);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.mask().boundingRect(), QRect(0, 0, window.width(), 600 - window.y()));
    time.advance(1000ms);
    EXPECT_LT(window.geometry().bottom(), 600);
    EXPECT_TRUE(window.mask().isEmpty()) << "risen, it is seen as a whole";
    time.advance(5000ms);
    EXPECT_FALSE(window.isVisible());
}

} // namespace
} // namespace nimb::test
