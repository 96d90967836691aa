#include "running_copy.h"

#include "child_process.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <csignal>
#include <memory>
#include <ostream>
#include <tuple>

#include <sys/types.h>

namespace nimb::test
{
namespace
{

int patienceMs()
{
    return static_cast<int>(patience().count());
}

struct Close {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

Database openDatabase(const QString &file, int flags)
{
    sqlite3 *opened = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(file).constData(), &opened, flags, nullptr);
    Database database(opened);
    EXPECT_EQ(code, SQLITE_OK) << file.toStdString() << ": " << sqlite3_errmsg(opened);
    sqlite3_busy_timeout(opened, patienceMs());
    return database;
}

Statement prepareStatement(const Database &database, const char *sql)
{
    sqlite3_stmt *prepared = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database.get(), sql, -1, &prepared, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database.get());
    return Statement(prepared);
}

void bindText(const Statement &statement, int parameter, const std::string &text)
{
    sqlite3_bind_text(statement.get(), parameter, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

std::string columnText(const Statement &statement, int column)
{
    const auto *const bytes = static_cast<const char *>(sqlite3_column_blob(statement.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), column));
    return bytes ? std::string(bytes, size) : std::string();
}

Rows rowsOf(const Database &database, const char *sql)
{
    Rows rows;
    const Statement all = prepareStatement(database, sql);
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(all.get())) == SQLITE_ROW)
        rows[{columnText(all, 0), columnText(all, 1)}] = columnText(all, 2);
    EXPECT_EQ(code, SQLITE_DONE) << sqlite3_errmsg(database.get());
    return rows;
}

std::optional<int> statusOf(const QProcess &process)
{
    if (process.state() != QProcess::NotRunning || process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return process.exitCode();
}

} // namespace

Rows contactRows(const std::vector<StoredContact> &contacts)
{
    Rows rows;
    int n = 0;
    for (const StoredContact &contact : contacts) {
        const std::string number = std::to_string(++n);
        rows[{"Users", "IP" + number}] = contact.ip;
        rows[{"Users", "Nn" + number}] = contact.nickname;
        rows[{"Users", "Ws" + number}] = contact.workstation;
    }
    rows[{"Users", "IP" + std::to_string(n + 1)}] = "255.255.255.255";
    return rows;
}

Rows profile(std::uint16_t port, const std::vector<StoredContact> &contacts, const Rows &further)
{
    Rows rows = further;
    rows.merge(contactRows(contacts));
    rows.insert({{"Settings", "UDPPort"}, std::to_string(port)});
    rows.insert({{"Options", "TipOTDay"}, "0"}); // which would lie over what a test clicks on
    return rows;
}

QString RunningCopy::builtProgram()
{
    return qEnvironmentVariable("NIMB_PROGRAM", QStringLiteral(NIMB_PROGRAM));
}

RunningCopy::RunningCopy(const Place &place) : m_place(place), m_profile(m_scratch.filePath(QStringLiteral("profile")))
{
    EXPECT_TRUE(m_scratch.isValid()) << m_scratch.errorString().toStdString();
    const QString run = m_scratch.filePath(QStringLiteral("run"));
    QDir().mkdir(run);
    QFile::setPermissions(run, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

RunningCopy::RunningCopy(const Place &place, const Rows &rows) : RunningCopy(place)
{
    writeStore(rows);
}

RunningCopy::~RunningCopy()
{
    endProcess(m_process);
    if (const std::string text = printed(); testing::Test::HasFailure() && !text.empty())
        printf("The copy at %s printed:\n%s\n", m_place.address.c_str(), text.c_str());
}

std::string RunningCopy::printed() const
{
    QFile file(m_scratch.filePath(QStringLiteral("printed")));
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void RunningCopy::prepare(QProcess &process, const QString &name) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("NIMBCHAT_ADDRESS"), QString::fromStdString(m_place.address));
    environment.insert(QStringLiteral("NIMBCHAT_HOSTNAME"), QString::fromStdString(m_place.hostName));
    environment.insert(QStringLiteral("NIMBCHAT_PROFILE"), m_profile);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_scratch.filePath(QStringLiteral("run")));
    environment.insert(QStringLiteral("HOME"), m_scratch.path());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    // No desktop services and no loudspeakers of whoever runs the tests.
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:") + m_scratch.filePath("no-sound-server"));
    for (const char *foreign : {"WAYLAND_DISPLAY", "SESSION_MANAGER", "XDG_CONFIG_HOME", "QT_QPA_PLATFORMTHEME",
                                "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR", "QT_IM_MODULE"})
        environment.remove(QLatin1String(foreign));
    environment.insert(m_variables);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(m_scratch.filePath(name), QIODevice::Append);
    endWithParent(process);
}

void RunningCopy::start(const QStringList &arguments)
{
    prepare(m_process, QStringLiteral("printed"));
    m_process.start(m_program, arguments);
    EXPECT_TRUE(m_process.waitForStarted(patienceMs())) << m_process.errorString().toStdString();
}

std::optional<int> RunningCopy::startAgain(const QStringList &arguments) const
{
    QProcess second;
    prepare(second, QStringLiteral("printed-again"));
    second.start(m_program, arguments);
    second.waitForFinished(patienceMs());
    const std::optional<int> status = statusOf(second);
    endProcess(second);
    return status;
}

bool RunningCopy::isRunning() const
{
    return m_process.state() == QProcess::Running;
}

void RunningCopy::signal(int number) const
{
    ASSERT_TRUE(isRunning()); // or the signal would go to nobody knows whom
    ASSERT_EQ(::kill(static_cast<pid_t>(m_process.processId()), number), 0);
}

std::optional<int> RunningCopy::exitStatus()
{
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(patienceMs());
    return statusOf(m_process);
}

std::optional<int> RunningCopy::end()
{
    signal(SIGTERM);
    return exitStatus();
}

void RunningCopy::kill()
{
    m_process.kill();
    EXPECT_TRUE(m_process.waitForFinished(patienceMs()));
}

void RunningCopy::writeStore(const Rows &rows) const
{
    QDir().mkpath(m_profile);
    const Database database = openDatabase(storeFile(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    const char *const create = "CREATE TABLE IF NOT EXISTS settings(section TEXT, key TEXT, value TEXT, "
                               "PRIMARY KEY(section, key)); BEGIN";
    EXPECT_EQ(sqlite3_exec(database.get(), create, nullptr, nullptr, nullptr), SQLITE_OK);
    const Statement put = prepareStatement(database, "INSERT OR REPLACE INTO settings VALUES(?, ?, ?)");
    for (const auto &[name, value] : rows) {
        bindText(put, 1, name.first);
        bindText(put, 2, name.second);
        bindText(put, 3, value);
        EXPECT_EQ(sqlite3_step(put.get()), SQLITE_DONE) << sqlite3_errmsg(database.get());
        sqlite3_reset(put.get());
    }
    EXPECT_EQ(sqlite3_exec(database.get(), "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
}

Rows RunningCopy::readStore() const
{
    // To write as well: what a killed copy left half done is undone by whoever opens the file next.
    return rowsOf(openDatabase(storeFile(), SQLITE_OPEN_READWRITE), "SELECT section, key, value FROM settings");
}

void RunningCopy::holdStoreWhile(const std::function<void()> &action) const
{
    const Database database = openDatabase(storeFile(), SQLITE_OPEN_READWRITE);
    EXPECT_EQ(sqlite3_exec(database.get(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    action();
    EXPECT_EQ(sqlite3_exec(database.get(), "ROLLBACK", nullptr, nullptr, nullptr), SQLITE_OK);
}

Rows RunningCopy::kept() const
{
    const Database database = openDatabase(storeFile(), SQLITE_OPEN_READWRITE);
    const Statement table = prepareStatement(database, "SELECT 1 FROM sqlite_master WHERE name = 'recovery'");
    if (sqlite3_step(table.get()) != SQLITE_ROW)
        return {};
    return rowsOf(database, "SELECT section, key, ifnull(value, '(gone)') FROM recovery");
}

std::optional<std::string> RunningCopy::stored(const std::string &section, const std::string &key) const
{
    const Rows rows = readStore();
    const auto found = rows.find({section, key});
    return found == rows.end() ? std::nullopt : std::optional(found->second);
}

std::vector<StoredContact> RunningCopy::storedContacts() const
{
    Rows rows = readStore();
    std::vector<StoredContact> contacts;
    for (int n = 1;; ++n) {
        const std::string number = std::to_string(n);
        const auto ip = rows.find({"Users", "IP" + number});
        if (ip == rows.end() || ip->second == "255.255.255.255")
            return contacts;
        contacts.push_back({ip->second, rows[{"Users", "Nn" + number}], rows[{"Users", "Ws" + number}]});
    }
}

bool operator==(const StoredContact &left, const StoredContact &right)
{
    return std::tie(left.ip, left.nickname, left.workstation) == std::tie(right.ip, right.nickname, right.workstation);
}

std::ostream &operator<<(std::ostream &out, const StoredContact &contact)
{
    return out << '{' << contact.ip << ", " << contact.nickname << ", " << contact.workstation << '}';
}

} // namespace nimb::test
