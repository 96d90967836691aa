// A session bus that is the test's own, on which nothing starts by itself.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace nimb::test
{

class SessionBus
{
public:
    /// Returns when programs may connect; a test failure when it does not start.
    SessionBus();
    ~SessionBus();
    Q_DISABLE_COPY_MOVE(SessionBus)

    /// What programs find in DBUS_SESSION_BUS_ADDRESS.
    const QString &address() const { return m_address; }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_address;
};

} // namespace nimb::test
