#include "history/history_file.h"

#include "platform/library_file_names.h"
#include "platform/profile_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <limits>

namespace nimb
{
namespace
{

using sqlite::check;
using sqlite::Database;
using sqlite::execute;
using sqlite::Failure;
using sqlite::Statement;

constexpr int waitForOthersMs = 2000;
/// What `PRAGMA user_version` says. Whoever changes a table adds a step to it, and a test with a file of before.
constexpr int formatNumber = 2;

/// Two indices, for no one finds all: the first by words from their beginnings, without regard to accents, the second
/// by any three characters that follow each other, as it takes to find a part of a word or something in a script
/// without blanks. Both hold no texts of their own.
constexpr std::array tables = {
    "CREATE TABLE conversations(id INTEGER PRIMARY KEY, kind INTEGER NOT NULL, address TEXT NOT NULL, "
    "begun INTEGER NOT NULL, name TEXT NOT NULL, UNIQUE(kind, address, begun))",
    "CREATE TABLE messages(id INTEGER PRIMARY KEY AUTOINCREMENT, conversation INTEGER NOT NULL, time INTEGER NOT NULL, "
    "own INTEGER NOT NULL, address TEXT NOT NULL, writer TEXT NOT NULL, workstation TEXT NOT NULL, text TEXT NOT NULL)",
    "CREATE INDEX messages_of ON messages(conversation, id)",
    "CREATE INDEX messages_at ON messages(time)",
    "CREATE VIRTUAL TABLE words USING fts5(text, content = 'messages', content_rowid = 'id', "
    "tokenize = 'unicode61 remove_diacritics 2', prefix = '2 3')",
    "CREATE VIRTUAL TABLE parts USING fts5(text, content = 'messages', content_rowid = 'id', tokenize = 'trigram')",
    "CREATE TRIGGER message_in AFTER INSERT ON messages BEGIN "
    "INSERT INTO words(rowid, text) VALUES(NEW.id, NEW.text); "
    "INSERT INTO parts(rowid, text) VALUES(NEW.id, NEW.text); END",
    "CREATE TRIGGER message_out AFTER DELETE ON messages BEGIN "
    "INSERT INTO words(words, rowid, text) VALUES('delete', OLD.id, OLD.text); "
    "INSERT INTO parts(parts, rowid, text) VALUES('delete', OLD.id, OLD.text); END",
};

/// The steps from each form to the next, from the first one on. read_to: the last message that was read, where others
/// behind it were not.
constexpr std::array formatSteps = {"ALTER TABLE conversations ADD COLUMN read_to INTEGER"};
static_assert(formatSteps.size() == formatNumber - 1);

constexpr auto putMessage = "INSERT INTO messages(conversation, time, own, address, writer, workstation, text) "
                            "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)";
constexpr auto columns = "SELECT m.id, m.conversation, m.time, m.own, m.address, m.writer, m.workstation, m.text ";

std::int64_t milliseconds(const QDateTime &time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

QDateTime timeOf(std::int64_t milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds);
}

void bindOptional(Statement &statement, int parameter, const std::optional<std::int64_t> &number)
{
    if (number)
        statement.bind(parameter, *number);
    else
        statement.bindNull(parameter);
}

void bindTime(Statement &statement, int parameter, const QDateTime &time)
{
    bindOptional(statement, parameter, time.isValid() ? std::optional(milliseconds(time)) : std::nullopt);
}

/// Only what restricts stands in it, for a condition that may hold nothing keeps indices from being used. number: what
/// gives the number of a message.
QByteArray conditions(const HistoryQuestion &question, const QByteArray &number)
{
    QByteArray all = " WHERE 1";
    if (question.conversation)
        all += " AND m.conversation = ?1";
    if (question.from.isValid())
        all += " AND m.time >= ?2";
    if (question.until.isValid())
        all += " AND m.time < ?3";
    if (question.before)
        all += " AND " + number + " < ?4";
    if (question.after)
        all += " AND " + number + " > ?5";
    return all;
}

/// In the order in which it is limited.
QByteArray ordered(const HistoryQuestion &question, const QByteArray &number)
{
    return " ORDER BY " + number + (question.after ? " ASC" : " DESC") + " LIMIT ?6";
}

void bindRange(Statement &statement, const HistoryQuestion &question)
{
    bindOptional(statement, 1, question.conversation);
    bindTime(statement, 2, question.from);
    bindTime(statement, 3, question.until);
    bindOptional(statement, 4, question.before);
    bindOptional(statement, 5, question.after);
    statement.bind(6, std::int64_t{question.most});
}

StoredMessage messageIn(const Statement &row)
{
    return {.number = row.number(0),
            .conversation = row.number(1),
            .message = {.time = timeOf(row.number(2)),
                        .isOwn = row.number(3) != 0,
                        .address = row.text(4),
                        .writer = row.text(5),
                        .workstation = row.text(6),
                        .text = row.text(7)}};
}

void putTexts(Statement &put, const KeptMessage &message, std::int64_t conversation)
{
    const QByteArray address = message.address.toUtf8(), writer = message.writer.toUtf8();
    const QByteArray workstation = message.workstation.toUtf8(), text = message.text.toUtf8();
    put.bind(1, conversation);
    put.bind(2, milliseconds(message.time));
    put.bind(3, std::int64_t{message.isOwn});
    put.bind(4, address);
    put.bind(5, writer);
    put.bind(6, workstation);
    put.bind(7, text);
    put.next();
    put.reset();
}

/// Nobody looks for more at once, and SQLite has bounds of its own.
constexpr qsizetype mostWords = 40;

QStringList wordsOf(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return text.split(blanks, Qt::SkipEmptyParts).mid(0, mostWords);
}

/// A word as a full-text index takes it literally.
QString quoted(QString word)
{
    word.replace(u'\0', u' ');
    return u'"' + word.replace(u'"', QLatin1String("\"\"")) + u'"';
}

/// The index of words takes everything else for a gap between two.
bool isPlain(const QString &word)
{
    return std::ranges::all_of(word.toUcs4(),
                               [](char32_t c) { return QChar::isLetterOrNumber(c) || QChar::isMark(c); });
}

/// For LIKE with the escape character '\\'.
QString pattern(QString word)
{
    for (const QChar special : {u'\\', u'%', u'_'})
        word.replace(special, QString(u'\\') + special);
    return u'%' + word + u'%';
}

constexpr int shortestPart = 3; ///< characters that the index of parts can find

/// How the words of a question are looked for: in an index where it can find them, or text by text.
struct Search {
    QString beginnings;        ///< of all of them, for the index of words; empty: it cannot find them
    QString parts;             ///< of those that are long enough, for the index of parts; empty: there are none
    QStringList shortPatterns; ///< what the texts are compared with for the others
};

Search searchFor(const QString &text)
{
    Search search;
    QStringList beginnings, parts;
    bool arePlain = true;
    for (const QString &word : wordsOf(text)) {
        arePlain = arePlain && isPlain(word);
        beginnings += quoted(word) + u'*';
        if (word.toUcs4().size() >= shortestPart)
            parts += quoted(word);
        else
            search.shortPatterns += pattern(word);
    }
    const QString all = QStringLiteral(" AND ");
    if (arePlain)
        search.beginnings = beginnings.join(all);
    search.parts = parts.join(all);
    return search;
}

/// Short words alone are looked for text by text where the index of words would miss them: in scripts without blanks,
/// and where they are no words.
bool needsComparing(const Search &search, const QString &text)
{
    if (!search.parts.isEmpty())
        return false;
    return search.beginnings.isEmpty() || std::ranges::any_of(text, [](QChar c) {
               return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hiragana
                   || c.script() == QChar::Script_Katakana || c.script() == QChar::Script_Thai;
           });
}

/// As far as it can be read.
QHash<std::int64_t, KeptConversation> readableConversations(sqlite3 *database)
{
    QHash<std::int64_t, KeptConversation> found;
    try {
        Statement rows(database, "SELECT id, kind, address, begun, name FROM conversations");
        while (rows.next()) {
            const bool isConference = rows.number(1) != 0;
            found.insert(rows.number(0),
                         {.kind = isConference ? KeptConversation::Kind::conference : KeptConversation::Kind::contact,
                          .address = rows.text(2),
                          .begun = isConference ? timeOf(rows.number(3)) : QDateTime(),
                          .name = rows.text(4)});
        }
    } catch (const Failure &) {
        // The messages may be readable all the same.
    }
    return found;
}

/// By the number of the conversation, the message up to which it was read, where others behind that were not. As far as
/// it can be read; a file of the first form knows of none.
QHash<std::int64_t, std::int64_t> readableReadTo(sqlite3 *database)
{
    QHash<std::int64_t, std::int64_t> found;
    try {
        Statement rows(database, "SELECT id, read_to FROM conversations WHERE read_to IS NOT NULL");
        while (rows.next())
            found.insert(rows.number(0), rows.number(1));
    } catch (const Failure &) {
        // What could be read counts; the others are taken for read.
    }
    return found;
}

/// Of the messages between these numbers the first ones in this order that can be read.
std::vector<StoredMessage> readablePiece(sqlite3 *database, std::int64_t first, std::int64_t last,
                                         const QByteArray &order)
{
    constexpr int pieceSize = 500;
    std::vector<StoredMessage> piece;
    try {
        const QByteArray sql = columns + QByteArray("FROM messages m WHERE m.id > ?1 AND m.id < ?2 ORDER BY m.id ")
            + order + " LIMIT " + QByteArray::number(pieceSize);
        Statement rows(database, sql.constData());
        rows.bind(1, first);
        rows.bind(2, last);
        while (rows.next())
            piece.push_back(messageIn(rows));
    } catch (const Failure &) {
        // What came before it is there.
    }
    return piece;
}

/// Behind the newest message that ever was.
std::int64_t endOfNumbers(sqlite3 *database)
{
    try {
        Statement last(database, "SELECT seq FROM sqlite_sequence WHERE name = 'messages'");
        return last.next() ? last.number(0) + 1 : 0;
    } catch (const Failure &) {
        return 0;
    }
}

/// Between two places that cannot be read there may be much that can, one by one.
void takeBetween(sqlite3 *database, std::int64_t first, std::int64_t last,
                 const std::function<void(const std::vector<StoredMessage> &)> &take)
{
    constexpr std::size_t pieceSize = 500;
    constexpr std::int64_t mostTried = 2'000'000; // of a file whose numbers are damaged, too
    std::vector<StoredMessage> piece;
    for (std::int64_t number = first + 1; number < std::min(last, first + mostTried); ++number) {
        const std::vector<StoredMessage> one = readablePiece(database, number - 1, number + 1, "ASC");
        piece.insert(piece.end(), one.begin(), one.end());
        if (piece.size() >= pieceSize)
            take(std::exchange(piece, {}));
    }
    take(piece);
}

void sortAndCut(std::vector<StoredMessage> &messages, const HistoryQuestion &question)
{
    std::ranges::sort(messages, {}, &StoredMessage::number);
    const auto sameNumber
        = [](const StoredMessage &one, const StoredMessage &next) { return one.number == next.number; };
    messages.erase(std::unique(messages.begin(), messages.end(), sameNumber), messages.end());
    const auto most = static_cast<std::size_t>(question.most);
    if (messages.size() <= most)
        return;
    if (question.after)
        messages.resize(most);
    else
        messages.erase(messages.begin(), messages.end() - question.most);
}

} // namespace

HistoryFile::HistoryFile(const QString &folder) : m_folder(QDir(folder).absolutePath()), m_file(pathIn(m_folder))
{
    if (const auto reason = makePrivateFolder(m_folder))
        throw Failure{*reason};
    if (canOnlyBeRead(
            m_folder)) // where SQLite fails later, with whatever the system says of a file that it cannot lock
        throw Failure{sqlite::reasonFor(SQLITE_READONLY, nullptr)};
    // A rescue was killed when all was done but this: until then the damaged file is there.
    if (!QFile::exists(m_file) && QFile::exists(rescuedFile()))
        rename(rescuedFile(), m_file);
    if (const auto reason = makePrivateFile(m_file))
        throw Failure{*reason};
    takeFileFromOthers(m_file);
    try {
        open(m_file);
    } catch (const Failure &failure) {
        if (!failure.damaged)
            throw;
        setAside();
    }
}

HistoryFile::HistoryFile(const QString &folder, ForReading)
    : m_folder(QDir(folder).absolutePath()), m_file(pathIn(m_folder))
{
    // It can be locked by nobody who cannot write it; this is how SQLite reads without a lock.
    const QByteArray name = "file:" + fileNameForSqlite(m_file).toPercentEncoding("/") + "?immutable=1";
    sqlite3 *opened = nullptr;
    const int code = sqlite3_open_v2(name.constData(), &opened,
                                     SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    m_database.reset(opened);
    check(code, opened);
    check(sqlite3_extended_result_codes(opened, 1), opened);
    execute(opened, "PRAGMA temp_store = MEMORY");
    storedFormat();
}

bool HistoryFile::canOnlyBeRead(const QString &folder)
{
    const QFileInfo file(pathIn(folder));
    return file.isFile() && file.isReadable() && !(file.isWritable() && QFileInfo(folder).isWritable());
}

/// The new file gets its name when all is in it: a rescue that is cut short begins anew with the next start.
bool HistoryFile::leaveIfGone()
{
    int hasMoved = 0;
    const bool isThere = QFile::exists(m_file);
    if (isThere
        && (sqlite3_file_control(m_database.get(), "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved) != SQLITE_OK
            || hasMoved == 0))
        return false;
    m_database.reset();
    // It is left where it is, and would be read as a part of the file that takes the place.
    if (!isThere || m_log == identityOfFile(logFile()))
        QFile::remove(logFile());
    return true;
}

void HistoryFile::setAside()
{
    m_database.reset();
    const QString rescued = rescuedFile();
    for (const char *const suffix : {"", "-wal"})
        QFile::remove(rescued + QLatin1String(suffix));
    if (const auto reason = makePrivateFile(rescued))
        throw Failure{*reason};
    open(rescued);
    execute(m_database.get(), "PRAGMA synchronous = OFF"); // until it is whole
    const int saved = salvage(m_file);
    execute(m_database.get(), "PRAGMA synchronous = FULL");
    execute(m_database.get(), "PRAGMA wal_checkpoint(TRUNCATE)");
    m_database.reset();

    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside = QStringLiteral("%1/history.damaged-%2.sqlite3").arg(m_folder, stamp);
    rename(m_file, aside);
    rename(rescued, m_file);
    open(m_file);
    m_takenOver = tr("The history was damaged, so a new one has been begun; %1 messages that could still be read went "
                     "into it. The old file is %2.")
                      .arg(saved)
                      .arg(QDir::toNativeSeparators(aside));
}

void HistoryFile::rename(const QString &from, const QString &to)
{
    for (const char *const suffix : {"-wal", ""}) {
        const QString end = QLatin1String(suffix);
        if (!QFile::exists(from + end))
            continue;
        if (const auto reason = renameForGood(from + end, to + end))
            throw Failure{*reason};
    }
}

void HistoryFile::open(const QString &path)
{
    sqlite3 *opened = nullptr;
    const int code = sqlite3_open_v2(fileNameForSqlite(path).constData(), &opened,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_database.reset(opened);
    check(code, opened);
    check(sqlite3_extended_result_codes(opened, 1), opened);
    check(sqlite3_busy_timeout(opened, waitForOthersMs), opened);
    execute(opened, "PRAGMA locking_mode = EXCLUSIVE"); // a profile belongs to one copy, which needs no shared memory
    execute(opened, "PRAGMA journal_mode = WAL");
    execute(opened, "PRAGMA synchronous = FULL");
    execute(opened, "PRAGMA secure_delete = ON");  // what the user erases is to be gone
    execute(opened, "PRAGMA temp_store = MEMORY"); // and in no file of the system either
    makeTables();
}

/// 0: it has no tables yet.
int HistoryFile::storedFormat()
{
    Statement version(m_database.get(), "PRAGMA user_version");
    version.next();
    const int found = static_cast<int>(version.number(0));
    if (found > formatNumber)
        throw Failure{tr("a newer version of NIMB-Chat has written it")};
    return found;
}

void HistoryFile::makeTables()
{
    const int format = storedFormat();
    if (format == formatNumber) {
        Statement look(m_database.get(),
                       (QByteArray(columns) + "FROM messages m").constData()); // fails where it is not ours
        for (int older = 1; older < formatNumber; ++older)
            QFile::remove(copyOfForm(older)); // it has been opened since
        return;
    }
    if (format > 0)
        copyTo(copyOfForm(format));
    inTransaction([this, format] {
        if (format == 0) {
            for (const char *const table : tables)
                execute(m_database.get(), table);
        }
        for (std::size_t step = static_cast<std::size_t>(qMax(format, 1)) - 1; step < formatSteps.size(); ++step)
            execute(m_database.get(), formatSteps[step]);
        execute(m_database.get(), QByteArray("PRAGMA user_version = " + QByteArray::number(formatNumber)).constData());
    });
}

/// Before it gets another form.
void HistoryFile::copyTo(const QString &path)
{
    QFile::remove(path); // of an attempt that failed
    if (const auto reason = makePrivateFile(path))
        throw Failure{*reason};
    const QByteArray name = fileNameForSqlite(path);
    Statement copy(m_database.get(), "VACUUM INTO ?1");
    copy.bind(1, name);
    copy.next();
}

/// How many messages were taken over. What lies behind the damage is read from the other end.
int HistoryFile::salvage(const QString &wreck)
{
    sqlite3 *opened = nullptr;
    const int code = sqlite3_open_v2(fileNameForSqlite(wreck).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const Database old(opened);
    if (code != SQLITE_OK)
        return 0;
    // Or it reads nothing of a file that is shorter than it says of itself.
    sqlite3_exec(opened, "PRAGMA writable_schema = ON", nullptr, nullptr, nullptr);
    const QHash<std::int64_t, KeptConversation> conversations = readableConversations(opened);
    const QHash<std::int64_t, std::int64_t> readTo = readableReadTo(opened);
    QHash<std::int64_t, int> notRead;
    int saved = 0;
    const auto take = [&](const std::vector<StoredMessage> &piece) {
        std::vector<Entry> entries;
        for (const StoredMessage &found : piece) {
            entries.push_back({conversations.value(found.conversation), found.message});
            if (const auto read = readTo.find(found.conversation); read != readTo.end() && found.number > *read)
                ++notRead[found.conversation];
        }
        write(entries);
        saved += static_cast<int>(piece.size());
    };
    std::int64_t first = 0, last = std::numeric_limits<std::int64_t>::max();
    for (;;) {
        const std::vector<StoredMessage> piece = readablePiece(opened, first, last, "ASC");
        if (piece.empty())
            break;
        take(piece);
        first = piece.back().number;
    }
    std::vector<std::vector<StoredMessage>> behind; // the newest first
    for (;;) {
        std::vector<StoredMessage> piece = readablePiece(opened, first, last, "DESC");
        if (piece.empty())
            break;
        last = piece.back().number;
        std::ranges::reverse(piece);
        behind.push_back(std::move(piece));
    }
    takeBetween(opened, first, behind.empty() ? endOfNumbers(opened) : last, take);
    for (auto piece = behind.rbegin(); piece != behind.rend(); ++piece)
        take(*piece);
    for (auto unread = notRead.begin(); unread != notRead.end(); ++unread)
        leaveLastUnread(conversations.value(unread.key()), *unread);
    return saved;
}

/// The numbers are others than they were, and so it is told by how many messages come behind the last one that was
/// read.
void HistoryFile::leaveLastUnread(const KeptConversation &conversation, int messages)
{
    Statement put(m_database.get(),
                  "UPDATE conversations SET read_to = coalesce((SELECT id FROM messages WHERE conversation = ?1 "
                  "ORDER BY id DESC LIMIT 1 OFFSET ?2), 0) WHERE id = ?1");
    put.bind(1, conversationFor(conversation));
    put.bind(2, std::int64_t{messages});
    put.next();
}

void HistoryFile::inTransaction(const std::function<void()> &work)
{
    execute(m_database.get(), "BEGIN IMMEDIATE");
    try {
        work();
        execute(m_database.get(), "COMMIT");
    } catch (const Failure &) {
        sqlite3_exec(m_database.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void HistoryFile::write(std::span<const Entry> entries)
{
    inTransaction([&] {
        Statement put(m_database.get(), putMessage);
        for (const Entry &entry : entries)
            putTexts(put, entry.message, conversationFor(entry.conversation));
    });
    if (!m_log)
        m_log = identityOfFile(logFile());
}

std::int64_t HistoryFile::conversationFor(const KeptConversation &conversation)
{
    const QByteArray address = conversation.address.toUtf8(), name = conversation.name.toUtf8();
    Statement put(m_database.get(),
                  "INSERT INTO conversations(kind, address, begun, name) VALUES(?1, ?2, ?3, ?4) "
                  "ON CONFLICT(kind, address, begun) DO UPDATE SET name = excluded.name RETURNING id");
    put.bind(1, static_cast<std::int64_t>(conversation.kind));
    put.bind(2, address);
    put.bind(3, milliseconds(conversation.begun));
    put.bind(4, name);
    put.next();
    const std::int64_t number = put.number(0);
    put.next();
    return number;
}

std::optional<std::int64_t> HistoryFile::numberOf(const KeptConversation &conversation)
{
    const QByteArray address = conversation.address.toUtf8();
    Statement get(m_database.get(), "SELECT id FROM conversations WHERE kind = ?1 AND address = ?2 AND begun = ?3");
    get.bind(1, static_cast<std::int64_t>(conversation.kind));
    get.bind(2, address);
    get.bind(3, milliseconds(conversation.begun));
    return get.next() ? std::optional(get.number(0)) : std::nullopt;
}

std::vector<StoredMessage> HistoryFile::find(const HistoryQuestion &question)
{
    std::vector<StoredMessage> found;
    if (wordsOf(question.words).isEmpty())
        look({}, {}, question, found);
    else
        search(question, found);
    sortAndCut(found, question);
    return found;
}

void HistoryFile::search(const HistoryQuestion &question, std::vector<StoredMessage> &found)
{
    const Search search = searchFor(question.words);
    const QByteArray numbers = numbersOfTheTime(question);
    if (!search.beginnings.isEmpty())
        look({.name = "words", .expression = search.beginnings, .numbers = numbers}, {}, question, found);
    if (!search.parts.isEmpty())
        look({.name = "parts", .expression = search.parts, .numbers = numbers}, search.shortPatterns, question, found);
    if (needsComparing(search, question.words))
        look({.numbers = numbers}, search.shortPatterns, question, found);
}

/// A condition, empty where the question names no time. An index of words knows no time, and without this it would name
/// every message since for the time to be looked up.
QByteArray HistoryFile::numbersOfTheTime(const HistoryQuestion &question)
{
    const HistoryQuestion time{.from = question.from, .until = question.until};
    if (!time.from.isValid() && !time.until.isValid())
        return {};
    const QByteArray sql = "SELECT min(m.id), max(m.id) FROM messages m" + conditions(time, "m.id");
    Statement get(m_database.get(), sql.constData());
    constexpr int from = 2, until = 3;
    if (time.from.isValid())
        get.bind(from, milliseconds(time.from));
    if (time.until.isValid())
        get.bind(until, milliseconds(time.until));
    get.next();
    return " BETWEEN " + QByteArray::number(qlonglong{get.number(0)}) + " AND "
        + QByteArray::number(qlonglong{get.number(1)});
}

/// What an index gives, which all patterns fit; without an index, of all messages. Both give their rows in the order of
/// the numbers, so that nothing is read beyond the limit.
void HistoryFile::look(const Index &index, const QStringList &patterns, const HistoryQuestion &question,
                       std::vector<StoredMessage> &found)
{
    constexpr int expression = 7, firstPattern = 8;
    const bool hasIndex = !index.name.isEmpty();
    const QByteArray number = hasIndex ? "f.rowid" : "m.id";
    QByteArray sql = columns;
    sql += hasIndex ? "FROM " + index.name + " f CROSS JOIN messages m ON m.id = f.rowid"
                    : QByteArray("FROM messages m");
    sql += conditions(question, number);
    if (hasIndex)
        sql += " AND " + index.name + " MATCH ?7";
    if (!index.numbers.isEmpty())
        sql += " AND " + number + index.numbers;
    QList<QByteArray> bytes;
    for (const QString &each : patterns) {
        sql += " AND m.text LIKE ?" + QByteArray::number(firstPattern + bytes.size()) + " ESCAPE '\\'";
        bytes += each.toUtf8();
    }
    Statement get(m_database.get(), (sql + ordered(question, number)).constData());
    bindRange(get, question);
    const QByteArray words = index.expression.toUtf8();
    if (hasIndex)
        get.bind(expression, words);
    for (qsizetype i = 0; i < bytes.size(); ++i)
        get.bind(static_cast<int>(firstPattern + i), bytes[i]);
    while (get.next())
        found.push_back(messageIn(get));
}

std::vector<StoredConversation> HistoryFile::list()
{
    // Both come from the index over conversations, which is a twentieth of the messages themselves.
    Statement get(m_database.get(),
                  "SELECT c.id, c.kind, c.address, c.begun, c.name, "
                  "(SELECT count(*) FROM messages m WHERE m.conversation = c.id), l.time "
                  "FROM conversations c "
                  "JOIN messages l ON l.id = (SELECT max(m.id) FROM messages m WHERE m.conversation = c.id) "
                  "ORDER BY l.id DESC");
    std::vector<StoredConversation> all;
    while (get.next()) {
        const bool isConference = get.number(1) != 0;
        all.push_back({.number = get.number(0),
                       .conversation
                       = {.kind = isConference ? KeptConversation::Kind::conference : KeptConversation::Kind::contact,
                          .address = get.text(2),
                          .begun = isConference ? timeOf(get.number(3)) : QDateTime(),
                          .name = get.text(4)},
                       .last = timeOf(get.number(6)),
                       .messages = static_cast<int>(get.number(5))});
    }
    return all;
}

void HistoryFile::leaveUnread(const KeptConversation &conversation)
{
    inTransaction([&] {
        Statement put(m_database.get(),
                      "UPDATE conversations SET read_to = (SELECT coalesce(max(id), 0) FROM messages "
                      "WHERE conversation = ?1) WHERE id = ?1 AND read_to IS NULL");
        put.bind(1, conversationFor(conversation));
        put.next();
    });
}

void HistoryFile::setRead(const KeptConversation &conversation, int unread)
{
    const std::optional<std::int64_t> number = numberOf(conversation);
    if (!number)
        return;
    Statement put(
        m_database.get(),
        "UPDATE conversations SET read_to = CASE ?2 WHEN 0 THEN NULL ELSE max(read_to, coalesce("
        "(SELECT id FROM messages WHERE conversation = ?1 AND own = 0 ORDER BY id DESC LIMIT 1 OFFSET ?2), 0)) "
        "END WHERE id = ?1 AND read_to IS NOT NULL");
    put.bind(1, *number);
    put.bind(2, std::int64_t{unread});
    put.next();
}

std::vector<UnreadConversation> HistoryFile::listUnread()
{
    Statement get(
        m_database.get(),
        "SELECT c.kind, c.address, c.begun, c.name, c.read_to, "
        "(SELECT count(*) FROM messages m WHERE m.conversation = c.id AND m.id > c.read_to AND m.own = 0) AS n, "
        "(SELECT m.time FROM messages m WHERE m.conversation = c.id AND m.own = 0 ORDER BY m.id DESC LIMIT 1) "
        "FROM conversations c WHERE c.read_to IS NOT NULL AND n > 0 ORDER BY c.id");
    std::vector<UnreadConversation> all;
    while (get.next()) {
        const bool isConference = get.number(0) != 0;
        all.push_back({.conversation
                       = {.kind = isConference ? KeptConversation::Kind::conference : KeptConversation::Kind::contact,
                          .address = get.text(1),
                          .begun = isConference ? timeOf(get.number(2)) : QDateTime(),
                          .name = get.text(3)},
                       .readTo = get.number(4),
                       .messages = static_cast<int>(get.number(5)),
                       .last = timeOf(get.number(6))});
    }
    return all;
}

void HistoryFile::erase(const HistorySelection &selection)
{
    eraseMessages(selection);
    // Pages that were put in order anew keep pieces of what stood in them.
    execute(m_database.get(), "VACUUM");
    execute(m_database.get(), "PRAGMA wal_checkpoint(TRUNCATE)");
    removeSetAside({}); // it may hold what the user does not want any more
}

void HistoryFile::eraseBefore(const QDateTime &time)
{
    eraseMessages({.until = time});
    removeSetAside(time);
}

void HistoryFile::eraseMessages(const HistorySelection &selection)
{
    bool any = false;
    inTransaction([&] {
        const HistoryQuestion range{
            .conversation = selection.conversation, .from = selection.from, .until = selection.until};
        const QByteArray sql
            = "DELETE FROM messages AS m" + conditions(range, "m.id") + " AND (?6 IS NULL OR m.id = ?6)";
        Statement remove(m_database.get(), sql.constData());
        bindRange(remove, range);
        bindOptional(remove, 6, selection.message);
        remove.next();
        any = sqlite3_changes(m_database.get()) > 0;
        if (!any)
            return;
        execute(m_database.get(),
                "DELETE FROM conversations WHERE id NOT IN (SELECT DISTINCT conversation FROM messages)");
        // Until its pieces are joined an index keeps what was erased and only knows that it is.
        execute(m_database.get(), "INSERT INTO words(words) VALUES('optimize')");
        execute(m_database.get(), "INSERT INTO parts(parts) VALUES('optimize')");
    });
    if (any)
        execute(m_database.get(), "PRAGMA wal_checkpoint(TRUNCATE)");
}

void HistoryFile::removeSetAside(const QDateTime &before) const
{
    const QStringList names{QStringLiteral("history.damaged-*"), QStringLiteral("history.form-*")};
    for (const QFileInfo &file : QDir(m_folder).entryInfoList(names, QDir::Files)) {
        if (!before.isValid() || file.lastModified() < before)
            QFile::remove(file.filePath());
    }
}

} // namespace nimb
