#include "platform/watched_start.h"

#include "base/limits.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace nimb
{
namespace
{

/// 0 when it cannot be started. In a session of its own: nothing that ends this one ends it.
pid_t start(const QByteArray &program, const QByteArray &argument)
{
    posix_spawnattr_t attributes;
    if (posix_spawnattr_init(&attributes) != 0)
        return 0;
    sigset_t blocked, usual; // as every program expects them, whatever this one has made of them
    sigemptyset(&blocked);
    sigemptyset(&usual);
    sigaddset(&usual, SIGPIPE);
    posix_spawnattr_setsigmask(&attributes, &blocked);
    posix_spawnattr_setsigdefault(&attributes, &usual);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    QByteArray name = program, only = argument; // what is handed over may be written to
    const std::array<char *, 3> arguments = {name.data(), only.data(), nullptr};
    pid_t process = 0;
    const int trouble = posix_spawn(&process, name.constData(), nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    return trouble == 0 ? process : 0;
}

/// Becomes readable when the process ends; -1 where the system has none.
int endOf(pid_t process)
{
    return static_cast<int>(syscall(SYS_pidfd_open, process, 0));
}

} // namespace

bool startWatched(const QString &program, const QString &argument, std::function<void()> failed)
{
    const pid_t process = start(QFile::encodeName(program), argument.toLocal8Bit());
    if (process == 0)
        return false;
    const int end = endOf(process);
    if (end < 0)
        return true; // nobody hears how it goes on
    auto *const notifier = new QSocketNotifier(end, QSocketNotifier::Read, qApp);
    QElapsedTimer since;
    since.start();
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, process, end, since, failed = std::move(failed)] {
                         notifier->setEnabled(false);
                         int status = 0;
                         const bool isOver = waitpid(process, &status, WNOHANG) == process;
                         close(end);
                         notifier->deleteLater();
                         const bool hasFailed = isOver && WIFEXITED(status) && WEXITSTATUS(status) != 0;
                         if (hasFailed && !since.hasExpired(limits::handlerWatched.count()) && failed)
                             failed();
                     });
    return true;
}

} // namespace nimb
