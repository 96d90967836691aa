#include "platform/environment.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace nimb
{
namespace
{

/// configuration: the user's folder for what programs keep.
Environment environmentOf(const QProcessEnvironment &variables, const QString &configuration, const QString &folder)
{
    const auto variable = [&variables](const char *name) {
        const QString value = variables.value(QLatin1String(name));
        return value.isEmpty() ? std::nullopt : std::optional(value);
    };
    const QString profile = variable("NIMBCHAT_PROFILE").value_or(configuration + QLatin1String("/NIMB-Chat"));
    QStringList siteFolders = variable("XDG_CONFIG_DIRS").value_or(QStringLiteral("/etc/xdg")).split(u':');
    siteFolders.removeIf([](const QString &place) { return !QDir::isAbsolutePath(place); }); // the standard says so
    return {variable("NIMBCHAT_ADDRESS"), variable("NIMBCHAT_HOSTNAME"), siteFolders,
            QDir::cleanPath(QDir(folder).absoluteFilePath(profile))};
}

} // namespace

Environment Environment::fromSystem()
{
    return environmentOf(QProcessEnvironment::systemEnvironment(),
                         QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), QDir::currentPath());
}

Environment Environment::ofCaller()
{
#ifdef Q_OS_UNIX
    bool isNumber = false;
    const uint caller = qEnvironmentVariable("SUDO_UID").toUInt(&isNumber);
    const passwd *const user = ::geteuid() == 0 && isNumber ? ::getpwuid(caller) : nullptr;
    if (user)
        return environmentOf(QProcessEnvironment::systemEnvironment(),
                             QFile::decodeName(user->pw_dir) + QLatin1String("/.config"), QDir::currentPath());
#endif
    return fromSystem();
}

Environment Environment::ofProcess(const QProcessEnvironment &variables, const QString &folder)
{
    const QString configuration = variables.value(QStringLiteral("XDG_CONFIG_HOME"));
    const QString home = variables.value(QStringLiteral("HOME")) + QLatin1String("/.config");
    return environmentOf(variables, configuration.isEmpty() ? home : configuration, folder);
}

} // namespace nimb
