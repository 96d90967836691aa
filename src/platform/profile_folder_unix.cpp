#include "platform/profile_folder.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nimb
{

QString systemTrouble()
{
    return qt_error_string(errno);
}

bool wasDiskFull()
{
#ifdef EDQUOT
    if (errno == EDQUOT)
        return true;
#endif
    return errno == ENOSPC;
}

void forgetTrouble()
{
    errno = 0;
}

std::optional<QString> renameForGood(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    if (error)
        return QString::fromLocal8Bit(error.message().c_str());
    const QByteArray folder = QFile::encodeName(QFileInfo(to).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool synced = descriptor != -1 && ::fsync(descriptor) == 0;
    const int reason = errno;
    if (descriptor != -1)
        ::close(descriptor);
    if (!synced)
        return qt_error_string(reason);
    return std::nullopt;
}

bool flushToDisk(QFile &file)
{
    return file.flush() && ::fsync(file.handle()) == 0;
}

std::optional<std::pair<quint64, quint64>> identityOfFile(const QString &path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0)
        return std::nullopt;
    return std::pair(static_cast<quint64>(found.st_dev), static_cast<quint64>(found.st_ino));
}

void takeFileFromOthers(const QString &path)
{
    constexpr mode_t others = S_IRWXG | S_IRWXO;
    const QByteArray name = QFile::encodeName(path);
    struct stat found = {};
    if (::stat(name.constData(), &found) == 0 && found.st_uid == ::geteuid() && (found.st_mode & others) != 0)
        ::chmod(name.constData(), found.st_mode & 07777 & ~others);
}

} // namespace nimb
