#include "platform/profile_folder.h"

#include <QDir>
#include <QFile>

#include <qt_windows.h>

namespace nimb
{

QString systemTrouble()
{
    return qt_error_string(static_cast<int>(GetLastError()));
}

bool wasDiskFull()
{
    constexpr DWORD quotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which not every header knows
    const DWORD trouble = GetLastError();
    return trouble == ERROR_DISK_FULL || trouble == ERROR_HANDLE_DISK_FULL || trouble == quotaExceeded;
}

void forgetTrouble()
{
    SetLastError(ERROR_SUCCESS);
}

std::optional<QString> renameForGood(const QString &from, const QString &to)
{
    const std::wstring source = QDir::toNativeSeparators(from).toStdWString();
    const std::wstring target = QDir::toNativeSeparators(to).toStdWString();
    if (MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return std::nullopt;
    return systemTrouble();
}

/// By a handle of its own: Qt does not tell the one by which it writes.
bool flushToDisk(QFile &file)
{
    const std::wstring name = QDir::toNativeSeparators(file.fileName()).toStdWString();
    HANDLE const handle
        = CreateFileW(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const bool flushed = file.flush() && FlushFileBuffers(handle);
    CloseHandle(handle);
    return flushed;
}

std::optional<std::pair<quint64, quint64>> identityOfFile(const QString &)
{
    return std::nullopt;
}

/// The user's folders are his own by inheritance.
void takeFileFromOthers(const QString &) { }

} // namespace nimb
