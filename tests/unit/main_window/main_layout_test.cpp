#include "main_window/main_layout.h"

#include <gtest/gtest.h>

namespace nimb::main_layout
{
namespace
{

TEST(MainLayout, WidthFollowsTheLogPanelAlone)
{
    EXPECT_EQ(width(true), 9315);
    EXPECT_EQ(width(false), 4575);
}

TEST(MainLayout, AHeightOf3000IsSetBackTo4500)
{
    EXPECT_EQ(height(3000), 4500);
    EXPECT_EQ(height(4500), 4500);
    EXPECT_EQ(height(6200), 6200);
}

TEST(MainLayout, ControlsFollowTheHeight)
{
    EXPECT_EQ(listHeight(6200), 4300);
    EXPECT_EQ(rescanTop(6200), 4550);
    EXPECT_EQ(buzzmuteTop(6200), 4610);
    EXPECT_EQ(logHeight(6200), 4600);
}

TEST(MainLayout, TheDetailsSwitchSetsThreeColumns)
{
    EXPECT_EQ(columns(true).workstation, 1350);
    EXPECT_EQ(columns(true).ipAddress, 1250);
    EXPECT_EQ(columns(true).stateText, 0);
    EXPECT_EQ(columns(false).workstation, 0);
    EXPECT_EQ(columns(false).ipAddress, 0);
    EXPECT_EQ(columns(false).stateText, 2600);
}

} // namespace
} // namespace nimb::main_layout
