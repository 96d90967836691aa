// The settings in an SQLite file.
#pragma once

#include "base/good_copy.h"
#include "base/settings_store.h"
#include "store/site_defaults.h"
#include "store/sqlite.h"

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

#include <functional>
#include <utility>

namespace nimb
{

/// Keeps the values in `settings.sqlite3` of one folder. They are read once, when the store is made, so that read()
/// neither waits nor fails; save() writes what is pending in one transaction that is on the disk before it returns.
/// A file that cannot be read is never replaced, and values that this run has not seen are never overwritten.
class SqliteSettingsStore : public SettingsStore, public GoodCopy
{
    Q_DECLARE_TR_FUNCTIONS(SqliteSettingsStore)

public:
    /// Makes the folder (mode 0700) and an empty file (mode 0600) where they are missing; those that are there are
    /// taken from everybody else. May wait two seconds for another program that holds the file, as save() may.
    explicit SqliteSettingsStore(const QString &folder) : SqliteSettingsStore(folder, Access::readAndWrite) { }
    /// For whoever only looks: nothing is made or changed in the folder, and saving fails.
    static SqliteSettingsStore forReading(const QString &folder) { return {folder, Access::readOnly}; }
    ~SqliteSettingsStore() override;

    /// For keys of which the store holds nothing. What is written as it was given here is not stored, so that another
    /// default of the site reaches whoever has chosen nothing.
    void setDefaults(SiteDefaults::Values values) { m_defaults = std::move(values); }

    /// Every character comes back as it was written, except that UTF-8 has no room for half a surrogate pair.
    QString read(const QString &section, const QString &key, const QString &defaultValue) const override;
    void write(const QString &section, const QString &key, const QString &value) override;
    /// After a failure the values stay pending, and a further save() tries them again.
    [[nodiscard]] std::optional<QString> save() override;
    std::optional<QString> problem() const override;

    /// The changes go into the table `recovery` of the same file, in one transaction that is on the disk before this
    /// returns. Waits a fifth of a second at most for another program that holds the file. Where somebody has removed
    /// the file, all that is known goes into a new one, as it does with save().
    [[nodiscard]] std::optional<QString> keep(const std::vector<KeptChange> &changes,
                                              const std::vector<SettingName> &undone) override;
    RecoveredChanges recovered() const override;
    void dropKept() override { m_droppingKept = true; }

    /// The copy is `settings.good.sqlite3` in the same folder.
    std::optional<QDateTime> offeredCopy() const override;
    [[nodiscard]] std::optional<QString> takeCopy() override;
    /// It stays as `settings.declined.sqlite3`.
    void declineCopy() override;
    [[nodiscard]] std::optional<QString> renewCopy() override;
    std::optional<QString> damage() const override;

private:
    using Name = std::pair<QString, QString>; ///< section and key
    using Values = QMap<Name, QString>;
    using Changes = QMap<Name, std::optional<QString>>;

    using Database = sqlite::Database;
    /// What stands in a file.
    struct Contents {
        Values values;
        Changes changes;
        int unreadableChanges = 0;
        QStringList damagedSections; ///< whose values differ from what was saved
    };
    enum class Trouble { none, folder, file, reading, writing };
    enum class Access { readAndWrite, readOnly };

    SqliteSettingsStore(const QString &folder, Access access);

    void open();
    void readFile();
    static Database openDatabase(const QString &file, Access access = Access::readAndWrite);
    static Contents read(sqlite3 *database, const QString &file);
    static void readChanges(sqlite3 *database, Contents &contents);
    static void copyDatabase(sqlite3 *from, const QString &to);
    static bool holds(const Values &stored, const Values &saved);
    QString goodCopy() const { return m_folder + QStringLiteral("/settings.good.sqlite3"); }
    /// Stands there from a start that found the store lost until somebody decides about the copy.
    QString offerMark() const { return m_folder + QStringLiteral("/settings.offer"); }
    QString unfinishedCopy() const { return m_folder + QStringLiteral("/settings.new.sqlite3"); }
    void putAside() const;
    void checkWritable() const;
    void openForSaving();
    bool isGone() const;
    void makeAgain();
    void inTransaction(const std::function<void()> &write);
    void writeAllKnown();
    void writeValues(const Values &values);
    void writePending();
    void writeSums();
    static std::vector<KeptChange> listed(const Changes &changes);
    void writeChanges(const std::vector<KeptChange> &changes);
    void removeChanges(const std::vector<SettingName> &undone);
    static void forget(Changes &changes, const Values &saved);
    void forgetKept();
    void rollBack();

    QString m_folder;
    QString m_file;
    Access m_access;
    Database m_database; ///< empty unless its values could be read
    Values m_values;
    Values m_pending;
    Values m_defaults;               ///< of the site
    Changes m_recovered;             ///< by an earlier run, and not saved since
    int m_unreadableChanges = 0;     ///< beside those
    Changes m_kept;                  ///< all that the file holds beside the values
    bool m_allIsToBeWritten = false; ///< the file was removed, and the new one holds nothing yet
    bool m_droppingKept = false;
    QStringList m_damagedSections;
    bool m_damaged = false;     ///< the file could not be read because of what it holds
    bool m_isLost = false;      ///< damaged or empty when it was opened
    bool m_copyOffered = false; ///< and nobody has decided
    Trouble m_trouble = Trouble::none;
    QString m_reason;          ///< of the trouble, part of a sentence
    bool m_valuesSeen = false; ///< the program works with what is in the file, not with defaults
};

} // namespace nimb
