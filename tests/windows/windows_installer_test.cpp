// What an administrator rolls out: installed without a question, started, and removed while it runs.
#include "windows_copy.h"
#include "wire_peer.h"

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

    const std::uint16_t port = freePort();
    WirePeer ann("127.0.0.2", port);
    WindowsCopy installed(profile(port, {{"127.0.0.2", "Ann", "ANN-PC"}}));
    installed.RunningCopy::start({program, QStringLiteral("Win")});
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.0.1 WIN-PC Win");

    // It ends the copy that runs. And it copies itself elsewhere, so that it can remove itself: the first process ends
    // before the second.
    EXPECT_EQ(runUnderWine({place + "/uninstall.exe", "/S"}, {"NIMBCHAT_PROFILE=" + installed.profileFolder()}).status,
              0);
    EXPECT_TRUE(waitUntil([&] { return !QFileInfo::exists(program) && !QFileInfo::exists(place + "/uninstall.exe"); }));
    EXPECT_EQ(installed.exitStatus(), 0);
    EXPECT_TRUE(QFileInfo::exists(installed.storeFile())) << "the profile is the user's";
}

} // namespace
} // namespace nimb::test
