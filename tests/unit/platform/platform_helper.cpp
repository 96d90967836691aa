// A second process for the tests: one that is ended in several ways, or that starts a program again.
#include "platform/process_exit.h"
#include "platform/single_instance.h"
#include "platform/unix_signals.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace nimb::test
{
namespace
{

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

/// The first copy: says so, and says what later starts ask for.
int hold(const QString &folder)
{
    SingleInstance instance(folder);
    QObject::connect(&instance, &SingleInstance::secondStart, &instance,
                     [](const QString &caption) { say("second start: " + caption); });
    if (!instance.acquire())
        return 3;
    say("held");
    return QCoreApplication::exec();
}

/// Any start: 0 when it is the first copy, 3 after it has handed over.
int start(const QString &folder, const QString &caption)
{
    SingleInstance instance(folder);
    if (instance.acquire())
        return 0;
    instance.handOver(caption);
    return 3;
}

/// Runs until it is asked to end.
int endPolitely()
{
    const UnixSignals signals([] { QCoreApplication::exit(7); });
    say("waiting");
    return QCoreApplication::exec();
}

/// Is ended by exit() as by a library.
int exitSuddenly(bool watched)
{
    std::optional<ProcessExit> exit;
    exit.emplace([] { say("ending"); });
    if (!watched)
        exit.reset();
    std::exit(5);
}

int run(const QStringList &arguments)
{
    const QString task = arguments.value(1);
    if (task == "exit")
        return exitSuddenly(arguments.value(2) == "watched");
    if (task == "hold")
        return hold(arguments.value(2));
    if (task == "start")
        return start(arguments.value(2), arguments.value(3));
    if (task == "end-politely")
        return endPolitely();
    return 1;
}

} // namespace
} // namespace nimb::test

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    return nimb::test::run(QCoreApplication::arguments());
}
