#include "store/sqlite_settings_store.h"

#include "faulty_files.h"
#include "ordinary_user.h"
#include "print_qt.h"
#include "store_values.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <cerrno>
#include <csignal>
#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What other programs see in the file: SQLite without any of our code.
class Database : public SettingsStore
{
public:
    explicit Database(const QString &file)
    {
        EXPECT_EQ(sqlite3_open_v2(file.toUtf8().constData(), &m_database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                                  nullptr),
                  SQLITE_OK);
    }
    ~Database() override { sqlite3_close(m_database); }

    void run(const char *sql)
    {
        EXPECT_EQ(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(m_database);
    }

    /// The bytes of the first column of the first row.
    std::string one(const char *sql) const
    {
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_database);
        std::string bytes = "(no row)";
        if (sqlite3_step(statement) == SQLITE_ROW)
            bytes = column(statement);
        sqlite3_finalize(statement);
        return bytes;
    }

    QString read(const QString &section, const QString &key, const QString &defaultValue) const override
    {
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_database, "SELECT value FROM settings WHERE section = ? AND key = ?", -1,
                                     &statement, nullptr),
                  SQLITE_OK);
        const QByteArray sectionText = section.toUtf8();
        const QByteArray keyText = key.toUtf8();
        sqlite3_bind_text(statement, 1, sectionText.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(statement, 2, keyText.constData(), -1, SQLITE_STATIC);
        const QString value
            = sqlite3_step(statement) == SQLITE_ROW ? QString::fromStdString(column(statement)) : defaultValue;
        sqlite3_finalize(statement);
        return value;
    }
    void write(const QString &, const QString &, const QString &) override { ADD_FAILURE(); }
    std::optional<QString> save() override { return std::nullopt; }
    std::optional<QString> problem() const override { return std::nullopt; }
    std::optional<QString> keep(const std::vector<KeptChange> &, const std::vector<SettingName> &) override
    {
        return "not from here";
    }
    RecoveredChanges recovered() const override { return {}; }
    void dropKept() override { ADD_FAILURE(); }

private:
    static std::string column(sqlite3_stmt *statement)
    {
        const void *bytes = sqlite3_column_blob(statement, 0);
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
        return size == 0 ? std::string() : std::string(static_cast<const char *>(bytes), size);
    }

    sqlite3 *m_database = nullptr;
};

class SqliteSettingsStoreTest : public testing::Test
{
protected:
    SqliteSettingsStoreTest() { QFile::setPermissions(m_base.path(), everybodyMayEnter); }

    /// So that another user comes as far as the folder.
    void letEverybodyIn() const
    {
        QFile::setPermissions(m_base.filePath("config"), everybodyMayEnter);
        QFile::setPermissions(folder, everybodyMayEnter);
    }

    void saveGeneration(const QString &generation)
    {
        SqliteSettingsStore store(folder);
        writeGeneration(store, generation);
        ASSERT_EQ(store.save(), std::nullopt);
    }

    QString generationOnDisk() const
    {
        return QFile::exists(file) && QFileInfo(file).size() > 0 ? generationIn(Database(file)) : "none";
    }

    void putFile(const QByteArray &bytes)
    {
        QDir().mkpath(folder);
        QFile made(file);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
        ASSERT_EQ(made.write(bytes), bytes.size());
    }

    QByteArray fileBytes() const
    {
        QFile existing(file);
        existing.open(QIODevice::ReadOnly);
        return existing.readAll();
    }

    static int modeOf(const QString &path)
    {
        struct stat information = {};
        EXPECT_EQ(stat(path.toUtf8().constData(), &information), 0);
        return static_cast<int>(information.st_mode & 0777);
    }

    static constexpr QFile::Permissions everybodyMayEnter = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
        | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    static constexpr QFile::Permissions nobodyMayWrite
        = everybodyMayEnter & ~QFile::Permissions(QFile::WriteOwner | QFile::WriteUser);

    const QTemporaryDir m_base;
    const QString folder = m_base.filePath("config/NIMB-Chat");
    const QString file = folder + "/settings.sqlite3";
};

std::string sentence(const std::optional<QString> &text)
{
    return text ? text->toStdString() : "(nothing)";
}

/// What every message to the user must have: the path, the reason, one sentence.
auto isSentenceWith(const QString &path, const char *reason)
{
    return AllOf(HasSubstr(path.toStdString()), HasSubstr(reason), testing::EndsWith("."), Not(HasSubstr("\n")),
                 Not(HasSubstr(". ")));
}

TEST_F(SqliteSettingsStoreTest, AMissingFolderIsMadeForItsUserAloneAndIsNoProblem)
{
    const SqliteSettingsStore store(folder);

    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(store.read("Settings", "UDPPort", "5549"), "5549");
    EXPECT_EQ(modeOf(folder), 0700);
    EXPECT_EQ(modeOf(m_base.filePath("config")), 0700);
    EXPECT_EQ(modeOf(file), 0600);
}

TEST_F(SqliteSettingsStoreTest, AnExistingFolderIsTakenFromOthersAndTheOneAboveIsNot)
{
    QDir().mkpath(folder);
    QFile::setPermissions(m_base.filePath("config"), everybodyMayEnter);
    QFile::setPermissions(folder, everybodyMayEnter);
    const SqliteSettingsStore store(folder);
    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(modeOf(folder), 0700);
    EXPECT_EQ(modeOf(m_base.filePath("config")), 0755);
}

TEST_F(SqliteSettingsStoreTest, AnExistingFileIsTakenFromOthers)
{
    saveGeneration("old");
    for (const auto &[before, after] : {std::pair(0644, 0600), std::pair(0666, 0600), std::pair(0444, 0400)}) {
        ASSERT_EQ(chmod(file.toUtf8().constData(), static_cast<mode_t>(before)), 0);
        const SqliteSettingsStore store(folder);
        EXPECT_EQ(modeOf(file), after);
        EXPECT_EQ(generationIn(store), "old");
    }
}

TEST_F(SqliteSettingsStoreTest, AHistoryBesideTheSettingsIsNothingElse)
{
    QDir().mkpath(folder);
    for (const char *name : {"/history.sqlite3", "/history.sqlite3-wal"})
        QFile(folder + QLatin1String(name)).open(QFile::WriteOnly);
    QFile::setPermissions(folder, everybodyMayEnter);
    const SqliteSettingsStore store(folder);
    EXPECT_EQ(modeOf(folder), 0700);
}

TEST_F(SqliteSettingsStoreTest, AFolderThatServesForMoreKeepsItsMode)
{
    QDir().mkpath(folder + "/other things");
    QFile::setPermissions(folder, everybodyMayEnter);
    const SqliteSettingsStore store(folder);
    EXPECT_EQ(modeOf(folder), 0755);
    EXPECT_EQ(modeOf(file), 0600);
}

TEST_F(SqliteSettingsStoreTest, AFolderOfSomebodyElseKeepsItsMode)
{
    QDir().mkpath(folder);
    letEverybodyIn();
    {
        const OrdinaryUser user;
        if (QFileInfo(folder).ownerId() == geteuid())
            GTEST_SKIP() << "only the superuser has folders of others to show";
        const SqliteSettingsStore store(folder);
    }
    EXPECT_EQ(modeOf(folder), 0755);
}

TEST_F(SqliteSettingsStoreTest, WhoeverOnlyLooksChangesNothing)
{
    {
        const SqliteSettingsStore nothing = SqliteSettingsStore::forReading(folder);
        EXPECT_NE(nothing.problem(), std::nullopt);
        EXPECT_FALSE(QFile::exists(folder));
        SqliteSettingsStore store(folder);
        store.write("Options", "LiveType", "0");
        ASSERT_EQ(store.save(), std::nullopt);
    }
    letEverybodyIn();
    SqliteSettingsStore looking = SqliteSettingsStore::forReading(folder);
    EXPECT_EQ(looking.problem(), std::nullopt);
    EXPECT_EQ(looking.read("Options", "LiveType", "1"), "0");
    looking.write("Options", "LiveType", "1");
    EXPECT_NE(looking.save(), std::nullopt);
    EXPECT_EQ(SqliteSettingsStore::forReading(folder).read("Options", "LiveType", "1"), "0");
    EXPECT_EQ(modeOf(folder), 0755);
    putFile("");
    EXPECT_EQ(SqliteSettingsStore::forReading(folder).problem(), std::nullopt);
    EXPECT_EQ(QFileInfo(file).size(), 0);
}

TEST_F(SqliteSettingsStoreTest, AnEmptyFileIsAnEmptyStore)
{
    putFile("");
    SqliteSettingsStore store(folder);
    EXPECT_EQ(store.problem(), std::nullopt);
    store.write("Options", "LiveType", "0");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(SqliteSettingsStore(folder).read("Options", "LiveType", "1"), "0");
}

/// A flipped bit, of which the database's own check of its structure says nothing.
TEST_F(SqliteSettingsStoreTest, ReadsATableThatIsNamedInLargeLetters)
{
    {
        SqliteSettingsStore store(folder);
        store.write("Options", "LiveType", "0");
        ASSERT_EQ(store.save(), std::nullopt);
        Database database(file);
        database.run("PRAGMA writable_schema = ON");
        database.run("UPDATE sqlite_master SET type = 'tAble', name = 'Settings' WHERE name = 'settings'");
    }
    EXPECT_EQ(SqliteSettingsStore(folder).read("Options", "LiveType", "1"), "0");
}

TEST_F(SqliteSettingsStoreTest, KeepsTheFixedLayout)
{
    SqliteSettingsStore store(folder);
    store.write("Users", "IP1", "10.0.0.2");
    ASSERT_EQ(store.save(), std::nullopt);

    const Database database(file);
    EXPECT_EQ(database.one("SELECT value FROM settings WHERE section = 'Users' AND key = 'IP1'"), "10.0.0.2");
    EXPECT_EQ(database.one("SELECT typeof(section) || typeof(key) || typeof(value) FROM settings"), "texttexttext");
    EXPECT_EQ(database.one("SELECT group_concat(name || ' ' || type || ' ' || pk) FROM pragma_table_info('settings')"),
              "section TEXT 1,key TEXT 2,value TEXT 0");
}

TEST_F(SqliteSettingsStoreTest, ReadsWhatAnotherProgramStored)
{
    QDir().mkpath(folder);
    {
        Database database(file);
        database.run("CREATE TABLE settings(section TEXT, key TEXT, value TEXT, PRIMARY KEY(section, key))");
        database.run(
            "INSERT INTO settings VALUES('Settings', 'MyNickName', 'J\u00fcrgen'), ('Options', 'TipOTDayNum', 12)");
        database.run("INSERT INTO settings VALUES('Options', 'LiveType', NULL), (NULL, NULL, 'x')");
    }
    const SqliteSettingsStore store(folder);
    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(store.read("Settings", "MyNickName", ""), QString::fromUtf8("J\u00fcrgen"));
    EXPECT_EQ(store.read("Options", "TipOTDayNum", "0"), "12");
    EXPECT_EQ(store.read("Options", "LiveType", "1"), "1");
}

TEST_F(SqliteSettingsStoreTest, ReadDoesNotSeeAValueBeforeItIsSaved)
{
    SqliteSettingsStore store(folder);
    store.write("Options", "LiveType", "0");
    EXPECT_EQ(store.read("Options", "LiveType", "1"), "1");
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(store.read("Options", "LiveType", "1"), "0");
}

TEST_F(SqliteSettingsStoreTest, TheLastValueWrittenWinsAndOthersStay)
{
    SqliteSettingsStore store(folder);
    store.write("Options", "LiveType", "0");
    store.write("Options", "NotifyWin", "0");
    ASSERT_EQ(store.save(), std::nullopt);
    store.write("Options", "LiveType", "2");
    store.write("Options", "LiveType", "3");
    ASSERT_EQ(store.save(), std::nullopt);

    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Options", "LiveType", ""), "3");
    EXPECT_EQ(next.read("Options", "NotifyWin", ""), "0");
}

TEST_F(SqliteSettingsStoreTest, SectionsAndKeysAreToldApartExactly)
{
    SqliteSettingsStore store(folder);
    store.write("Settings", "AutoReplyonawayText", "lower");
    store.write("Settings", "AutoReplyonAwayText", "upper");
    store.write("Options", "AutoReplyonawayText", "section");
    store.write("", "", "empty");
    ASSERT_EQ(store.save(), std::nullopt);

    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Settings", "AutoReplyonawayText", ""), "lower");
    EXPECT_EQ(next.read("Settings", "AutoReplyonAwayText", ""), "upper");
    EXPECT_EQ(next.read("Options", "AutoReplyonawayText", ""), "section");
    EXPECT_EQ(next.read("", "", ""), "empty");
    EXPECT_EQ(next.read("Settings", "", "default"), "default");
}

TEST_F(SqliteSettingsStoreTest, AnEmptyValueIsAValue)
{
    SqliteSettingsStore store(folder);
    store.write("Settings", "AvatarHead", "");
    store.write("Settings", "AvatarBody", QString());
    ASSERT_EQ(store.save(), std::nullopt);

    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Settings", "AvatarHead", "default"), "");
    EXPECT_EQ(next.read("Settings", "AvatarBody", "default"), "");
}

TEST_F(SqliteSettingsStoreTest, AnAvatarOfEveryCharacterBelow256ComesBackWhole)
{
    SqliteSettingsStore store(folder);
    store.write("Settings", "AvatarHead", avatarData(u'\0'));
    store.write("Settings", "AvatarBody", QString(7500, QChar(0)));
    ASSERT_EQ(store.save(), std::nullopt);

    const SqliteSettingsStore next(folder);
    EXPECT_TRUE(next.read("Settings", "AvatarHead", "") == avatarData(u'\0'));
    EXPECT_TRUE(next.read("Settings", "AvatarBody", "") == QString(7500, QChar(0)));
    // One byte each for U+0000 to U+007F, two for U+0080 to U+00FF: 30 times 76 of 256 short of 7680 characters.
    EXPECT_EQ(Database(file).one("SELECT length(CAST(value AS BLOB)) FROM settings WHERE key = 'AvatarBody'"), "7500");
    EXPECT_EQ(
        Database(file).one("SELECT hex(substr(CAST(value AS BLOB), 1, 3)) || hex(substr(CAST(value AS BLOB), 383, 2)) "
                           "FROM settings WHERE key = 'AvatarHead'"),
        "000102C3BF");
}

TEST_F(SqliteSettingsStoreTest, AllOfUnicodeComesBackWhole)
{
    const QString nulInside = QString::fromUtf8("k\0y", 3);
    const QString byteOrderMarkFirst = QChar(0xFEFF) + QString("mark first\r\n");
    QString everything;
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (!QChar::isSurrogate(character))
            everything += QString::fromUcs4(&character, 1);
    }
    SqliteSettingsStore store(folder);
    store.write("Settings", "everything", everything);
    store.write(QString::fromUtf8("Sect\u00efon\n"), nulInside, byteOrderMarkFirst);
    ASSERT_EQ(store.save(), std::nullopt);

    const SqliteSettingsStore next(folder);
    EXPECT_TRUE(next.read("Settings", "everything", "") == everything);
    EXPECT_EQ(next.read(QString::fromUtf8("Sect\u00efon\n"), nulInside, ""), byteOrderMarkFirst);
    EXPECT_EQ(next.read(QString::fromUtf8("Sect\u00efon\n"), "k", "other"), "other");
}

TEST_F(SqliteSettingsStoreTest, HoldsThousandsOfContacts)
{
    SqliteSettingsStore store(folder);
    for (int n = 1; n <= 10000; ++n) {
        store.write("Users", QString("IP%1").arg(n), QString("10.0.%1.%2").arg(n / 256).arg(n % 256));
        store.write("Users", QString("Nn%1").arg(n), QString("Nick %1").arg(n));
    }
    ASSERT_EQ(store.save(), std::nullopt);
    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Users", "IP10000", ""), "10.0.39.16");
    EXPECT_EQ(next.read("Users", "Nn1", ""), "Nick 1");
}

TEST_F(SqliteSettingsStoreTest, WhatIsDroppedHidesNothingThatIsStored)
{
    {
        SqliteSettingsStore store(folder);
        store.write("Users", "Nn2", "Somebody");
        ASSERT_EQ(store.save(), std::nullopt);
        ASSERT_EQ(store.keep({{"Users", "Nn2", ""}}, {}), std::nullopt);
    }
    SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Users", "Nn2", "missing"), "");
    next.dropKept();
    EXPECT_EQ(next.read("Users", "Nn2", "missing"), "Somebody");
}

TEST_F(SqliteSettingsStoreTest, NothingOfAnEmptiedValueStaysInTheFile)
{
    SqliteSettingsStore store(folder);
    store.write("Users", "Nn1", "Somebody who was removed");
    ASSERT_EQ(store.save(), std::nullopt);
    ASSERT_EQ(store.keep({{"Users", "Nn:10.0.0.2", "Somebody else who was removed"}}, {}), std::nullopt);
    EXPECT_TRUE(fileBytes().contains("who was removed"));
    store.write("Users", "Nn1", "");
    store.dropKept();
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_FALSE(fileBytes().contains("who was removed"));
}

TEST_F(SqliteSettingsStoreTest, SavingNothingTouchesNothing)
{
    saveGeneration("old");
    const QByteArray before = fileBytes();
    SqliteSettingsStore store(folder);
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_TRUE(fileBytes() == before);
}

TEST_F(SqliteSettingsStoreTest, TheJournalOfASaveIsGoneAfterIt)
{
    saveGeneration("old");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{"settings.sqlite3"});
}

// What is kept beside the stored values until they are saved.

class Kept : public SqliteSettingsStoreTest
{
protected:
    void keep(const std::vector<KeptChange> &changes) const
    {
        ASSERT_EQ(SqliteSettingsStore(folder).keep(changes, {}), std::nullopt);
    }
    std::vector<KeptChange> recovered() const { return SqliteSettingsStore(folder).recovered().changes; }
};

TEST_F(Kept, ChangesAreReadByTheNextRunAndStoredByNobody)
{
    saveGeneration("old");
    keep({{"Settings", "MyNickName", "new"}, {"Users", "Nn:10.0.0.2", "Ann"}, {"Users", "Nn:10.0.0.3", std::nullopt}});

    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.read("Settings", "MyNickName", ""), "new");
    EXPECT_THAT(next.recovered().changes,
                testing::ElementsAre(KeptChange{"Settings", "MyNickName", "new"},
                                     KeptChange{"Users", "Nn:10.0.0.2", "Ann"},
                                     KeptChange{"Users", "Nn:10.0.0.3", std::nullopt}));
    EXPECT_EQ(generationOnDisk(), "old");
}

TEST_F(Kept, ChangesStandInTheDocumentedTable)
{
    saveGeneration("old");
    keep({{"Options", "LiveType", "0"}, {"Users", "Nn:10.0.0.3", std::nullopt}});
    const Database database(file);
    EXPECT_EQ(database.one("SELECT group_concat(name || ' ' || type || ' ' || pk) FROM pragma_table_info('recovery')"),
              "section TEXT 1,key TEXT 2,value TEXT 0,sum TEXT 0");
    EXPECT_EQ(
        database.one("SELECT group_concat(section || '/' || key || '=' || ifnull(value, '(gone)')) FROM recovery"),
        "Options/LiveType=0,Users/Nn:10.0.0.3=(gone)");
    // SHA-256 of "7:Options8:LiveType1:0value": its first sixteen digits.
    EXPECT_EQ(database.one("SELECT sum FROM recovery WHERE key = 'LiveType'"), "85e5f967b1df5ec4");
}

TEST_F(Kept, TheLaterChangeWinsAndOthersStay)
{
    keep({{"Options", "LiveType", "0"}, {"Options", "NotifyWin", "0"}});
    keep({{"Options", "LiveType", "2"}});
    EXPECT_THAT(recovered(),
                testing::ElementsAre(KeptChange{"Options", "LiveType", "2"}, KeptChange{"Options", "NotifyWin", "0"}));
}

TEST_F(Kept, AChangeThatIsUndoneIsKeptNoMore)
{
    saveGeneration("old");
    keep({{"Options", "LiveType", "0"}, {"Users", "Nn:10.0.0.2", "Ann"}, {"Users", "Nn:10.0.0.3", std::nullopt}});
    SqliteSettingsStore store(folder);
    ASSERT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {{"Users", "Nn:10.0.0.2"}, {"Users", "Nn:10.0.0.9"}}),
              std::nullopt);
    EXPECT_THAT(recovered(),
                testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}, KeptChange{"Options", "NotifyWin", "0"},
                                     KeptChange{"Users", "Nn:10.0.0.3", std::nullopt}));
    EXPECT_EQ(generationOnDisk(), "old");
}

TEST_F(Kept, ValuesOfAnyCharacterComeBackWhole)
{
    keep({{"Settings", "AvatarBody", avatarData(u'\0')}, {"Settings", "AvatarHead", ""}});
    const SqliteSettingsStore next(folder);
    EXPECT_TRUE(next.read("Settings", "AvatarBody", "") == avatarData(u'\0'));
    EXPECT_EQ(next.read("Settings", "AvatarHead", "default"), "");
}

TEST_F(Kept, ChangesAreGoneOnceTheyAreSaved)
{
    SqliteSettingsStore store(folder);
    ASSERT_EQ(store.keep({{"Settings", "MyNickName", "new"}, {"Made up", "key", "value"}}, {}), std::nullopt);
    writeGeneration(store, "new");
    store.dropKept();
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_THAT(recovered(), testing::IsEmpty());
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(Kept, ChangesThatWereTakenOverAreNotReadAnyMoreOnceTheyAreSaved)
{
    keep({{"Settings", "MyNickName", "killed"}});
    SqliteSettingsStore store(folder);
    store.write("Settings", "MyNickName", "ended well");
    store.dropKept();
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(store.read("Settings", "MyNickName", ""), "ended well");
    EXPECT_THAT(store.recovered().changes, testing::IsEmpty());
}

TEST_F(Kept, AValueThatIsSavedOnItsOwnIsNewerThanWhatWasKept)
{
    keep({{"Options", "TipOTDay", "1"}, {"Options", "LiveType", "0"}});
    SqliteSettingsStore store(folder);
    store.write("Options", "TipOTDay", "0");
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(store.read("Options", "TipOTDay", ""), "0");
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}));
}

TEST_F(Kept, WhatAnotherProgramStoresLaterIsNewer)
{
    saveGeneration("old");
    keep({{"Options", "TipOTDay", "1"}, {"Options", "LiveType", "0"}, {"Users", "Nn:10.0.0.2", "Ann"}});
    // As an older copy of the program does, which knows of no other table.
    Database(file).run("INSERT INTO settings VALUES('Options', 'TipOTDay', '0'), ('Users', 'IP1', '10.0.0.9') "
                       "ON CONFLICT(section, key) DO UPDATE SET value = excluded.value");
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}));
    keep({{"Users", "Nn:10.0.0.2", "Ann"}});
    Database(file).run("INSERT INTO settings VALUES('Users', 'IP1', '10.0.0.8') "
                       "ON CONFLICT(section, key) DO UPDATE SET value = excluded.value");
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}));
}

TEST_F(Kept, ADamagedChangeIsLeftOutAndCounted)
{
    keep({{"Options", "LiveType", "0"}, {"Options", "NotifyWin", "0"}, {"Users", "Nn:10.0.0.2", "Ann"}});
    Database(file).run("UPDATE recovery SET value = 'Aon' WHERE value = 'Ann'");
    Database(file).run("UPDATE recovery SET sum = NULL WHERE key = 'NotifyWin'");
    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.problem(), std::nullopt);
    EXPECT_THAT(next.recovered().changes, testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}));
    EXPECT_EQ(next.recovered().unreadable, 2);
}

TEST_F(Kept, NothingIsKeptOverAStoreThatCouldNotBeRead)
{
    putFile("this is no database");
    SqliteSettingsStore store(folder);
    EXPECT_THAT(sentence(store.keep({{"Options", "LiveType", "0"}}, {})),
                isSentenceWith(file, "(the file is damaged or holds something else)"));
    EXPECT_EQ(fileBytes(), "this is no database");
}

TEST_F(Kept, AFileThatIsRemovedMeanwhileIsMadeAgainWithAllThatIsKnown)
{
    saveGeneration("old");
    keep({{"Options", "LiveType", "0"}, {"Users", "Nn:10.0.0.2", "Ann"}});
    SqliteSettingsStore store(folder);
    ASSERT_EQ(store.keep({{"Users", "Nn:10.0.0.3", std::nullopt}, {"Users", "Nn:10.0.0.4", "Dora"}}, {}), std::nullopt);
    ASSERT_TRUE(QFile::remove(file));

    EXPECT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {{"Users", "Nn:10.0.0.4"}}), std::nullopt);

    EXPECT_EQ(modeOf(file), 0600);
    EXPECT_EQ(generationOnDisk(), "old");
    const SqliteSettingsStore next(folder);
    EXPECT_EQ(next.damage(), std::nullopt);
    EXPECT_THAT(next.recovered().changes,
                testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}, KeptChange{"Options", "NotifyWin", "0"},
                                     KeptChange{"Users", "Nn:10.0.0.2", "Ann"},
                                     KeptChange{"Users", "Nn:10.0.0.3", std::nullopt}));
}

TEST_F(Kept, AFileThatWasMadeAgainHasTheSumsOfItsSections)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {}), std::nullopt);
    EXPECT_EQ(Database(file).one("SELECT group_concat(section) FROM sums"), "Settings,Users");
}

TEST_F(Kept, AFolderThatIsRemovedMeanwhileIsMadeAgainToo)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    ASSERT_TRUE(QDir(folder).removeRecursively());
    EXPECT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {}), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "NotifyWin", "0"}));
}

TEST_F(Kept, AFileThatIsReplacedByAnEmptyOneIsFilledAgain)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    ASSERT_TRUE(QFile::remove(file));
    putFile({});
    EXPECT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {}), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "NotifyWin", "0"}));
}

TEST_F(Kept, AFileThatIsReplacedByOneThatHoldsSomethingIsNotTouched)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    ASSERT_TRUE(QFile::remove(file));
    saveGeneration("somebody else's");
    const QByteArray before = fileBytes();
    EXPECT_THAT(sentence(store.keep({{"Options", "NotifyWin", "0"}}, {})),
                isSentenceWith(file, "(the file has been moved or replaced)"));
    EXPECT_TRUE(fileBytes() == before);
}

TEST_F(Kept, ASaveIntoAFileThatWasRemovedLosesNothingThatIsKept)
{
    saveGeneration("old");
    keep({{"Options", "LiveType", "0"}, {"Options", "TipOTDay", "1"}});
    SqliteSettingsStore store(folder);
    ASSERT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {}), std::nullopt);
    ASSERT_TRUE(QFile::remove(file));
    store.write("Options", "TipOTDay", "0");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(Database(file).read("Options", "TipOTDay", "none"), "0");
    EXPECT_THAT(recovered(),
                testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}, KeptChange{"Options", "NotifyWin", "0"}));
}

TEST_F(Kept, WhatWasSavedIsNotKeptAgainInAFileThatIsMadeAgain)
{
    SqliteSettingsStore store(folder);
    ASSERT_EQ(store.keep({{"Options", "LiveType", "0"}, {"Users", "Nn:10.0.0.2", "Ann"}}, {}), std::nullopt);
    store.write("Options", "LiveType", "2");
    store.write("Users", "IP1", "10.0.0.2");
    ASSERT_EQ(store.save(), std::nullopt);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(store.keep({{"Options", "NotifyWin", "0"}}, {}), std::nullopt);
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "NotifyWin", "0"}));
    EXPECT_EQ(Database(file).read("Options", "LiveType", "none"), "2");
}

TEST_F(Kept, AWriterElsewhereIsSaidAndDoesNotHoldTheProgramUp)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    {
        Database other(file);
        other.run("BEGIN IMMEDIATE");
        EXPECT_THAT(sentence(store.keep({{"Options", "LiveType", "0"}}, {})),
                    isSentenceWith(file, "(another program is using the file)"));
        other.run("ROLLBACK");
    }
    EXPECT_EQ(store.keep({{"Options", "LiveType", "0"}}, {}), std::nullopt);
    EXPECT_THAT(recovered(), testing::ElementsAre(KeptChange{"Options", "LiveType", "0"}));
}

// What finds a flipped bit, and the copy that stands in for a store that is lost.

class GoodCopyTest : public SqliteSettingsStoreTest
{
protected:
    void saveWithCopy(const QString &generation)
    {
        SqliteSettingsStore store(folder);
        writeGeneration(store, generation);
        ASSERT_EQ(store.save(), std::nullopt);
        ASSERT_EQ(store.renewCopy(), std::nullopt);
    }
    QString generationOfCopy() const { return generationIn(Database(copy)); }
    /// Changes a letter in the middle of a value, as bad memory does, past everything that watches.
    void flipABit() const
    {
        QByteArray bytes = fileBytes();
        const qsizetype place = bytes.indexOf("contact 7 ");
        ASSERT_GT(place, 0);
        bytes[place] = static_cast<char>(bytes[place] ^ 1);
        QFile damagedFile(file);
        ASSERT_TRUE(damagedFile.open(QIODevice::WriteOnly));
        damagedFile.write(bytes);
    }
    QStringList files() const { return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    const QString copy = folder + "/settings.good.sqlite3";
};

TEST_F(GoodCopyTest, AFlippedBitIsFoundAndWhatCanBeReadIsStillThere)
{
    saveGeneration("old");
    EXPECT_EQ(SqliteSettingsStore(folder).damage(), std::nullopt);
    flipABit();
    SqliteSettingsStore store(folder);
    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_THAT(sentence(store.damage()), isSentenceWith(file, "(Users)"));
    EXPECT_EQ(store.read("Settings", "MyNickName", ""), "old");
    EXPECT_EQ(store.offeredCopy(), std::nullopt) << "there is none";
    writeGeneration(store, "new");
    ASSERT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(SqliteSettingsStore(folder).damage(), std::nullopt);
}

TEST_F(GoodCopyTest, WhatAnotherProgramStoresIsNoDamage)
{
    saveGeneration("old");
    Database(file).run("INSERT INTO settings VALUES('Users', 'IP1', '10.0.0.9'), ('Options', 'LiveType', 0)");
    Database(file).run("UPDATE settings SET value = 'Bob' WHERE key = 'MyNickName'");
    Database(file).run("DELETE FROM settings WHERE key = 'Nn3'");
    const SqliteSettingsStore store(folder);
    EXPECT_EQ(store.damage(), std::nullopt);
    EXPECT_EQ(store.read("Settings", "MyNickName", ""), "Bob");
}

TEST_F(GoodCopyTest, IsWhatWasSavedAndForTheUserAlone)
{
    saveWithCopy("first");
    saveWithCopy("second");
    EXPECT_EQ(generationOfCopy(), "second");
    EXPECT_EQ(modeOf(copy), 0600);
    EXPECT_EQ(files(), (QStringList{"settings.good.sqlite3", "settings.sqlite3"}));
}

TEST_F(GoodCopyTest, IsNotReplacedByWhatCannotBeReadBack)
{
    saveWithCopy("good");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "next");
    ASSERT_EQ(store.save(), std::nullopt);
    Database(file).run("UPDATE settings SET value = 'else' WHERE key = 'MyNickName'");
    EXPECT_THAT(sentence(store.renewCopy()), isSentenceWith(copy, "could not be renewed"));
    EXPECT_EQ(generationOfCopy(), "good");
}

TEST_F(GoodCopyTest, IsNotOfferedWhileTheStoreIsWell)
{
    saveWithCopy("old");
    EXPECT_EQ(SqliteSettingsStore(folder).offeredCopy(), std::nullopt);
}

TEST_F(GoodCopyTest, TakesThePlaceOfADamagedStoreWhichIsKept)
{
    saveWithCopy("old");
    putFile("this is no database");
    SqliteSettingsStore store(folder);
    ASSERT_NE(store.problem(), std::nullopt);
    ASSERT_NE(store.offeredCopy(), std::nullopt);
    EXPECT_EQ(store.takeCopy(), std::nullopt);

    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(store.offeredCopy(), std::nullopt);
    EXPECT_EQ(generationIn(store), "old");
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(generationOfCopy(), "old");
    const QStringList aside = QDir(folder).entryList({"settings.damaged-*.sqlite3"});
    ASSERT_EQ(aside.size(), 1);
    QFile wreck(folder + u'/' + aside.front());
    ASSERT_TRUE(wreck.open(QIODevice::ReadOnly));
    EXPECT_EQ(wreck.readAll(), "this is no database");
    writeGeneration(store, "new");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(GoodCopyTest, TakesThePlaceOfAStoreWithFlippedBits)
{
    saveWithCopy("old");
    flipABit();
    SqliteSettingsStore store(folder);
    ASSERT_NE(store.offeredCopy(), std::nullopt);
    EXPECT_EQ(store.takeCopy(), std::nullopt);
    EXPECT_EQ(store.damage(), std::nullopt);
    EXPECT_EQ(generationIn(store), "old");
}

TEST_F(GoodCopyTest, TakesThePlaceOfAnEmptyStore)
{
    for (const bool missing : {true, false}) {
        saveWithCopy("old");
        if (missing)
            QFile::remove(file);
        else
            putFile("");
        SqliteSettingsStore store(folder);
        ASSERT_NE(store.offeredCopy(), std::nullopt);
        EXPECT_EQ(store.takeCopy(), std::nullopt);
        EXPECT_EQ(generationIn(store), "old");
        EXPECT_EQ(files(), (QStringList{"settings.good.sqlite3", "settings.sqlite3"}));
    }
}

TEST_F(GoodCopyTest, TheJournalOfADamagedStoreDoesNotReachTheCopyInItsPlace)
{
    saveWithCopy("old");
    putFile("this is no database");
    SqliteSettingsStore store(folder);
    QFile journal(file + "-journal");
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    journal.write("something");
    journal.close();
    EXPECT_EQ(store.takeCopy(), std::nullopt);
    EXPECT_EQ(generationIn(store), "old");
    EXPECT_FALSE(QFile::exists(file + "-journal"));
    EXPECT_EQ(QDir(folder).entryList({"settings.damaged-*.sqlite3-journal"}).size(), 1);
}

TEST_F(GoodCopyTest, ThatWasDeclinedIsNotOfferedAgainAndStaysUnderAnotherName)
{
    saveWithCopy("old");
    putFile("this is no database");
    SqliteSettingsStore store(folder);
    store.declineCopy();
    EXPECT_EQ(store.offeredCopy(), std::nullopt);
    EXPECT_EQ(fileBytes(), "this is no database");
    EXPECT_EQ(SqliteSettingsStore(folder).offeredCopy(), std::nullopt);
    EXPECT_EQ(files(), (QStringList{"settings.declined.sqlite3", "settings.sqlite3"}));
    EXPECT_EQ(generationIn(Database(folder + "/settings.declined.sqlite3")), "old");
}

TEST_F(GoodCopyTest, IsOfferedUntilSomebodyDecidesWhateverIsStoredMeanwhile)
{
    saveWithCopy("old");
    QFile::remove(file);
    for (const char *generation : {"default", "other"}) {
        SqliteSettingsStore store(folder);
        ASSERT_NE(store.offeredCopy(), std::nullopt) << generation;
        writeGeneration(store, generation);
        ASSERT_EQ(store.save(), std::nullopt);
    }
    SqliteSettingsStore store(folder);
    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(store.damage(), "The settings were damaged or empty when NIMB-Chat started before.");
    EXPECT_EQ(store.takeCopy(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(store.damage(), std::nullopt);
    EXPECT_EQ(QDir(folder).entryList({"settings.damaged-*.sqlite3"}).size(), 1) << "what was stored meanwhile";
    EXPECT_EQ(SqliteSettingsStore(folder).offeredCopy(), std::nullopt);
}

TEST_F(GoodCopyTest, ThatIsDamagedItselfIsNotTakenAndNothingChanges)
{
    saveWithCopy("old");
    putFile("this is no database");
    QFile copyFile(copy);
    ASSERT_TRUE(copyFile.open(QIODevice::WriteOnly));
    copyFile.write("nor is this");
    copyFile.close();
    SqliteSettingsStore store(folder);
    EXPECT_THAT(sentence(store.takeCopy()), isSentenceWith(copy, "(the file is damaged or holds something else)"));
    EXPECT_EQ(fileBytes(), "this is no database");
}

// Failures: each call to the disk fails once and for good, with every code a write can give.

struct Fault {
    const char *name;
    FaultyFiles::Lasting lasting;
    int writeCode;
    int systemError = 0;
};

class EveryFault : public SqliteSettingsStoreTest, public testing::WithParamInterface<Fault>
{
protected:
    void fail(FaultyFiles &files, int n) const
    {
        files.failAt(n, GetParam().lasting, GetParam().writeCode, GetParam().systemError);
    }
    void keepGeneration(const QString &generation) const
    {
        ASSERT_EQ(SqliteSettingsStore(folder).keep(changesOfGeneration(generation), {}), std::nullopt);
    }
};

TEST_P(EveryFault, OfASaveLeavesTheOldStoreWholeAndTheNewValuesPending)
{
    FaultyFiles files;
    saveGeneration("old");
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        SqliteSettingsStore store(folder);
        ASSERT_EQ(store.problem(), std::nullopt);
        writeGeneration(store, "new");

        fail(files, n);
        const std::optional<QString> failure = store.save();
        const bool happened = files.happened();
        files.heal();

        if (failure) {
            ++failures;
            EXPECT_THAT(sentence(failure), isSentenceWith(file, "what was stored before is unchanged"));
            EXPECT_EQ(generationOnDisk(), "old") << "call " << n;
            EXPECT_EQ(generationIn(store), "old") << "call " << n;
            EXPECT_EQ(store.save(), std::nullopt) << "call " << n;
        }
        ASSERT_EQ(generationOnDisk(), "new") << "call " << n;
        ASSERT_EQ(generationIn(store), "new") << "call " << n;
        if (!happened)
            break;
        saveGeneration("old");
    }
    EXPECT_GT(failures, 20);
}

TEST_P(EveryFault, OfTheFirstReadingLosesNothing)
{
    FaultyFiles files;
    saveGeneration("old");
    const QByteArray before = fileBytes();
    int problems = 0;
    for (int n = 1;; n = nextFault(n)) {
        fail(files, n);
        SqliteSettingsStore store(folder);
        const bool happened = files.happened();
        files.heal();

        if (store.problem()) {
            ++problems;
            EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "cannot be"));
        } else {
            EXPECT_EQ(generationIn(store), "old") << "call " << n;
        }
        EXPECT_TRUE(fileBytes() == before) << "call " << n;
        if (generationIn(store) == "none") { // it works with defaults: they must not get into the file
            writeGeneration(store, "defaults");
            EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "could not be read when the program started"));
            EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "could not be read when the program started"));
            EXPECT_TRUE(fileBytes() == before) << "call " << n;
        }
        if (!happened)
            break;
    }
    EXPECT_GT(problems, 5);
}

TEST_P(EveryFault, OfTheGoodCopyLeavesTheOldCopyOrTheNewOneWhole)
{
    FaultyFiles files;
    const QString copy = folder + "/settings.good.sqlite3";
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        saveGeneration("old");
        ASSERT_EQ(SqliteSettingsStore(folder).renewCopy(), std::nullopt);
        saveGeneration("new");
        SqliteSettingsStore store(folder);

        fail(files, n);
        const std::optional<QString> failure = store.renewCopy();
        const bool happened = files.happened();
        files.heal();

        failures += failure ? 1 : 0;
        ASSERT_EQ(generationIn(Database(copy)), failure ? "old" : "new") << "call " << n;
        EXPECT_EQ(generationOnDisk(), "new") << "call " << n;
        if (!happened)
            break;
    }
    EXPECT_GT(failures, 20);
}

TEST_P(EveryFault, OfTakingTheGoodCopyIsToldAndLeavesItWhole)
{
    FaultyFiles files;
    const QString copy = folder + "/settings.good.sqlite3";
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        QFile::remove(file);
        saveGeneration("old");
        ASSERT_EQ(SqliteSettingsStore(folder).renewCopy(), std::nullopt);
        putFile("this is no database");
        SqliteSettingsStore store(folder);

        fail(files, n);
        const std::optional<QString> failure = store.takeCopy();
        const std::optional<QString> problem = store.problem();
        const bool happened = files.happened();
        files.heal();

        failures += failure || problem ? 1 : 0;
        EXPECT_EQ(generationIn(Database(copy)), "old") << "call " << n;
        if (failure)
            EXPECT_EQ(fileBytes(), "this is no database") << "call " << n;
        else
            EXPECT_EQ(generationOnDisk(), "old") << "call " << n;
        if (!happened)
            break;
    }
    EXPECT_GT(failures, 10);
}

TEST_P(EveryFault, OfKeepingLeavesWhatWasKeptBeforeWholeAndIsTold)
{
    FaultyFiles files;
    saveGeneration("old");
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        keepGeneration("first");
        SqliteSettingsStore store(folder);
        ASSERT_EQ(store.problem(), std::nullopt);

        fail(files, n);
        const std::optional<QString> failure = store.keep(changesOfGeneration("second"), {});
        const bool happened = files.happened();
        files.heal();

        const QString kept = generationKept(SqliteSettingsStore(folder));
        if (failure) {
            ++failures;
            EXPECT_THAT(sentence(failure), isSentenceWith(file, "What has changed cannot be kept"));
            ASSERT_EQ(kept, "first") << "call " << n;
            EXPECT_EQ(store.keep(changesOfGeneration("second"), {}), std::nullopt) << "call " << n;
            EXPECT_EQ(generationKept(SqliteSettingsStore(folder)), "second") << "call " << n;
        } else {
            ASSERT_EQ(kept, "second") << "call " << n;
        }
        EXPECT_EQ(generationOnDisk(), "old") << "call " << n;
        if (!happened)
            break;
    }
    EXPECT_GT(failures, 20);
}

TEST_P(EveryFault, OfMakingARemovedFileAgainIsToldAndLosesNothing)
{
    FaultyFiles files;
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        QFile::remove(file);
        saveGeneration("old");
        keepGeneration("first");
        SqliteSettingsStore store(folder);
        ASSERT_EQ(store.problem(), std::nullopt);
        ASSERT_TRUE(QFile::remove(file));

        fail(files, n);
        const std::optional<QString> failure = store.keep({{"Settings", "UDPPort", "first"}}, {});
        const bool happened = files.happened();
        files.heal();

        if (failure) {
            ++failures;
            EXPECT_THAT(sentence(failure), isSentenceWith(file, "What has changed cannot be kept"));
            EXPECT_EQ(generationIn(SqliteSettingsStore(folder)), "none") << "call " << n;
            ASSERT_EQ(store.keep({{"Settings", "UDPPort", "first"}}, {}), std::nullopt) << "call " << n;
        }
        ASSERT_EQ(generationOnDisk(), "old") << "call " << n;
        ASSERT_EQ(generationKept(SqliteSettingsStore(folder)), "first") << "call " << n;
        if (!happened)
            break;
    }
    EXPECT_GT(failures, 20);
}

TEST_P(EveryFault, OfTakingOverLosesNothingThatWasKept)
{
    FaultyFiles files;
    saveGeneration("old");
    keepGeneration("kept");
    const QByteArray before = fileBytes();
    int problems = 0;
    for (int n = 1;; n = nextFault(n)) {
        fail(files, n);
        const SqliteSettingsStore store(folder);
        const bool happened = files.happened();
        files.heal();

        problems += store.problem() ? 1 : 0;
        EXPECT_THAT(generationKept(store).toStdString(),
                    store.problem() ? testing::AnyOf("kept", "none") : testing::AnyOf("kept", "kept"))
            << "call " << n;
        EXPECT_TRUE(fileBytes() == before) << "call " << n;
        if (!happened)
            break;
    }
    EXPECT_GT(problems, 5);
}

TEST_P(EveryFault, OfTheSaveAfterwardsLeavesWhatWasKeptWithTheOldStore)
{
    FaultyFiles files;
    saveGeneration("old");
    int failures = 0;
    for (int n = 1;; n = nextFault(n)) {
        keepGeneration("kept");
        SqliteSettingsStore store(folder);
        writeGeneration(store, "new");
        store.dropKept();

        fail(files, n);
        const std::optional<QString> failure = store.save();
        const bool happened = files.happened();
        files.heal();

        failures += failure ? 1 : 0;
        ASSERT_EQ(generationOnDisk(), failure ? "old" : "new") << "call " << n;
        ASSERT_EQ(generationKept(SqliteSettingsStore(folder)), failure ? "kept" : "none") << "call " << n;
        if (failure) {
            EXPECT_EQ(store.save(), std::nullopt) << "call " << n;
            EXPECT_EQ(generationKept(SqliteSettingsStore(folder)), "none") << "call " << n;
        }
        if (!happened)
            break;
        saveGeneration("old");
    }
    EXPECT_GT(failures, 20);
}

INSTANTIATE_TEST_SUITE_P(SqliteSettingsStore, EveryFault,
                         testing::Values(Fault{"DiskFullOnce", FaultyFiles::Lasting::once, SQLITE_FULL},
                                         Fault{"DiskFullForGood", FaultyFiles::Lasting::forGood, SQLITE_FULL},
                                         Fault{"DiskErrorOnce", FaultyFiles::Lasting::once, SQLITE_IOERR_WRITE},
                                         Fault{"DiskErrorForGood", FaultyFiles::Lasting::forGood, SQLITE_IOERR_WRITE},
                                         Fault{"QuotaOnce", FaultyFiles::Lasting::once, SQLITE_IOERR_WRITE, EDQUOT},
                                         Fault{"QuotaForGood", FaultyFiles::Lasting::forGood, SQLITE_IOERR_WRITE,
                                               EDQUOT}),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(SqliteSettingsStoreTest, AFullDiskIsCalledThat)
{
    FaultyFiles files;
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "new");
    std::string message;
    for (int n = 1; message.find("the disk is full") == std::string::npos && n < 100; ++n) {
        files.failAt(n, FaultyFiles::Lasting::once, SQLITE_FULL);
        message = sentence(store.save());
    }
    EXPECT_THAT(message, isSentenceWith(file, "(the disk is full)"));
}

TEST_F(SqliteSettingsStoreTest, AQuotaThatIsUsedUpIsCalledThat)
{
    FaultyFiles files;
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "new");
    files.failAt(10, FaultyFiles::Lasting::forGood, SQLITE_IOERR_WRITE, EDQUOT);
    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(Disk quota exceeded)"));
}

TEST_F(SqliteSettingsStoreTest, TheSystemsOwnLimitLeavesTheOldStoreWhole)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "new");
    for (int n = 1; n <= 1000; ++n)
        store.write("Users", QString("IP%1").arg(n), QString(200, u'x'));

    rlimit previous = {};
    getrlimit(RLIMIT_FSIZE, &previous);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight = {static_cast<rlim_t>(QFileInfo(file).size()), previous.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const std::optional<QString> failure = store.save();
    setrlimit(RLIMIT_FSIZE, &previous);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_THAT(sentence(failure), isSentenceWith(file, "(File too large)"));
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(SqliteSettingsStoreTest, MemoryThatRunsOutAtAnyPointLeavesTheOldStoreWhole)
{
    saveGeneration("old");
    const sqlite3_int64 previous = sqlite3_hard_heap_limit64(-1);
    int failures = 0;
    for (sqlite3_int64 room = 0;; room += 1009) {
        SqliteSettingsStore store(folder);
        writeGeneration(store, "new");

        sqlite3_hard_heap_limit64(sqlite3_memory_used() + room);
        const std::optional<QString> failure = store.save();
        sqlite3_hard_heap_limit64(previous);

        if (!failure)
            break;
        ++failures;
        EXPECT_THAT(sentence(failure), isSentenceWith(file, "(memory has run out)")) << room;
        ASSERT_EQ(generationOnDisk(), "old") << room;
    }
    EXPECT_GT(failures, 5);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(SqliteSettingsStoreTest, AWriterElsewhereGivesAMessageAndTheSaveCanBeRepeated)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "new");
    {
        Database other(file);
        other.run("BEGIN IMMEDIATE");
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(another program is using the file)"));
        other.run("ROLLBACK");
    }
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(SqliteSettingsStoreTest, AReaderElsewhereThatDoesNotEndGivesAMessage)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    writeGeneration(store, "new");
    {
        Database other(file);
        other.run("BEGIN");
        other.one("SELECT count(*) FROM settings");
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(another program is using the file)"));
        EXPECT_EQ(generationIn(other), "old");
        other.run("COMMIT");
    }
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(SqliteSettingsStoreTest, AStoreHeldElsewhereAtTheStartIsAProblemAndIsNotOverwrittenLater)
{
    saveGeneration("old");
    auto other = std::make_unique<Database>(file);
    other->run("BEGIN EXCLUSIVE");
    SqliteSettingsStore store(folder);
    other.reset();

    EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(another program is using the file)"));
    EXPECT_EQ(store.read("Settings", "MyNickName", "default"), "default");
    writeGeneration(store, "defaults");
    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "could not be read when the program started"));
    EXPECT_EQ(generationOnDisk(), "old");
}

struct Damage {
    const char *name;
    QByteArray bytes;
};

class Damaged : public SqliteSettingsStoreTest, public testing::WithParamInterface<Damage>
{
};

TEST_P(Damaged, FileIsAProblemAndStaysAsItIs)
{
    putFile(GetParam().bytes);
    SqliteSettingsStore store(folder);

    EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(the file is damaged or holds something else)"));
    EXPECT_EQ(store.read("Settings", "UDPPort", "5549"), "5549");
    writeGeneration(store, "new");
    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(the file is damaged or holds something else)"));
    EXPECT_TRUE(fileBytes() == GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    SqliteSettingsStore, Damaged,
    testing::Values(Damage{"OneByte", "x"}, Damage{"TwoBytes", "xy"},
                    Damage{"OtherText", "[Settings]\nMyNickName=Ann\n"}, Damage{"Zeros", QByteArray(8192, '\0')},
                    Damage{"OnlyTheMark", QByteArray("SQLite format 3", 16)},
                    Damage{"MarkAndRubbish", QByteArray("SQLite format 3", 16) + QByteArray(4096, '\xff')},
                    Damage{"Rubbish", QByteArray(100000, '\xa5')}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST_F(SqliteSettingsStoreTest, AFileThatWasCutShortIsAProblemAndStaysAsItIs)
{
    saveGeneration("old");
    const QByteArray whole = fileBytes();
    ASSERT_GT(whole.size(), 20000);
    for (qsizetype size = 1; size < whole.size(); size += 1021) {
        putFile(whole.left(size));
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "cannot be read")) << size;
        EXPECT_EQ(generationIn(store), "none") << size;
        writeGeneration(store, "new");
        EXPECT_NE(store.save(), std::nullopt) << size;
        EXPECT_TRUE(fileBytes() == whole.left(size)) << size;
    }
}

TEST_F(SqliteSettingsStoreTest, DamageAnywhereNeverCrashesNorChangesTheFileUnasked)
{
    saveGeneration("old");
    const QByteArray whole = fileBytes();
    for (qsizetype offset = 0; offset < whole.size(); offset += 97) {
        QByteArray damaged = whole;
        for (qsizetype i = offset; i < std::min(offset + 8, whole.size()); ++i)
            damaged[i] = static_cast<char>(~damaged[i]);
        putFile(damaged);
        const SqliteSettingsStore store(folder);
        // What only keeps from writing leaves what can be read.
        const bool unread = sentence(store.problem()).find("cannot be read") != std::string::npos;
        const bool unwritable = sentence(store.problem()).find("cannot be changed") != std::string::npos;
        EXPECT_EQ(store.problem().has_value(), unread || unwritable) << offset;
        if (unread) {
            EXPECT_EQ(generationIn(store), "none") << offset;
        }
        EXPECT_TRUE(fileBytes() == damaged) << offset;
    }
}

TEST_F(SqliteSettingsStoreTest, AFolderInPlaceOfTheFileIsAProblemAndStays)
{
    QDir().mkpath(file + "/inside");
    SqliteSettingsStore store(folder);
    EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "something that is no file stands in its place"));
    EXPECT_EQ(store.read("Settings", "UDPPort", "5549"), "5549");
    store.write("Settings", "UDPPort", "1");
    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "something that is no file stands in its place"));
    EXPECT_TRUE(QFileInfo(file + "/inside").isDir());
}

TEST_F(SqliteSettingsStoreTest, AFileInPlaceOfTheFolderIsAProblemAndStays)
{
    QDir().mkpath(m_base.filePath("config"));
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.write("mine");
    inTheWay.close();

    SqliteSettingsStore store(folder);
    EXPECT_THAT(sentence(store.problem()), isSentenceWith(folder, "(File exists)"));
    store.write("Settings", "UDPPort", "1");
    EXPECT_THAT(sentence(store.save()), isSentenceWith(folder, "(File exists)"));
    EXPECT_EQ(QFileInfo(folder).size(), 4);
}

TEST_F(SqliteSettingsStoreTest, AnotherProgramsTableOfThatNameIsAProblemAndStays)
{
    QDir().mkpath(folder);
    Database(file).run("CREATE TABLE settings(name TEXT, number INTEGER)");
    const QByteArray before = fileBytes();
    SqliteSettingsStore store(folder);
    EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "no such column"));
    store.write("Settings", "UDPPort", "1");
    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "no such column"));
    EXPECT_TRUE(fileBytes() == before);
}

TEST_F(SqliteSettingsStoreTest, AReadOnlyFileIsReadAndItsProblemTold)
{
    saveGeneration("old");
    letEverybodyIn();
    QFile::setPermissions(folder, everybodyMayEnter | QFile::WriteOther);
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther);
    {
        const OrdinaryUser user;
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(the file or its folder is read-only)"));
        EXPECT_EQ(generationIn(store), "old");
        writeGeneration(store, "new");
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(the file or its folder is read-only)"));
        EXPECT_EQ(generationIn(store), "old");
    }
    EXPECT_EQ(generationOnDisk(), "old");
}

TEST_F(SqliteSettingsStoreTest, AReadOnlyFolderIsReadAndItsProblemTold)
{
    saveGeneration("old");
    letEverybodyIn();
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
    QFile::setPermissions(folder, nobodyMayWrite);
    {
        const OrdinaryUser user;
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(the file or its folder is read-only)"));
        EXPECT_EQ(generationIn(store), "old");
        writeGeneration(store, "new");
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "what was stored before is unchanged"));
    }
    QFile::setPermissions(folder, everybodyMayEnter);
    EXPECT_EQ(generationOnDisk(), "old");
}

TEST_F(SqliteSettingsStoreTest, AnEmptyReadOnlyFolderIsAProblem)
{
    QDir().mkpath(folder);
    letEverybodyIn();
    QFile::setPermissions(folder, nobodyMayWrite);
    {
        const OrdinaryUser user;
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(Permission denied)"));
        store.write("Settings", "UDPPort", "1");
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(Permission denied)"));
    }
    QFile::setPermissions(folder, everybodyMayEnter);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(SqliteSettingsStoreTest, AFolderThatCannotBeMadeIsAProblem)
{
    QDir().mkpath(m_base.filePath("config"));
    QFile::setPermissions(m_base.filePath("config"), nobodyMayWrite);
    {
        const OrdinaryUser user;
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(folder, "(Permission denied)"));
    }
    QFile::setPermissions(m_base.filePath("config"), everybodyMayEnter);
}

TEST_F(SqliteSettingsStoreTest, AFileThatMayNotBeReadIsAProblemAndIsNotOverwrittenOnceItMay)
{
    saveGeneration("old");
    letEverybodyIn();
    QFile::setPermissions(folder, everybodyMayEnter | QFile::WriteOther);
    QFile::setPermissions(file, QFile::Permissions());
    {
        const OrdinaryUser user;
        SqliteSettingsStore store(folder);
        EXPECT_THAT(sentence(store.problem()), isSentenceWith(file, "(Permission denied)"));
        EXPECT_EQ(generationIn(store), "none");
        writeGeneration(store, "defaults");
        user.pause([&] {
            QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
        });
        EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "could not be read when the program started"));
    }
    EXPECT_EQ(generationOnDisk(), "old");
}

TEST_F(SqliteSettingsStoreTest, AProblemThatWasSolvedNoLongerKeepsFromSaving)
{
    QDir().mkpath(file);
    SqliteSettingsStore store(folder);
    ASSERT_NE(store.problem(), std::nullopt);
    writeGeneration(store, "new");
    QDir().rmdir(file);

    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(store.problem(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "new");
}

TEST_F(SqliteSettingsStoreTest, AFolderRemovedMeanwhileIsMadeAgainWithAllThatIsKnown)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    store.write("Settings", "UDPPort", "6000");
    ASSERT_TRUE(QDir(folder).removeRecursively());

    EXPECT_EQ(store.save(), std::nullopt);
    EXPECT_EQ(generationOnDisk(), "old");
    EXPECT_EQ(Database(file).one("SELECT value FROM settings WHERE key = 'UDPPort'"), "6000");
}

TEST_F(SqliteSettingsStoreTest, AFileReplacedMeanwhileIsNotWrittenToBlindly)
{
    saveGeneration("old");
    SqliteSettingsStore store(folder);
    store.write("Settings", "UDPPort", "6000");
    ASSERT_TRUE(QFile::rename(file, file + ".away"));
    ASSERT_TRUE(QFile::copy(file + ".away", file));

    EXPECT_THAT(sentence(store.save()), isSentenceWith(file, "(the file has been moved or replaced)"));
    EXPECT_EQ(generationOnDisk(), "old");
}

// A process that is killed in mid-save, at every call to the disk, with half of its write done.

class Killed : public SqliteSettingsStoreTest
{
protected:
    /// True when it came to its end without being killed.
    static bool runToEnd(const QStringList &arguments)
    {
        QProcess helper;
        helper.setProcessChannelMode(QProcess::ForwardedChannels);
        helper.start(STORE_HELPER, arguments);
        EXPECT_TRUE(helper.waitForFinished(30000));
        if (helper.exitStatus() == QProcess::CrashExit)
            return false;
        EXPECT_EQ(helper.exitCode(), 0);
        return true;
    }
};

TEST_F(Killed, InMidSaveLeavesTheOldStoreOrTheNewOneWhole)
{
    int oldOnes = 0;
    int newOnes = 0;
    for (int n = 1;; n = nextFault(n)) {
        saveGeneration("old");
        const bool finished = runToEnd({"save", folder, "new", "saving", QString::number(n)});
        const SqliteSettingsStore store(folder);
        EXPECT_EQ(store.problem(), std::nullopt) << "call " << n;
        const QString generation = generationIn(store);
        ASSERT_THAT(generation.toStdString(), testing::AnyOf("old", "new")) << "call " << n;
        if (finished) {
            EXPECT_EQ(generation, "new");
            break;
        }
        ++(generation == "old" ? oldOnes : newOnes);
    }
    EXPECT_GT(oldOnes, 20);
    RecordProperty("killed_before_it_counted", oldOnes);
    RecordProperty("killed_after_it_counted", newOnes);
}

TEST_F(Killed, WhileKeepingLeavesWhatWasKeptBeforeOrAllOfTheNew)
{
    saveGeneration("old");
    int firstOnes = 0;
    for (int n = 1;; n = nextFault(n)) {
        ASSERT_EQ(SqliteSettingsStore(folder).keep(changesOfGeneration("first"), {}), std::nullopt);
        const bool finished = runToEnd({"keep", folder, "second", QString::number(n)});
        const SqliteSettingsStore store(folder);
        EXPECT_EQ(store.problem(), std::nullopt) << "call " << n;
        ASSERT_THAT(generationKept(store).toStdString(), testing::AnyOf("first", "second")) << "call " << n;
        EXPECT_EQ(generationOnDisk(), "old") << "call " << n;
        if (finished) {
            EXPECT_EQ(generationKept(store), "second");
            break;
        }
        firstOnes += generationKept(store) == "first" ? 1 : 0;
    }
    EXPECT_GT(firstOnes, 20);
}

TEST_F(Killed, WhileRenewingTheGoodCopyLeavesTheOldOneOrTheNewOneWhole)
{
    const QString copy = folder + "/settings.good.sqlite3";
    int oldOnes = 0;
    for (int n = 1;; n = nextFault(n)) {
        saveGeneration("old");
        ASSERT_EQ(SqliteSettingsStore(folder).renewCopy(), std::nullopt);
        saveGeneration("new");
        const bool finished = runToEnd({"copy", folder, QString::number(n)});
        const QString kept = generationIn(Database(copy));
        ASSERT_THAT(kept.toStdString(), testing::AnyOf("old", "new")) << "call " << n;
        EXPECT_EQ(generationOnDisk(), "new") << "call " << n;
        // What the killed one has left behind is in nobody's way.
        EXPECT_EQ(SqliteSettingsStore(folder).renewCopy(), std::nullopt) << "call " << n;
        EXPECT_EQ(generationIn(Database(copy)), "new") << "call " << n;
        if (finished) {
            EXPECT_EQ(kept, "new");
            break;
        }
        oldOnes += kept == "old" ? 1 : 0;
    }
    EXPECT_GT(oldOnes, 20);
}

TEST_F(Killed, WhileTakingOverOrSavingLeavesWhatWasKeptOrHasItSaved)
{
    for (const char *phase : {"opening", "saving"}) {
        int killed = 0;
        for (int n = 1;; n = nextFault(n)) {
            saveGeneration("old");
            ASSERT_EQ(SqliteSettingsStore(folder).keep(changesOfGeneration("kept"), {}), std::nullopt);
            const bool finished = runToEnd({"save", folder, "new", phase, QString::number(n)});
            const SqliteSettingsStore store(folder);
            EXPECT_EQ(store.problem(), std::nullopt) << phase << ", call " << n;
            const std::string both = (generationOnDisk() + ' ' + generationKept(store)).toStdString();
            ASSERT_THAT(both, testing::AnyOf("old kept", "new none")) << phase << ", call " << n;
            if (finished)
                break;
            ++killed;
        }
        EXPECT_GT(killed, 5) << phase;
    }
}

TEST_F(Killed, WhileMakingTheFileLeavesAnEmptyStoreThatWorks)
{
    int killed = 0;
    for (int n = 1;; n = nextFault(n)) {
        QDir(folder).removeRecursively();
        const bool finished = runToEnd({"save", folder, "new", "opening", QString::number(n)});
        if (finished)
            break;
        ++killed;
        {
            const SqliteSettingsStore store(folder);
            EXPECT_EQ(store.problem(), std::nullopt) << "call " << n;
            EXPECT_THAT(generationIn(store).toStdString(), testing::AnyOf("none", "new")) << "call " << n;
        }
        saveGeneration("next");
        EXPECT_EQ(generationOnDisk(), "next") << "call " << n;
    }
    EXPECT_GT(killed, 10);
}

} // namespace
} // namespace nimb::test
