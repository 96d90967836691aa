#include "own_network.h"

#include "child_process.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <utility>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sched.h>
#include <unistd.h>
#endif

namespace nimb::test
{
namespace
{

/// Those that an administrator uses stand where ordinary users do not look.
QString placeOf(const QString &program)
{
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty() ? QStandardPaths::findExecutable(program, {"/usr/sbin", "/sbin"}) : found;
}

#ifdef Q_OS_LINUX
int networkOfThisThread()
{
    return ::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
}

/// They are modules of the system, which may lack them.
bool hasVirtualCards()
{
    const auto exists = [](const QString &type) {
        return runIp({"link", "add", "trial", "type", type}) && runIp({"link", "del", "trial"});
    };
    return exists(QStringLiteral("bridge")) && exists(QStringLiteral("veth"));
}

void enter(int network)
{
    if (::setns(network, CLONE_NEWNET) != 0)
        qFatal("a network cannot be entered");
}
#endif

} // namespace

std::optional<QString> runTool(const QString &program, const QStringList &words)
{
    QProcess process;
    endWithParent(process);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(placeOf(program), words);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

OwnNetwork::OwnNetwork()
{
#ifdef Q_OS_LINUX
    if (placeOf(QStringLiteral("ip")).isEmpty())
        return;
    const int outside = networkOfThisThread();
    if (outside != none && ::unshare(CLONE_NEWNET) == 0) {
        if (hasVirtualCards())
            m_descriptor = networkOfThisThread();
        enter(outside);
    }
    if (outside != none)
        ::close(outside);
#endif
}

OwnNetwork::OwnNetwork(OwnNetwork &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, none)) { }

OwnNetwork::~OwnNetwork()
{
#ifdef Q_OS_LINUX
    if (m_descriptor != none)
        ::close(m_descriptor);
#endif
}

QString OwnNetwork::name() const
{
    return QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(m_descriptor);
}

#ifdef Q_OS_LINUX

OwnNetwork::Visit::Visit(const OwnNetwork &network) : m_outside(networkOfThisThread())
{
    enter(network.m_descriptor);
}

OwnNetwork::Visit::~Visit()
{
    enter(m_outside);
    ::close(m_outside);
}

#else

OwnNetwork::Visit::Visit(const OwnNetwork &) : m_outside(none) { }
OwnNetwork::Visit::~Visit() = default;

#endif

} // namespace nimb::test
