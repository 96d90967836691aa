// Commands from a console to the copy that runs.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

class ConsoleCommands : public testing::Test
{
protected:
    struct Answer {
        int status = -1;
        std::string printed, complaint;
    };

    Answer ask(const QStringList &words, const QByteArray &input = {}) const
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(QStringLiteral("NIMBCHAT_PROFILE"), bob.profileFolder());
        variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), bob.scratchFolder() + QStringLiteral("/run"));
        QProcess console;
        console.setProcessEnvironment(variables);
        console.start(QStringLiteral(NIMB_CHATCTL), words);
        console.write(input);
        console.closeWriteChannel();
        EXPECT_TRUE(console.waitForFinished(static_cast<int>(patience().count()))) << words.join(u' ').toStdString();
        return {console.exitCode(), console.readAllStandardOutput().toStdString(),
                console.readAllStandardError().toStdString()};
    }
    /// Until Ann is seen to be there.
    void start()
    {
        MainWindow::startBob(bob, ann);
        ann.send(bob.address(), "!ONLINE 127.0.57.2 ANN-PC Ann");
        waitUntil([this] { return ask({"contacts"}).printed.starts_with("Ann\t127.0.57.2\tonline\t"); });
    }
    bool annHears(std::string_view datagram)
    {
        const std::vector<std::string> heard = ann.hearUntil(datagram);
        return !heard.empty() && heard.back() == datagram;
    }

    std::uint16_t port = freePort();
    WirePeer ann{"127.0.57.2", port};
    RunningCopy bob{{"127.0.57.1", "BOB-PC"}, profile(port, {{"127.0.57.2", "Ann", "ANN-PC"}})};
};

TEST_F(ConsoleCommands, WithoutACopyThatRunsSaySo)
{
    const Answer answer = ask({"contacts"});
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.complaint, "nimb-chatctl: No copy of NIMB-Chat runs with this profile.\n");
}

TEST_F(ConsoleCommands, EndACopyThatStillAsksForANickname)
{
    bob.start({});
    waitUntil([this] { return ask({"contacts"}).status == 1; });
    EXPECT_THAT(ask({"show"}).complaint, HasSubstr("still asks for a nickname"));
    EXPECT_EQ(ask({"quit"}).status, 0);
    EXPECT_TRUE(waitUntil([this] { return !bob.isRunning(); }));
}

TEST_F(ConsoleCommands, SendWhatABuildServerHasToSay)
{
    start();
    EXPECT_EQ(ask({"send", "Ann", "the", "build", "is", "done"}).status, 0);
    EXPECT_TRUE(annHears("-the build is done"));
    EXPECT_EQ(ask({"send", "127.0.57.2"}, "two\nlines\n").status, 0);
    EXPECT_TRUE(annHears("-two\r\nlines"));
    const Answer nobody = ask({"send", "Dora", "x"});
    EXPECT_EQ(nobody.status, 1);
    EXPECT_THAT(nobody.complaint, HasSubstr("No contact is called \"Dora\""));
    for (const qsizetype bytes : {2001, 100'000}) {
        const Answer tooLong = ask({"send", "Ann"}, QByteArray(bytes, 'x'));
        EXPECT_EQ(tooLong.status, 1);
        EXPECT_THAT(tooLong.complaint, HasSubstr("A message holds 2000 characters"));
    }
    const Answer endless = ask({"send", "Ann", QString(70'000, u'x')});
    EXPECT_EQ(endless.status, 1);
    EXPECT_EQ(endless.complaint, "nimb-chatctl: The command is too long.\n");
    EXPECT_EQ(ask({"send"}).status, 64);
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(ConsoleCommands, TellTheContactsChangeTheStateAndEndTheProgram)
{
    start();
    EXPECT_THAT(ask({"contacts"}).printed, StartsWith("Ann\t127.0.57.2\tonline\t"));
    EXPECT_THAT(ask({"contacts", "--json"}).printed, HasSubstr("\"address\": \"127.0.57.2\""));
    EXPECT_EQ(ask({"status", "away", "Lunch"}).status, 0);
    EXPECT_TRUE(annHears("!STATUS AWAY Lunch"));
    EXPECT_EQ(ask({"show"}).status, 0);
    EXPECT_EQ(ask({"quit"}).status, 0);
    EXPECT_TRUE(annHears("!OFFLINE 127.0.57.1 BOB-PC Bob"));
    EXPECT_TRUE(waitUntil([this] { return !bob.isRunning(); }));
}

} // namespace
} // namespace nimb::test
