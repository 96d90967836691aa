// A lock on a file that the system itself takes back when the process ends.
#pragma once

#include <QString>
#include <QtGlobal>

#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

namespace nimb
{

class InstanceLock
{
public:
    explicit InstanceLock(QString path);
    ~InstanceLock();
    Q_DISABLE_COPY_MOVE(InstanceLock)

    enum class Outcome { held, heldElsewhere, impossible };
    /// Never waits. Calling it again tries again, and is free once held.
    Outcome tryToHold();

private:
#ifdef Q_OS_UNIX
    QString m_path;
    int m_descriptor = -1;
#else
    QLockFile m_file;
#endif
};

} // namespace nimb
