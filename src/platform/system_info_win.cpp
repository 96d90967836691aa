#include "platform/system_info.h"

#include <QFileInfo>
#include <QProcess>

#include <array>

#include <qt_windows.h>

namespace nimb
{
namespace
{

class WindowsMachine : public RegistryMachine
{
public:
    std::optional<QString> GetKeyValue(const QString &key, const QString &name) const override
    {
        constexpr REGSAM fullAccess = 0x2003F;
        HKEY handle = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.toLocal8Bit().constData(), 0, fullAccess, &handle) != ERROR_SUCCESS)
            return std::nullopt;
        std::array<BYTE, longestRegistryText> buffer;
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
    bool run(const QString &file) override { return QProcess::startDetached(file, {}); }
};

} // namespace

bool SystemInfo::StartSysInfo()
{
    WindowsMachine machine;
    return startRegisteredSysInfo(machine);
}

} // namespace nimb
