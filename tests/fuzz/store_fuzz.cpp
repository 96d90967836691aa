// Any bytes as the settings file: they are read or refused with a sentence, and what is saved or kept over them by then
// is there at the next start.
//
// The first byte says what else there is: 1 a copy of earlier settings, 2 the same bytes as a journal, 4 as the copy.
#include "require.h"
#include "store/sqlite_settings_store.h"

#include <QFile>
#include <QTemporaryDir>

namespace
{

using namespace nimb;

const QString section = QStringLiteral("Settings"), users = QStringLiteral("Users");
const QString name = QStringLiteral("MyNickName"), kept = QStringLiteral("Nn:10.0.0.2");

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    file.write(bytes);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

void isSentence(const std::optional<QString> &text)
{
    require(!text || text->endsWith(u'.'), "a problem is a sentence");
}

/// A copy as an orderly end leaves it, made once.
const QByteArray &goodCopy()
{
    static const QByteArray bytes = [] {
        const QTemporaryDir folder;
        SqliteSettingsStore store(folder.path());
        store.write(section, name, QStringLiteral("Former"));
        require(!store.save() && !store.renewCopy(), "an empty folder takes settings");
        return bytesOf(folder.filePath(QStringLiteral("settings.good.sqlite3")));
    }();
    return bytes;
}

/// Whether it can be worked with.
bool saves(SqliteSettingsStore &store)
{
    store.write(section, name, QStringLiteral("Ann"));
    store.dropKept();
    const std::optional<QString> problem = store.save();
    isSentence(problem);
    if (!problem)
        require(store.read(section, name, {}) == QLatin1String("Ann"), "what was saved is there");
    return !problem;
}

void checkNextStart(const QString &folder, const QString &value)
{
    SqliteSettingsStore next(folder);
    require(!next.problem(), "what could be saved can be read");
    require(next.read(section, name, {}) == value, "what was saved is there at the next start");
}

void checkKeeping(const QString &folder)
{
    SqliteSettingsStore store(folder);
    if (store.keep({{users, kept, QStringLiteral("Ben")}, {section, name, QStringLiteral("Cleo")}}, {}))
        return; // a table of another shape stands there
    SqliteSettingsStore next(folder);
    const RecoveredChanges recovered = next.recovered();
    require(std::ranges::count(recovered.changes, KeptChange{users, kept, QStringLiteral("Ben")}) == 1,
            "what was kept is there at the next start");
    require(next.read(section, name, {}) == QLatin1String("Cleo"), "what was kept is newer than what was saved");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const int around = size > 0 ? data[0] : 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + (size > 0 ? 1 : 0),
                           static_cast<qsizetype>(size > 0 ? size - 1 : 0));
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.sqlite3"));
    put(file, bytes);
    if (around & 2)
        put(file + QStringLiteral("-journal"), bytes);
    if (around & 5)
        put(folder.filePath(QStringLiteral("settings.good.sqlite3")), around & 4 ? bytes : goodCopy());

    bool works = false;
    {
        SqliteSettingsStore store(folder.path());
        isSentence(store.problem());
        isSentence(store.damage());
        const RecoveredChanges recovered = store.recovered();
        require(recovered.unreadable >= 0, "damaged changes are counted");
        for (const KeptChange &change : recovered.changes)
            require(!change.value || store.read(change.section, change.key, {}) == *change.value,
                    "what was kept is newer than what was saved");
        if (store.offeredCopy()) {
            const std::optional<QString> problem = store.takeCopy();
            isSentence(problem);
            require(problem || !store.offeredCopy(), "a copy that was taken is offered no more");
            if (!problem && (around & 5) == 1)
                require(store.read(section, name, {}) == QLatin1String("Former"), "the copy is read as it was");
        }
        works = saves(store);
        if (!works && !(around & 7))
            require(bytesOf(file) == bytes, "what cannot be read or written is left as it is");
    }
    if (!works)
        return 0;
    checkNextStart(folder.path(), QStringLiteral("Ann"));
    checkKeeping(folder.path());
    return 0;
}
