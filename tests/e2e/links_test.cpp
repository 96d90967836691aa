// Addresses in conversations: what a click on them starts, and what nothing starts.
#include "chat_windows.h"
#include "child_process.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QDir>
#include <QFile>
#include <QUrl>

#include <gmock/gmock.h>

#include <algorithm>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// A window opens where the new begins: its day and its mark stand above the first line.
constexpr int marksAbove = 2;

/// Stands where a desktop has its program that opens addresses, and writes down how it was called.
class FakeDesktop
{
public:
    FakeDesktop()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("calls"));
        QFile script(m_folder.filePath(QStringLiteral("xdg-open")));
        EXPECT_TRUE(script.open(QFile::WriteOnly));
        // A call is a file, which has its name once it is complete.
        script.write("#!/bin/sh\n"
                     "folder=${0%/*}\n"
                     "printf '%s\\n' \"$#\" \"$@\" >\"$folder/$$\"\n"
                     "ls -l /proc/$$/fd >\"$folder/open-files\"\n"
                     "mv \"$folder/$$\" \"$folder/calls/\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// Where it is found before any other.
    QString path() const { return m_folder.path() + u':' + qEnvironmentVariable("PATH"); }

    /// How many arguments each call had, and the arguments, one per line, in the order of the calls.
    std::vector<std::string> calls() const
    {
        std::vector<std::string> all;
        const QDir folder(m_folder.filePath(QStringLiteral("calls")));
        const QFileInfoList files = folder.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
        for (const QFileInfo &file : files)
            all.push_back(contentOf(file.filePath()));
        return all;
    }
    bool isCalled(std::size_t times) const
    {
        return waitUntil([&] { return calls().size() >= times; });
    }

    /// The files that the last call found open, as "ls" shows them.
    std::string openFiles() const { return contentOf(m_folder.filePath(QStringLiteral("open-files"))); }

private:
    static std::string contentOf(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
        return file.readAll().toStdString();
    }

    QTemporaryDir m_folder;
};

class Links : public testing::Test
{
protected:
    Links()
    {
        bob.setVariable(QStringLiteral("PATH"), desktop.path());
        bob.start({"Bob"});
        ann.hearUntil("!STATUS Online");
    }

    /// Ann says the same so often that nothing else is to be seen in the log.
    PrivateWindow fillLogWith(const std::string &line)
    {
        std::string message = "-" + line;
        for (int i = 0; i < 60; ++i)
            message += "\r\n" + line;
        ann.send(bob.address(), message);
        ann.send(bob.address(), "?ONLINE");
        ann.hearUntil("!STATUS Online");
        return PrivateWindow::with("Ann");
    }

    /// Returns when the click has been dealt with: what the user does next comes after it.
    void clickAndSettle(const PrivateWindow &window, int linesBelow)
    {
        window.clickIntoLog(linesBelow + marksAbove);
        window.focusInput();
        window.say("so what");
        ann.hearWhere([](const std::string &bytes) { return bytes == "-so what"; });
    }

    FakeDesktop desktop;
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.37.2", port};
    RunningCopy bob{{"127.0.37.1", "BOB-PC"}, profile(port, {{"127.0.37.2", "Ann", "ANN-PC"}})};
};

TEST_F(Links, AreOpenedByAClickWithTheAddressAsTheOneArgument)
{
    fillLogWith("http://127.0.0.1/x_y").clickIntoLog(marksAbove);
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(desktop.calls(), ElementsAre("1\nhttp://127.0.0.1/x_y\n"));
}

TEST_F(Links, OfTheManualLeadToThePageOfTheWindowInWhichTheUserIs)
{
    const QDir manual(QFileInfo(RunningCopy::builtProgram()).dir().filePath(QStringLiteral("manual")));
    if (!manual.exists(QStringLiteral("index.html")))
        GTEST_SKIP() << "this program was built without a manual";
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    press("F1");
    ASSERT_TRUE(desktop.isCalled(1));
    ann.send(bob.address(), "-hello");
    PrivateWindow::with("Ann").activate();
    press("F1");
    ASSERT_TRUE(desktop.isCalled(2));
    const std::string folder = QUrl::fromLocalFile(manual.path()).toEncoded().toStdString();
    EXPECT_THAT(desktop.calls(),
                ElementsAre("1\n" + folder + "/main-window.html\n", //
                            "1\n" + folder + "/private-chat.html\n"));
}

TEST_F(Links, InheritNothingFromTheProgram)
{
    fillLogWith("http://127.0.0.1/x_y").clickIntoLog(marksAbove);
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_THAT(desktop.openFiles(), testing::Not(testing::HasSubstr("socket:")));
    EXPECT_THAT(desktop.openFiles(), testing::Not(testing::HasSubstr(bob.profileFolder().toStdString())));
}

TEST_F(Links, ArriveWholeWhateverAShellWouldMakeOfThem)
{
    fillLogWith("http://127.0.0.1/a;b&c=$(d)'e").clickIntoLog(marksAbove);
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(desktop.calls(), ElementsAre("1\nhttp://127.0.0.1/a;b&c=$(d)'e\n"));
}

TEST_F(Links, AreNeitherPlainTextNorAddressesOfOtherKinds)
{
    int line = 0;
    for (const char *const text :
         {"no address at all, nowhere in this line", "file:///etc/passwd", "javascript:alert(1)"})
        clickAndSettle(fillLogWith(text), line++);
    // What was started before this would be there before this.
    fillLogWith("https://127.0.0.1/the/end").clickIntoLog(line + marksAbove);
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(desktop.calls(), ElementsAre("1\nhttps://127.0.0.1/the/end\n"));
}

// --- the opener alone

class OpenedAddress : public testing::Test
{
protected:
    void open(const QString &address)
    {
        QProcess opener;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"), desktop.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        opener.setProcessEnvironment(environment);
        endWithParent(opener);
        opener.start(QStringLiteral(LINK_HELPER), {address});
        EXPECT_TRUE(opener.waitForFinished(static_cast<int>(patience().count())));
        EXPECT_EQ(opener.exitCode(), 0);
    }

    FakeDesktop desktop;
};

struct Address {
    const char *label;
    const char *given;
    const char *arrives;
};

void PrintTo(const Address &address, std::ostream *out)
{
    *out << address.given;
}

class DangerousAddress : public OpenedAddress, public testing::WithParamInterface<Address>
{
};

TEST_P(DangerousAddress, ArrivesAsOneArgument)
{
    open(QString::fromUtf8(GetParam().given));
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_THAT(desktop.calls(), ElementsAre(std::string("1\n") + GetParam().arrives + '\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Links, DangerousAddress,
    testing::Values(Address{"Blanks", "http://127.0.0.1/a b  c", "http://127.0.0.1/a%20b%20%20c"},
                    Address{"DoubleQuotes", R"(http://127.0.0.1/"a" "b")", "http://127.0.0.1/%22a%22%20%22b%22"},
                    Address{"SingleQuotes", "http://127.0.0.1/'a' 'b'", "http://127.0.0.1/'a'%20'b'"},
                    Address{"Command", "http://127.0.0.1/$(touch x);touch y&touch z|cat",
                            "http://127.0.0.1/$(touch%20x);touch%20y&touch%20z%7Ccat"},
                    Address{"Backquotes", "http://127.0.0.1/`id`", "http://127.0.0.1/%60id%60"},
                    Address{"Backslash", R"(http://127.0.0.1/a\ b)", "http://127.0.0.1/a%5C%20b"},
                    Address{"LineBreak", "http://127.0.0.1/a\nb", "http://127.0.0.1/a%0Ab"},
                    Address{"Encoded", "http://127.0.0.1/a%20b%22c%0A", "http://127.0.0.1/a%20b%22c%0A"},
                    Address{"Letters", "http://127.0.0.1/\u00fc\u20ac", "http://127.0.0.1/%C3%BC%E2%82%AC"},
                    Address{"Query", "https://127.0.0.1/?a=b&c='d\"#e f", "https://127.0.0.1/?a=b&c='d%22#e%20f"},
                    Address{"Mail", "mailto:ann@example.org?subject=a b&body=\"c\"",
                            "mailto:ann@example.org?subject=a%20b&body=%22c%22"}),
    [](const auto &parameter) { return parameter.param.label; });

TEST_F(OpenedAddress, IsNoneOfAnotherKind)
{
    for (const char *const refused :
         {"file:///etc/passwd", "javascript:alert(1)", "smb://127.0.0.1/x", "/etc/passwd", "--help", "x-scheme:y"})
        open(QLatin1String(refused));
    open(QStringLiteral("ftp://127.0.0.1/last"));
    EXPECT_TRUE(desktop.isCalled(1));
    EXPECT_THAT(desktop.calls(), ElementsAre("1\nftp://127.0.0.1/last\n"));
}

} // namespace
} // namespace nimb::test
