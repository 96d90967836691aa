#include "platform/profile_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

/// The lock, or the settings or the history with whatever stands beside them.
bool isOwnFile(const QString &name)
{
    return name == u"lock" || name.startsWith(u"settings.") || name.startsWith(u"history.");
}

} // namespace

std::optional<QString> makePrivateFolder(const QString &path)
{
    const QFileInfo folder(QDir::cleanPath(path));
    if (folder.isDir())
        return std::nullopt;
    const QString parent = folder.absolutePath();
    if (parent != folder.absoluteFilePath()) {
        if (std::optional<QString> reason = makePrivateFolder(parent))
            return reason;
    }
    const bool made = QDir().mkdir(folder.absoluteFilePath(), ownerOnly | QFile::ExeOwner);
    const QString trouble = made ? QString() : systemTrouble();
    if (made || QFileInfo(folder.absoluteFilePath()).isDir()) // another start may have been faster
        return std::nullopt;
    return trouble;
}

std::optional<QString> makePrivateFile(const QString &path)
{
    const QFileInfo existing(path);
    if (existing.isFile())
        return std::nullopt;
    if (existing.exists())
        return QCoreApplication::translate("ProfileFolder", "something that is no file stands in its place");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly) || QFileInfo(path).isFile())
        return std::nullopt;
    return file.errorString();
}

void takeFolderFromOthers(const QString &path)
{
    const QStringList entries
        = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (!entries.isEmpty() && std::ranges::all_of(entries, isOwnFile))
        takeFileFromOthers(path);
}

} // namespace nimb
