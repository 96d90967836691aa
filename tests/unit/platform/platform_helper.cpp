// A second process for the tests: one that is killed in the middle of its work, or that starts a program again.
#include "faulty_files.h"
#include "platform/process_exit.h"
#include "platform/single_instance.h"
#include "platform/sqlite_settings_store.h"
#include "platform/unix_signals.h"
#include "store_values.h"

#include <QCoreApplication>

#include <csignal>
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

void killMyself()
{
    kill(getpid(), SIGKILL);
}

/// Saves the values of that generation, and is killed at the n-th call to the disk: while opening or while saving.
int save(const QString &folder, const QString &generation, const QString &phase, int n)
{
    FaultyFiles files;
    if (phase == "opening")
        files.doAt(n, killMyself);
    SqliteSettingsStore store(folder);
    writeGeneration(store, generation);
    store.dropKept();
    if (phase == "saving")
        files.doAt(n, killMyself);
    const std::optional<QString> failure = store.save();
    if (failure)
        say(*failure);
    return failure ? 2 : 0;
}

/// Keeps the changes of that generation, and is killed at the n-th call to the disk.
int keep(const QString &folder, const QString &generation, int n)
{
    FaultyFiles files;
    SqliteSettingsStore store(folder);
    files.doAt(n, killMyself);
    return store.keep(changesOfGeneration(generation)) ? 2 : 0;
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
    if (task == "save")
        return save(arguments.value(2), arguments.value(3), arguments.value(4), arguments.value(5).toInt());
    if (task == "keep")
        return keep(arguments.value(2), arguments.value(3), arguments.value(4).toInt());
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
