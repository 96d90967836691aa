// What was said is there again after any end of the program.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QFile>

#include <gmock/gmock.h>

#include <sqlite3.h>

#include <random>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class HistoryOfACopy : public testing::Test
{
protected:
    MainWindow start() { return MainWindow::startBob(bob, ann); }
    QString file() const { return QFileInfo(bob.storeFile()).path() + QStringLiteral("/history.sqlite3"); }
    /// Of a copy of the files, so that the program has them to itself.
    std::vector<std::string> kept() const { return column("SELECT text FROM messages ORDER BY id"); }
    /// Where reading of each conversation stopped; "all" where all was read.
    std::vector<std::string> readTo() const { return column("SELECT coalesce(read_to, 'all') FROM conversations"); }
    std::vector<std::string> column(const char *question) const
    {
        const QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("history.sqlite3"));
        for (const char *const suffix : {"", "-wal"})
            QFile::copy(file() + QLatin1String(suffix), copy + QLatin1String(suffix));
        std::vector<std::string> texts;
        sqlite3 *database = nullptr;
        if (QFile::exists(copy) && sqlite3_open(copy.toUtf8().constData(), &database) == SQLITE_OK) {
            sqlite3_exec(
                database, question,
                [](void *all, int, char **values, char **) {
                    static_cast<std::vector<std::string> *>(all)->push_back(values[0]);
                    return 0;
                },
                &texts, nullptr);
        }
        sqlite3_close(database);
        return texts;
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.52.12", port};
    RunningCopy bob{{"127.0.52.11", "BOB-PC"},
                    profile(port, {{"127.0.52.12", "Ann", "ANN-PC"}}, {{{"Options", "KeepHistory"}, "ever"}})};
};

TEST_F(HistoryOfACopy, IsThereAfterAKillInTheMiddleOfAConversation)
{
    start();
    std::vector<std::string> said;
    for (int round = 0; round < 5; ++round) {
        for (int i = 0; i < 20; ++i) {
            said.push_back("number " + std::to_string(said.size()));
            ann.send(bob.address(), "-" + said.back());
        }
        EXPECT_TRUE(waitUntil([&] { return kept() == said; })) << kept().size();
        ann.send(bob.address(), "-on its way");
        bob.kill();
        std::vector<std::string> left = kept();
        if (left.size() > said.size()) {
            EXPECT_EQ(left.back(), "on its way");
            said.push_back("on its way");
        }
        EXPECT_EQ(left, said);
        start();
    }
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(kept(), said);
}

/// NIMB_KILLS: how often; each time at another moment.
TEST_F(HistoryOfACopy, LosesNothingButTheLastMomentWhereverItIsKilledWhileMessagesPourIn)
{
    const int rounds = qEnvironmentVariableIsSet("NIMB_KILLS") ? qEnvironmentVariableIntValue("NIMB_KILLS") : 4;
    std::mt19937 chance(1); // NOLINT(cert-msc51-cpp): the same kills every time, as far as the machine goes along
    std::vector<std::string> said;
    for (int round = 0; round < rounds; ++round) {
        start();
        const std::size_t before = said.size(), more = std::uniform_int_distribution<std::size_t>(1, 300)(chance);
        const std::size_t seen = before + std::uniform_int_distribution<std::size_t>(0, more - 1)(chance);
        while (said.size() < before + more) {
            said.push_back("number " + std::to_string(said.size()));
            ann.send(bob.address(), "-" + said.back());
            const bool isThere = said.size() != seen + 1 || waitUntil([&] { return kept().size() > seen; });
            ASSERT_TRUE(isThere) << "round " << round;
        }
        bob.kill();
        const std::vector<std::string> left = kept();
        ASSERT_GT(left.size(), seen) << "round " << round;
        ASSERT_LE(left.size(), said.size());
        said.resize(left.size());
        ASSERT_EQ(left, said) << "in their order and without a gap, round " << round;
    }
}

TEST_F(HistoryOfACopy, IsWrittenWholeWhenTheProgramEnds)
{
    start();
    ann.send(bob.address(), "!ONLINE 127.0.52.12 ANN-PC Ann");
    ann.send(bob.address(), "-the last word");
    ann.send(bob.address(), "?ONLINE 127.0.52.12 ANN-PC Ann");
    ann.hearUntil("!ONLINE 127.0.52.11 BOB-PC Bob"); // it has been shown, and is not written yet
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(kept(), ElementsAre("the last word"));
    EXPECT_FALSE(QFile::exists(file() + QStringLiteral("-wal")));
}

TEST_F(HistoryOfACopy, WhatWasNotReadIsUnreadAtTheNextStartUntilItIsSeen)
{
    start();
    ann.send(bob.address(), "!ONLINE 127.0.52.12 ANN-PC Ann");
    ann.send(bob.address(), "-one");
    ann.send(bob.address(), "-two");
    EXPECT_TRUE(waitUntil([&] { return kept().size() == 2; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(readTo(), ElementsAre("0")) << "its window was minimised, and the end closes it unread";
    const MainWindow again = start();
    ann.send(bob.address(), "!ONLINE 127.0.52.12 ANN-PC Ann");
    const PrivateWindow window = again.openWhenOnline(0, "Ann");
    EXPECT_TRUE(waitUntil([&] { return readTo() == std::vector<std::string>{"all"}; }));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(kept(), ElementsAre("one", "two"));
    EXPECT_THAT(readTo(), ElementsAre("all"));
}

class NobodyAsked : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.52.12", port};
    RunningCopy bob{{"127.0.52.11", "BOB-PC"}, profile(port, {{"127.0.52.12", "Ann", "ANN-PC"}})};
};

TEST_F(NobodyAsked, NoFileIsMadeOfWhatIsSaid)
{
    MainWindow::startBob(bob, ann);
    ann.send(bob.address(), "!ONLINE 127.0.52.12 ANN-PC Ann");
    ann.send(bob.address(), "-hello");
    ann.send(bob.address(), "?ONLINE 127.0.52.12 ANN-PC Ann");
    ann.hearUntil("!ONLINE 127.0.52.11 BOB-PC Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_FALSE(QFile::exists(QFileInfo(bob.storeFile()).path() + QStringLiteral("/history.sqlite3")));
    EXPECT_EQ(bob.stored("Options", "KeepHistory"), "");
}

} // namespace
} // namespace nimb::test
