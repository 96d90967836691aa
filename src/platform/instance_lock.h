// A lock on a file that the system itself takes back when the process ends.
#pragma once

#include <QString>
#include <QtGlobal>

#include <cstdint>

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
    static constexpr std::intptr_t none = -1;

    QString m_path;
    std::intptr_t m_handle = none; ///< of the open file, while it is held
};

} // namespace nimb
