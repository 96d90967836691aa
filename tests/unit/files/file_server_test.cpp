// The server of files as programs meet it that know nothing of this one: curl, wget, and raw bytes.
#include "files/http_file_server.h"

#include "base/limits.h"
#include "child_process.h"
#include "ordinary_user.h"
#include "print_qt.h"
#include "protocol/address_text.h"
#include "served_files.h"
#include "slow_disk.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <list>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class FileServerTest : public FilesOnLoopback
{
protected:
    FileServerTest() : FilesOnLoopback(5)
    {
        server->sent = [this](const SentBytes &sent) { transfers.push_back(sent); };
        server->failed = [this](const QString &, const QString &sentence) { failures += sentence; };
    }

    void serveLargeWithALimitOfASecond()
    {
        server = std::make_unique<HttpFileServer>(std::uint16_t{5549}, std::chrono::seconds(1));
        server->sent = [this](const SentBytes &sent) { transfers.push_back(sent); };
        QFile file(pathOf(QStringLiteral("large")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{200} * 1024 * 1024));
        serve(file.fileName());
    }
    /// Served to the peer; the sentence of the trouble, or none.
    QString serve(const QString &path, const QString &name = QStringLiteral("Plan.pdf"), const QString &as = {})
    {
        std::optional<FileServer::Readied> readied;
        server->serve({.token = as.isEmpty() ? token : as, .name = name, .path = path, .to = {peer}, .at = own},
                      [&](const FileServer::Readied &now) { readied = now; });
        EXPECT_TRUE(waitUntil([&] { return readied.has_value(); }));
        size = readied ? readied->size : 0;
        port = readied ? readied->port : 0;
        servedName = readied ? readied->name : QString();
        return readied ? readied->trouble : QString();
    }
    QString address(const QString &name = QStringLiteral("Plan.pdf"), const QString &of = {}) const
    {
        return QStringLiteral("http://%1:%2/%3/%4")
            .arg(addressText(own))
            .arg(port)
            .arg(of.isEmpty() ? token : of, name);
    }

    struct Ended {
        int status = -1;
        QByteArray out;
    };
    static Ended run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        endWithParent(process);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(patience)) << program.toStdString();
        return {process.exitCode(), process.readAllStandardOutput()};
    }
    /// From the peer's address, or another one.
    static Ended curl(Ipv4Address from, QStringList arguments)
    {
        arguments << QStringLiteral("--silent") << QStringLiteral("--globoff") << QStringLiteral("--path-as-is")
                  << QStringLiteral("--interface") << addressText(from);
        return run(QStringLiteral("curl"), arguments);
    }
    /// All that the server answers, without the time of day.
    QByteArray answerTo(const QString &url, Ipv4Address from) const
    {
        const QByteArray all = curl(from, {QStringLiteral("--include"), url}).out;
        QList<QByteArray> lines = all.split('\n');
        lines.removeIf([](const QByteArray &line) { return line.startsWith("Date:"); });
        return lines.join('\n');
    }
    void waitForSum() const
    {
        EXPECT_TRUE(waitUntil([&] { return answerTo(address(), peer).contains("Repr-Digest: sha-256"); }));
    }
    std::unique_ptr<QTcpSocket> connected(Ipv4Address from) const
    {
        auto socket = std::make_unique<QTcpSocket>();
        EXPECT_TRUE(socket->bind(QHostAddress(from.number())));
        socket->connectToHost(QHostAddress(own.number()), port);
        EXPECT_TRUE(socket->waitForConnected(patience));
        return socket;
    }
    static QByteArray allFrom(QTcpSocket &socket)
    {
        while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(patience)) { }
        return socket.readAll();
    }

    const Ipv4Address own = loopback(1), peer = loopback(2), stranger = loopback(3);
    std::unique_ptr<HttpFileServer> server = std::make_unique<HttpFileServer>();
    std::vector<SentBytes> transfers;
    QStringList failures;
    quint64 size = 0;
    std::uint16_t port = 0;
    QString servedName;
};

TEST_F(FileServerTest, GivesTheFileToThePeer)
{
    EXPECT_EQ(serve(write(QStringLiteral("a"), "Hello, peer")), QString());
    EXPECT_EQ(size, 11U);
    EXPECT_EQ(curl(peer, {address()}).out, "Hello, peer");
    ASSERT_TRUE(waitUntil([&] { return !transfers.empty() && transfers.back().isOver; }));
    EXPECT_TRUE(transfers.back().isWhole);
    EXPECT_EQ(transfers.back().place, 11U);
    EXPECT_EQ(transfers.back().to, peer);
}

TEST_F(FileServerTest, SaysWhatItGives)
{
    serve(write(QStringLiteral("a"), "abc"), QStringLiteral("Über.txt"));
    const auto answer = [&] { return answerTo(address(QStringLiteral("%C3%9Cber.txt")), peer); };
    ASSERT_TRUE(waitUntil([&] { return answer().contains("Repr-Digest: sha-256"); }));
    const std::string all = answer().toStdString();
    EXPECT_THAT(all, StartsWith("HTTP/1.1 200 OK\r\n"));
    EXPECT_THAT(all, HasSubstr("Content-Length: 3\r\n"));
    EXPECT_THAT(all, HasSubstr("Accept-Ranges: bytes\r\n"));
    EXPECT_THAT(all, HasSubstr("ETag: \""));
    EXPECT_THAT(all, HasSubstr("Content-Disposition: attachment; filename*=UTF-8''%C3%9Cber.txt\r\n"));
    EXPECT_THAT(all, HasSubstr("Repr-Digest: sha-256=:ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=:\r\n"));
    EXPECT_THAT(all, HasSubstr("\r\nabc"));
    EXPECT_THAT(all, Not(HasSubstr("Content-Encoding")));
}

TEST_F(FileServerTest, TellsTheHeadAlone)
{
    serve(write(QStringLiteral("a"), "abc"));
    const std::string all = curl(peer, {QStringLiteral("--head"), address()}).out.toStdString();
    EXPECT_THAT(all, StartsWith("HTTP/1.1 200 OK\r\n"));
    EXPECT_THAT(all, HasSubstr("Content-Length: 3\r\n"));
    EXPECT_THAT(all, Not(HasSubstr("abc")));
}

TEST_F(FileServerTest, GivesAPart)
{
    serve(write(QStringLiteral("a"), "0123456789"));
    const std::string all
        = curl(peer, {QStringLiteral("--include"), QStringLiteral("--range"), QStringLiteral("3-5"), address()})
              .out.toStdString();
    EXPECT_THAT(all, StartsWith("HTTP/1.1 206 Partial Content\r\n"));
    EXPECT_THAT(all, HasSubstr("Content-Range: bytes 3-5/10\r\n"));
    EXPECT_THAT(all, HasSubstr("Content-Length: 3\r\n"));
    EXPECT_THAT(all, testing::EndsWith("\r\n\r\n345"));
    const std::string beyond
        = curl(peer, {QStringLiteral("--include"), QStringLiteral("--range"), QStringLiteral("10-"), address()})
              .out.toStdString();
    EXPECT_THAT(beyond, StartsWith("HTTP/1.1 416 "));
    EXPECT_THAT(beyond, HasSubstr("Content-Range: bytes */10\r\n"));
}

TEST_F(FileServerTest, GivesTheWholeWhereThePartIsOfAnotherFile)
{
    serve(write(QStringLiteral("a"), "0123456789"));
    const auto from3 = [&](const QString &tag) {
        return curl(peer,
                    {QStringLiteral("--range"), QStringLiteral("3-"), QStringLiteral("--header"),
                     QStringLiteral("If-Range: ") + tag, address()})
            .out;
    };
    EXPECT_EQ(from3(QStringLiteral("\"another\"")), "0123456789");
    const QByteArray answer = answerTo(address(), peer);
    const qsizetype tag = answer.indexOf("ETag: ") + 6;
    EXPECT_EQ(from3(QString::fromLatin1(answer.mid(tag, answer.indexOf('\r', tag) - tag))), "3456789");
}

TEST_F(FileServerTest, AnswersAlikeWhateverIsNotThere)
{
    serve(write(QStringLiteral("a"), "secret"));
    const QByteArray nothing = answerTo(QStringLiteral("http://%1:%2/").arg(addressText(own)).arg(port), stranger);
    EXPECT_THAT(nothing.toStdString(), StartsWith("HTTP/1.1 404 Not Found\r\n"));
    EXPECT_THAT(nothing.toStdString(), testing::EndsWith("Content-Length: 0\r\n\r\n"));
    EXPECT_EQ(answerTo(address(), stranger), nothing);
    EXPECT_EQ(answerTo(address(), own), nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("Plan.pdf"), QStringLiteral("0123456789abcdef0123456789abcdee")), peer),
              nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("plan.pdf")), peer), nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("Plan.pdf/")), peer), nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("../../../../etc/passwd")), peer), nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("%2e%2e%2f%2e%2e%2fetc%2fpasswd")), peer), nothing);
    EXPECT_EQ(answerTo(address(QStringLiteral("Plan.pdf%00")), peer), nothing);
    EXPECT_EQ(answerTo(QStringLiteral("http://%1:%2/etc/passwd").arg(addressText(own)).arg(port), peer), nothing);
}

TEST_F(FileServerTest, TakesNothing)
{
    serve(write(QStringLiteral("a"), "abc"));
    for (const char *const method : {"POST", "PUT", "DELETE", "OPTIONS", "TRACE", "CONNECT", "get"})
        EXPECT_THAT(curl(peer,
                         {QStringLiteral("--include"), QStringLiteral("--request"), QLatin1String(method),
                          QStringLiteral("--data"), QString(100000, u'x'), address()})
                        .out.toStdString(),
                    StartsWith("HTTP/1.1 404 "))
            << method;
    EXPECT_EQ(curl(peer, {address()}).out, "abc");
}

TEST_F(FileServerTest, ServesAnEmptyFile)
{
    serve(write(QStringLiteral("a"), {}));
    EXPECT_EQ(size, 0U);
    EXPECT_THAT(answerTo(address(), peer).toStdString(), HasSubstr("Content-Length: 0\r\n"));
    ASSERT_TRUE(waitUntil([&] { return !transfers.empty(); }));
    EXPECT_TRUE(transfers.back().isWhole);
}

TEST_F(FileServerTest, RefusesWhatCannotBeRead)
{
    EXPECT_EQ(serve(pathOf(QStringLiteral("gone"))),
              QStringLiteral("gone cannot be sent: it is no file or folder that can be read."));
    EXPECT_EQ(serve(QStringLiteral("/dev/zero")),
              QStringLiteral("zero cannot be sent: it is no file or folder that can be read."));
}

TEST_F(FileServerTest, EndsWhenTheFileChanges)
{
    const QString path = write(QStringLiteral("a.bin"), "abc");
    serve(path);
    write(QStringLiteral("a.bin"), "another");
    EXPECT_EQ(curl(peer, {address()}).out, "");
    ASSERT_TRUE(waitUntil([&] { return !failures.empty(); }));
    EXPECT_EQ(failures.first(), QStringLiteral("a.bin has changed since it was offered, so its transfer has ended."));
}

TEST_F(FileServerTest, EndsInTheMiddleWhenTheFileChanges)
{
    const QString path = pathOf(QStringLiteral("large"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{200} * 1024 * 1024));
    serve(path);
    const std::unique_ptr<QTcpSocket> slow = connected(peer);
    slow->setReadBufferSize(1000);
    slow->write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
    ASSERT_TRUE(slow->waitForReadyRead(patience));
    ASSERT_TRUE(file.seek(0) && file.write("changed") == 7 && file.flush());
    slow->setReadBufferSize(0);
    EXPECT_LT(allFrom(*slow).size(), qsizetype{200} * 1024 * 1024);
    ASSERT_TRUE(waitUntil([&] { return !failures.empty(); }));
    EXPECT_THAT(failures.first().toStdString(), HasSubstr("has changed"));
}

TEST_F(FileServerTest, BreaksOffAndListensNoMoreWhenItIsWithdrawn)
{
    QFile file(pathOf(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{200} * 1024 * 1024));
    serve(file.fileName());
    const std::unique_ptr<QTcpSocket> socket = connected(peer);
    socket->setReadBufferSize(1000);
    socket->write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
    ASSERT_TRUE(socket->waitForReadyRead(patience));
    server->withdraw(token);
    socket->setReadBufferSize(0);
    EXPECT_LT(allFrom(*socket).size(), file.size());
    EXPECT_TRUE(waitUntil([&] { return curl(peer, {address()}).status == 7; })) << "nobody is there soon";
}

TEST_F(FileServerTest, IsWithdrawnAtOnceThoughTheDiskDoesNotAnswer)
{
    serve(write(QStringLiteral("a.slow"), "abc"));
    waitForSum();
    SlowDisk disk;
    const std::unique_ptr<QTcpSocket> socket = connected(peer);
    socket->write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
    ASSERT_TRUE(waitUntil([] { return SlowDisk::waiting() > 0; }));
    server->withdraw(token); // or it would never come back
    EXPECT_EQ(SlowDisk::waiting(), 1);
    EXPECT_EQ(serve(write(QStringLiteral("b"), "def")), QString());
    EXPECT_EQ(curl(peer, {address()}).out, "def");
}

TEST_F(FileServerTest, GoesOnListeningForTheOthers)
{
    const QString other = QStringLiteral("fedcba9876543210fedcba9876543210");
    serve(write(QStringLiteral("a"), "abc"));
    serve(write(QStringLiteral("b"), "def"), QStringLiteral("b"), other);
    server->withdraw(token);
    EXPECT_EQ(curl(peer, {address()}).out, "");
    EXPECT_EQ(curl(peer, {address(QStringLiteral("b"), other)}).out, "def");
}

TEST_F(FileServerTest, TakesTheNextPortWhereOneIsTaken)
{
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress(own.number()), 5549));
    serve(write(QStringLiteral("a"), "abc"));
    EXPECT_EQ(port, 5550);
    EXPECT_EQ(curl(peer, {address()}).out, "abc");
}

TEST_F(FileServerTest, NamesAFileAsItIsCalledAndAFolderAsAnArchive)
{
    serve(write(QStringLiteral("a?b.txt"), "abc"), {});
    EXPECT_EQ(servedName, QStringLiteral("a_b.txt"));
    EXPECT_EQ(curl(peer, {address(QStringLiteral("a_b.txt"))}).out, "abc");
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Photos.2026")));
    serve(pathOf(QStringLiteral("Photos.2026/")), {}, QStringLiteral("fedcba9876543210fedcba9876543210"));
    EXPECT_EQ(servedName, QStringLiteral("Photos.2026.zip"));
}

TEST_F(FileServerTest, SaysWhereItCannotListen)
{
    std::optional<FileServer::Readied> readied;
    server->serve({.token = token,
                   .name = {},
                   .path = write(QStringLiteral("Plan.pdf"), "abc"),
                   .to = {peer},
                   .at = Ipv4Address(192, 0, 2, 1)},
                  [&](const FileServer::Readied &now) { readied = now; });
    ASSERT_TRUE(waitUntil([&] { return readied.has_value(); }));
    EXPECT_EQ(readied->trouble, QStringLiteral("Plan.pdf cannot be sent: no port of this computer is free for it."));
}

/// Its reader takes less in each limit than the buffers between them hold.
TEST_F(FileServerTest, EndsNoTransferThatIsSlowButGoesOn)
{
    serveLargeWithALimitOfASecond();
    QTcpSocket slow;
    ASSERT_TRUE(slow.bind(QHostAddress(peer.number())));
    slow.setReadBufferSize(8 * 1024);
    slow.connectToHost(QHostAddress(own.number()), port);
    ASSERT_TRUE(slow.waitForConnected(patience));
    slow.write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
    qint64 got = 0;
    QTimer pace;
    QObject::connect(&pace, &QTimer::timeout, &slow, [&] { got += slow.read(8 * 1024).size(); });
    pace.start(20);
    constexpr qint64 longAfterTheLimit = qint64{1500} * 1024;
    const auto isOver = [this] { return !transfers.empty() && transfers.back().isOver; };
    EXPECT_TRUE(waitUntil([&] { return got > longAfterTheLimit || isOver(); }));
    EXPECT_FALSE(isOver()) << got;
}

TEST_F(FileServerTest, EndsATransferThatStandsStill)
{
    serveLargeWithALimitOfASecond();
    const std::unique_ptr<QTcpSocket> socket = connected(peer);
    socket->setReadBufferSize(1000);
    socket->write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
    EXPECT_TRUE(waitUntil([&] { return !transfers.empty() && transfers.back().isOver; }));
    EXPECT_FALSE(transfers.back().isWhole);
}

TEST_F(FileServerTest, SendsFourFilesToAPeerAtATime)
{
    QFile file(pathOf(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{200} * 1024 * 1024));
    serve(file.fileName());
    std::list<std::unique_ptr<QTcpSocket>> waiting;
    for (int i = 0; i < 4; ++i) {
        waiting.push_back(connected(peer));
        waiting.back()->setReadBufferSize(1000);
        waiting.back()->write("GET /" + token.toLatin1() + "/Plan.pdf HTTP/1.1\r\nHost: x\r\n\r\n");
        ASSERT_TRUE(waiting.back()->waitForReadyRead(patience));
    }
    EXPECT_THAT(answerTo(address(), peer).toStdString(), StartsWith("HTTP/1.1 503 "));
    EXPECT_THAT(curl(peer, {QStringLiteral("--head"), address()}).out.toStdString(), StartsWith("HTTP/1.1 200 "));
    waiting.pop_back();
    const QStringList firstByte{QStringLiteral("--include"), QStringLiteral("--range"), QStringLiteral("0-0"),
                                address()};
    EXPECT_TRUE(waitUntil([&] { return curl(peer, firstByte).out.startsWith("HTTP/1.1 206 "); }));
}

TEST_F(FileServerTest, SurvivesTwoHundredConnectionsAndEndlessHeads)
{
    serve(write(QStringLiteral("a"), "abc"));
    {
        std::list<std::unique_ptr<QTcpSocket>> crowd;
        for (int i = 0; i < 200; ++i) {
            crowd.push_back(connected(stranger));
            crowd.back()->write("GET / HTTP/1.1\r\nHost: x\r\n");
        }
        // Strangers keep nobody out.
        EXPECT_EQ(curl(peer, {address()}).out, "abc");
    }
    const std::unique_ptr<QTcpSocket> bomb = connected(peer);
    bomb->write("GET / HTTP/1.1\r\n");
    const QByteArray line = "X: " + QByteArray(8000, 'x') + "\r\n";
    while (bomb->state() == QAbstractSocket::ConnectedState && bomb->write(line) > 0
           && (bomb->waitForBytesWritten(patience) || bomb->bytesToWrite() == 0) && !bomb->waitForReadyRead(0)) { }
    EXPECT_THAT(allFrom(*bomb).left(12).toStdString(), testing::AnyOf("HTTP/1.1 431", ""));
    EXPECT_EQ(curl(peer, {address()}).out, "abc");
}

TEST_F(FileServerTest, ServesWget)
{
    serve(write(QStringLiteral("a"), "0123456789"));
    const QString saved = write(QStringLiteral("saved"), "0123");
    EXPECT_EQ(run(QStringLiteral("wget"),
                  {QStringLiteral("--quiet"), QStringLiteral("--continue"),
                   QStringLiteral("--bind-address=") + addressText(peer), QStringLiteral("--output-document=") + saved,
                   address()})
                  .status,
              0);
    EXPECT_EQ(read(saved), "0123456789");
}

TEST_F(FileServerTest, ReachesBeyondFourGigabytes)
{
    constexpr qint64 large = qint64{20} * 1024 * 1024 * 1024;
    QFile file(pathOf(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(large) && file.seek(large - 3));
    ASSERT_EQ(file.write("end"), 3);
    file.close();
    serve(file.fileName());
    EXPECT_EQ(curl(peer, {QStringLiteral("--range"), QStringLiteral("-4"), address()}).out, QByteArray("\0end", 4));
    EXPECT_THAT(curl(peer, {QStringLiteral("--head"), address()}).out.toStdString(),
                HasSubstr("Content-Length: 21474836480\r\n"));
}

/// The sum of the large one takes a minute.
TEST_F(FileServerTest, ALargeFileHoldsUpNoSumOfSmallOnes)
{
    QFile file(pathOf(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{100} * 1024 * 1024 * 1024));
    serve(file.fileName());
    const QString small = QStringLiteral("fedcba9876543210fedcba9876543210");
    serve(write(QStringLiteral("a"), "abc"), QStringLiteral("a"), small);
    const auto headOf = [&](const QString &of) { return curl(peer, {QStringLiteral("--head"), of}).out; };
    EXPECT_TRUE(waitUntil(
        [&] { return headOf(address(QStringLiteral("a"), small)).contains("Repr-Digest: sha-256=:ungWv48"); }));
    EXPECT_THAT(headOf(address()).toStdString(), HasSubstr("NIMB-Repr-Digest: pending"));
}

TEST_F(FileServerTest, LetsALargeFileBeResumed)
{
    const bool isLong = qEnvironmentVariable("NIMB_FILES") == QLatin1String("long");
    const qint64 large = qint64{isLong ? 5000 : 250} * 1024 * 1024;
    QFile file(pathOf(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.resize(large));
    auto *const chance = QRandomGenerator::global();
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(file.seek(chance->bounded(large - 4)));
        ASSERT_EQ(file.write("mark"), 4);
    }
    file.close();
    serve(file.fileName());
    const QString saved = pathOf(QStringLiteral("saved"));
    for (int killed = 0; killed < 10; ++killed) {
        QProcess loader;
        endWithParent(loader);
        const qint64 before = QFileInfo(saved).size();
        loader.start(QStringLiteral("curl"),
                     {QStringLiteral("--silent"), QStringLiteral("--interface"), addressText(peer),
                      QStringLiteral("--continue-at"), QStringLiteral("-"), QStringLiteral("--output"), saved,
                      address()});
        const qint64 enough = before + 1 + chance->bounded(large / 12);
        ASSERT_TRUE(waitUntil([&] { return QFileInfo(saved).size() >= enough; }));
        loader.kill();
        ASSERT_TRUE(loader.waitForFinished(patience));
        ASSERT_LT(QFileInfo(saved).size(), large);
    }
    curl(peer, {QStringLiteral("--continue-at"), QStringLiteral("-"), QStringLiteral("--output"), saved, address()});
    EXPECT_EQ(run(QStringLiteral("cmp"), {file.fileName(), saved}).status, 0);
}

// --- folders

class FolderServerTest : public FileServerTest
{
protected:
    void unzip(const QString &archive) const
    {
        EXPECT_EQ(run(QStringLiteral("unzip"),
                      {QStringLiteral("-q"), archive, QStringLiteral("-d"), pathOf(QStringLiteral("unpacked"))})
                      .status,
                  0);
    }
    void expectSame(const QString &original) const
    {
        EXPECT_EQ(run(QStringLiteral("diff"),
                      {QStringLiteral("-r"), pathOf(original), pathOf(QStringLiteral("unpacked/") + original)})
                      .status,
                  0);
    }
};

TEST_F(FolderServerTest, GivesAFolderThatUnzipUnpacks)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Photos/empty")));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Photos/Über uns")));
    write(QStringLiteral("Photos/a.txt"), "Hello");
    write(QStringLiteral("Photos/nothing"), {});
    write(QStringLiteral("Photos/.hidden"), "hidden");
    QByteArray large(3'000'000, 'x');
    for (qsizetype i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * i >> 5);
    write(QStringLiteral("Photos/Über uns/large"), large);
    ASSERT_TRUE(QFile::link(QStringLiteral("/etc/passwd"), pathOf(QStringLiteral("Photos/elsewhere"))));
    EXPECT_EQ(serve(pathOf(QStringLiteral("Photos"))), QString());
    const QString saved = pathOf(QStringLiteral("saved.zip"));
    curl(peer, {QStringLiteral("--output"), saved, address()});
    EXPECT_EQ(static_cast<quint64>(QFileInfo(saved).size()), size);
    EXPECT_EQ(run(QStringLiteral("unzip"), {QStringLiteral("-tq"), saved}).status, 0);
    unzip(saved);
    ASSERT_TRUE(QFile::remove(pathOf(QStringLiteral("Photos/elsewhere"))));
    expectSame(QStringLiteral("Photos"));
}

TEST_F(FolderServerTest, GivesTenThousandFiles)
{
    for (int i = 0; i < 100; ++i) {
        const QString inner = QStringLiteral("Many/%1").arg(i);
        ASSERT_TRUE(QDir(folder.path()).mkpath(inner));
        for (int j = 0; j < 100; ++j)
            write(QStringLiteral("%1/%2.txt").arg(inner).arg(j), QByteArray::number(i * j).repeated(j));
    }
    serve(pathOf(QStringLiteral("Many")));
    const QString saved = pathOf(QStringLiteral("saved.zip"));
    curl(peer, {QStringLiteral("--output"), saved, address()});
    unzip(saved);
    expectSame(QStringLiteral("Many"));
}

/// Whole, from each place on, and each byte by itself: the same.
TEST_F(FolderServerTest, GivesTheSameBytesHoweverTheyAreAskedFor)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("F/in")));
    write(QStringLiteral("F/a"), "12345");
    write(QStringLiteral("F/in/b"), "");
    write(QStringLiteral("F/in/c"), "678");
    const std::atomic<bool> isStopped = false;
    const auto whole = [&] {
        const FoundSource fresh = findSource(pathOf(QStringLiteral("F")), isStopped);
        return std::get<NamedSource>(fresh).source;
    };
    const auto source = whole();
    QByteArray all(static_cast<qsizetype>(source->size()), '\0');
    ASSERT_EQ(source->open(isStopped)->read(0, {all.data(), source->size()}), source->size());
    for (std::uint64_t place = 0; place < source->size(); ++place) {
        const auto fresh = whole(); // nobody knows a sum yet
        QByteArray rest(static_cast<qsizetype>(source->size() - place), '\0');
        ASSERT_EQ(fresh->open(isStopped)->read(place, {rest.data(), source->size() - place}), source->size() - place);
        ASSERT_EQ(rest, all.mid(static_cast<qsizetype>(place))) << place;
        char one = 0;
        ASSERT_EQ(whole()->open(isStopped)->read(place, {&one, 1}), 1U);
        ASSERT_EQ(one, all[static_cast<qsizetype>(place)]) << place;
    }
}

TEST_F(FolderServerTest, SaysWhatOfAFolderIsLeftOut)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("F/closed")));
    write(QStringLiteral("F/a"), "12345");
    write(QStringLiteral("F/secret"), "no");
    write(QStringLiteral("F/closed/inside"), "no");
    ASSERT_TRUE(QFile::link(pathOf(QStringLiteral("F")), pathOf(QStringLiteral("F/loop"))));
    const QByteArray pipe = QFile::encodeName(pathOf(QStringLiteral("F/pipe")));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const QByteArray noText = QFile::encodeName(pathOf(QStringLiteral("F"))) + "/\xE4.txt";
    const int descriptor = ::open(noText.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    ASSERT_GE(descriptor, 0);
    ::close(descriptor);
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
    ASSERT_TRUE(QFile::setPermissions(pathOf(QStringLiteral("F/secret")), {}));
    ASSERT_TRUE(QFile::setPermissions(pathOf(QStringLiteral("F/closed")), {}));
    QString leftOut;
    {
        const OrdinaryUser user;
        const std::atomic<bool> isStopped = false;
        const FoundSource found = findSource(pathOf(QStringLiteral("F")), isStopped);
        ASSERT_TRUE(std::holds_alternative<NamedSource>(found));
        leftOut = std::get<NamedSource>(found).leftOut;
        EXPECT_GT(std::get<NamedSource>(found).source->size(), 0U);
    }
    ASSERT_TRUE(QFile::setPermissions(pathOf(QStringLiteral("F/closed")), QFile::Permissions(0x7700)));
    EXPECT_EQ(leftOut,
              QString::fromUtf8("5 left out of F: closed, loop, pipe and 2 more. Links are not followed, and what "
                                "cannot be read is not sent."));
    EXPECT_EQ(serve(pathOf(QStringLiteral("F"))), QString());
}

TEST_F(FolderServerTest, SaysNothingWhereNothingIsLeftOut)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("F/in")));
    const std::atomic<bool> isStopped = false;
    const FoundSource found = findSource(pathOf(QStringLiteral("F")), isStopped);
    EXPECT_EQ(std::get<NamedSource>(found).leftOut, QString());
}

TEST_F(FolderServerTest, EndsWhenAFileInItChanges)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("F")));
    write(QStringLiteral("F/a.txt"), "12345");
    serve(pathOf(QStringLiteral("F")));
    write(QStringLiteral("F/a.txt"), "1234");
    EXPECT_NE(curl(peer, {address()}).status, 0);
    ASSERT_TRUE(waitUntil([&] { return !failures.empty(); }));
    EXPECT_EQ(failures.first(), QStringLiteral("a.txt has changed since it was offered, so its transfer has ended."));
}

} // namespace
} // namespace nimb::test
