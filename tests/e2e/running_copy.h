// One copy of the program as a real process, with a profile that is thrown away.
#pragma once

#include "desktop.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace nimb::test
{

/// What a settings store holds: section and key, and the value.
using Rows = std::map<std::pair<std::string, std::string>, std::string>;

/// The rows of a contact list as the store keeps it: address, nickname and workstation name, and the end marker.
struct StoredContact {
    std::string ip, nickname, workstation;
};
Rows contactRows(const std::vector<StoredContact> &contacts);
/// The same with the port, and with further rows on top.
Rows profile(std::uint16_t port, const std::vector<StoredContact> &contacts, const Rows &further = {});

class RunningCopy
{
public:
    struct Place {
        std::string address;
        std::string hostName;
    };

    /// Nothing is written and nothing starts.
    explicit RunningCopy(const Place &place);
    /// Writes these rows first; they make the store.
    RunningCopy(const Place &place, const Rows &rows);
    /// Ends what still runs, and shows what it printed when the test failed.
    ~RunningCopy();
    RunningCopy(const RunningCopy &) = delete;
    RunningCopy &operator=(const RunningCopy &) = delete;

    const std::string &address() const { return m_place.address; }
    /// Everything below it is thrown away; the profile is in it unless it was moved elsewhere.
    QString scratchFolder() const { return m_scratch.path(); }
    QString profileFolder() const { return m_profile; }
    void setProfileFolder(const QString &folder) { m_profile = folder; }
    QString storeFile() const { return m_profile + QLatin1String("/settings.sqlite3"); }

    /// For the environment of every start that follows. Without it there is neither a sound server nor a desktop.
    void setVariable(const QString &name, const QString &value) { m_variables.insert(name, value); }

    /// Another file for every start that follows than the one that was built.
    void setProgram(const QString &file) { m_program = file; }
    static QString builtProgram();

    void start(const QStringList &arguments);
    /// Starts the program a second time with the same profile and waits for the exit status; nothing when it crashed
    /// or did not end.
    std::optional<int> startAgain(const QStringList &arguments = {}) const;

    bool isRunning() const;
    qint64 processId() const { return m_process.processId(); }
    /// What it has written to its standard streams.
    std::string printed() const;
    void signal(int number) const;
    /// Waits; nothing when it crashed or did not end.
    std::optional<int> exitStatus();
    /// SIGTERM and its exit status.
    std::optional<int> end();
    /// SIGKILL, and waits for the end.
    void kill();

    void writeStore(const Rows &rows) const;
    Rows readStore() const;
    /// The value of one row; nothing when there is none.
    std::optional<std::string> stored(const std::string &section, const std::string &key) const;
    /// Nobody else can write to the store meanwhile.
    void holdStoreWhile(const std::function<void()> &action) const;
    /// What is kept beside the store; what is kept as gone reads "(gone)".
    Rows kept() const;
    /// What is stored in "Users" up to the end marker, by the rules for reading it.
    std::vector<StoredContact> storedContacts() const;

private:
    void prepare(QProcess &process, const QString &name) const;

    Place m_place;
    QTemporaryDir m_scratch;
    QString m_profile;
    QString m_program = builtProgram();
    QProcessEnvironment m_variables;
    QProcess m_process;
};

bool operator==(const StoredContact &left, const StoredContact &right);
std::ostream &operator<<(std::ostream &out, const StoredContact &contact);

} // namespace nimb::test
