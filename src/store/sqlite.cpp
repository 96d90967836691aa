#include "store/sqlite.h"

#include <QCoreApplication>
#include <QStringDecoder>

namespace nimb::sqlite
{
namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("Sqlite", text);
}

/// Why the system refused, as far as anybody remembers: what failed while a transaction was committed is known to the
/// file alone.
int systemErrorOf(sqlite3 *database)
{
    int error = sqlite3_system_errno(database);
    if (error == 0)
        sqlite3_file_control(database, "main", SQLITE_FCNTL_LAST_ERRNO, &error);
    return error;
}

} // namespace

QString reasonFor(int code, sqlite3 *database)
{
    const int systemError = database != nullptr ? systemErrorOf(database) : 0;
    switch (code & 0xff) {
    case SQLITE_FULL:
        return translated(QT_TRANSLATE_NOOP("Sqlite", "the disk is full"));
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return translated(QT_TRANSLATE_NOOP("Sqlite", "another program is using the file"));
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return translated(QT_TRANSLATE_NOOP("Sqlite", "the file is damaged or holds something else"));
    case SQLITE_NOMEM:
        return translated(QT_TRANSLATE_NOOP("Sqlite", "memory has run out"));
    case SQLITE_READONLY:
        if (code == SQLITE_READONLY_DBMOVED)
            return translated(QT_TRANSLATE_NOOP("Sqlite", "the file has been moved or replaced"));
        return translated(QT_TRANSLATE_NOOP("Sqlite", "the file or its folder is read-only"));
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
        if (systemError != 0)
            return qt_error_string(systemError);
        break;
    default:
        break;
    }
    return QString::fromUtf8(database != nullptr ? sqlite3_errmsg(database) : sqlite3_errstr(code));
}

void check(int code, sqlite3 *database)
{
    const int kind = code & 0xff;
    if (code != SQLITE_OK)
        throw Failure{reasonFor(code, database), kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB};
}

void execute(sqlite3 *database, const char *sql)
{
    check(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), database);
}

Statement::Statement(sqlite3 *database, const char *sql) : m_database(database)
{
    check(sqlite3_prepare_v2(database, sql, -1, &m_statement, nullptr), database);
}

bool Statement::next()
{
    const int code = sqlite3_step(m_statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        check(code, m_database);
    return code == SQLITE_ROW;
}

QString Statement::text(int column) const
{
    const unsigned char *bytes = sqlite3_column_text(m_statement, column);
    if (bytes == nullptr)
        throw Failure{reasonFor(SQLITE_NOMEM, m_database)}; // a NULL is sorted out by isNull()
    const int size = sqlite3_column_bytes(m_statement, column);
    // A first character U+FEFF is a character like any other.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(bytes, size));
}

QByteArray Statement::bytes(int column) const
{
    if (isNull(column))
        return {};
    const unsigned char *bytes = sqlite3_column_text(m_statement, column);
    if (bytes == nullptr)
        throw Failure{reasonFor(SQLITE_NOMEM, m_database)};
    return QByteArray(reinterpret_cast<const char *>(bytes), sqlite3_column_bytes(m_statement, column));
}

void Statement::bind(int parameter, const QByteArray &utf8)
{
    const auto size = static_cast<sqlite3_uint64>(utf8.size());
    check(sqlite3_bind_text64(m_statement, parameter, utf8.constData(), size, SQLITE_STATIC, SQLITE_UTF8), m_database);
}

void Statement::bind(int parameter, std::int64_t number)
{
    check(sqlite3_bind_int64(m_statement, parameter, number), m_database);
}

} // namespace nimb::sqlite
