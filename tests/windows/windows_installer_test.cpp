// What an administrator rolls out: installed without a question, started, and removed while it runs.
#include "windows_copy.h"

#include <gmock/gmock.h>

#include <QFileInfo>

namespace nimb::test
{
namespace
{

TEST(WindowsInstaller, InstallsSilentlyStartsFromThereAndRemovesWhatItPut)
{
    const QTemporaryDir folder;
    const QString place = folder.filePath(QStringLiteral("NIMB-Chat"));
    const QString program = place + QStringLiteral("/nimb-chat.exe");
    EXPECT_EQ(runUnderWine({builtForWindows("NIMB-Chat-setup.exe"), "/S", "/D=" + windowsPath(place)}).status, 0);
    ASSERT_TRUE(QFileInfo::exists(program));
    const WindowsResult version = runUnderWine({place + "/nimb-chatctl.exe", "--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.printed, testing::HasSubstr("1.2"));

    // It copies itself elsewhere, so that it can remove itself, and the first process ends before the second.
    EXPECT_EQ(runUnderWine({place + "/uninstall.exe", "/S"}).status, 0);
    EXPECT_TRUE(waitUntil([&] { return !QFileInfo::exists(program) && !QFileInfo::exists(place + "/uninstall.exe"); }));
}

} // namespace
} // namespace nimb::test
