#include "platform/environment.h"

#include <QDir>
#include <QStandardPaths>

namespace nimb
{
namespace
{

std::optional<QString> variable(const char *name)
{
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? std::nullopt : std::optional(value);
}

} // namespace

Environment Environment::fromSystem()
{
    const QString standard
        = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1String("/NIMB-Chat");
    return {variable("NIMBCHAT_ADDRESS"), variable("NIMBCHAT_HOSTNAME"),
            QDir(variable("NIMBCHAT_PROFILE").value_or(standard)).absolutePath()};
}

} // namespace nimb
