// A file goes from the window of a real copy to a program that knows nothing of it.
#include "chat_windows.h"
#include "child_process.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QFile>
#include <QProcess>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::MatchesRegex;

class FilesOfACopy : public testing::Test
{
protected:
    /// What curl gets at that address, asking from there.
    static std::string fetched(const std::string &url, const std::string &from)
    {
        QProcess curl;
        endWithParent(curl);
        curl.start(QStringLiteral("curl"),
                   {QStringLiteral("--silent"), QStringLiteral("--interface"), QString::fromStdString(from),
                    QString::fromStdString(url)});
        EXPECT_TRUE(curl.waitForFinished(static_cast<int>(patience().count())));
        return curl.readAllStandardOutput().toStdString();
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.53.12", port};
    RunningCopy bob{{"127.0.53.11", "BOB-PC"},
                    profile(port, {{"127.0.53.12", "Ann", "ANN-PC"}}, {{{"Options", "FilesExplained"}, "-1"}})};
};

/// Along the Tab key from the input box to the tool, then the name of the file in the dialog.
TEST_F(FilesOfACopy, AreFetchedByWhomTheyAreMeantFor)
{
    const QString path = bob.scratchFolder() + QStringLiteral("/Plan of the day.txt");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("nine o'clock: tea") > 0);
    file.close();
    const MainWindow main = MainWindow::startBob(bob, ann);
    ann.send(bob.address(), "!ONLINE 127.0.53.12 ANN-PC Ann");
    const PrivateWindow window = main.openWhenOnline(0, "Ann");
    window.focusInput();
    constexpr int stopsToTool = 9;
    for (int stop = 0; stop < stopsToTool; ++stop)
        press("Tab");
    press("space");
    Window::waitFor("Choose files to send");
    type(path.toStdString());
    press("Return");
    const std::string message
        = ann.hearWhere([](const std::string &bytes) { return bytes.starts_with("-Plan of the day.txt "); }).bytes;
    EXPECT_THAT(message,
                MatchesRegex("-Plan of the day\\.txt \\(17 bytes\\) "
                             "http://127\\.0\\.53\\.11:[0-9]+/[0-9a-f]{32}/Plan%20of%20the%20day\\.txt"));
    const std::string url = message.substr(message.find("http://"));
    EXPECT_EQ(fetched(url, "127.0.53.12"), "nine o'clock: tea");
    EXPECT_EQ(fetched(url, "127.0.53.13"), "");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(fetched(url, "127.0.53.12"), "") << "offers end with the program";
}

} // namespace
} // namespace nimb::test
