// Fetching from a real server, and from one that misbehaves.
#include "files/http_file_fetcher.h"

#include "files/file_link.h"
#include "files/file_name.h"
#include "files/received_files.h"

#include "files/http_file_server.h"
#include "full_disk.h"
#include "print_qt.h"
#include "protocol/address_text.h"
#include "served_files.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>

#include <gmock/gmock.h>

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using What = FetchedBytes::What;

class FileFetcherTest : public FilesOnLoopback
{
protected:
    FileFetcherTest() : FilesOnLoopback(6)
    {
        renew();
        EXPECT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("in")));
    }

    void renew()
    {
        fetcher = std::make_unique<HttpFileFetcher>();
        fetcher->told = [this](const FetchedBytes &now) { states.push_back(now); };
    }
    static bool isOver(const FetchedBytes &state)
    {
        return state.what == What::done || state.what == What::stopped || state.what == What::failed;
    }
    QString inFolder(const QString &name) const { return folder.filePath(QStringLiteral("in/") + name); }
    QStringList found() const { return QDir(folder.filePath(QStringLiteral("in"))).entryList(QDir::Files); }
    QString partName() const { return unfinishedFileName(wanted().name, wanted().host, wanted().path); }
    WantedFile wanted(const QString &name = QStringLiteral("Plan.pdf")) const
    {
        return {.number = 1,
                .host = server,
                .port = port,
                .path = ("/" + token + "/Plan.pdf").toLatin1(),
                .from = own,
                .folder = folder.filePath(QStringLiteral("in")),
                .name = name};
    }
    FetchedBytes fetch(const WantedFile &file)
    {
        states.clear();
        fetcher->fetch(file);
        EXPECT_TRUE(waitUntil([&] { return !states.empty() && isOver(states.back()); }));
        return states.empty() ? FetchedBytes{} : states.back();
    }

    const Ipv4Address server = loopback(1), own = loopback(2);
    std::uint16_t port = 5549;
    std::unique_ptr<HttpFileFetcher> fetcher;
    std::vector<FetchedBytes> states;
};

/// One that answers each connection with the next of its answers, whatever is asked.
class OddServer : public QTcpServer
{
public:
    OddServer(Ipv4Address address, std::vector<QByteArray> bytes) : answers(std::move(bytes))
    {
        EXPECT_TRUE(listen(QHostAddress(address.number())));
        connect(this, &QTcpServer::newConnection, this, [this] { answer(nextPendingConnection()); });
    }

    std::vector<QByteArray> answers;
    QList<QByteArray> requests;

private:
    void answer(QTcpSocket *socket)
    {
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            const QByteArray request = socket->readAll();
            requests += request;
            if (answers.empty())
                return;
            socket->write(answers.front());
            if (answers.size() > 1)
                answers.erase(answers.begin());
            socket->disconnectFromHost();
        });
    }
};

class OddServerTest : public FileFetcherTest
{
protected:
    FetchedBytes fetchFrom(std::vector<QByteArray> answers)
    {
        odd.emplace(server, std::move(answers));
        port = odd->serverPort();
        return fetch(wanted());
    }
    std::string failureOf(const QByteArray &answer)
    {
        const FetchedBytes state = fetchFrom({answer});
        EXPECT_EQ(state.what, What::failed);
        return state.sentence.toStdString();
    }

    std::optional<OddServer> odd;
};

TEST_F(OddServerTest, AsksForTheFileAndTakesIt)
{
    const FetchedBytes state = fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"});
    EXPECT_EQ(state.what, What::done);
    EXPECT_FALSE(state.isChecked);
    EXPECT_EQ(state.path, inFolder(QStringLiteral("Plan.pdf")));
    EXPECT_EQ(read(state.path), "abc");
    EXPECT_THAT(odd->requests.front().toStdString(),
                testing::StartsWith("GET /0123456789abcdef0123456789abcdef/Plan.pdf HTTP/1.1\r\nHost: "));
    EXPECT_FALSE(QFileInfo(state.path).isExecutable());
}

TEST_F(OddServerTest, NeverOverwrites)
{
    write(QStringLiteral("in/Plan.pdf"), "mine");
    write(QStringLiteral("in/Plan (2).pdf"), "mine too");
    EXPECT_EQ(fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"}).path,
              inFolder(QStringLiteral("Plan (3).pdf")));
    EXPECT_EQ(read(inFolder(QStringLiteral("Plan.pdf"))), "mine");
    EXPECT_EQ(read(inFolder(QStringLiteral("Plan (2).pdf"))), "mine too");
}

TEST_F(OddServerTest, GoesOnWhereTheConnectionBroke)
{
    const FetchedBytes state = fetchFrom(
        {"HTTP/1.1 200 OK\r\nContent-Length: 10\r\nETag: \"t\"\r\n\r\n0123",
         "HTTP/1.1 206 Part\r\nContent-Length: 6\r\nContent-Range: bytes 4-9/10\r\nETag: \"t\"\r\n\r\n456789"});
    EXPECT_EQ(state.what, What::done);
    EXPECT_EQ(read(state.path), "0123456789");
    EXPECT_THAT(odd->requests.back().toStdString(), HasSubstr("\r\nRange: bytes=4-\r\nIf-Range: \"t\"\r\n"));
}

TEST_F(OddServerTest, BeginsAnewWhereTheFileIsAnotherOne)
{
    const FetchedBytes state = fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 10\r\nETag: \"t\"\r\n\r\n0123",
                                          "HTTP/1.1 200 OK\r\nContent-Length: 3\r\nETag: \"u\"\r\n\r\nabc"});
    EXPECT_EQ(read(state.path), "abc");
}

TEST_F(OddServerTest, TakesNoMoreThanWasAnnounced)
{
    EXPECT_EQ(read(fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabcdefgh"}).path), "abc");
}

TEST_F(OddServerTest, RefusesWhatIsNotWhatWasSent)
{
    EXPECT_EQ(failureOf("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n"
                        "Repr-Digest: sha-256=:ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=:\r\n\r\nabd"),
              "What has come is not what was sent. It has been removed.");
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(OddServerTest, WaitsForASumThatIsBeingWorkedOut)
{
    const FetchedBytes state
        = fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 3\r\nNIMB-Repr-Digest: pending\r\n\r\nabc",
                     "HTTP/1.1 200 OK\r\nContent-Length: 3\r\nNIMB-Repr-Digest: pending\r\n\r\n",
                     "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n"
                     "Repr-Digest: sha-256=:ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=:\r\n\r\n"});
    EXPECT_EQ(state.what, What::done);
    EXPECT_TRUE(state.isChecked);
    EXPECT_TRUE(odd->requests.back().startsWith("HEAD "));
}

TEST_F(OddServerTest, ChecksWhatWasThereAlreadyWhenItIsResumed)
{
    write(QStringLiteral("in/") + partName(), "abX");
    const FetchedBytes state
        = fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 3\r\nNIMB-Repr-Digest: pending\r\n\r\n",
                     "HTTP/1.1 416 Range Not Satisfiable\r\nContent-Length: 0\r\nContent-Range: bytes */3\r\n\r\n",
                     "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n"
                     "Repr-Digest: sha-256=:ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=:\r\n\r\n"});
    EXPECT_EQ(state.what, What::failed);
    EXPECT_EQ(state.sentence.toStdString(), "What has come is not what was sent. It has been removed.");
}

TEST_F(OddServerTest, AsksBeforeItReadsWhatIsThere)
{
    write(QStringLiteral("in/") + partName(), "0123");
    EXPECT_EQ(fetchFrom({"HTTP/1.1 404 Not Found\r\n\r\n"}).what, What::failed);
    EXPECT_THAT(states, testing::SizeIs(1)) << "nothing was read first";
    EXPECT_TRUE(states.back().isGone);
    EXPECT_EQ(states.back().place, 4U) << "it is kept";
    EXPECT_TRUE(odd->requests.front().startsWith("HEAD "));

    const FetchedBytes state
        = fetchFrom({"HTTP/1.1 200 OK\r\nContent-Length: 10\r\nETag: \"t\"\r\n\r\n",
                     "HTTP/1.1 206 Part\r\nContent-Length: 6\r\nContent-Range: bytes 4-9/10\r\n\r\n456789"});
    EXPECT_EQ(states.front().what, What::summing);
    EXPECT_EQ(states.front().size, 10U);
    EXPECT_THAT(odd->requests.back().toStdString(), HasSubstr("\r\nRange: bytes=4-\r\nIf-Range: \"t\"\r\n"));
    EXPECT_EQ(read(state.path), "0123456789");
}

TEST_F(OddServerTest, FollowsNobodyElsewhere)
{
    QTcpServer elsewhere;
    ASSERT_TRUE(elsewhere.listen(QHostAddress(server.number())));
    EXPECT_EQ(failureOf("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: http://" + addressText(server).toLatin1()
                        + ':' + QByteArray::number(elsewhere.serverPort()) + "/\r\n\r\n"),
              "The sender gave an answer that cannot be used.");
    EXPECT_FALSE(elsewhere.hasPendingConnections());
}

TEST_F(OddServerTest, RefusesAnswersThatCannotBeUsed)
{
    EXPECT_EQ(failureOf("HTTP/1.1 404 Not Found\r\n\r\n"), "The sender offers it no longer.");
    for (const char *const answer : {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n",
                                     "hello\r\n\r\n", "HTTP/1.1 200 OK\r\nContent-Length: 3", ""})
        EXPECT_EQ(failureOf(answer), "The sender broke off, or gave an answer that cannot be used.") << answer;
    for (const char *const answer : {"HTTP/1.1 200 OK\r\n\r\nabc", "HTTP/1.1 500 Oh\r\n\r\n",
                                     "HTTP/1.1 206 Part\r\nContent-Length: 3\r\nContent-Range: bytes 3-5/10\r\n\r\nabc",
                                     "HTTP/1.1 416 No\r\nContent-Range: bytes */10\r\n\r\n"})
        EXPECT_EQ(failureOf(answer), "The sender gave an answer that cannot be used.") << answer;
    EXPECT_EQ(failureOf("HTTP/1.1 200 OK\r\nX: " + QByteArray(100'000, 'x') + "\r\n\r\n"),
              "The sender broke off, or gave an answer that cannot be used.");
}

TEST_F(OddServerTest, GivesUpWhereTriesBringNothing)
{
    EXPECT_EQ(failureOf("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n"), "The connection to the sender broke off.");
}

TEST_F(OddServerTest, SaysThatThereIsTooLittleRoom)
{
    EXPECT_EQ(failureOf("HTTP/1.1 200 OK\r\nContent-Length: 9000000000000000000\r\n\r\nabc"),
              "There is too little room in " + inFolder({}).chopped(1).toStdString() + '.')
        << "and nothing has come that could be kept";
}

TEST_F(OddServerTest, LeavesNothingBehindWhereNothingHasCome)
{
    failureOf("HTTP/1.1 200 OK\r\nContent-Length: 9000000000000000000\r\n\r\nabc");
    EXPECT_THAT(found(), IsEmpty());
    failureOf("HTTP/1.1 404 Not Found\r\n\r\n");
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(OddServerTest, SaysThatTheDiskIsFullAndKeepsWhatHasCome)
{
    const QString part = partName();
    for (const int error : {ENOSPC, EDQUOT}) {
        {
            const FullDisk full(4, error);
            EXPECT_EQ(failureOf("HTTP/1.1 200 OK\r\nContent-Length: 10\r\nETag: \"t\"\r\n\r\n0123456789"),
                      "There is no room any more in " + inFolder({}).chopped(1).toStdString()
                          + ". What has come is kept.");
        }
        EXPECT_EQ(read(inFolder(part)), "0123");
    }
    const FetchedBytes state
        = fetchFrom({"HTTP/1.1 206 Part\r\nContent-Length: 6\r\nContent-Range: bytes 4-9/10\r\n\r\n456789"});
    EXPECT_EQ(read(state.path), "0123456789");
}

TEST_F(OddServerTest, SaysWhyElseItCannotBeWritten)
{
    const FullDisk broken(0, EIO);
    EXPECT_THAT(failureOf("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"),
                testing::AllOf(HasSubstr(" cannot be written on: "), HasSubstr("nput/output error")));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(OddServerTest, ShowsNothingThatIsTooLarge)
{
    odd.emplace(server, std::vector<QByteArray>{"HTTP/1.1 200 OK\r\nContent-Length: 11\r\n\r\n01234567890"});
    port = odd->serverPort();
    WantedFile file = wanted();
    file.most = 10;
    EXPECT_EQ(fetch(file).sentence, QStringLiteral("It is too large to be shown."));
}

TEST_F(OddServerTest, ShowsAPictureWithoutWaitingForItsSum)
{
    odd.emplace(
        server,
        std::vector<QByteArray>{"HTTP/1.1 200 OK\r\nContent-Length: 3\r\nNIMB-Repr-Digest: pending\r\n\r\nabc"});
    port = odd->serverPort();
    WantedFile file = wanted();
    file.most = 10;
    EXPECT_EQ(fetch(file).what, What::done);
    EXPECT_THAT(odd->requests, testing::SizeIs(1));
}

TEST_F(OddServerTest, WaitsWhileTheSenderIsBusy)
{
    const FetchedBytes state = fetchFrom({"HTTP/1.1 503 Busy\r\nRetry-After: 1\r\nContent-Length: 0\r\n\r\n",
                                          "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"});
    EXPECT_EQ(states.front().what, What::waiting);
    EXPECT_EQ(state.what, What::done);
}

TEST_F(FileFetcherTest, SaysThatTheSenderCannotBeReached)
{
    WantedFile file = wanted();
    file.host = Ipv4Address(127, 255, 255, 255); // nobody's
    const FetchedBytes state = fetch(file);
    EXPECT_EQ(state.sentence, QStringLiteral("The sender cannot be reached."));
    EXPECT_FALSE(state.isGone);
}

TEST_F(FileFetcherTest, SaysThatNothingIsOfferedWhereNobodyListensAnyMore)
{
    const FetchedBytes state = fetch(wanted());
    EXPECT_EQ(state.sentence, QStringLiteral("The sender offers it no longer."));
    EXPECT_TRUE(state.isGone);
}

TEST_F(FileFetcherTest, LooksUpHowMuchIsThere)
{
    write(QStringLiteral("in/") + partName(), "0123");
    for (const quint64 size : {4, 0}) {
        states.clear();
        fetcher->lookUp(wanted());
        ASSERT_TRUE(waitUntil([&] { return !states.empty(); }));
        EXPECT_EQ(states.front().what, What::there);
        EXPECT_EQ(states.front().place, size);
        QFile::remove(inFolder(partName()));
    }
}

TEST_F(FileFetcherTest, DiscardsWhatIsThereOfOneFileAlone)
{
    const QString other = QStringLiteral("Plan.pdf.01234567.part");
    write(QStringLiteral("in/") + partName(), "0123");
    write(QStringLiteral("in/") + other, "0123");
    write(QStringLiteral("in/Plan.pdf"), "0123");
    fetcher->discard(wanted());
    ASSERT_TRUE(waitUntil([&] { return !found().contains(partName()); }));
    EXPECT_EQ(found(), (QStringList{QStringLiteral("Plan.pdf"), other}));
}

TEST_F(FileFetcherTest, SaysThatTheFolderHasGone)
{
    ASSERT_TRUE(QDir(folder.path()).rmdir(QStringLiteral("in")));
    EXPECT_THAT(fetch(wanted()).sentence.toStdString(), testing::EndsWith("is not there any more."));
}

TEST_F(FileFetcherTest, EndsWhileItIsUnderWay)
{
    OddServer silent(server, {});
    port = silent.serverPort();
    fetcher->fetch(wanted());
    EXPECT_TRUE(waitUntil([&] { return !silent.requests.empty(); }));
    fetcher.reset(); // soon, though no answer has come
    EXPECT_THAT(states, IsEmpty());
}

#ifdef NIMB_FILES_SERVED

class FetchedFromUsTest : public FileFetcherTest
{
protected:
    quint64 serve(const QString &path)
    {
        std::optional<FileServer::Readied> readied;
        files->serve({.token = token, .name = QStringLiteral("Plan.pdf"), .path = path, .to = {own}, .at = server},
                     [&](const FileServer::Readied &now) { readied = now; });
        EXPECT_TRUE(waitUntil([&] { return readied.has_value(); }));
        port = readied->port;
        return readied->size;
    }

    std::unique_ptr<HttpFileServer> files = std::make_unique<HttpFileServer>();
};

TEST_F(FetchedFromUsTest, IsWholeAndChecked)
{
    serve(write(QStringLiteral("a"), QByteArray(1'000'000, 'x')));
    const FetchedBytes state = fetch(wanted());
    EXPECT_EQ(state.what, What::done);
    EXPECT_TRUE(state.isChecked);
    EXPECT_EQ(read(state.path), QByteArray(1'000'000, 'x'));
    EXPECT_THAT(found(), ElementsAre(QStringLiteral("Plan.pdf")));
#ifdef __linux__
    std::array<char, 200> origin{};
    if (getxattr(QFile::encodeName(state.path).constData(), "user.xdg.origin.url", origin.data(), origin.size()) > 0) {
        EXPECT_EQ(std::string(origin.data()),
                  "http://" + server.toText() + ":" + std::to_string(port)
                      + "/0123456789abcdef0123456789abcdef/Plan.pdf");
    }
#endif
}

TEST_F(FetchedFromUsTest, OthersGetNothing)
{
    serve(write(QStringLiteral("a"), "abc"));
    WantedFile file = wanted();
    file.from = loopback(3);
    EXPECT_EQ(fetch(file).sentence, QStringLiteral("The sender offers it no longer."));
}

/// Also by another run of the program, which knows nothing but the link.
TEST_F(FetchedFromUsTest, IsResumedAfterEachStop)
{
    const qint64 large = qint64{200} * 1024 * 1024;
    QFile file(folder.filePath(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.resize(large));
    auto *const chance = QRandomGenerator::global();
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(file.seek(chance->bounded(large - 4)));
        ASSERT_EQ(file.write("mark"), 4);
    }
    file.close();
    serve(file.fileName());
    const QString part = inFolder(partName());
    for (int i = 0; i < 10; ++i) {
        const qint64 enough = QFileInfo(part).size() + 1 + chance->bounded(large / 40);
        fetcher->fetch(wanted());
        ASSERT_TRUE(waitUntil([&] { return QFileInfo(part).size() >= enough; }));
        renew();
        ASSERT_THAT(found(), ElementsAre(partName()));
    }
    const FetchedBytes state = fetch(wanted());
    EXPECT_TRUE(state.isChecked);
    EXPECT_EQ(read(state.path), read(file.fileName()));
    EXPECT_THAT(found(), ElementsAre(QStringLiteral("Plan.pdf")));
}

/// Its links lead nowhere from then on, also where it offers others.
TEST_F(FetchedFromUsTest, IsNoLongerOfferedBySomebodyWhoHasStartedAnew)
{
    QFile large(folder.filePath(QStringLiteral("large")));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(qint64{20} * 1024 * 1024 * 1024));
    serve(large.fileName());
    fetcher->told = nullptr;
    ReceivedFiles received(*fetcher);
    const std::optional<int> number = received.add(fileMessage(QStringLiteral("Plan.pdf"), 1, server, port, token),
                                                   server, QStringLiteral("Ann"), own);
    ASSERT_TRUE(number);
    received.save(*number, folder.filePath(QStringLiteral("in")));
    const auto isStill = [&](ReceivedFile::State state) { return received.find(*number)->state == state; };
    ASSERT_TRUE(waitUntil([&] { return isStill(ReceivedFile::State::running) && received.find(*number)->place > 0; }));
    files.reset();
    ASSERT_TRUE(waitUntil([&] { return isStill(ReceivedFile::State::failed); }));
    EXPECT_EQ(ReceivedFiles::progressOf(received.at(0)), QStringLiteral("Ann no longer offers this file."));
    EXPECT_GT(received.at(0).place, 0U) << "what has come is kept";

    files = std::make_unique<HttpFileServer>(port);
    std::optional<FileServer::Readied> readied;
    files->serve({.token = QString(token).replace(u'0', u'f'),
                  .name = {},
                  .path = write(QStringLiteral("b"), "b"),
                  .to = {own},
                  .at = server},
                 [&](const FileServer::Readied &now) { readied = now; });
    ASSERT_TRUE(waitUntil([&] { return readied.has_value(); }));
    ASSERT_EQ(readied->port, port);
    received.resume(*number);
    ASSERT_TRUE(waitUntil([&] { return isStill(ReceivedFile::State::failed); }));
    EXPECT_EQ(ReceivedFiles::progressOf(received.at(0)), QStringLiteral("Ann no longer offers this file."));
}

TEST_F(FetchedFromUsTest, StopsAsWished)
{
    QFile file(folder.filePath(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64{20} * 1024 * 1024 * 1024));
    serve(file.fileName());
    fetcher->fetch(wanted());
    ASSERT_TRUE(waitUntil([&] { return !states.empty() && states.back().place > 0; }));
    EXPECT_EQ(states.back().size, quint64{20} * 1024 * 1024 * 1024);
    fetcher->stop(1);
    ASSERT_TRUE(waitUntil([&] { return isOver(states.back()); }));
    EXPECT_EQ(states.back().what, What::stopped);
}

#endif

} // namespace
} // namespace nimb::test
