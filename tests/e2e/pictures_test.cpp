// The program where no plugin is installed that reads pictures or draws icons.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

constexpr std::uint32_t red = 0xd23f3f;    ///< of the picture of a contact that does not answer
constexpr std::uint32_t orange = 0xe0620d; ///< of one that is busy

/// A copy of the program that finds the plugin for X11 alone.
QString programWithoutPlugins(const QString &folder)
{
    QDir(folder).mkpath(QStringLiteral("bare/plugins"));
    const QString program = folder + QLatin1String("/bare/nimb-chat");
    EXPECT_TRUE(QFile::copy(RunningCopy::builtProgram(), program));
    EXPECT_TRUE(QFile::link(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QLatin1String("/platforms"),
                            folder + QLatin1String("/bare/plugins/platforms")));
    QFile configuration(folder + QLatin1String("/bare/qt.conf"));
    EXPECT_TRUE(configuration.open(QFile::WriteOnly));
    configuration.write("[Paths]\nPlugins = " + QFile::encodeName(folder) + "/bare/plugins\n");
    return program;
}

TEST(PicturesWithoutPlugins, AreShownAllTheSame)
{
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.41.2", port};
    WirePeer cleo{"127.0.41.3", port};
    RunningCopy bob({"127.0.41.1", "BOB-PC"},
                    profile(port, {{"127.0.41.2", "Ann", "ANN-PC"}, {"127.0.41.3", "Cleo", "CLEO-PC"}}));
    bob.setProgram(programWithoutPlugins(bob.scratchFolder()));
    bob.setVariable(QStringLiteral("QT_DEBUG_PLUGINS"), QStringLiteral("1"));

    const MainWindow main = MainWindow::startBob(bob, ann);

    // Hers is the second row: the mark of the keyboard's place changes the colours of the first.
    EXPECT_TRUE(waitUntil([&] { return main.shows(red); }));
    cleo.send(bob.address(), "!ONLINE 127.0.41.3 CLEO-PC Cleo");
    cleo.send(bob.address(), "!STATUS BUSY");
    EXPECT_TRUE(waitUntil([&] { return main.shows(orange); }));
    EXPECT_THAT(bob.printed(), testing::HasSubstr("/bare/plugins")) << "it has looked elsewhere";
    EXPECT_THAT(bob.printed(), testing::Not(testing::HasSubstr("imageformats/lib"))) << "it has found one";
}

} // namespace
} // namespace nimb::test
