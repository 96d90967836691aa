#include "platform/system_info.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>

#ifdef Q_OS_WIN
#include <QFileInfo>

#include <qt_windows.h>
#endif

namespace nimb
{
namespace
{

constexpr std::uint32_t typeString = 1;
constexpr std::uint32_t typeNumber = 4;
constexpr int longestValue = 1024; // characters

bool startDetached(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

#ifdef Q_OS_WIN

class WindowsMachine : public RegistryMachine
{
public:
    std::optional<QString> GetKeyValue(const QString &key, const QString &name) const override
    {
        constexpr REGSAM fullAccess = 0x2003F;
        HKEY handle = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.toLocal8Bit().constData(), 0, fullAccess, &handle) != ERROR_SUCCESS)
            return std::nullopt;
        std::array<BYTE, longestValue> buffer;
        DWORD type = 0;
        DWORD size = static_cast<DWORD>(buffer.size());
        const LSTATUS status
            = RegQueryValueExA(handle, name.toLocal8Bit().constData(), nullptr, &type, buffer.data(), &size);
        RegCloseKey(handle);
        if (status != ERROR_SUCCESS)
            return std::nullopt;
        return registryText(type, QByteArray(reinterpret_cast<const char *>(buffer.data()), static_cast<int>(size)));
    }
    bool exists(const QString &file) const override { return QFileInfo(file).isFile(); }
    bool run(const QString &file) override { return startDetached(file, {}); }
};

#else

struct Tool {
    const char *program;
    const char *argument; ///< null for none
};

constexpr std::array tools = {
    Tool{"kinfocenter", nullptr},         Tool{"gnome-control-center", "info-overview"}, Tool{"hardinfo", nullptr},
    Tool{"mate-system-monitor", nullptr}, Tool{"gnome-system-monitor", nullptr},
};

bool start(const Tool &tool)
{
    const QString program = QStandardPaths::findExecutable(QLatin1String(tool.program));
    const QStringList arguments = tool.argument ? QStringList(QLatin1String(tool.argument)) : QStringList();
    return !program.isEmpty() && startDetached(program, arguments);
}

#endif

} // namespace

std::optional<QString> registryText(std::uint32_t type, const QByteArray &data)
{
    if (type == typeString)
        return QString::fromLocal8Bit(data.left(longestValue).split('\0').front());
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

bool SystemInfo::StartSysInfo()
{
#ifdef Q_OS_WIN
    WindowsMachine machine;
    return startRegisteredSysInfo(machine);
#else
    return std::ranges::any_of(tools, start);
#endif
}

} // namespace nimb
