#include "history/history_file.h"

#include "faulty_files.h"
#include "print_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>

#include <sys/stat.h>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const KeptConversation ann{
    .kind = KeptConversation::Kind::contact, .address = QStringLiteral("10.0.0.2"), .name = QStringLiteral("Ann")};
const KeptConversation ben{
    .kind = KeptConversation::Kind::contact, .address = QStringLiteral("10.0.0.3"), .name = QStringLiteral("Ben")};

QDateTime day(int number)
{
    return QDateTime(QDate(2026, 11, number), QTime(14, 5, 9, 250));
}

KeptMessage message(const QString &text, const QDateTime &time = day(21))
{
    return {.time = time,
            .isOwn = false,
            .address = QStringLiteral("10.0.0.2"),
            .writer = QStringLiteral("Ann"),
            .workstation = QStringLiteral("PC"),
            .text = text};
}

class HistoryFileTest : public testing::Test
{
protected:
    void write(HistoryFile &history, const KeptConversation &with, const KeptMessage &message) const
    {
        const HistoryFile::Entry entry{with, message};
        history.write({&entry, 1});
    }
    void write(HistoryFile &history, const QStringList &texts) const
    {
        std::vector<HistoryFile::Entry> entries;
        for (const QString &text : texts)
            entries.push_back({ann, message(text)});
        history.write(entries);
    }
    /// "message number 1000" to 1899, in a file that is closed then.
    void writeNumbered() const
    {
        HistoryFile history(folder);
        QStringList all;
        for (int i = 1000; i < 1900; ++i)
            all += QStringLiteral("message number %1").arg(i);
        write(history, all);
    }
    /// Overwrites the page of the file on which these bytes stand.
    void damagePageWith(const QByteArray &bytes) const
    {
        constexpr qint64 pageSize = 4096;
        QFile broken(file);
        if (!broken.open(QFile::ReadWrite))
            qFatal("cannot damage the file");
        const qint64 place = broken.readAll().indexOf(bytes);
        if (place < pageSize)
            qFatal("the bytes to damage are not there");
        broken.seek(place / pageSize * pageSize);
        broken.write(QByteArray(pageSize, '\x5a'));
    }
    static QStringList texts(const std::vector<StoredMessage> &messages)
    {
        QStringList all;
        for (const StoredMessage &found : messages)
            all += found.message.text;
        return all;
    }
    static QStringList found(HistoryFile &history, const QString &words)
    {
        return texts(history.find({.words = words}));
    }
    /// Without a place for where reading stopped.
    void makeOfTheFirstForm() const
    {
        sqlite3 *opened = nullptr;
        ASSERT_EQ(sqlite3_open(file.toUtf8().constData(), &opened), SQLITE_OK);
        for (const char *const step : {"PRAGMA locking_mode = EXCLUSIVE",
                                       "ALTER TABLE conversations DROP COLUMN read_to", "PRAGMA user_version = 1"})
            ASSERT_EQ(sqlite3_exec(opened, step, nullptr, nullptr, nullptr), SQLITE_OK) << step;
        sqlite3_close(opened);
    }
    /// Whether these bytes stand in a file of the folder.
    bool isOnTheDisk(const QByteArray &bytes) const
    {
        for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
            QFile one(folder + u'/' + name);
            if (!one.open(QFile::ReadOnly))
                qFatal("cannot read %s", qPrintable(name));
            if (one.readAll().contains(bytes))
                return true;
        }
        return false;
    }

    const QTemporaryDir m_base;
    const QString folder = m_base.filePath(QStringLiteral("profile"));
    const QString file = folder + QStringLiteral("/history.sqlite3");
};

TEST_F(HistoryFileTest, WhatWasWrittenIsThereAtTheNextStart)
{
    const KeptMessage first = message(QString::fromUtf8("Grüße,\r\nJürgen \U0001F642"));
    KeptMessage second = message(QStringLiteral("mine"), day(22));
    second.isOwn = true;
    second.address = QStringLiteral("10.0.0.1");
    {
        HistoryFile history(folder);
        write(history, ann, first);
        write(history, ann, second);
    }
    HistoryFile history(folder);
    const std::vector<StoredMessage> found = history.find({});
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].message, first);
    EXPECT_EQ(found[1].message, second);
    EXPECT_LT(found[0].number, found[1].number);
    EXPECT_EQ(history.takenOver(), std::nullopt);
}

TEST_F(HistoryFileTest, IsForTheUserAlone)
{
    HistoryFile history(folder);
    write(history, {QStringLiteral("secret")});
    for (const QString &name : QDir(folder).entryList(QDir::Files)) {
        struct stat information = {};
        ASSERT_EQ(stat((folder + u'/' + name).toUtf8().constData(), &information), 0);
        EXPECT_EQ(information.st_mode & 0777, 0600u) << name.toStdString();
    }
    struct stat information = {};
    ASSERT_EQ(stat(folder.toUtf8().constData(), &information), 0);
    EXPECT_EQ(information.st_mode & 0777, 0700u);
}

TEST_F(HistoryFileTest, GivesTheNewestOnesPageByPage)
{
    HistoryFile history(folder);
    for (int i = 1; i <= 7; ++i)
        write(history, {QString::number(i)});
    const std::vector<StoredMessage> last = history.find({.most = 3});
    EXPECT_EQ(texts(last), (QStringList{"5", "6", "7"}));
    const std::vector<StoredMessage> before = history.find({.before = last.front().number, .most = 3});
    EXPECT_EQ(texts(before), (QStringList{"2", "3", "4"}));
    EXPECT_EQ(texts(history.find({.before = before.front().number, .most = 3})), QStringList{"1"});
    EXPECT_EQ(texts(history.find({.after = before.front().number, .most = 2})), (QStringList{"3", "4"}));
}

TEST_F(HistoryFileTest, KeepsConversationsApart)
{
    HistoryFile history(folder);
    write(history, ann, message(QStringLiteral("to Ann")));
    write(history, ben, message(QStringLiteral("to Ben")));
    const std::optional<std::int64_t> number = history.numberOf(ben);
    ASSERT_TRUE(number);
    EXPECT_EQ(texts(history.find({.conversation = number})), QStringList{"to Ben"});
    EXPECT_EQ(texts(history.find({.words = QStringLiteral("to"), .conversation = number})), QStringList{"to Ben"});
    EXPECT_EQ(history.numberOf({.kind = KeptConversation::Kind::conference, .address = ann.address}), std::nullopt);
}

TEST_F(HistoryFileTest, AConferenceIsFoundByItsHostAndItsBeginning)
{
    HistoryFile history(folder);
    KeptConversation first{.kind = KeptConversation::Kind::conference,
                           .address = ann.address,
                           .begun = day(1),
                           .name = QStringLiteral("Conference 0")};
    KeptConversation second = first;
    second.begun = day(2);
    write(history, first, message(QStringLiteral("one")));
    write(history, second, message(QStringLiteral("two")));
    EXPECT_EQ(texts(history.find({.conversation = history.numberOf(first)})), QStringList{"one"});
    EXPECT_EQ(texts(history.find({.conversation = history.numberOf(second)})), QStringList{"two"});
}

TEST_F(HistoryFileTest, ListsConversationsByTheirNewestMessageUnderTheirLastName)
{
    HistoryFile history(folder);
    write(history, ann, message(QStringLiteral("1"), day(1)));
    write(history, ben, message(QStringLiteral("2"), day(2)));
    KeptConversation renamed = ann;
    renamed.name = QStringLiteral("Anna");
    write(history, renamed, message(QStringLiteral("3"), day(3)));
    const std::vector<StoredConversation> all = history.list();
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].conversation, ann);
    EXPECT_EQ(all[0].conversation.name, QStringLiteral("Anna"));
    EXPECT_EQ(all[0].messages, 2);
    EXPECT_EQ(all[0].last, day(3));
    EXPECT_EQ(all[1].conversation, ben);
}

TEST_F(HistoryFileTest, FindsAllWordsInAnyOrderByTheirBeginningsOrParts)
{
    HistoryFile history(folder);
    write(history, {QStringLiteral("The plan of the basement"), QStringLiteral("a planet"), QStringLiteral("nothing")});
    EXPECT_EQ(found(history, "plan"), (QStringList{"The plan of the basement", "a planet"}));
    EXPECT_EQ(found(history, "BASE plan"), QStringList{"The plan of the basement"});
    EXPECT_EQ(found(history, "asemen"), QStringList{"The plan of the basement"});
    EXPECT_EQ(found(history, "lanet"), QStringList{"a planet"});
    EXPECT_EQ(found(history, "asemen of"), QStringList{"The plan of the basement"});
    EXPECT_EQ(found(history, "lan a"), (QStringList{"The plan of the basement", "a planet"}));
    EXPECT_THAT(found(history, "plan elsewhere"), IsEmpty());
}

TEST_F(HistoryFileTest, FindsWithoutRegardToAccents)
{
    HistoryFile history(folder);
    write(history, {QString::fromUtf8("im Café"), QString::fromUtf8("Übung")});
    EXPECT_EQ(found(history, "cafe"), QStringList{QString::fromUtf8("im Café")});
    EXPECT_EQ(found(history, "ubung"), QStringList{QString::fromUtf8("Übung")});
}

TEST_F(HistoryFileTest, FindsInScriptsWithoutBlanks)
{
    HistoryFile history(folder);
    write(history, {QString::fromUtf8("明天的会议改到三点"), QString::fromUtf8("来週の会議です")});
    EXPECT_EQ(found(history, QString::fromUtf8("会议")), QStringList{QString::fromUtf8("明天的会议改到三点")});
    EXPECT_EQ(found(history, QString::fromUtf8("改到三点")), QStringList{QString::fromUtf8("明天的会议改到三点")});
    EXPECT_EQ(found(history, QString::fromUtf8("会")).size(), 2);
}

TEST_F(HistoryFileTest, WhatIsLookedForIsNoLanguageOfItsOwn)
{
    HistoryFile history(folder);
    write(history,
          {QStringLiteral("a \"quoted\" word"), QStringLiteral("100% of a_b"), QStringLiteral("AND OR NOT"),
           QStringLiteral(":-)"), QStringLiteral("back\\slash")});
    EXPECT_EQ(found(history, "\"quoted\""), QStringList{"a \"quoted\" word"});
    EXPECT_EQ(found(history, "0%"), QStringList{"100% of a_b"});
    EXPECT_EQ(found(history, "a_b"), QStringList{"100% of a_b"});
    EXPECT_THAT(found(history, "a%b"), IsEmpty());
    EXPECT_EQ(found(history, "NOT"), QStringList{"AND OR NOT"});
    EXPECT_EQ(found(history, ":-)"), QStringList{":-)"});
    EXPECT_EQ(found(history, "k\\s"), QStringList{"back\\slash"});
    for (const char *const odd : {"\"", "*", "^", "(", "text:", "NEAR(", "-", "'", "--", "a\"b", "\u200d", ";"})
        EXPECT_NO_THROW(found(history, QString::fromUtf8(odd))) << odd;
    EXPECT_NO_THROW(found(history, QString(QChar(0))));
    EXPECT_NO_THROW(found(history, QString(QChar(0xD800))));
    EXPECT_NO_THROW(found(history, QString(100000, u'x')));
    EXPECT_NO_THROW(found(history, QStringLiteral("x ").repeated(20000)));
}

TEST_F(HistoryFileTest, FindsWithinDaysAndNoMoreThanAsked)
{
    HistoryFile history(folder);
    for (int i = 1; i <= 9; ++i)
        write(history, ann, message(QStringLiteral("plan %1").arg(i), day(i)));
    const QDateTime third(QDate(2026, 11, 3), QTime(0, 0)), sixth(QDate(2026, 11, 6), QTime(0, 0));
    EXPECT_EQ(texts(history.find({.words = QStringLiteral("plan"), .from = third, .until = sixth})),
              (QStringList{"plan 3", "plan 4", "plan 5"}));
    EXPECT_EQ(texts(history.find({.from = third, .until = sixth})), (QStringList{"plan 3", "plan 4", "plan 5"}));
    const auto last = history.find({.words = QStringLiteral("plan"), .most = 2});
    EXPECT_EQ(texts(last), (QStringList{"plan 8", "plan 9"}));
    EXPECT_EQ(texts(history.find({.words = QStringLiteral("plan"), .before = last.front().number, .most = 2})),
              (QStringList{"plan 6", "plan 7"}));
}

TEST_F(HistoryFileTest, FindsWithinDaysAlsoWhereTheClockWasSetBack)
{
    HistoryFile history(folder);
    for (const int i : {1, 8, 3, 2, 9, 4, 7})
        write(history, ann, message(QStringLiteral("plan %1").arg(i), day(i)));
    const QDateTime third(QDate(2026, 11, 3), QTime(0, 0)), eighth(QDate(2026, 11, 8), QTime(0, 0));
    const auto within = [&history](const char *words, const QDateTime &from, const QDateTime &until) {
        return texts(history.find({.words = QString::fromUtf8(words), .from = from, .until = until}));
    };
    for (const char *const words : {"plan", "lan"}) // by words, by parts
        EXPECT_EQ(within(words, third, eighth), (QStringList{"plan 3", "plan 4", "plan 7"})) << words;
    EXPECT_EQ(within("plan", eighth, {}), (QStringList{"plan 8", "plan 9"}));
    EXPECT_EQ(within("plan", {}, third), (QStringList{"plan 1", "plan 2"}));
    EXPECT_THAT(within("plan", day(20), day(21)), IsEmpty());
}

TEST_F(HistoryFileTest, WhatIsErasedIsInNoFileOfTheProfile)
{
    HistoryFile history(folder);
    for (int i = 0; i < 500; ++i)
        write(history, {QStringLiteral("ordinary talk number %1").arg(i)});
    write(history, {QStringLiteral("the zwetschgenknoedel password")});
    for (int i = 0; i < 500; ++i)
        write(history, {QStringLiteral("more talk number %1").arg(i)});
    EXPECT_TRUE(isOnTheDisk("zwetschgenknoedel"));
    const std::int64_t number = history.find({.words = QStringLiteral("zwetsch")}).front().number;

    history.erase({.message = number});

    EXPECT_FALSE(isOnTheDisk("zwetschgenknoedel"));
    EXPECT_FALSE(isOnTheDisk("password"));
    EXPECT_THAT(found(history, "password"), IsEmpty());
    EXPECT_THAT(found(history, "asswor"), IsEmpty());
    EXPECT_EQ(history.list().front().messages, 1000);
    EXPECT_EQ(found(history, "more").size(), 50);
}

TEST_F(HistoryFileTest, ErasesAConversationWithItsName)
{
    HistoryFile history(folder);
    KeptConversation with = ben;
    with.name = QStringLiteral("Benedictus");
    write(history, with, message(QStringLiteral("to Ben")));
    write(history, ann, message(QStringLiteral("to Ann")));
    history.erase({.conversation = history.numberOf(ben)});
    EXPECT_EQ(texts(history.find({})), QStringList{"to Ann"});
    EXPECT_EQ(history.numberOf(ben), std::nullopt);
    EXPECT_FALSE(isOnTheDisk("Benedictus"));
    EXPECT_FALSE(isOnTheDisk("to Ben"));
}

TEST_F(HistoryFileTest, ErasesDays)
{
    HistoryFile history(folder);
    for (int i = 1; i <= 4; ++i)
        write(history, ann, message(QString::number(i), day(i)));
    history.erase(
        {.from = QDateTime(QDate(2026, 11, 2), QTime(0, 0)), .until = QDateTime(QDate(2026, 11, 4), QTime(0, 0))});
    EXPECT_EQ(texts(history.find({})), (QStringList{"1", "4"}));
}

TEST_F(HistoryFileTest, ErasesAllAndGoesOn)
{
    HistoryFile history(folder);
    write(history, {QStringLiteral("gone")});
    const std::int64_t number = history.find({}).front().number;
    history.erase({});
    EXPECT_THAT(history.list(), IsEmpty());
    EXPECT_FALSE(isOnTheDisk("gone"));
    write(history, {QStringLiteral("new")});
    EXPECT_GT(history.find({}).front().number, number);
}

TEST_F(HistoryFileTest, WhatIsNoHistoryIsSetAsideAndTold)
{
    QDir().mkpath(folder);
    QFile other(file);
    ASSERT_TRUE(other.open(QFile::WriteOnly));
    other.write("this is no database, but somebody wrote it");
    other.close();
    HistoryFile history(folder);
    ASSERT_TRUE(history.takenOver());
    EXPECT_THAT(history.takenOver()->toStdString(), testing::HasSubstr("0 messages"));
    EXPECT_TRUE(isOnTheDisk("this is no database"));
    write(history, {QStringLiteral("goes on")});
    EXPECT_EQ(found(history, "goes").size(), 1);
}

TEST_F(HistoryFileTest, WhatCanBeReadOnBothSidesOfADamagedPageIsTakenOver)
{
    writeNumbered();
    damagePageWith("message number 1450");

    HistoryFile history(folder);
    EXPECT_EQ(history.takenOver(), std::nullopt);
    EXPECT_THROW(history.find({.most = 1000}), sqlite::Failure);
    history.setAside();
    ASSERT_TRUE(history.takenOver());
    const std::vector<StoredMessage> left = history.find({.most = 1000});
    EXPECT_GT(left.size(), 800u);
    EXPECT_LT(left.size(), 900u);
    EXPECT_THAT(texts(left), testing::Contains(QStringLiteral("message number 1000")));
    EXPECT_THAT(texts(left), testing::Contains(QStringLiteral("message number 1899")));
    EXPECT_THAT(texts(left), testing::Not(testing::Contains(QStringLiteral("message number 1450"))));
    EXPECT_TRUE(std::ranges::is_sorted(texts(left))) << "in the order in which they were said";
    EXPECT_EQ(history.list().front().conversation, ann);
    EXPECT_EQ(history.list().front().messages, static_cast<int>(left.size()));
}

TEST_F(HistoryFileTest, WhatStandsBetweenTwoDamagedPagesIsTakenOverToo)
{
    writeNumbered();
    damagePageWith("message number 1200");
    damagePageWith("message number 1700");

    HistoryFile history(folder);
    if (!history.takenOver())
        history.setAside();
    const QStringList left = texts(history.find({.most = 1000}));
    EXPECT_GT(left.size(), 700);
    EXPECT_TRUE(left.contains(QStringLiteral("message number 1450")));
    EXPECT_TRUE(left.contains(QStringLiteral("message number 1000")));
    EXPECT_TRUE(left.contains(QStringLiteral("message number 1899")));
    EXPECT_TRUE(std::ranges::is_sorted(left));
}

TEST_F(HistoryFileTest, WhatIsLeftOfAFileThatIsCutOffIsTakenOver)
{
    {
        HistoryFile history(folder);
        QStringList all;
        for (int i = 1000; i < 3000; ++i)
            all += QStringLiteral("message number %1").arg(i);
        write(history, all);
    }
    QFile cut(file);
    ASSERT_TRUE(cut.resize(cut.size() * 6 / 10));

    HistoryFile history(folder);
    if (!history.takenOver())
        history.setAside();
    ASSERT_TRUE(history.takenOver());
    EXPECT_GT(history.find({.most = 3000}).size(), 500u);
    EXPECT_THAT(texts(history.find({.most = 3000})), testing::Contains(QStringLiteral("message number 1000")));
}

TEST_F(HistoryFileTest, WhatWasUnreadIsSoAfterARescue)
{
    {
        HistoryFile history(folder);
        write(history, ben, message(QStringLiteral("all of it was read")));
        QStringList all;
        for (int i = 1000; i < 1900; ++i)
            all += QStringLiteral("message number %1").arg(i);
        write(history, all);
        history.leaveUnread(ann);
        KeptMessage own = message(QStringLiteral("mine"));
        own.isOwn = true;
        write(history, ann, own);
        write(history, {QStringLiteral("new"), QStringLiteral("newer")});
    }
    damagePageWith("message number 1450");

    HistoryFile history(folder);
    history.setAside();
    ASSERT_EQ(history.listUnread().size(), 1u);
    const UnreadConversation unread = history.listUnread().front();
    EXPECT_EQ(unread.conversation, ann);
    EXPECT_EQ(unread.messages, 2);
    const std::vector<StoredMessage> behind = history.find({.after = unread.readTo, .most = 10});
    EXPECT_THAT(texts(behind), ElementsAre(QStringLiteral("mine"), QStringLiteral("new"), QStringLiteral("newer")));
}

TEST_F(HistoryFileTest, ErasingLeavesNothingOfWhatWasSetAside)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("secret")});
        history.setAside();
        EXPECT_EQ(found(history, "secret").size(), 1);
        EXPECT_EQ(QDir(folder).entryList({"history.damaged-*.sqlite3"}, QDir::Files).size(), 1);
        history.erase({});
    }
    EXPECT_THAT(QDir(folder).entryList({"history.damaged-*"}, QDir::Files), IsEmpty());
    EXPECT_FALSE(isOnTheDisk("secret"));
}

TEST_F(HistoryFileTest, ARescueThatWasCutShortBeginsAnew)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("whole")});
    }
    QFile half(folder + QStringLiteral("/history.rescued.sqlite3"));
    ASSERT_TRUE(half.open(QFile::WriteOnly));
    half.write("half of it");
    half.close();
    HistoryFile history(folder);
    history.setAside();
    EXPECT_EQ(found(history, "whole").size(), 1);
    EXPECT_FALSE(QFile::exists(half.fileName()));
}

TEST_F(HistoryFileTest, ARescueThatWasKilledBeforeItsLastStepIsTakenUp)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("rescued")});
    }
    ASSERT_TRUE(QFile::rename(file, folder + QStringLiteral("/history.rescued.sqlite3")));
    HistoryFile history(folder);
    EXPECT_EQ(found(history, "rescued").size(), 1);
}

TEST_F(HistoryFileTest, FindsASingleEmoji)
{
    HistoryFile history(folder);
    write(history, {QString::fromUtf8("well done \U0001F600"), QStringLiteral("well")});
    EXPECT_EQ(found(history, QString::fromUtf8("\U0001F600")).size(), 1);
    EXPECT_EQ(found(history, QString::fromUtf8("well \U0001F600")).size(), 1);
}

TEST_F(HistoryFileTest, RemembersWhereReadingStopped)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("read")});
        EXPECT_THAT(history.listUnread(), IsEmpty());
        history.leaveUnread(ann);
        EXPECT_THAT(history.listUnread(), IsEmpty()) << "nothing has come";
        write(history, {QStringLiteral("one"), QStringLiteral("two")});
        history.leaveUnread(ann); // where reading has stopped already
        KeptMessage own = message(QStringLiteral("mine"));
        own.isOwn = true;
        own.time = day(22);
        write(history, {QStringLiteral("three")});
        write(history, ann, own);
        write(history, ben, message(QStringLiteral("of another")));
    }
    HistoryFile history(folder);
    ASSERT_EQ(history.listUnread().size(), 1u);
    EXPECT_EQ(history.listUnread()[0].conversation, ann);
    EXPECT_EQ(history.listUnread()[0].readTo, 1);
    EXPECT_EQ(history.listUnread()[0].messages, 3) << "own ones are none";
    EXPECT_EQ(history.listUnread()[0].last, day(21));
    history.setRead(ann, 2);
    EXPECT_EQ(history.listUnread()[0].readTo, 2);
    EXPECT_EQ(history.listUnread()[0].messages, 2);
    history.setRead(ann, 3);
    EXPECT_EQ(history.listUnread()[0].messages, 2) << "what was read stays so";
    history.setRead(ben, 1);
    EXPECT_EQ(history.listUnread().size(), 1u) << "nothing of it was left unread";
    history.setRead(ann, 0);
    EXPECT_THAT(history.listUnread(), IsEmpty());
    write(history, {QStringLiteral("read at once")});
    EXPECT_THAT(history.listUnread(), IsEmpty());
}

TEST_F(HistoryFileTest, TheFirstMessageOfAllCanBeLeftUnread)
{
    HistoryFile history(folder);
    history.leaveUnread(ann);
    EXPECT_THAT(history.list(), IsEmpty());
    write(history, {QStringLiteral("hello")});
    ASSERT_EQ(history.listUnread().size(), 1u);
    EXPECT_EQ(history.listUnread()[0].readTo, 0);
    EXPECT_EQ(history.listUnread()[0].messages, 1);
}

TEST_F(HistoryFileTest, AFileOfTheFirstFormIsTakenOver)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("kept before")});
    }
    makeOfTheFirstForm();
    for (int start = 0; start < 2; ++start) {
        HistoryFile history(folder);
        EXPECT_THAT(found(history, QStringLiteral("before")), ElementsAre(QStringLiteral("kept before")));
        EXPECT_EQ(history.takenOver(), std::nullopt) << "nothing was damaged";
        history.leaveUnread(ann);
        write(history, {QStringLiteral("new")});
        EXPECT_EQ(history.listUnread().at(0).readTo, 1);
    }
}

TEST_F(HistoryFileTest, WhatStoodThereBeforeAMigrationIsKeptUntilTheNewFormWasOpenedOnce)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("kept before")});
    }
    makeOfTheFirstForm();
    const QString copy = folder + QStringLiteral("/history.form-1.sqlite3");
    {
        HistoryFile migrated(folder);
        ASSERT_TRUE(QFile::exists(copy));
        EXPECT_EQ(QFile::permissions(copy) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        migrated.erase({.message = 1});
        EXPECT_FALSE(isOnTheDisk("kept before")) << "what is erased must stand nowhere";
    }
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("kept before")});
    }
    makeOfTheFirstForm();
    {
        HistoryFile migrated(folder);
    }
    ASSERT_TRUE(QFile::exists(copy));
    HistoryFile again(folder);
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_EQ(found(again, "before").size(), 1);
}

TEST_F(HistoryFileTest, ANewerFormIsLeftAlone)
{
    {
        HistoryFile history(folder);
        write(history, {QStringLiteral("kept")});
    }
    sqlite3 *opened = nullptr;
    ASSERT_EQ(sqlite3_open(file.toUtf8().constData(), &opened), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(opened, "PRAGMA user_version = 99", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(opened);
    EXPECT_THROW(HistoryFile{folder}, sqlite::Failure);
    EXPECT_TRUE(isOnTheDisk("kept"));
    EXPECT_THAT(QDir(folder).entryList({"history.damaged-*"}, QDir::Files), IsEmpty());
}

struct HistoryFault {
    const char *label;
    FaultyFiles::Lasting lasting;
    int code;
};

void PrintTo(const HistoryFault &fault, std::ostream *out)
{
    *out << fault.label;
}

class EveryFaultOfHistory : public HistoryFileTest, public testing::WithParamInterface<HistoryFault>
{
protected:
    /// Each call of the work fails in turn. What was there before is there afterwards, wherever it failed.
    void failEverywhere(const std::function<void()> &work, const std::function<void(bool failed)> &look = {},
                        const std::function<void()> &prepare = {})
    {
        FaultyFiles files;
        int failures = 0;
        bool happened = true;
        for (call = 1; happened; ++call) {
            if (prepare)
                prepare();
            files.failAt(call, GetParam().lasting, GetParam().code);
            bool failed = false;
            try {
                work();
            } catch (const sqlite::Failure &) {
                failed = true;
            }
            happened = files.happened();
            files.heal();
            failures += failed ? 1 : 0;
            EXPECT_EQ(HistoryFile(folder).takenOver(), std::nullopt) << "call " << call;
            EXPECT_EQ(found(QStringLiteral("before")).size(), 1) << "call " << call;
            if (look)
                look(failed);
        }
        EXPECT_GT(failures, 5);
    }
    QStringList found(const QString &words) const
    {
        HistoryFile history(folder);
        return texts(history.find({.words = words}));
    }
    void SetUp() override
    {
        HistoryFileTest::SetUp();
        HistoryFile history(folder);
        write(history, {QStringLiteral("before")});
    }

    int call = 0;
};

TEST_P(EveryFaultOfHistory, OfWritingLeavesWhatWasKeptAndIsTold)
{
    failEverywhere(
        [this] {
            HistoryFile history(folder);
            write(history, {QStringLiteral("number %1").arg(call)});
        },
        [this](bool failed) {
            const qsizetype written = found(QString::number(call)).size();
            EXPECT_LE(written, 1) << "call " << call;
            EXPECT_TRUE(failed || written == 1) << "call " << call;
        });
}

TEST_P(EveryFaultOfHistory, OfErasingErasesNothingElseAndIsTold)
{
    failEverywhere(
        [this] {
            HistoryFile history(folder);
            history.erase({.message = history.find({.words = QStringLiteral("doomed")}).back().number});
        },
        [this](bool failed) {
            EXPECT_TRUE(failed || found(QStringLiteral("doomed")).isEmpty()) << "call " << call;
            EXPECT_TRUE(failed || !isOnTheDisk("doomed")) << "call " << call;
        },
        [this] {
            HistoryFile history(folder);
            if (history.find({.words = QStringLiteral("doomed")}).empty())
                write(history, {QStringLiteral("doomed")});
        });
}

TEST_P(EveryFaultOfHistory, OfAMigrationLeavesWhatWasKept)
{
    failEverywhere([this] { HistoryFile history(folder); }, {}, [this] { makeOfTheFirstForm(); });
}

INSTANTIATE_TEST_SUITE_P(Files, EveryFaultOfHistory,
                         testing::Values(HistoryFault{"ErrorOnce", FaultyFiles::Lasting::once, SQLITE_IOERR_WRITE},
                                         HistoryFault{"ErrorForGood", FaultyFiles::Lasting::forGood,
                                                      SQLITE_IOERR_WRITE},
                                         HistoryFault{"FullOnce", FaultyFiles::Lasting::once, SQLITE_FULL},
                                         HistoryFault{"FullForGood", FaultyFiles::Lasting::forGood, SQLITE_FULL}),
                         [](const auto &fault) { return fault.param.label; });

} // namespace
} // namespace nimb::test
