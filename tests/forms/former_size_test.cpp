#include "widgets/former_size.h"

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

class FormerSizeTest : public testing::Test
{
protected:
    FormerSizeTest()
    {
        new FormerSize(window);
        auto *const column = new QVBoxLayout(&window);
        column->addWidget(new QLabel(QStringLiteral("always")));
        column->addWidget(&panel);
        panel.setFixedHeight(300);
        panel.hide();
        window.resize(200, 100);
        window.move(lowPlace());
        window.show();
        QCoreApplication::processEvents();
    }
    ~FormerSizeTest() override { panel.setParent(nullptr); }
    /// At which the panel has no room below.
    QPoint lowPlace() const { return {50, window.screen()->availableGeometry().bottom() - 200}; }
    void setOpen(bool open)
    {
        panel.setVisible(open);
        QCoreApplication::processEvents();
    }
    QWidget window;
    QWidget panel;
};

TEST_F(FormerSizeTest, AWindowThatGrewForAPanelGoesBackWhenThatHasGone)
{
    window.move(30, 30);
    setOpen(true);
    ASSERT_GT(window.height(), 300);
    EXPECT_EQ(window.pos(), QPoint(30, 30)) << "there is room";
    setOpen(false);
    EXPECT_EQ(window.size(), QSize(200, 100));
    EXPECT_EQ(window.pos(), QPoint(30, 30));
}

TEST_F(FormerSizeTest, WhereItMadeRoomItGoesBackToItsPlaceToo)
{
    for (int time = 0; time < 2; ++time) {
        setOpen(true);
        EXPECT_EQ(window.frameGeometry().bottom(), window.screen()->availableGeometry().bottom());
        setOpen(false);
        EXPECT_EQ(window.size(), QSize(200, 100));
        EXPECT_EQ(window.pos(), lowPlace());
    }
}

TEST_F(FormerSizeTest, WhereItWasMovedMeanwhileItStays)
{
    setOpen(true);
    window.move(80, 40);
    setOpen(false);
    EXPECT_EQ(window.size(), QSize(200, 100));
    EXPECT_EQ(window.pos(), QPoint(80, 40));
}

TEST_F(FormerSizeTest, WhatHungOverTheEdgeBeforeStillDoes)
{
    const QPoint hanging = lowPlace() + QPoint(0, 150);
    window.move(hanging);
    const int outside = window.frameGeometry().bottom() - window.screen()->availableGeometry().bottom();
    ASSERT_GT(outside, 0);
    setOpen(true);
    EXPECT_EQ(window.frameGeometry().bottom() - window.screen()->availableGeometry().bottom(), outside);
    setOpen(false);
    EXPECT_EQ(window.pos(), hanging);
}

} // namespace
} // namespace nimb
