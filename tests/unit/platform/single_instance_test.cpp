#include "platform/single_instance.h"

#include "ordinary_user.h"
#include "print_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class SingleInstanceTest : public testing::Test
{
protected:
    SingleInstanceTest()
    {
        QDir(m_base.path()).mkdir("run");
        qputenv("XDG_RUNTIME_DIR", m_base.filePath("run").toUtf8());
    }
    ~SingleInstanceTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

    /// Starts the program again while our event loop runs; its exit code, -1 when it does not end.
    int startAgain(const QString &caption, const QString &profile) const
    {
        QProcess second;
        second.start(PLATFORM_HELPER, {"start", profile, caption});
        const bool ended = QTest::qWaitFor([&] { return second.state() == QProcess::NotRunning; }, 20000);
        return ended && second.exitStatus() == QProcess::NormalExit ? second.exitCode() : -1;
    }

    static bool connectAndSend(QLocalSocket &client, const QString &path, const QByteArray &bytes)
    {
        client.connectToServer(path);
        if (!client.waitForConnected())
            return false;
        client.write(bytes);
        return true;
    }

    static bool isDropped(QLocalSocket &client)
    {
        return QTest::qWaitFor([&] { return client.state() == QLocalSocket::UnconnectedState; }, 20000);
    }

    static int modeOf(const QString &path)
    {
        struct stat information = {};
        EXPECT_EQ(stat(path.toUtf8().constData(), &information), 0) << path.toStdString();
        return static_cast<int>(information.st_mode & 0777);
    }

    const QTemporaryDir m_base;
    const QString folder = m_base.filePath("NIMB-Chat");
};

/// The first copy, which notes what later starts ask for.
struct FirstCopy {
    explicit FirstCopy(const QString &folder) : instance(folder)
    {
        QObject::connect(&instance, &SingleInstance::secondStart, &instance,
                         [this](const QString &caption) { captions.push_back(caption.toStdString()); });
    }

    bool hears(std::size_t count)
    {
        return QTest::qWaitFor([this, count] { return captions.size() >= count; }, 20000);
    }

    SingleInstance instance;
    std::vector<std::string> captions;
};

constexpr int handedOver = 3;

TEST_F(SingleInstanceTest, OnlyTheFirstCopyOfAFolderAcquiresIt)
{
    SingleInstance first(folder);
    SingleInstance second(folder);
    SingleInstance elsewhere(m_base.filePath("other"));
    EXPECT_TRUE(first.acquire());
    EXPECT_FALSE(second.acquire());
    EXPECT_TRUE(elsewhere.acquire());
    EXPECT_TRUE(first.acquire()); // asking again changes nothing
    EXPECT_FALSE(second.acquire());
}

TEST_F(SingleInstanceTest, TheFolderAndItsLockAreForTheUserAlone)
{
    SingleInstance first(folder);
    ASSERT_TRUE(first.acquire());
    EXPECT_EQ(modeOf(folder), 0700);
    EXPECT_EQ(modeOf(folder + "/lock"), 0600);
    EXPECT_EQ(modeOf(first.socketPath()) & 077, 0);
}

TEST_F(SingleInstanceTest, ALockThatIsThereIsTakenFromOthers)
{
    ASSERT_TRUE(SingleInstance(folder).acquire());
    ASSERT_EQ(chmod((folder + "/lock").toUtf8().constData(), 0644), 0);
    SingleInstance first(folder);
    ASSERT_TRUE(first.acquire());
    EXPECT_EQ(modeOf(folder + "/lock"), 0600);
}

TEST_F(SingleInstanceTest, TheSocketStandsInTheRuntimeFolderUnderAShortName)
{
    SingleInstance first(folder);
    ASSERT_TRUE(first.acquire());
    EXPECT_THAT(first.socketPath().toStdString(),
                testing::MatchesRegex(m_base.filePath("run").toStdString() + "/nimb-chat-[0-9]+-[0-9a-f]{16}"));
}

TEST_F(SingleInstanceTest, WithoutARuntimeFolderTheSocketStandsInTheTemporaryOne)
{
    for (const char *value : {"", "/nowhere/at/all"}) {
        qputenv("XDG_RUNTIME_DIR", value);
        SingleInstance first(folder);
        ASSERT_TRUE(first.acquire());
        EXPECT_EQ(QFileInfo(first.socketPath()).absolutePath(), QDir::tempPath());
        EXPECT_TRUE(QFile::exists(first.socketPath()));
    }
}

TEST_F(SingleInstanceTest, TheEndOfTheFirstCopyFreesTheFolderAndRemovesTheSocket)
{
    auto first = std::make_unique<SingleInstance>(folder);
    SingleInstance second(folder);
    ASSERT_TRUE(first->acquire());
    const QString path = first->socketPath();
    ASSERT_FALSE(second.acquire());

    first.reset();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(second.acquire());
}

TEST_F(SingleInstanceTest, ALaterStartHandsItsCaptionOverAndEnds)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());

    EXPECT_EQ(startAgain("NIMB-Chat 1.2 - Ann Lee", folder), handedOver);
    EXPECT_EQ(startAgain(QString::fromUtf8("NIMB-Chat 1.2 - J\u00fcrgen \U0001F600"), folder), handedOver);
    EXPECT_EQ(startAgain("", folder), handedOver);

    ASSERT_TRUE(first.hears(3));
    EXPECT_THAT(first.captions, ElementsAre("NIMB-Chat 1.2 - Ann Lee", "NIMB-Chat 1.2 - J\u00fcrgen \U0001F600", ""));
}

TEST_F(SingleInstanceTest, ACaptionTooLongForAMessageArrivesCutBetweenCharacters)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    EXPECT_EQ(startAgain(QString::fromUtf8("x") + QString(5000, QChar(0xFC)), folder), handedOver);
    EXPECT_EQ(startAgain(QString(4095, u'y'), folder), handedOver);
    ASSERT_TRUE(first.hears(2));
    EXPECT_EQ(first.captions[0], "x" + QString(2047, QChar(0xFC)).toStdString());
    EXPECT_EQ(first.captions[1], std::string(4095, 'y'));
}

TEST_F(SingleInstanceTest, TheSameFolderByAnotherNameIsTheSameFolder)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    ASSERT_TRUE(QFile::link(folder, m_base.filePath("link")));

    EXPECT_EQ(startAgain("a", m_base.filePath("link")), handedOver);
    EXPECT_EQ(startAgain("b", folder + "/../NIMB-Chat/"), handedOver);
    ASSERT_TRUE(first.hears(2));
    EXPECT_THAT(first.captions, ElementsAre("a", "b"));
}

TEST_F(SingleInstanceTest, AKilledCopyLeavesNothingBehindThatHinders)
{
    QProcess killed;
    killed.start(PLATFORM_HELPER, {"hold", folder});
    ASSERT_TRUE(killed.waitForReadyRead(20000));
    ASSERT_EQ(killed.readLine(), "held\n");
    FirstCopy next(folder);
    ASSERT_FALSE(next.instance.acquire());

    killed.kill();
    ASSERT_TRUE(killed.waitForFinished(20000));
    ASSERT_TRUE(QFile::exists(next.instance.socketPath())) << "the stale socket is what this test is about";

    EXPECT_TRUE(next.instance.acquire());
    EXPECT_EQ(startAgain("NIMB-Chat 1.2 - Ann", folder), handedOver);
    ASSERT_TRUE(next.hears(1));
    EXPECT_THAT(next.captions, ElementsAre("NIMB-Chat 1.2 - Ann"));
}

TEST_F(SingleInstanceTest, ALaterStartReachesACopyInAnotherProcess)
{
    QProcess first;
    first.start(PLATFORM_HELPER, {"hold", folder});
    ASSERT_TRUE(first.waitForReadyRead(20000));
    ASSERT_EQ(first.readLine(), "held\n");

    SingleInstance second(folder);
    ASSERT_FALSE(second.acquire());
    second.handOver("NIMB-Chat 1.2 - Ben");

    ASSERT_TRUE(first.canReadLine() || first.waitForReadyRead(20000));
    EXPECT_EQ(first.readLine(), "second start: NIMB-Chat 1.2 - Ben\n");
    first.kill();
    first.waitForFinished();
}

TEST_F(SingleInstanceTest, ChildProcessesDoNotKeepTheFolder)
{
    auto first = std::make_unique<SingleInstance>(folder);
    ASSERT_TRUE(first->acquire());
    QProcess child;
    child.start("cat", {});
    ASSERT_TRUE(child.waitForStarted());

    first.reset();
    SingleInstance second(folder);
    EXPECT_TRUE(second.acquire());
    child.closeWriteChannel();
    child.waitForFinished();
}

struct Message {
    const char *name;
    QByteArray bytes;
};

class Garbage : public SingleInstanceTest, public testing::WithParamInterface<Message>
{
};

TEST_P(Garbage, IsDroppedAndHarmless)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    QLocalSocket client;
    ASSERT_TRUE(connectAndSend(client, first.instance.socketPath(), GetParam().bytes));
    EXPECT_TRUE(isDropped(client));
    EXPECT_THAT(first.captions, IsEmpty());

    EXPECT_EQ(startAgain("after it", folder), handedOver);
    ASSERT_TRUE(first.hears(1));
    EXPECT_THAT(first.captions, ElementsAre("after it"));
}

INSTANTIATE_TEST_SUITE_P(SingleInstance, Garbage,
                         testing::Values(Message{"Silence", ""}, Message{"NoEndMark", "no end mark"},
                                         Message{"NoUtf8", QByteArray("\xff\xfe\x80", 4)},
                                         Message{"HalfACharacter", QByteArray("cut \xc3", 6)},
                                         Message{"HalfASurrogatePair", QByteArray("\xed\xa0\x80", 4)},
                                         Message{"NoRoomForTheEndMark", QByteArray(4096, 'x')},
                                         Message{"AMillionBytes", QByteArray(1 << 20, 'x')}),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(SingleInstanceTest, AMessageThatIsTooLongIsNotWaitedFor)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    QLocalSocket silent; // connected before, so its time is up first
    ASSERT_TRUE(connectAndSend(silent, first.instance.socketPath(), ""));
    QCoreApplication::processEvents();
    QLocalSocket client;
    ASSERT_TRUE(connectAndSend(client, first.instance.socketPath(), QByteArray(4096, 'x')));
    EXPECT_TRUE(isDropped(client));
    EXPECT_EQ(silent.state(), QLocalSocket::ConnectedState);
}

TEST_F(SingleInstanceTest, AMessageMayComeInPieces)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    QLocalSocket client;
    ASSERT_TRUE(connectAndSend(client, first.instance.socketPath(), "in "));
    client.flush();
    QCoreApplication::processEvents();
    client.write("pie");
    client.flush();
    QCoreApplication::processEvents();
    client.write(QByteArray("ces\0", 4));

    ASSERT_TRUE(first.hears(1));
    EXPECT_THAT(first.captions, ElementsAre("in pieces"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return client.bytesAvailable() == 1; }));
    EXPECT_EQ(client.readAll(), "!");
    EXPECT_TRUE(isDropped(client));
}

TEST_F(SingleInstanceTest, AClientSaysOneThingOnly)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    QLocalSocket client;
    ASSERT_TRUE(connectAndSend(client, first.instance.socketPath(), QByteArray("one\0two\0", 8)));
    EXPECT_TRUE(isDropped(client));
    EXPECT_THAT(first.captions, ElementsAre("one"));
}

TEST_F(SingleInstanceTest, AClientThatLeavesAtOnceIsHarmless)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    for (int i = 0; i < 20; ++i) {
        QLocalSocket client;
        ASSERT_TRUE(connectAndSend(client, first.instance.socketPath(), i % 2 == 0 ? "" : "half"));
        client.flush();
    }
    EXPECT_EQ(startAgain("after them", folder), handedOver);
    ASSERT_TRUE(first.hears(1));
    EXPECT_THAT(first.captions, ElementsAre("after them"));
}

TEST_F(SingleInstanceTest, ManySilentClientsDoNotKeepALaterStartOut)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    std::vector<std::unique_ptr<QLocalSocket>> silent;
    for (int i = 0; i < 60; ++i) {
        silent.push_back(std::make_unique<QLocalSocket>());
        silent.back()->connectToServer(first.instance.socketPath());
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(startAgain("through the crowd", folder), handedOver);
    ASSERT_TRUE(first.hears(1));
    EXPECT_THAT(first.captions, ElementsAre("through the crowd"));
}

TEST_F(SingleInstanceTest, HandingOverNeedsNobodyToListen)
{
    SingleInstance second(folder);
    second.handOver("no folder, no socket");

    QDir().mkpath(folder);
    const int lock = open((folder + "/lock").toUtf8().constData(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    ASSERT_FALSE(second.acquire());
    second.handOver("a lock and no socket");
    ASSERT_FALSE(QFile::exists(second.socketPath()));
    close(lock);
    EXPECT_TRUE(second.acquire());
}

TEST_F(SingleInstanceTest, HandingOverToACopyThatHangsReturns)
{
    SingleInstance second(folder);
    QDir().mkpath(folder);
    second.handOver(""); // only to learn the path
    const int hanging = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray path = second.socketPath().toUtf8();
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::copy(path.begin(), path.end(), address.sun_path);
    ASSERT_EQ(bind(hanging, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(listen(hanging, 0), 0);

    second.handOver("accepted by the system, answered by nobody");
    second.handOver("not even accepted");
    close(hanging);
}

TEST_F(SingleInstanceTest, NothingIsToldToASocketOfAnotherUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give a socket away";
    QDir().mkpath(folder);
    SingleInstance second(folder);
    second.handOver("");
    QLocalServer stranger;
    ASSERT_TRUE(stranger.listen(second.socketPath()));
    ASSERT_EQ(chown(second.socketPath().toUtf8().constData(), 65534, 65534), 0);

    second.handOver("NIMB-Chat 1.2 - Ann");
    EXPECT_FALSE(stranger.waitForNewConnection(0));
}

TEST_F(SingleInstanceTest, StartsWithoutALockWhereNoneCanBeHad)
{
    QDir().mkpath(folder);
    QFile::setPermissions(m_base.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    {
        const OrdinaryUser user;
        SingleInstance first(folder);
        SingleInstance inAFolderThatCannotBeMade(m_base.filePath("new"));
        EXPECT_TRUE(first.acquire());
        EXPECT_TRUE(inAFolderThatCannotBeMade.acquire());
    }
    QFile::setPermissions(m_base.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(SingleInstanceTest, InAFolderWithoutALockTheSocketKeepsASecondCopyOut)
{
    QDir().mkpath(folder);
    constexpr auto forAll = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(m_base.path(), forAll);
    QFile::setPermissions(folder, forAll);
    QFile::setPermissions(m_base.filePath("run"), forAll | QFile::WriteOwner | QFile::WriteOther);
    {
        const OrdinaryUser user;
        SingleInstance first(folder);
        SingleInstance second(folder);
        EXPECT_TRUE(first.acquire());
        EXPECT_FALSE(second.acquire());
    }
    QFile::setPermissions(m_base.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(SingleInstanceTest, WhoRemovesTheFolderOfARunningCopyOpensTheWayForNoSecondOne)
{
    FirstCopy first(folder);
    ASSERT_TRUE(first.instance.acquire());
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/lock")));
    EXPECT_EQ(startAgain("without its lock", folder), handedOver);
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_EQ(startAgain("without its folder", folder), handedOver);
    ASSERT_TRUE(first.hears(2));
    EXPECT_THAT(first.captions, ElementsAre("without its lock", "without its folder"));
}

} // namespace
} // namespace nimb::test
