#include "platform/system_folders.h"

#include <QFile>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace nimb
{

QString configurationFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

std::optional<QString> configurationFolderOfCaller()
{
    bool isNumber = false;
    const uint caller = qEnvironmentVariable("SUDO_UID").toUInt(&isNumber);
    const passwd *const user = ::geteuid() == 0 && isNumber ? ::getpwuid(caller) : nullptr;
    return user ? std::optional(QFile::decodeName(user->pw_dir) + QLatin1String("/.config")) : std::nullopt;
}

QString siteFolder()
{
    return QStringLiteral("/etc/xdg");
}

} // namespace nimb
