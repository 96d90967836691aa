// A second process for the tests of the store: one that is killed in the middle of its work.
#include "faulty_files.h"
#include "store/sqlite_settings_store.h"
#include "store_values.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace nimb::test
{
namespace
{

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
        std::puts(qPrintable(*failure));
    return failure ? 2 : 0;
}

/// Keeps the changes of that generation, and is killed at the n-th call to the disk.
int keep(const QString &folder, const QString &generation, int n)
{
    FaultyFiles files;
    SqliteSettingsStore store(folder);
    files.doAt(n, killMyself);
    return store.keep(changesOfGeneration(generation), {}) ? 2 : 0;
}

/// Renews the good copy, and is killed at the n-th call to the disk.
int renewCopy(const QString &folder, int n)
{
    FaultyFiles files;
    SqliteSettingsStore store(folder);
    files.doAt(n, killMyself);
    return store.renewCopy() ? 2 : 0;
}

int run(const QStringList &arguments)
{
    const QString task = arguments.value(1);
    if (task == "save")
        return save(arguments.value(2), arguments.value(3), arguments.value(4), arguments.value(5).toInt());
    if (task == "keep")
        return keep(arguments.value(2), arguments.value(3), arguments.value(4).toInt());
    if (task == "copy")
        return renewCopy(arguments.value(2), arguments.value(3).toInt());
    return 1;
}

} // namespace
} // namespace nimb::test

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    return nimb::test::run(QCoreApplication::arguments());
}
