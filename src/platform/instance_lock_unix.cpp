#include "platform/instance_lock.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace nimb
{

InstanceLock::InstanceLock(QString path) : m_path(std::move(path)) { }

InstanceLock::~InstanceLock()
{
    if (m_handle != none)
        ::close(static_cast<int>(m_handle));
}

InstanceLock::Outcome InstanceLock::tryToHold()
{
    if (m_handle != none)
        return Outcome::held;
    const QByteArray name = QFile::encodeName(m_path);
    // Children must not inherit it: a browser that we started would keep the lock after our end.
    int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor == -1)
        descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC); // a read-only file can be locked just as well
    if (descriptor == -1)
        return Outcome::impossible;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_handle = descriptor;
        return Outcome::held;
    }
    const bool elsewhere = errno == EWOULDBLOCK;
    ::close(descriptor);
    return elsewhere ? Outcome::heldElsewhere : Outcome::impossible;
}

} // namespace nimb
