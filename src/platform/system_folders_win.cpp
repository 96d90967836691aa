#include "platform/system_folders.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include <qt_windows.h>

namespace nimb
{
namespace
{

/// Of this program, also before there is an application object.
QString programFolder()
{
    std::array<wchar_t, 32768> path = {}; // as long as Windows lets one be
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QFileInfo(QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), static_cast<int>(length)))).path();
}

QString folderOf(const char *variable)
{
    return QDir::fromNativeSeparators(qEnvironmentVariable(variable));
}

} // namespace

/// A program that was unpacked with a folder "profile" beside it keeps what it knows there: it is carried along with
/// it. QStandardPaths would name the folder of what stays on one machine.
QString configurationFolder()
{
    const QString portable = programFolder() + QLatin1String("/profile");
    return QFileInfo(portable).isDir() ? portable : folderOf("APPDATA");
}

std::optional<QString> configurationFolderOfCaller()
{
    return std::nullopt; // an administrator's rights come to the same user
}

QString siteFolder()
{
    return folderOf("ProgramData");
}

} // namespace nimb
