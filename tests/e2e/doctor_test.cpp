// The network doctor, on its window and on a console, where something is really wrong.
#include "chat_windows.h"
#include "child_process.h"
#include "clipboard.h"
#include "network_namespaces.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <memory>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

constexpr int fine = 0, doubtful = 1, wrong = 2;

/// One run of the doctor on a console.
class Console
{
public:
    struct Answer {
        int status = -1;
        QByteArray printed;
        QByteArray warned; ///< printed where errors go

        /// "verdict: sentence (advice)"
        std::string of(const char *check) const
        {
            const QJsonArray checks = QJsonDocument::fromJson(printed)[QLatin1String("checks")].toArray();
            for (const QJsonValue &one : checks) {
                const auto text = [&one](const char *key) { return one[QLatin1String(key)].toString().toStdString(); };
                if (text("check") == check)
                    return text("verdict") + ": " + text("sentence") + " (" + text("advice") + ")";
            }
            return "no such check";
        }
    };

    explicit Console(const QString &profile, const std::string &address = {})
    {
        m_variables = QProcessEnvironment::systemEnvironment();
        m_variables.insert(QStringLiteral("NIMBCHAT_PROFILE"), profile);
        if (!address.empty())
            m_variables.insert(QStringLiteral("NIMBCHAT_ADDRESS"), QString::fromStdString(address));
    }

    Answer run(const QStringList &words) const
    {
        QProcess process;
        process.setProcessEnvironment(m_variables);
        endWithParent(process);
        process.start(QStringLiteral(NIMB_CHATCTL), words);
        EXPECT_TRUE(process.waitForFinished(static_cast<int>(patience().count())));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    Answer doctor() const { return run({QStringLiteral("doctor"), QStringLiteral("--json")}); }

private:
    QProcessEnvironment m_variables;
};

class ConsoleDoctor : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    RunningCopy bob{{"127.0.36.1", "BOB-PC"}, profile(port, {{"127.0.36.2", "Ann", "ANN-PC"}})};
    Console console{bob.profileFolder(), "127.0.36.1"};
};

TEST_F(ConsoleDoctor, ExaminesTheMachineOfACopyThatDoesNotRun)
{
    const Console::Answer answer = console.doctor();
    EXPECT_EQ(answer.of("port"),
              "fine: UDP port " + std::to_string(port) + " is free for NIMB-Chat, which does not run. ()");
    EXPECT_EQ(answer.of("ownDatagram"), "fine: A datagram to 127.0.36.1, yourself, came back. ()");
    EXPECT_THAT(answer.of("ownAddress"), StartsWith("doubtful: Your address is 127.0.36.1, which only programs on"));
    EXPECT_EQ(answer.status, doubtful);
    EXPECT_EQ(bob.readStore(), profile(port, {{"127.0.36.2", "Ann", "ANN-PC"}})) << "it only looks";
}

TEST_F(ConsoleDoctor, FindsACopyThatRunsAndLeavesItInPeace)
{
    WirePeer ann("127.0.36.2", port);
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const Console::Answer answer = console.doctor();
    EXPECT_EQ(answer.of("port"),
              "fine: NIMB-Chat runs (process " + std::to_string(bob.processId()) + ") and listens on UDP port "
                  + std::to_string(port) + ". ()");
    EXPECT_EQ(answer.status, doubtful) << "for the address";
    EXPECT_THAT(ann.waiting(), testing::IsEmpty());
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(ConsoleDoctor, NamesTheProgramThatHasThePort)
{
    const WirePeer holder("127.0.36.1", port);
    const Console::Answer answer = console.doctor();
    EXPECT_THAT(answer.of("port"),
                StartsWith("wrong: Port " + std::to_string(port) + " is used by the program e2e_test (process "
                           + std::to_string(QCoreApplication::applicationPid()) + ")."));
    EXPECT_EQ(answer.status, wrong);
}

TEST_F(ConsoleDoctor, TakesACopyWithAnotherProfileForAnotherProgram)
{
    WirePeer ann("127.0.36.2", port);
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const RunningCopy other({"127.0.36.1", "BOB-PC"}, profile(port, {}));
    EXPECT_THAT(Console(other.profileFolder(), "127.0.36.1").doctor().of("port"),
                StartsWith("wrong: Port " + std::to_string(port) + " is used by the program nimb-chat (process "
                           + std::to_string(bob.processId()) + ")."));
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(ConsoleDoctor, SaysThatItCannotGetAtTheSettings)
{
    const QTemporaryDir folder;
    const QString loop = folder.filePath(QStringLiteral("loop"));
    ASSERT_TRUE(QFile::link(loop, loop)); // nobody may follow it, not even the administrator
    const Console::Answer answer = Console(loop, "127.0.36.1").doctor();
    EXPECT_THAT(answer.warned.toStdString(),
                StartsWith("nimb-chatctl: The settings in " + loop.toStdString() + " cannot be read, so those of a"));
    EXPECT_THAT(console.doctor().warned.toStdString(), testing::IsEmpty());
}

TEST_F(ConsoleDoctor, PrintsForPeopleUnlessItIsToldOtherwise)
{
    const Console::Answer answer = console.run({QStringLiteral("doctor")});
    EXPECT_THAT(answer.printed.toStdString(), HasSubstr("\n[doubtful] Your address is 127.0.36.1, which"));
    EXPECT_EQ(answer.status, doubtful);
    EXPECT_THAT(console.run({QStringLiteral("--version")}).printed.toStdString(), StartsWith("nimb-chatctl 1."));
}

TEST_F(ConsoleDoctor, RefusesWhatItDoesNotKnow)
{
    constexpr int wrongUsage = 64;
    EXPECT_EQ(console.run({}).status, wrongUsage);
    EXPECT_EQ(console.run({QStringLiteral("surgeon")}).status, wrongUsage);
    EXPECT_EQ(console.run({QStringLiteral("doctor"), QStringLiteral("--xml")}).status, wrongUsage);
}

class DoctorOnANetwork : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!office.isThere())
            GTEST_SKIP() << LanMachine::whyNot;
        bobs.plug(office, "eth0", "10.1.0.1/24");
    }
    static QString nft() { return QStandardPaths::findExecutable("nft", {"/usr/sbin", "/sbin", "/usr/bin"}); }
    /// Keeps out what is not asked for, as most firewalls do; false where this cannot be tried.
    [[nodiscard]] static bool close(const LanMachine &machine)
    {
        if (nft().isEmpty())
            return false;
        machine.run(nft(), {"add", "table", "inet", "filter"});
        machine.run(nft(),
                    {"add", "chain", "inet", "filter", "input", "{ type filter hook input priority 0; policy drop; }"});
        machine.run(nft(), {"add", "rule", "inet", "filter", "input", "iifname", "lo", "accept"});
        return true;
    }
    static constexpr const char *noNft = "the program nft is not here";

    Console::Answer examine(const LanMachine &machine) const
    {
        const auto visit = machine.visit();
        return Console(folder.path()).doctor();
    }
    /// What the doctor of Bob's window says of his only contact, which is Ann.
    std::string examineAnn(RunningCopy &bob) const
    {
        {
            const auto visit = bobs.visit();
            bob.start({"Bob"});
        }
        MainWindow::of("Bob").activate();
        press("alt+h");
        press("n");
        const Window doctor = Window::waitFor("NIMB-Chat - Network Doctor");
        press("alt+k");
        std::string report;
        EXPECT_TRUE(waitUntil([&report] {
            press("alt+r");
            report = clipboard().toStdString();
            return report.find(" Ann ") != std::string::npos && report.find("[...]") == std::string::npos;
        })) << report;
        press("Escape");
        return report;
    }
    static Rows knowsAnn() { return profile(5549, {{"10.1.0.2", "Ann", "ANN-PC"}}); }

    QTemporaryDir folder;
    LanSwitch office;
    LanMachine bobs;
};

TEST_F(DoctorOnANetwork, FindsNothingWrongWhereNothingIs)
{
    const Console::Answer answer = examine(bobs);
    EXPECT_EQ(answer.of("network"), "fine: Connected as 10.1.0.1 (eth0). ()");
    EXPECT_EQ(answer.of("broadcast"), "fine: A question to everybody leaves: 10.1.0.255 (eth0). ()");
    EXPECT_EQ(answer.status, fine) << answer.printed.toStdString();
}

TEST_F(DoctorOnANetwork, NoticesThatThereIsNone)
{
    const LanMachine alone;
    const Console::Answer answer = examine(alone);
    EXPECT_THAT(answer.of("network"), StartsWith("wrong: No network with an IPv4 address is connected."));
    EXPECT_EQ(answer.status, wrong);
}

TEST_F(DoctorOnANetwork, NoticesTwoCardsOnOneNetwork)
{
    bobs.plug(office, "wlan0", "10.1.0.7/24");
    const Console::Answer answer = examine(bobs);
    EXPECT_THAT(answer.of("severalWays"), StartsWith("doubtful: The cards eth0 and wlan0 are on the same network"));
    EXPECT_EQ(answer.status, doubtful);
}

TEST_F(DoctorOnANetwork, TellsTheCommandThatOpensAFirewallAndItDoes)
{
    if (!close(bobs))
        GTEST_SKIP() << noNft;
    const Console::Answer closed = examine(bobs);
    EXPECT_EQ(closed.of("firewall"),
              "wrong: The firewall nftables is on and keeps UDP port 5549 out: nobody reaches you. "
              "(This opens the port: sudo nft insert rule inet filter input udp dport 5549 accept)");
    EXPECT_EQ(closed.status, wrong);
    bobs.run(nft(), {"insert", "rule", "inet", "filter", "input", "udp", "dport", "5549", "accept"});
    const Console::Answer open = examine(bobs);
    EXPECT_EQ(open.of("firewall"), "fine: The firewall nftables is on and lets UDP port 5549 in. ()");
    EXPECT_EQ(open.status, fine) << open.printed.toStdString();
}

TEST_F(DoctorOnANetwork, SaysFirewallOfAContactWhoseMachineIsThereAndSilent)
{
    LanMachine anns;
    anns.plug(office, "eth0", "10.1.0.2/24");
    if (!close(anns))
        GTEST_SKIP() << noNft;
    RunningCopy ann({{}, "ANN-PC"}, profile(5549, {{"10.1.0.1", "Bob", "BOB-PC"}}));
    {
        const auto visit = anns.visit();
        ann.start({"Ann"});
    }
    RunningCopy bob({{}, "BOB-PC"}, knowsAnn());
    const std::string report = examineAnn(bob);
    EXPECT_THAT(report,
                HasSubstr("[WRONG] Ann did not answer, but the computer at 10.1.0.2 is there, or was a "
                          "moment ago.\n"
                          "    A firewall there may keep UDP out"));
}

TEST_F(DoctorOnANetwork, SaysIsolationOfAContactWhomTheSwitchKeepsApart)
{
    LanMachine anns;
    anns.plug(office, "eth0", "10.1.0.2/24");
    anns.isolate("eth0");
    bobs.isolate("eth0");
    RunningCopy bob({{}, "BOB-PC"}, knowsAnn());
    const std::string report = examineAnn(bob);
    EXPECT_THAT(report,
                HasSubstr("[WRONG] Ann did not answer, and no computer on your network has the address "
                          "10.1.0.2.\n"));
    EXPECT_THAT(report, HasSubstr("client isolation"));
}

TEST_F(DoctorOnANetwork, TellsThatAContactAnswers)
{
    LanMachine anns;
    anns.plug(office, "eth0", "10.1.0.2/24");
    RunningCopy ann({{}, "ANN-PC"}, profile(5549, {{"10.1.0.1", "Bob", "BOB-PC"}}));
    {
        const auto visit = anns.visit();
        ann.start({"Ann"});
    }
    MainWindow::of("Ann");
    RunningCopy bob({{}, "BOB-PC"}, knowsAnn());
    const std::string report = examineAnn(bob);
    EXPECT_THAT(report, HasSubstr("[fine] Ann answered after "));
    EXPECT_THAT(report, HasSubstr("\tout\t10.1.0.2\t"));
}

} // namespace
} // namespace nimb::test
