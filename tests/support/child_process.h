// Processes that a test starts and that never outlive it.
#pragma once

#include <QProcess>

namespace nimb::test
{

/// To be called before the start: the process ends when ours does, however that comes about.
void endWithParent(QProcess &process);

/// Asks it to end, insists if it does not, and waits for its end.
void endProcess(QProcess &process);

} // namespace nimb::test
