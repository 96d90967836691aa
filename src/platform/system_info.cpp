#include "platform/system_info.h"

#include <QList>

namespace nimb
{
namespace
{

constexpr std::uint32_t typeString = 1;
constexpr std::uint32_t typeNumber = 4;

} // namespace

std::optional<QString> registryText(std::uint32_t type, const QByteArray &data)
{
    if (type == typeString)
        return QString::fromLocal8Bit(data.left(longestRegistryText).split('\0').front());
    if (type != typeNumber || data.size() != 4)
        return std::nullopt;
    std::uint32_t number = 0;
    for (qsizetype i = data.size() - 1; i >= 0; --i)
        number = number << 8 | static_cast<unsigned char>(data[i]);
    return QString::number(static_cast<std::int32_t>(number));
}

bool startRegisteredSysInfo(RegistryMachine &machine)
{
    const std::optional<QString> tool
        = machine.GetKeyValue(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH"));
    if (tool)
        return machine.run(*tool);
    const std::optional<QString> folder
        = machine.GetKeyValue(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"));
    if (!folder)
        return false;
    const QString inFolder = *folder + QLatin1String("\\MSINFO32.EXE");
    return machine.exists(inFolder) && machine.run(inFolder);
}

} // namespace nimb
