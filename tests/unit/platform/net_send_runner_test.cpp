#include "platform/net_send_runner.h"

#include "print_qt.h"
#include "search_path.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;

// --- the command

const QString tenThousand(10000, u'x');

class AnyText : public testing::TestWithParam<QString>
{
};

TEST_P(AnyText, IsOneArgumentOfNetSend)
{
    const MessageCommand command = messageCommand(MessageSystem::netSend, QStringLiteral("PC-ANN"), GetParam());
    EXPECT_EQ(command.program, QStringLiteral("net"));
    EXPECT_EQ(command.arguments, QStringList({"send", "PC-ANN", GetParam()}));
    EXPECT_EQ(command.input, QByteArray());
}

TEST_P(AnyText, IsOneArgumentOfMsgAndNoOption)
{
    const MessageCommand command = messageCommand(MessageSystem::msg, QStringLiteral("PC-ANN"), GetParam());
    EXPECT_EQ(command.program, QStringLiteral("msg"));
    ASSERT_EQ(command.arguments.size(), 3);
    EXPECT_EQ(command.arguments.mid(0, 2), QStringList({"*", "/SERVER:PC-ANN"}));
    EXPECT_EQ(command.arguments.at(2).trimmed(), GetParam().trimmed());
    EXPECT_FALSE(command.arguments.at(2).startsWith(u'-') || command.arguments.at(2).startsWith(u'/'));
}

TEST_P(AnyText, IsTheStandardInputOfSmbclient)
{
    const MessageCommand command = messageCommand(MessageSystem::smbClient, QStringLiteral("PC-ANN"), GetParam());
    EXPECT_EQ(command.program, QStringLiteral("smbclient"));
    EXPECT_EQ(command.arguments, QStringList({"--message=PC-ANN"}));
    EXPECT_EQ(QString::fromUtf8(command.input), GetParam());
}

TEST_P(AnyText, ReachesSmbclientUnchanged)
{
    const SearchPath path;
    path.add("smbclient", "printf '%s\\n' \"$#\" \"$@\" > args\ncat > text\nmv text done\n");
    EXPECT_EQ(NetSendRunner(MessageSystem::smbClient).send(QStringLiteral("PC-ANN"), GetParam()), std::nullopt);
    EXPECT_EQ(path.waitFor("done"), GetParam().toUtf8());
    EXPECT_EQ(path.waitFor("args"), QByteArray("1\n--message=PC-ANN\n"));
}

TEST_P(AnyText, ReachesNetSendUnchanged)
{
    const SearchPath path;
    path.add("net", "printf '%s\\0' \"$@\" > args\nmv args done\n");
    EXPECT_EQ(NetSendRunner(MessageSystem::netSend).send(QStringLiteral("PC-ANN"), GetParam()), std::nullopt);
    EXPECT_EQ(path.waitFor("done"), QByteArray("send\0PC-ANN\0", 12) + GetParam().toUtf8() + QByteArray("\0", 1));
}

INSTANTIATE_TEST_SUITE_P(NetSend, AnyText,
                         testing::Values(QStringLiteral("Bob wants you to join him in NIMB-Chat"), QString(),
                                         QStringLiteral("say \"yes\" or 'no'"), QStringLiteral("\""),
                                         QStringLiteral("$(touch done)"), QStringLiteral("`touch done`"),
                                         QStringLiteral("a; touch done & b | c > done"),
                                         QStringLiteral("one\ntwo\r\nthree\n"), QStringLiteral("-h"),
                                         QStringLiteral("/W"), QStringLiteral("--message=PC-BEN"),
                                         QStringLiteral("%PATH% ^ !x! \\"),
                                         QString::fromUtf8("Grüße, Ελένη \xF0\x9F\x98\x80"), tenThousand));

class AnyComputer : public testing::TestWithParam<const char *>
{
};

TEST_P(AnyComputer, IsPartOfOneArgument)
{
    const SearchPath path;
    path.add("smbclient", "printf '%s\\0' \"$@\" > args\nmv args done\n");
    NetSendRunner runner(MessageSystem::smbClient);
    EXPECT_EQ(runner.send(QString::fromUtf8(GetParam()), QStringLiteral("Hello")), std::nullopt);
    EXPECT_EQ(path.waitFor("done"), QByteArray("--message=") + GetParam() + QByteArray("\0", 1));
}

INSTANTIATE_TEST_SUITE_P(NetSend, AnyComputer,
                         testing::Values("PC-ANN", "", "-h", "--help", "PC ANN", "\"PC\"", "$(touch done)",
                                         "`touch done`", "a;touch done", "[unknown]", "../x"));

// --- the running of it

class NetSendRunnerTest : public testing::Test
{
protected:
    NetSendRunnerTest() { qputenv("TMPDIR", temporary.path().toUtf8()); }
    ~NetSendRunnerTest() override
    {
        if (before.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", before);
    }
    QString send() { return runner.send(QStringLiteral("PC-ANN"), QStringLiteral("Hello")).value_or(QString()); }

    const QByteArray before = qgetenv("TMPDIR");
    const QTemporaryDir temporary;
    const SearchPath path;
    NetSendRunner runner{MessageSystem::smbClient};
};

TEST_F(NetSendRunnerTest, WithoutSmbclientTheUserIsToldWhatToInstall)
{
    const std::string sentence = send().toStdString();
    EXPECT_THAT(sentence, HasSubstr("Install the package smbclient (Debian, Ubuntu, Arch)"));
    EXPECT_THAT(sentence, HasSubstr("samba-client (Fedora)"));
}

TEST_F(NetSendRunnerTest, WithoutTheNetCommandTheUserIsToldSo)
{
    path.add("smbclient", "");
    NetSendRunner windows(MessageSystem::netSend);
    EXPECT_THAT(windows.send(QStringLiteral("PC-ANN"), QStringLiteral("Hello")).value_or(QString()).toStdString(),
                HasSubstr("no \"net\" command"));
}

TEST_F(NetSendRunnerTest, AProgramThatCannotBeStartedIsNotPassedOffAsSent)
{
    path.addBroken("smbclient");
    EXPECT_THAT(send().toStdString(), HasSubstr("smbclient could not be started"));
}

TEST_F(NetSendRunnerTest, WithoutRoomForATemporaryFileTheUserIsToldSo)
{
    path.add("smbclient", "");
    qputenv("TMPDIR", "/proc"); // where nobody can make a file
    EXPECT_THAT(send().toStdString(), HasSubstr("no temporary file could be written"));
}

TEST_F(NetSendRunnerTest, NobodyWaitsForTheProgramAndTheTextIsThereWhenItReads)
{
    path.add("smbclient", "until [ -e go ]; do sleep 0.01; done\ncat > text\nmv text done\n");
    EXPECT_EQ(send(), QString());
    EXPECT_FALSE(path.has("done"));
    EXPECT_TRUE(QDir(temporary.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QFile go(path.file("go"));
    EXPECT_TRUE(go.open(QIODevice::WriteOnly));
    EXPECT_EQ(path.waitFor("done"), QByteArray("Hello"));
}

TEST_F(NetSendRunnerTest, TheProgramIsNoChildThatWouldEndWithUs)
{
    path.add("smbclient", "echo $PPID > parent\nmv parent done\n");
    EXPECT_EQ(send(), QString());
    EXPECT_NE(path.waitFor("done").trimmed(), QByteArray::number(getpid()));
}

TEST_F(NetSendRunnerTest, AProgramThatFailsIsNotExamined)
{
    path.add("smbclient", "mv \"$0\" done\nexit 1\n");
    EXPECT_EQ(send(), QString());
    path.waitFor("done");
}

TEST_F(NetSendRunnerTest, WhatTheProgramSaysGoesNowhere)
{
    path.add("smbclient", "out=$(readlink /proc/$$/fd/1 /proc/$$/fd/2)\necho \"$out\" > out\nmv out done\n");
    EXPECT_EQ(send(), QString());
    EXPECT_EQ(path.waitFor("done"), QByteArray("/dev/null\n/dev/null\n"));
}

} // namespace
} // namespace nimb::test
