// SQLite as this program calls it: statements that end by themselves, and failures in words.
#pragma once

#include <QByteArray>
#include <QString>

#include <sqlite3.h>

#include <cstdint>
#include <memory>

namespace nimb::sqlite
{

/// Thrown by all that follows; caught by whoever keeps a file, and by nobody else.
struct Failure {
    QString reason;       ///< part of a sentence, to be put in brackets
    bool damaged = false; ///< the file holds something that it should not
};

struct CloseDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

/// Why the last call on the database failed. The code is an extended one. database: null where there is none.
QString reasonFor(int code, sqlite3 *database);
void check(int code, sqlite3 *database);
void execute(sqlite3 *database, const char *sql);

/// One prepared statement. Texts go in and out with their lengths, so that they may hold U+0000.
class Statement
{
public:
    Statement(sqlite3 *database, const char *sql);
    // What finalising returns is the failure of the last step, which was looked at when it happened.
    ~Statement() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY_MOVE(Statement)

    /// Runs to the next row; false when there is none left.
    bool next();

    bool isNull(int column) const { return sqlite3_column_type(m_statement, column) == SQLITE_NULL; }
    QString text(int column) const;
    std::int64_t number(int column) const { return sqlite3_column_int64(m_statement, column); }
    /// Of the text as UTF-8; a NULL has none.
    QByteArray bytes(int column) const;

    /// The bytes must live until the statement has run.
    void bind(int parameter, const QByteArray &utf8);
    void bind(int parameter, std::int64_t number);
    void bindNull(int parameter) { check(sqlite3_bind_null(m_statement, parameter), m_database); }

    /// Makes it ready to run once more.
    void reset() { check(sqlite3_reset(m_statement), m_database); }

private:
    sqlite3 *m_database;
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace nimb::sqlite
