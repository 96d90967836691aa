#include "widgets/window_flashing.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

using Platform = SystemVersion::Platform;

TEST(WindowFlashing, OnWindows9xOnlyMinorVersions10And90HaveIt)
{
    EXPECT_FALSE(isWindowFlashingAvailable({Platform::windows9x, 4, 0}));
    EXPECT_TRUE(isWindowFlashingAvailable({Platform::windows9x, 4, 10}));
    EXPECT_TRUE(isWindowFlashingAvailable({Platform::windows9x, 4, 90}));
    EXPECT_FALSE(isWindowFlashingAvailable({Platform::windows9x, 4, 11}));
}

TEST(WindowFlashing, OnWindowsNtOnlyMajorVersion5HasIt)
{
    EXPECT_FALSE(isWindowFlashingAvailable({Platform::windowsNt, 3, 51}));
    EXPECT_FALSE(isWindowFlashingAvailable({Platform::windowsNt, 4, 0}));
    EXPECT_TRUE(isWindowFlashingAvailable({Platform::windowsNt, 5, 1}));
    EXPECT_FALSE(isWindowFlashingAvailable({Platform::windowsNt, 10, 0}));
}

TEST(WindowFlashing, EveryOtherSystemHasIt)
{
    EXPECT_TRUE(isWindowFlashingAvailable({Platform::other, 0, 0}));
}

#ifdef Q_OS_UNIX
TEST(WindowFlashing, ThisSystemHasIt)
{
    EXPECT_TRUE(isWindowFlashingAvailable(runningSystem()));
}
#endif

} // namespace
} // namespace nimb
