#include "child_process.h"

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace nimb::test
{

void endWithParent(QProcess &process)
{
#ifdef Q_OS_LINUX
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
#else
    Q_UNUSED(process);
#endif
}

void endProcess(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (process.waitForFinished(5000))
        return;
    process.kill();
    process.waitForFinished();
}

} // namespace nimb::test
