#include "history/history_keeper.h"

#include "base/limits.h"
#include "event_loop_wait.h"
#include "history/history_file.h"
#include "ordinary_user.h"
#include "print_qt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class HistoryKeeperTest : public testing::Test
{
protected:
    HistoryKeeperTest()
    {
        keeper->trouble = [this](const QString &sentence) { troubles += sentence; };
    }

    static KeptConversation with(const char *address)
    {
        return {
            .kind = KeptConversation::Kind::contact, .address = QLatin1String(address), .name = QStringLiteral("Ann")};
    }
    void keep(const QString &text, const char *address = "10.0.0.2")
    {
        keeper->keep(with(address), {.time = QDateTime(QDate(2026, 11, 21), QTime(14, 5)), .text = text});
    }
    QStringList find(const HistoryQuestion &question)
    {
        std::optional<QStringList> texts;
        keeper->find(question, [&](const std::vector<StoredMessage> &messages) {
            texts.emplace();
            for (const StoredMessage &found : messages)
                *texts += found.message.text;
        });
        EXPECT_TRUE(waitUntil([&] { return texts.has_value(); }));
        return texts.value_or(QStringList());
    }

    const QTemporaryDir m_base;
    const QString folder = m_base.filePath(QStringLiteral("profile"));
    std::optional<HistoryKeeper> keeper{folder};
    QStringList troubles;
};

TEST_F(HistoryKeeperTest, TouchesNothingUntilSomethingIsKept)
{
    EXPECT_FALSE(QDir(folder).exists());
    keep(QStringLiteral("hello"));
    EXPECT_EQ(find({}), QStringList{"hello"});
    EXPECT_TRUE(QFile::exists(folder + QStringLiteral("/history.sqlite3")));
}

TEST_F(HistoryKeeperTest, WhatWasKeptBeforeAQuestionIsInItsAnswer)
{
    for (int i = 0; i < 5; ++i) {
        keep(QString::number(i));
        EXPECT_EQ(find({}).size(), i + 1);
    }
}

TEST_F(HistoryKeeperTest, TheEndWaitsUntilAllIsWritten)
{
    for (int i = 0; i < 1000; ++i)
        keep(QStringLiteral("number %1").arg(i));
    keeper.reset();
    EXPECT_EQ(HistoryFile(folder).list().front().messages, 1000);
}

TEST_F(HistoryKeeperTest, IsOnTheDiskSoonWithoutAnybodyAsking)
{
    keep(QStringLiteral("unmistakable"));
    EXPECT_TRUE(waitUntil([&] {
        QFile log(folder + QStringLiteral("/history.sqlite3-wal"));
        return log.open(QFile::ReadOnly) && log.readAll().contains("unmistakable");
    }));
    EXPECT_LT(limits::historyGathered.count(), 200);
}

class HistoryThatCanOnlyBeRead : public HistoryKeeperTest
{
protected:
    HistoryThatCanOnlyBeRead()
    {
        keep(QStringLiteral("before"));
        keeper.reset();
        QFile::setPermissions(m_base.path(), readable | QFile::WriteOwner);
    }
    ~HistoryThatCanOnlyBeRead() override { QFile::setPermissions(folder, QFile::ExeOwner | forMe); }
    QStringList textsOfAll()
    {
        keeper.emplace(folder);
        keeper->trouble = [this](const QString &sentence) { troubles += sentence; };
        return find({});
    }

    static constexpr QFile::Permissions forMe = QFile::ReadOwner | QFile::WriteOwner;
    static constexpr QFile::Permissions readable
        = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    const QString file = folder + QStringLiteral("/history.sqlite3");
};

TEST_F(HistoryThatCanOnlyBeRead, IsReadAndSaysWhyItIsNotWrittenOnce)
{
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther);
    QFile::setPermissions(folder, readable);
    {
        const OrdinaryUser user;
        EXPECT_EQ(textsOfAll(), QStringList{"before"});
        keep(QStringLiteral("after"));
        EXPECT_EQ(find({.words = QStringLiteral("bef")}), QStringList{"before"});
        EXPECT_EQ(troubles,
                  QStringList{QStringLiteral("The history in %1 can only be read now (the file or its folder is "
                                             "read-only): nothing more is kept until that changes.")
                                  .arg(file)});
        EXPECT_EQ(keeper->troubleNow(), troubles.front());
    }
    QFile::setPermissions(folder, QFile::ExeOwner | forMe);
    QFile::setPermissions(file, forMe);
    EXPECT_EQ(find({}), (QStringList{"before", "after"})) << "what waited is written once it can be";
    EXPECT_EQ(keeper->troubleNow(), std::nullopt);
}

TEST_F(HistoryThatCanOnlyBeRead, IsReadInAFolderWithoutRights)
{
    QFile::setPermissions(file, forMe | QFile::ReadOther | QFile::WriteOther);
    QFile::setPermissions(folder, readable);
    const OrdinaryUser user;
    EXPECT_EQ(textsOfAll(), QStringList{"before"});
    EXPECT_THAT(troubles, SizeIs(1));
}

TEST_F(HistoryKeeperTest, AFileThatSomebodyRemovesIsToldAndAnotherOneBegun)
{
    keep(QStringLiteral("before"));
    EXPECT_EQ(find({}), QStringList{"before"});
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/history.sqlite3")));
    keep(QStringLiteral("after"));
    EXPECT_EQ(find({}), QStringList{"after"});
    ASSERT_THAT(troubles, SizeIs(1));
    EXPECT_TRUE(troubles.front().contains(QLatin1String("has been removed or replaced")));
    keep(QStringLiteral("later"));
    keeper.reset();
    EXPECT_EQ(HistoryFile(folder).list().front().messages, 2);
}

TEST_F(HistoryKeeperTest, AFileThatSomebodyPutsInItsPlaceIsGoneOnWith)
{
    const QString other = m_base.filePath(QStringLiteral("other"));
    {
        HistoryFile history(other);
        const HistoryFile::Entry entry{
            with("10.0.0.2"),
            {.time = QDateTime(QDate(2026, 11, 20), QTime(9, 0)), .text = QStringLiteral("of a backup")}};
        history.write({&entry, 1});
    }
    keep(QStringLiteral("before"));
    EXPECT_EQ(find({}), QStringList{"before"});
    const QString file = folder + QStringLiteral("/history.sqlite3");
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::rename(other + QStringLiteral("/history.sqlite3"), file));
    keep(QStringLiteral("after"));
    EXPECT_EQ(find({}), (QStringList{"of a backup", "after"}));
    EXPECT_THAT(troubles, SizeIs(1));
}

TEST_F(HistoryKeeperTest, FindsInAConversationByItsName)
{
    keep(QStringLiteral("to Ann"));
    keep(QStringLiteral("to Ben"), "10.0.0.3");
    std::vector<std::size_t> counts;
    const auto count = [&](const std::vector<StoredMessage> &messages) { counts.push_back(messages.size()); };
    keeper->findIn(with("10.0.0.3"), {}, count);
    keeper->findIn(with("10.0.0.4"), {}, count);
    EXPECT_TRUE(waitUntil([&] { return counts.size() == 2; }));
    EXPECT_THAT(counts, ElementsAre(1, 0));
}

TEST_F(HistoryKeeperTest, TellsTheNextRunWhereReadingStopped)
{
    const auto unread = [this] {
        std::optional<std::vector<UnreadConversation>> answer;
        keeper->listUnread([&](const std::vector<UnreadConversation> &all) { answer = all; });
        EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }));
        return answer.value_or(std::vector<UnreadConversation>());
    };
    keep(QStringLiteral("read"));
    keeper->leaveUnread(with("10.0.0.2"));
    keep(QStringLiteral("one"));
    keep(QStringLiteral("two"));
    keeper.reset();
    keeper.emplace(folder);
    const std::vector<UnreadConversation> left = unread();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].conversation, with("10.0.0.2"));
    EXPECT_EQ(left[0].readTo, 1);
    EXPECT_EQ(left[0].messages, 2);
    keeper->setRead(with("10.0.0.2"), 0);
    EXPECT_TRUE(unread().empty());
}

TEST_F(HistoryKeeperTest, MakesNoFileToFindThatNothingIsUnread)
{
    keeper->listUnread([](const auto &) { ADD_FAILURE() << "nobody could answer"; });
    keeper.reset();
    EXPECT_FALSE(QFile::exists(folder));
}

TEST_F(HistoryKeeperTest, ErasesWhatWasKeptJustBefore)
{
    keep(QStringLiteral("gone"));
    bool done = false;
    keeper->erase({}, [&](bool erased) { done = erased; });
    EXPECT_TRUE(waitUntil([&] { return done; }));
    EXPECT_EQ(find({}), QStringList());
}

TEST_F(HistoryKeeperTest, NoAnswerComesAfterItsEnd)
{
    bool answered = false;
    keep(QStringLiteral("hello"));
    keeper->find({}, [&](const std::vector<StoredMessage> &) { answered = true; });
    keeper.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(answered);
}

TEST_F(HistoryKeeperTest, ADiskThatTakesNothingIsToldOnceAndNothingIsLostMeanwhile)
{
    const QString file = folder + QStringLiteral("/history.sqlite3");
    QDir().mkpath(file); // a folder where the file should be
    keep(QStringLiteral("first"));
    EXPECT_EQ(find({}), QStringList());
    keep(QStringLiteral("second"));
    EXPECT_EQ(find({}), QStringList());
    EXPECT_THAT(troubles, SizeIs(1));
    EXPECT_THAT(troubles.value(0).toStdString(), testing::HasSubstr("history.sqlite3"));
    EXPECT_EQ(keeper->troubleNow(), troubles.value(0));
    QDir().rmdir(file);
    EXPECT_EQ(find({}), (QStringList{"first", "second"}));
    EXPECT_THAT(troubles, SizeIs(1));
    EXPECT_EQ(keeper->troubleNow(), std::nullopt);
}

TEST_F(HistoryKeeperTest, ADamagedFileIsToldAndTheConversationGoesOn)
{
    QDir().mkpath(folder);
    QFile other(folder + QStringLiteral("/history.sqlite3"));
    ASSERT_TRUE(other.open(QFile::WriteOnly));
    other.write("this is no database, but somebody wrote it");
    other.close();
    keep(QStringLiteral("goes on"));
    EXPECT_EQ(find({}), QStringList{"goes on"});
    EXPECT_TRUE(waitUntil([&] { return troubles.size() == 1; }));
    EXPECT_THAT(troubles.value(0).toStdString(), testing::HasSubstr("The old file is"));
}

} // namespace
} // namespace nimb::test
