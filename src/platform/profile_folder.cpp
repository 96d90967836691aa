#include "platform/profile_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace nimb
{
namespace
{

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

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
    errno = 0;
    const bool made = QDir().mkdir(folder.absoluteFilePath(), ownerOnly | QFile::ExeOwner);
    const int error = errno;
    if (made || QFileInfo(folder.absoluteFilePath()).isDir()) // another start may have been faster
        return std::nullopt;
    return qt_error_string(error);
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

} // namespace nimb
