#include "platform/instance_lock.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace nimb
{

#ifdef Q_OS_UNIX

InstanceLock::InstanceLock(QString path) : m_path(std::move(path)) { }

InstanceLock::~InstanceLock()
{
    if (m_descriptor != -1)
        ::close(m_descriptor);
}

InstanceLock::Outcome InstanceLock::tryToHold()
{
    if (m_descriptor != -1)
        return Outcome::held;
    const QByteArray name = QFile::encodeName(m_path);
    // Children must not inherit it: a browser that we started would keep the lock after our end.
    int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor == -1)
        descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC); // a read-only file can be locked just as well
    if (descriptor == -1)
        return Outcome::impossible;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_descriptor = descriptor;
        return Outcome::held;
    }
    const bool elsewhere = errno == EWOULDBLOCK;
    ::close(descriptor);
    return elsewhere ? Outcome::heldElsewhere : Outcome::impossible;
}

#else

InstanceLock::InstanceLock(QString path) : m_file(path)
{
    m_file.setStaleLockTime(0); // only a process that no longer runs gives it up
}

InstanceLock::~InstanceLock() = default;

InstanceLock::Outcome InstanceLock::tryToHold()
{
    if (m_file.isLocked() || m_file.tryLock())
        return Outcome::held;
    return m_file.error() == QLockFile::LockFailedError ? Outcome::heldElsewhere : Outcome::impossible;
}

#endif

} // namespace nimb
