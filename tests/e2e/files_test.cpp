// A file goes from the window of a real copy to a program that knows nothing of it, and to another copy.
#include "chat_windows.h"
#include "child_process.h"
#include "network_namespaces.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gmock/gmock.h>

#include <memory>

namespace nimb::test
{
namespace
{

using testing::MatchesRegex;

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// Types the path into a dialog for files. Its list of names, which comes up meanwhile, may take keys for itself: then
/// once more.
void choosePath(const std::string &title, const QString &path)
{
    const Window dialog = Window::waitFor(title);
    EXPECT_TRUE(waitUntil([&] {
        dialog.activate();
        press("ctrl+a");
        type(path.toStdString());
        press("Return");
        return waitUntil([&] { return !Window::exists(title); }, std::chrono::seconds(3));
    }));
}

/// Presses until there is a window of that title: another window may have come to the front just now.
void clickUntil(const std::string &title, const PrivateWindow &window, int fromRight, int aboveBottom)
{
    EXPECT_TRUE(waitUntil([&] {
        window.activate();
        window.click(window.place().width - fromRight, window.place().height - aboveBottom);
        return waitUntil([&] { return Window::exists(title); }, std::chrono::seconds(1));
    }));
}

/// What curl gets at that address, asking from there.
QByteArray fetched(const std::string &url, const std::string &from)
{
    QProcess curl;
    endWithParent(curl);
    curl.start(QStringLiteral("curl"),
               {QStringLiteral("--silent"), QStringLiteral("--interface"), QString::fromStdString(from),
                QString::fromStdString(url)});
    EXPECT_TRUE(curl.waitForFinished(static_cast<int>(patience().count())));
    return curl.readAllStandardOutput();
}

/// By the paper clip beside "Send".
void sendFile(const PrivateWindow &window, const QString &path)
{
    constexpr int fromRight = 122, aboveBottom = 68; // pixels: left of its arrow
    clickUntil("Choose files to send", window, fromRight, aboveBottom);
    choosePath("Choose files to send", path);
}

class FilesOfACopy : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.53.12", port};
    RunningCopy bob{{"127.0.53.11", "BOB-PC"},
                    profile(port, {{"127.0.53.12", "Ann", "ANN-PC"}}, {{{"Options", "FilesExplained"}, "-1"}})};
};

/// Along the Tab key from the input box to the tool, then the name of the file in the dialog.
TEST_F(FilesOfACopy, AreFetchedByWhomTheyAreMeantFor)
{
    const QString path = bob.scratchFolder() + QStringLiteral("/Plan of the day.txt");
    writeFile(path, "nine o'clock: tea");
    const MainWindow main = MainWindow::startBob(bob, ann);
    ann.send(bob.address(), "!ONLINE 127.0.53.12 ANN-PC Ann");
    const PrivateWindow window = main.openWhenOnline(0, "Ann");
    window.focusInput();
    constexpr int stopsToTool = 9;
    for (int stop = 0; stop < stopsToTool; ++stop)
        press("Tab");
    press("space");
    choosePath("Choose files to send", path);
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

/// Bob has files, and Ann takes them into her folder.
class FilesBetweenCopies : public testing::Test
{
protected:
    FilesBetweenCopies() { EXPECT_TRUE(QDir().mkpath(annsFolder())); }

    QString annsFolder() const { return ann.scratchFolder() + QStringLiteral("/Downloads"); }
    QString inAnnsFolder(const QString &name) const { return annsFolder() + QLatin1Char('/') + name; }
    QStringList annsFiles() const { return QDir(annsFolder()).entryList(QDir::Files | QDir::Hidden); }
    QString bobsFile(const QString &name, const QByteArray &bytes) const
    {
        const QString path = bob.scratchFolder() + QLatin1Char('/') + name;
        writeFile(path, bytes);
        return path;
    }
    /// Both are there, and Bob has a window with Ann.
    PrivateWindow startBoth()
    {
        bob.start({"Bob"});
        ann.start({"Ann"});
        MainWindow::of("Ann");
        return MainWindow::of("Bob").openWhenOnline(0, "Ann");
    }

    /// Ann presses "Save..." in the newest row, once that is there: above it a row has its second line there.
    void saveNewestFile(const PrivateWindow &window) const
    {
        constexpr int fromRight = 85, aboveBottom = 155; // pixels
        clickUntil("Choose a folder to save in", window, fromRight, aboveBottom);
        choosePath("Choose a folder to save in", annsFolder());
    }

    const std::uint16_t port = freePort();
    const Rows explained{{{"Options", "FilesExplained"}, "-1"}};
    RunningCopy bob{{"127.0.53.21", "BOB-PC"}, profile(port, {{"127.0.53.22", "Ann", "ANN-PC"}}, explained)};
    RunningCopy ann{{"127.0.53.22", "ANN-PC"}, profile(port, {{"127.0.53.21", "Bob", "BOB-PC"}}, explained)};
};

TEST_F(FilesBetweenCopies, AreSavedByTheirRowsAndNeverOverEachOther)
{
    const PrivateWindow toAnn = startBoth();
    sendFile(toAnn, bobsFile(QStringLiteral("Plan.pdf"), "nine o'clock: tea"));
    saveNewestFile(PrivateWindow::with("Bob"));
    EXPECT_TRUE(waitUntil([&] { return annsFiles() == QStringList{QStringLiteral("Plan.pdf")}; }));
    sendFile(toAnn, bobsFile(QStringLiteral("Plan.pdf"), "ten o'clock: coffee"));
    saveNewestFile(PrivateWindow::with("Bob"));
    const QStringList both{QStringLiteral("Plan (2).pdf"), QStringLiteral("Plan.pdf")};
    EXPECT_TRUE(waitUntil([&] { return annsFiles() == both; })) << annsFiles().join(u' ').toStdString();
    EXPECT_EQ(bytesOf(inAnnsFolder(QStringLiteral("Plan.pdf"))), "nine o'clock: tea");
    EXPECT_EQ(bytesOf(inAnnsFolder(QStringLiteral("Plan (2).pdf"))), "ten o'clock: coffee");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.end(), 0);
}

/// An offer ends with the program that made it: what has come is kept, and is never taken for the whole.
TEST_F(FilesBetweenCopies, AreNeverTakenForWholeWhenTheSenderIsKilled)
{
    const PrivateWindow toAnn = startBoth();
    const QString large = bobsFile(QStringLiteral("Film.mkv"), "begin");
    constexpr qint64 size = qint64{3} * 1024 * 1024 * 1024; // of which nothing but holes is on the disk
    ASSERT_TRUE(QFile::resize(large, size));
    sendFile(toAnn, large);
    saveNewestFile(PrivateWindow::with("Bob"));
    const auto parts = [this] { return QDir(annsFolder()).entryInfoList({QStringLiteral("*.part")}); };
    ASSERT_TRUE(waitUntil([&] { return !parts().empty() && parts().front().size() > 0; }));
    bob.kill();
    const qint64 come = parts().front().size();
    ASSERT_LT(come, size);
    ASSERT_TRUE(QFile::resize(large, 1'000'000));
    bob.start({"Bob"});
    sendFile(MainWindow::of("Bob").openWhenOnline(0, "Ann"), large);
    saveNewestFile(PrivateWindow::with("Bob"));
    EXPECT_TRUE(waitUntil([&] { return annsFiles().contains(QStringLiteral("Film.mkv")); }));
    EXPECT_EQ(bytesOf(inAnnsFolder(QStringLiteral("Film.mkv"))), bytesOf(large));
    ASSERT_EQ(parts().size(), 1) << "of the first try";
    EXPECT_GE(parts().front().size(), come);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.end(), 0);
}

/// What was on its way stands in the window of transfers after the next start, and Bob offers it still.
TEST_F(FilesBetweenCopies, AreGoneOnWithAfterTheReceiverWasKilled)
{
    const PrivateWindow toAnn = startBoth();
    const QString large = bobsFile(QStringLiteral("Film.mkv"), "begin");
    constexpr qint64 size = qint64{150} * 1024 * 1024;
    ASSERT_TRUE(QFile::resize(large, size));
    sendFile(toAnn, large);
    saveNewestFile(PrivateWindow::with("Bob"));
    const auto parts = [this] { return QDir(annsFolder()).entryInfoList({QStringLiteral("*.part")}); };
    ASSERT_TRUE(waitUntil([&] { return !parts().empty() && parts().front().size() > 0; }));
    ann.kill();
    ASSERT_EQ(annsFiles().size(), 1) << "it had come before the kill";
    ann.start({"Ann"});
    MainWindow::of("Ann").activate();
    press("alt+t");
    press("t");
    Window::waitFor("NIMB-Chat - Transfers").activate();
    press("Tab"); // from what Ann offers to what others offer her
    press("alt+r");
    EXPECT_TRUE(waitUntil([&] { return annsFiles() == QStringList{QStringLiteral("Film.mkv")}; }));
    EXPECT_EQ(bytesOf(inAnnsFolder(QStringLiteral("Film.mkv"))), bytesOf(large));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.end(), 0);
}

TEST(FilesOnMachines, GoOverTheCardByWhichTheirReceiverIsReachedAndToNobodyElse)
{
    LanSwitch office, workshop;
    if (!office.isThere())
        GTEST_SKIP() << LanMachine::whyNot;
    LanMachine bobs, anns, bens, cleos;
    bobs.plug(office, "eth0", "10.1.0.1/24");
    bobs.plug(workshop, "eth1", "10.2.0.1/24");
    anns.plug(workshop, "eth0", "10.2.0.2/24");
    bens.plug(workshop, "eth0", "10.2.0.3/24");
    cleos.plug(office, "eth0", "10.1.0.2/24");
    constexpr std::uint16_t usualPort = 5549;
    const auto fetchedOn = [](const LanMachine &machine, const std::string &url, const std::string &from) {
        const auto visit = machine.visit();
        return fetched(url, from);
    };
    const auto ann = [&] {
        const auto visit = anns.visit();
        return std::make_unique<WirePeer>("10.2.0.2", usualPort);
    }();
    RunningCopy bob({"", "BOB-PC"},
                    profile(usualPort, {{"10.2.0.2", "Ann", "ANN-PC"}}, {{{"Options", "FilesExplained"}, "-1"}}));
    {
        const auto visit = bobs.visit();
        bob.start({"Bob"});
    }
    ann->hearUntil("!STATUS Online");
    ann->send("10.2.0.1", "!ONLINE 10.2.0.2 ANN-PC Ann");
    const PrivateWindow window = MainWindow::of("Bob").openWhenOnline(0, "Ann");
    const QByteArray photographs = QByteArray("many colours ").repeated(400'000);
    const QString path = bob.scratchFolder() + QStringLiteral("/Photographs.raw");
    writeFile(path, photographs);
    sendFile(window, path);
    const std::string message
        = ann->hearWhere([](const std::string &bytes) { return bytes.starts_with("-Photographs.raw "); }).bytes;
    EXPECT_THAT(message, MatchesRegex("-Photographs\\.raw \\(5\\.2 MB\\) http://10\\.2\\.0\\.1:[0-9]+/.*"));
    const std::string url = message.substr(message.find("http://"));
    EXPECT_TRUE(fetchedOn(anns, url, "10.2.0.2") == photographs);
    EXPECT_EQ(fetchedOn(bens, url, "10.2.0.3"), "") << "not meant for Ben";
    std::string otherCard = url;
    otherCard.replace(otherCard.find("10.2.0.1"), 8, "10.1.0.1");
    EXPECT_EQ(fetchedOn(cleos, otherCard, "10.1.0.2"), "") << "nothing listens on the other card";
}

} // namespace
} // namespace nimb::test
