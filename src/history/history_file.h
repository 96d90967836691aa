// The file in which messages are kept.
#pragma once

#include "base/history.h"
#include "store/sqlite.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>
#include <utility>

namespace nimb
{

/// `history.sqlite3` of one folder. Belongs to one thread at a time. Everything throws sqlite::Failure; what was
/// written before stays as it was. What is written is on the disk when write() returns.
class HistoryFile
{
    Q_DECLARE_TR_FUNCTIONS(HistoryFile)

public:
    struct Entry {
        KeptConversation conversation;
        KeptMessage message;
    };

    /// Makes the folder and the file, for the user alone, where they are missing. A damaged file is set aside as
    /// `history.damaged-TIME.sqlite3`, and what can still be read goes into a new one; see takenOver().
    explicit HistoryFile(const QString &folder);

    /// A file that this user may read and not change, as on a disk that was mounted for reading: nothing but questions
    /// can be put to it. What a killed program has left beside it is not seen. Others may change it: for a moment only.
    struct ForReading {
    };
    HistoryFile(const QString &folder, ForReading);
    /// There is one, and it is such a file.
    static bool canOnlyBeRead(const QString &folder);

    /// Where a call fails because the file is damaged: as the constructor does it.
    void setAside();
    /// A sentence about a file that had to be set aside by this object, or nothing.
    const std::optional<QString> &takenOver() const { return m_takenOver; }
    /// The same once.
    std::optional<QString> takeTakenOver() { return std::exchange(m_takenOver, std::nullopt); }

    /// Where somebody has removed the file or put another one in its place, so that what is written is written nowhere,
    /// it is closed, and this object is of no further use.
    [[nodiscard]] bool leaveIfGone();

    void write(std::span<const Entry> entries);
    std::vector<StoredMessage> find(const HistoryQuestion &question);
    /// The number of a conversation of which something is kept.
    std::optional<std::int64_t> numberOf(const KeptConversation &conversation);
    std::vector<StoredConversation> list();
    /// See History.
    void leaveUnread(const KeptConversation &conversation);
    void setRead(const KeptConversation &conversation, int unread);
    std::vector<UnreadConversation> listUnread();
    void erase(const HistorySelection &selection);
    /// What was set aside goes when it is as old.
    void eraseBefore(const QDateTime &time);

    static QString pathIn(const QString &folder) { return folder + QStringLiteral("/history.sqlite3"); }

private:
    /// A full-text index and what is looked for in it; without a name all messages.
    struct Index {
        QByteArray name{};
        QString expression{};
        QByteArray numbers{}; ///< condition for those of the messages; empty: none
    };

    QString logFile() const { return m_file + QStringLiteral("-wal"); }
    QString rescuedFile() const { return m_folder + QStringLiteral("/history.rescued.sqlite3"); }
    void open(const QString &path);
    static void rename(const QString &from, const QString &to);
    int storedFormat();
    void makeTables();
    QString copyOfForm(int number) const
    {
        return QStringLiteral("%1/history.form-%2.sqlite3").arg(m_folder).arg(number);
    }
    void copyTo(const QString &path);
    int salvage(const QString &wreck);
    void leaveLastUnread(const KeptConversation &conversation, int messages);
    std::int64_t conversationFor(const KeptConversation &conversation);
    void inTransaction(const std::function<void()> &work);
    QByteArray numbersOfTheTime(const HistoryQuestion &question);
    void search(const HistoryQuestion &question, std::vector<StoredMessage> &found);
    void look(const Index &index, const QStringList &patterns, const HistoryQuestion &question,
              std::vector<StoredMessage> &found);
    void eraseMessages(const HistorySelection &selection);
    void removeSetAside(const QDateTime &before) const;

    QString m_folder;
    QString m_file;
    sqlite::Database m_database;
    std::optional<std::pair<quint64, quint64>> m_log; ///< device and number of the file beside it, once there is one
    std::optional<QString> m_takenOver;
};

} // namespace nimb
