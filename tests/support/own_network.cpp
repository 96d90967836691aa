#include "own_network.h"

#include "child_process.h"

#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sched.h>
#include <unistd.h>
#endif

namespace nimb::test
{
namespace
{

/// It stands where ordinary users do not look.
QString programIp()
{
    const QString found = QStandardPaths::findExecutable(QStringLiteral("ip"));
    return found.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("ip"), {"/usr/sbin", "/sbin"}) : found;
}

} // namespace

std::optional<QString> runIp(const QStringList &words)
{
    QProcess process;
    endWithParent(process);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(programIp(), words);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

OwnNetwork::OwnNetwork()
{
#ifdef Q_OS_LINUX
    if (programIp().isEmpty())
        return;
    const int outside = ::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
    if (outside != -1 && ::unshare(CLONE_NEWNET) == 0)
        m_outside = outside;
    else if (outside != -1)
        ::close(outside);
#endif
}

OwnNetwork::~OwnNetwork()
{
#ifdef Q_OS_LINUX
    if (!m_outside)
        return;
    if (::setns(*m_outside, CLONE_NEWNET) != 0)
        qFatal("there is no way back to the network outside");
    ::close(*m_outside);
#endif
}

} // namespace nimb::test
