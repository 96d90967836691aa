#include "platform/environment.h"

#include "platform/system_folders.h"

#include <QDir>
#include <QProcessEnvironment>

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
    QStringList siteFolders = variable("XDG_CONFIG_DIRS").value_or(siteFolder()).split(QDir::listSeparator());
    siteFolders.removeIf([](const QString &place) { return !QDir::isAbsolutePath(place); }); // the standard says so
    return {variable("NIMBCHAT_ADDRESS"), variable("NIMBCHAT_HOSTNAME"), siteFolders,
            QDir::cleanPath(QDir(folder).absoluteFilePath(profile))};
}

} // namespace

Environment Environment::fromSystem()
{
    return environmentOf(QProcessEnvironment::systemEnvironment(), configurationFolder(), QDir::currentPath());
}

Environment Environment::ofCaller()
{
    if (const std::optional<QString> folder = configurationFolderOfCaller())
        return environmentOf(QProcessEnvironment::systemEnvironment(), *folder, QDir::currentPath());
    return fromSystem();
}

Environment Environment::ofProcess(const QProcessEnvironment &variables, const QString &folder)
{
    const QString configuration = variables.value(QStringLiteral("XDG_CONFIG_HOME"));
    const QString home = variables.value(QStringLiteral("HOME")) + QLatin1String("/.config");
    return environmentOf(variables, configuration.isEmpty() ? home : configuration, folder);
}

} // namespace nimb
