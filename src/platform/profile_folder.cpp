#include "platform/profile_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

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

std::optional<QString> renameForGood(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    if (error)
        return QString::fromLocal8Bit(error.message().c_str());
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(to).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool synced = descriptor != -1 && ::fsync(descriptor) == 0;
    const int reason = errno;
    if (descriptor != -1)
        ::close(descriptor);
    if (!synced)
        return qt_error_string(reason);
#endif
    return std::nullopt;
}

void takeFileFromOthers(const QString &path)
{
#ifdef Q_OS_UNIX
    constexpr mode_t others = S_IRWXG | S_IRWXO;
    const QByteArray name = QFile::encodeName(path);
    struct stat found = {};
    if (::stat(name.constData(), &found) == 0 && found.st_uid == ::geteuid() && (found.st_mode & others) != 0)
        ::chmod(name.constData(), found.st_mode & 07777 & ~others);
#else
    Q_UNUSED(path);
#endif
}

void takeFolderFromOthers(const QString &path)
{
    const QStringList entries
        = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (!entries.isEmpty() && std::ranges::all_of(entries, isOwnFile))
        takeFileFromOthers(path);
}

} // namespace nimb
