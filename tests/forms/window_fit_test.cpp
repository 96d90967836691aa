// Whatever the font and the scale: nothing is cut, nothing covers its neighbour, and every window has room on a small
// screen. The scale is that of QT_SCALE_FACTOR.
#include "every_window.h"
#include "private_chat/mood_gauge.h"
#include "real_windows.h"
#include "window_faults.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace nimb::test
{
namespace
{

double scaleAsked()
{
    return qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble() : 1;
}

class WindowFit : public testing::TestWithParam<int>
{
};

TEST_P(WindowFit, NothingIsCutOrCoveredAndEveryWindowHasRoomOnASmallScreen)
{
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    int seen = 0;
    visitEveryWindow([&seen](QWidget &window, const char *name) {
        EXPECT_THAT(faultsOf(window), testing::IsEmpty()) << name;
        ++seen;
    });
    QApplication::setFont(usual);
    EXPECT_GT(seen, 50);
}

TEST(WindowFitScreen, WhatHasToBeScrolledFollowsTheTabKey)
{
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSize(16);
    QApplication::setFont(font);
    {
        RealWindows windows;
        windows.entry("mnuToolsOptions").trigger();
        auto &area = windows.control<QScrollArea>("optionsArea");
        QWidget &dialog = *area.window();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        ASSERT_GT(area.verticalScrollBar()->maximum(), 0);
        auto &last = RealWindows::control<QPushButton>(dialog, "LoadAvatarbtn");
        const auto isSeen = [&area, &last] {
            return area.viewport()->rect().contains(QRect(last.mapTo(area.viewport(), QPoint()), last.size()));
        };
        EXPECT_FALSE(isSeen());
        for (int i = 0; i < 60 && !last.hasFocus(); ++i)
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(last.hasFocus());
        EXPECT_TRUE(isSeen());
    }
    QApplication::setFont(usual);
}

TEST(WindowFitScreen, TheFrameOfAGaugeReachesItsEdge)
{
    MoodGauge gauge(nullptr);
    const QImage drawn = gauge.grab().toImage();
    const int middle = drawn.height() / 2;
    const QColor left = drawn.pixelColor(0, middle);
    EXPECT_NE(drawn.pixelColor(drawn.width() / 2, middle), left);
    EXPECT_EQ(drawn.pixelColor(drawn.width() - 1, middle), left);
    EXPECT_EQ(drawn.pixelColor(drawn.width() / 2, drawn.height() - 1), left);
}

TEST(WindowFitScreen, IsSmallAtTheScaleThatIsAsked)
{
    EXPECT_EQ(QGuiApplication::primaryScreen()->size(), smallScreen);
    EXPECT_EQ(QGuiApplication::primaryScreen()->devicePixelRatio(), scaleAsked());
}

INSTANTIATE_TEST_SUITE_P(Points, WindowFit, testing::Values(9, 10, 12, 14, 16));

} // namespace
} // namespace nimb::test
