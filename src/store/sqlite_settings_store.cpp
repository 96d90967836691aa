#include "store/sqlite_settings_store.h"

#include "platform/library_file_names.h"
#include "platform/profile_folder.h"
#include "store/sqlite.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace nimb
{
namespace
{

using sqlite::check;
using sqlite::execute;
using sqlite::Failure;
using sqlite::reasonFor;
using sqlite::Statement;

constexpr int busyTimeoutMs = 2000;
/// Of what is kept while the user works: it can wait for the next time better than the user can.
constexpr int busyTimeoutOfKeepingMs = 200;

constexpr auto createTable = "CREATE TABLE IF NOT EXISTS settings(section TEXT, key TEXT, value TEXT, "
                             "PRIMARY KEY(section, key))";
constexpr auto putValue = "INSERT INTO settings(section, key, value) VALUES(?1, ?2, ?3) "
                          "ON CONFLICT(section, key) DO UPDATE SET value = excluded.value";

/// What was kept by a run that has not saved it. The value is NULL where what the key names is gone; the sum is that of
/// section, key and value.
constexpr auto createRecovery = "CREATE TABLE IF NOT EXISTS recovery(section TEXT, key TEXT, value TEXT, sum TEXT, "
                                "PRIMARY KEY(section, key))";
// Whatever writes to the settings, an older copy of the program included, knows better than what was kept before.
constexpr std::array createTriggers
    = {"CREATE TRIGGER IF NOT EXISTS newer_insert AFTER INSERT ON settings BEGIN DELETE FROM recovery "
       "WHERE section = NEW.section AND (key = NEW.key OR section = 'Users'); END",
       "CREATE TRIGGER IF NOT EXISTS newer_update AFTER UPDATE ON settings BEGIN DELETE FROM recovery "
       "WHERE section = NEW.section AND (key = NEW.key OR section = 'Users'); END"};
constexpr auto putChange = "INSERT OR REPLACE INTO recovery(section, key, value, sum) VALUES(?1, ?2, ?3, ?4)";
constexpr auto removeChange = "DELETE FROM recovery WHERE section = ?1 AND key = ?2";
constexpr auto getChanges = "SELECT section, key, value, sum FROM recovery";

/// What tells whether a section still is what was saved. An older copy knows of no sums: a trigger removes that of each
/// section to which somebody else writes.
constexpr auto createSums = "CREATE TABLE IF NOT EXISTS sums(section TEXT PRIMARY KEY, sum TEXT)";
constexpr std::array createSumTriggers
    = {"CREATE TRIGGER IF NOT EXISTS sum_insert AFTER INSERT ON settings BEGIN DELETE FROM sums "
       "WHERE section = NEW.section; END",
       "CREATE TRIGGER IF NOT EXISTS sum_update AFTER UPDATE ON settings BEGIN DELETE FROM sums "
       "WHERE section IN (OLD.section, NEW.section); END",
       "CREATE TRIGGER IF NOT EXISTS sum_delete AFTER DELETE ON settings BEGIN DELETE FROM sums "
       "WHERE section = OLD.section; END"};
constexpr auto putSum = "INSERT OR REPLACE INTO sums(section, sum) VALUES(?1, ?2)";

Failure damaged()
{
    return {reasonFor(SQLITE_CORRUPT, nullptr), true};
}

void checkIntegrity(sqlite3 *database, const QString &path)
{
    Statement integrity(database, "PRAGMA integrity_check(1)");
    if (!integrity.next() || integrity.text(0) != u"ok")
        throw damaged();
    // A last page that was cut off in the middle reads as if zeros followed, and a file of one byte as an empty one.
    Statement pages(database, "PRAGMA page_size");
    if (!pages.next() || QFileInfo(path).size() % pages.text(0).toInt() != 0)
        throw damaged();
}

bool hasTable(sqlite3 *database, const char *name)
{
    // As the database itself has understood its schema, in which a letter that has become a large one changes nothing.
    Statement table(database,
                    "SELECT 1 FROM pragma_table_list WHERE schema = 'main' AND type = 'table' "
                    "AND name = ?1 COLLATE NOCASE");
    const QByteArray bytes(name);
    table.bind(1, bytes);
    return table.next();
}

void addTo(QCryptographicHash &hash, const QByteArray &part)
{
    hash.addData(QByteArray::number(part.size()) + ':');
    hash.addData(part);
}

/// Sixteen digits find a bit that has flipped: the database itself checks its structure and not what it holds.
QByteArray digitsOf(const QCryptographicHash &hash)
{
    return hash.result().toHex().left(16);
}

/// The sums of all sections, by section, over their keys and values.
QMap<QByteArray, QByteArray> sumsOfSections(sqlite3 *database)
{
    QMap<QByteArray, QByteArray> sums;
    QByteArray section;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    Statement all(database, "SELECT section, key, value FROM settings WHERE section IS NOT NULL ORDER BY section, key");
    const auto finish = [&] { sums.insert(section, digitsOf(hash)); };
    for (bool first = true; all.next(); first = false) {
        if (const QByteArray next = all.bytes(0); first || next != section) {
            if (!first)
                finish();
            section = next;
            hash.reset();
        }
        addTo(hash, all.bytes(1));
        addTo(hash, all.bytes(2));
    }
    if (!section.isNull())
        finish();
    return sums;
}

/// Those sections that have a sum and another one than their values.
QStringList damagedSections(sqlite3 *database)
{
    QStringList damagedOnes;
    if (!hasTable(database, "sums"))
        return damagedOnes;
    const QMap<QByteArray, QByteArray> sums = sumsOfSections(database);
    Statement all(database, "SELECT section, sum FROM sums ORDER BY section");
    while (all.next()) {
        if (sums.value(all.bytes(0)) != all.bytes(1))
            damagedOnes.append(QString::fromUtf8(all.bytes(0)));
    }
    return damagedOnes;
}

QByteArray sumOf(const QByteArray &section, const QByteArray &key, const std::optional<QByteArray> &value)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QByteArray &part : {section, key, value.value_or(QByteArray())})
        addTo(hash, part);
    hash.addData(value ? "value" : "none");
    return digitsOf(hash);
}

} // namespace

SqliteSettingsStore::SqliteSettingsStore(const QString &folder, Access access)
    : m_folder(QDir(folder).absolutePath()), m_file(m_folder + QStringLiteral("/settings.sqlite3")), m_access(access)
{
    open();
    m_valuesSeen = m_database != nullptr;
    const bool isEmpty = m_valuesSeen && m_values.isEmpty() && m_recovered.isEmpty();
    m_isLost = m_damaged || isEmpty || !m_damagedSections.isEmpty();
    m_copyOffered = m_access == Access::readAndWrite && (m_isLost || QFile::exists(offerMark()))
        && QFileInfo(goodCopy()).size() > 0;
    // What is stored next hides the loss from the next start, and with it that nobody has decided yet.
    if (m_copyOffered && QFile(offerMark()).open(QFile::WriteOnly))
        takeFileFromOthers(offerMark());
}

SqliteSettingsStore::~SqliteSettingsStore() = default;

QString SqliteSettingsStore::read(const QString &section, const QString &key, const QString &defaultValue) const
{
    const auto change = m_droppingKept ? m_recovered.cend() : m_recovered.constFind({section, key});
    if (change != m_recovered.cend() && change->has_value())
        return **change;
    return m_values.value({section, key}, m_defaults.value({section, key}, defaultValue));
}

void SqliteSettingsStore::write(const QString &section, const QString &key, const QString &value)
{
    const Name name(section, key);
    const auto given = m_defaults.constFind(name);
    // Contacts belong together: of a list none is left to the site alone.
    const bool isStored = m_values.contains(name) || m_recovered.contains(name) || section == QLatin1String("Users");
    if (given != m_defaults.cend() && *given == value && !isStored)
        m_pending.remove(name);
    else
        m_pending.insert(name, value);
}

std::optional<QString> SqliteSettingsStore::save()
{
    if (m_pending.isEmpty())
        return std::nullopt;
    try {
        openForSaving();
        inTransaction([this] {
            writeAllKnown();
            writePending();
        });
    } catch (const Failure &failure) {
        return tr("The settings were not saved in %1 (%2), so what was changed since the last save is not kept; "
                  "what was stored before is unchanged.")
            .arg(QDir::toNativeSeparators(m_file), failure.reason);
    }
    forgetKept();
    m_values.insert(m_pending);
    m_pending.clear();
    m_allIsToBeWritten = false;
    m_trouble = Trouble::none;
    return std::nullopt;
}

/// What the file has forgotten by saving the pending values.
void SqliteSettingsStore::forgetKept()
{
    if (std::exchange(m_droppingKept, false)) {
        m_recovered.clear();
        m_kept.clear();
    }
    forget(m_recovered, m_pending);
    forget(m_kept, m_pending);
}

/// As the triggers do it.
void SqliteSettingsStore::forget(Changes &changes, const Values &saved)
{
    static const QString users = QStringLiteral("Users");
    bool hasUsers = false;
    for (auto entry = saved.keyBegin(); entry != saved.keyEnd(); ++entry) {
        changes.remove(*entry);
        hasUsers = hasUsers || entry->first == users;
    }
    if (hasUsers)
        changes.removeIf([](const Changes::iterator &change) { return change.key().first == users; });
}

std::optional<QString> SqliteSettingsStore::keep(const std::vector<KeptChange> &changes,
                                                 const std::vector<SettingName> &undone)
{
    try {
        openForSaving();
        sqlite3_busy_timeout(m_database.get(), busyTimeoutOfKeepingMs);
        inTransaction([&] {
            writeAllKnown();
            writeChanges(changes);
            removeChanges(undone);
        });
        sqlite3_busy_timeout(m_database.get(), busyTimeoutMs);
    } catch (const Failure &failure) {
        if (m_database)
            sqlite3_busy_timeout(m_database.get(), busyTimeoutMs);
        return tr("What has changed cannot be kept in %1 now (%2), so it would be lost if NIMB-Chat ended before it "
                  "can save.")
            .arg(QDir::toNativeSeparators(m_file), failure.reason);
    }
    m_allIsToBeWritten = false;
    for (const KeptChange &change : changes)
        m_kept.insert({change.section, change.key}, change.value);
    for (const SettingName &name : undone)
        m_kept.remove({name.section, name.key});
    return std::nullopt;
}

RecoveredChanges SqliteSettingsStore::recovered() const
{
    return {.changes = listed(m_recovered), .unreadable = m_unreadableChanges};
}

std::optional<QString> SqliteSettingsStore::problem() const
{
    const QString folder = QDir::toNativeSeparators(m_folder);
    const QString file = QDir::toNativeSeparators(m_file);
    switch (m_trouble) {
    case Trouble::none:
        return std::nullopt;
    case Trouble::folder:
        return tr("The settings folder %1 cannot be made (%2), so the program starts with its defaults and keeps "
                  "no settings.")
            .arg(folder, m_reason);
    case Trouble::file:
        return tr("The settings file %1 cannot be made (%2), so the program starts with its defaults and keeps "
                  "no settings.")
            .arg(file, m_reason);
    case Trouble::reading:
        return tr("The settings in %1 cannot be read (%2), so the program starts with its defaults and leaves the "
                  "file as it is.")
            .arg(file, m_reason);
    case Trouble::writing:
        return tr("The settings in %1 cannot be changed (%2), so what you change is forgotten when the program ends.")
            .arg(file, m_reason);
    }
    return std::nullopt;
}

/// Leaves the cause of a failure in m_trouble and m_reason.
void SqliteSettingsStore::open()
{
    const bool mayWrite = m_access == Access::readAndWrite;
    Trouble step = Trouble::folder;
    try {
        if (mayWrite) {
            if (const std::optional<QString> reason = makePrivateFolder(m_folder))
                throw Failure{*reason};
            step = Trouble::file;
            if (const std::optional<QString> reason = makePrivateFile(m_file))
                throw Failure{*reason};
            takeFileFromOthers(m_file);
            takeFolderFromOthers(m_folder);
        }
        step = Trouble::reading;
        readFile();
        step = Trouble::writing;
        if (mayWrite)
            checkWritable();
        step = Trouble::none;
    } catch (const Failure &failure) {
        m_reason = failure.reason;
        m_damaged = step == Trouble::reading && failure.damaged;
    }
    m_trouble = step;
}

void SqliteSettingsStore::readFile()
{
    Database database = openDatabase(m_file, m_access);
    Contents contents = read(database.get(), m_file);
    m_database = std::move(database);
    m_values = std::move(contents.values);
    m_recovered = contents.changes;
    m_kept = std::move(contents.changes);
    m_unreadableChanges = contents.unreadableChanges;
    m_damagedSections = std::move(contents.damagedSections);
}

SqliteSettingsStore::Database SqliteSettingsStore::openDatabase(const QString &file, Access access)
{
    sqlite3 *opened = nullptr;
    const int flags = access == Access::readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int code = sqlite3_open_v2(fileNameForSqlite(file).constData(), &opened, flags, nullptr);
    Database database(opened); // to be closed even when it could not be opened
    check(code, opened);
    check(sqlite3_extended_result_codes(opened, 1), opened);
    check(sqlite3_busy_timeout(opened, busyTimeoutMs), opened);
    execute(opened, "PRAGMA synchronous = EXTRA");
    execute(opened, "PRAGMA secure_delete = ON"); // what the user has removed is to be gone
    return database;
}

SqliteSettingsStore::Contents SqliteSettingsStore::read(sqlite3 *database, const QString &file)
{
    checkIntegrity(database, file);
    Contents contents;
    if (hasTable(database, "settings")) {
        Statement all(database, "SELECT section, key, value FROM settings");
        while (all.next()) {
            if (!all.isNull(0) && !all.isNull(1) && !all.isNull(2))
                contents.values.insert({all.text(0), all.text(1)}, all.text(2));
        }
        contents.damagedSections = damagedSections(database);
    }
    readChanges(database, contents);
    return contents;
}

void SqliteSettingsStore::readChanges(sqlite3 *database, Contents &contents)
{
    if (!hasTable(database, "recovery"))
        return;
    Statement all(database, getChanges);
    while (all.next()) {
        const std::optional<QByteArray> value = all.isNull(2) ? std::nullopt : std::optional(all.bytes(2));
        const bool isWhole = all.bytes(3) == sumOf(all.bytes(0), all.bytes(1), value);
        if (isWhole)
            contents.changes.insert({all.text(0), all.text(1)}, value ? std::optional(all.text(2)) : std::nullopt);
        else
            ++contents.unreadableChanges;
    }
}

void SqliteSettingsStore::checkWritable() const
{
    // A first write would find out too, but only when the program ends.
    if (sqlite3_db_readonly(m_database.get(), "main") != 0 || !QFileInfo(m_folder).isWritable())
        throw Failure{reasonFor(SQLITE_READONLY, m_database.get())};
    execute(m_database.get(), createTable);
    Statement fitting(m_database.get(), putValue); // fails when a table of that name is not ours
}

void SqliteSettingsStore::openForSaving()
{
    if (m_valuesSeen && isGone()) {
        m_database.reset();
        m_allIsToBeWritten = true;
    }
    if (m_database)
        return;
    if (m_allIsToBeWritten)
        return makeAgain();
    open();
    if (!m_database)
        throw Failure{m_reason};
    if (m_valuesSeen || m_values.isEmpty()) {
        m_valuesSeen = true;
        return;
    }
    m_database.reset();
    m_values.clear();
    m_trouble = Trouble::reading;
    m_reason = tr("they could not be read when the program started and would be lost");
    throw Failure{m_reason};
}

/// Somebody has removed the file, or put an empty one in its place.
bool SqliteSettingsStore::isGone() const
{
    const QFileInfo file(m_file);
    if (!file.exists())
        return true;
    int hasMoved = 0;
    if (m_database && file.size() == 0)
        sqlite3_file_control(m_database.get(), "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    return hasMoved != 0;
}

/// Makes a new file; what is known stays known. One that holds something is somebody else's by now.
void SqliteSettingsStore::makeAgain()
{
    Values values = m_values;
    Changes recovered = m_recovered;
    Changes kept = m_kept;
    open();
    const bool holdsSomething = m_database && !(m_values.isEmpty() && m_kept.isEmpty());
    m_values = std::move(values);
    m_recovered = std::move(recovered);
    m_kept = std::move(kept);
    if (holdsSomething) {
        m_database.reset();
        throw Failure{reasonFor(SQLITE_READONLY_DBMOVED, nullptr)};
    }
    if (!m_database)
        throw Failure{m_reason};
}

void SqliteSettingsStore::inTransaction(const std::function<void()> &write)
{
    sqlite3 *database = m_database.get();
    try {
        execute(database, "BEGIN IMMEDIATE");
        execute(database, createTable);
        execute(database, createRecovery);
        execute(database, createSums);
        for (const char *const trigger : createTriggers)
            execute(database, trigger);
        for (const char *const trigger : createSumTriggers)
            execute(database, trigger);
        write();
        execute(database, "COMMIT");
    } catch (const Failure &) {
        rollBack();
        throw;
    }
}

/// Into a file that was made again. What was kept goes behind the values, for it would be forgotten with them.
void SqliteSettingsStore::writeAllKnown()
{
    if (!m_allIsToBeWritten)
        return;
    writeValues(m_values);
    writeSums();
    writeChanges(listed(m_kept));
}

void SqliteSettingsStore::writePending()
{
    if (m_droppingKept)
        execute(m_database.get(), "DELETE FROM recovery");
    writeValues(m_pending);
    writeSums();
}

void SqliteSettingsStore::writeValues(const Values &values)
{
    Statement put(m_database.get(), putValue);
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        const QByteArray section = entry.key().first.toUtf8();
        const QByteArray key = entry.key().second.toUtf8();
        const QByteArray value = entry.value().toUtf8();
        put.bind(1, section);
        put.bind(2, key);
        put.bind(3, value);
        put.next();
        put.reset();
    }
}

/// Over what stands there now: other programs may have written to it as well.
void SqliteSettingsStore::writeSums()
{
    const QMap<QByteArray, QByteArray> sums = sumsOfSections(m_database.get());
    Statement put(m_database.get(), putSum);
    for (auto entry = sums.cbegin(); entry != sums.cend(); ++entry) {
        put.bind(1, entry.key());
        put.bind(2, entry.value());
        put.next();
        put.reset();
    }
}

std::vector<KeptChange> SqliteSettingsStore::listed(const Changes &changes)
{
    std::vector<KeptChange> list;
    for (auto entry = changes.cbegin(); entry != changes.cend(); ++entry)
        list.push_back({entry.key().first, entry.key().second, entry.value()});
    return list;
}

void SqliteSettingsStore::writeChanges(const std::vector<KeptChange> &changes)
{
    Statement put(m_database.get(), putChange);
    for (const KeptChange &change : changes) {
        const QByteArray section = change.section.toUtf8();
        const QByteArray key = change.key.toUtf8();
        const std::optional<QByteArray> value = change.value ? std::optional(change.value->toUtf8()) : std::nullopt;
        const QByteArray sum = sumOf(section, key, value);
        put.bind(1, section);
        put.bind(2, key);
        value ? put.bind(3, *value) : put.bindNull(3);
        put.bind(4, sum);
        put.next();
        put.reset();
    }
}

void SqliteSettingsStore::removeChanges(const std::vector<SettingName> &undone)
{
    Statement remove(m_database.get(), removeChange);
    for (const SettingName &name : undone) {
        const QByteArray section = name.section.toUtf8();
        const QByteArray key = name.key.toUtf8();
        remove.bind(1, section);
        remove.bind(2, key);
        remove.next();
        remove.reset();
    }
}

void SqliteSettingsStore::rollBack()
{
    if (sqlite3_get_autocommit(m_database.get()) != 0) // most failures have rolled back by themselves
        return;
    // Closing gives the transaction up as well, and what it left in the file is undone when it is opened next.
    if (sqlite3_exec(m_database.get(), "ROLLBACK", nullptr, nullptr, nullptr) != SQLITE_OK)
        m_database.reset();
}

// --- the good copy

std::optional<QDateTime> SqliteSettingsStore::offeredCopy() const
{
    return m_copyOffered ? std::optional(QFileInfo(goodCopy()).lastModified()) : std::nullopt;
}

void SqliteSettingsStore::declineCopy()
{
    m_copyOffered = false;
    QFile::remove(offerMark());
    // The next good copy would replace it, and who declined may find out later what he has lost.
    (void)renameForGood(goodCopy(), m_folder + QStringLiteral("/settings.declined.sqlite3"));
}

std::optional<QString> SqliteSettingsStore::damage() const
{
    if (m_copyOffered && !m_isLost)
        return tr("The settings were damaged or empty when NIMB-Chat started before.");
    if (m_damagedSections.isEmpty())
        return std::nullopt;
    return tr("Some of the settings in %1 are damaged (%2), so they may differ from what was saved.")
        .arg(QDir::toNativeSeparators(m_file), m_damagedSections.join(QLatin1String(", ")));
}

std::optional<QString> SqliteSettingsStore::takeCopy()
{
    try {
        copyDatabase(openDatabase(goodCopy()).get(), unfinishedCopy());
        if (const Contents copied = read(openDatabase(unfinishedCopy()).get(), unfinishedCopy());
            copied.values.isEmpty() || !copied.damagedSections.isEmpty())
            throw damaged();
        m_database.reset();
        if (m_damaged || !m_values.isEmpty()) // what is empty is not worth keeping
            putAside();
        if (const std::optional<QString> reason = renameForGood(unfinishedCopy(), m_file))
            throw Failure{*reason};
    } catch (const Failure &failure) {
        if (!m_database && m_valuesSeen)
            open();
        return tr("The copy %1 cannot take the place of the settings (%2), so the program goes on without them.")
            .arg(QDir::toNativeSeparators(goodCopy()), failure.reason);
    }
    m_copyOffered = false;
    QFile::remove(offerMark());
    m_allIsToBeWritten = false;
    m_damaged = false;
    open();
    m_valuesSeen = m_database != nullptr;
    return std::nullopt;
}

/// A copy, so that there is a file in the store's place at every moment. Its journal belongs to it and to no other
/// file.
void SqliteSettingsStore::putAside() const
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside = QStringLiteral("%1/settings.damaged-%2.sqlite3").arg(m_folder, stamp);
    const QString journal = QStringLiteral("-journal");
    QFile wreck(m_file);
    if (!wreck.copy(aside))
        throw Failure{wreck.errorString()};
    takeFileFromOthers(aside);
    if (!QFileInfo::exists(m_file + journal))
        return;
    if (const std::optional<QString> reason = renameForGood(m_file + journal, aside + journal))
        throw Failure{*reason};
}

std::optional<QString> SqliteSettingsStore::renewCopy()
{
    try {
        // Not what this connection remembers, but what it would find if it came anew.
        const Database stored = openDatabase(m_file);
        const Contents contents = read(stored.get(), m_file);
        if (!holds(contents.values, m_values) || !contents.damagedSections.isEmpty())
            throw damaged();
        copyDatabase(stored.get(), unfinishedCopy());
        const Contents copied = read(openDatabase(unfinishedCopy()).get(), unfinishedCopy());
        if (copied.values != contents.values || !copied.damagedSections.isEmpty())
            throw damaged();
        if (const std::optional<QString> reason = renameForGood(unfinishedCopy(), goodCopy()))
            throw Failure{*reason};
    } catch (const Failure &failure) {
        return tr("The settings were saved, but the copy of them in %1 could not be renewed (%2).")
            .arg(QDir::toNativeSeparators(goodCopy()), failure.reason);
    }
    return std::nullopt;
}

/// All that was saved, as far as UTF-8 can hold it.
bool SqliteSettingsStore::holds(const Values &stored, const Values &saved)
{
    for (auto entry = saved.cbegin(); entry != saved.cend(); ++entry) {
        const auto found = stored.constFind(entry.key());
        if (found == stored.cend() || found->toUtf8() != entry->toUtf8())
            return false;
    }
    return true;
}

/// What an earlier attempt left there is written over.
void SqliteSettingsStore::copyDatabase(sqlite3 *from, const QString &to)
{
    QFile::remove(to + QStringLiteral("-journal")); // it would be taken for that of the new file
    QFile::remove(to);
    if (const std::optional<QString> reason = makePrivateFile(to))
        throw Failure{*reason};
    const Database target = openDatabase(to);
    sqlite3_backup *const backup = sqlite3_backup_init(target.get(), "main", from, "main");
    if (backup == nullptr)
        check(sqlite3_extended_errcode(target.get()), target.get());
    const int code = sqlite3_backup_step(backup, -1);
    sqlite3_backup_finish(backup);
    if (code != SQLITE_DONE)
        check(code == SQLITE_OK ? SQLITE_BUSY : code, target.get());
}

} // namespace nimb
