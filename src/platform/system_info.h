// Starts the system's own tool that tells about the machine.
#pragma once

#include "base/system_information.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace nimb
{

/// Starts the first tool that the desktop has; on Windows the one that the registry names.
class SystemInfo : public SystemInformation
{
public:
    [[nodiscard]] bool StartSysInfo() override;
};

/// What finding the tool on Windows needs.
class RegistryMachine
{
public:
    virtual ~RegistryMachine() = default;
    /// A value under the local-machine root as text; empty when it cannot be read.
    virtual std::optional<QString> GetKeyValue(const QString &key, const QString &name) const = 0;
    virtual bool exists(const QString &file) const = 0;
    /// False when it could not be started.
    [[nodiscard]] virtual bool run(const QString &file) = 0;
};

/// The tool at the path that the registry names, else the one in the folder that it names; false when neither can be
/// started.
[[nodiscard]] bool startRegisteredSysInfo(RegistryMachine &machine);

inline constexpr int longestRegistryText = 1024; // characters

/// Text of a registry value: a string (type 1) up to its first NUL and 1024 characters at most, or a 32-bit number
/// (type 4, lowest byte first) as a signed decimal one. Empty for every other type.
std::optional<QString> registryText(std::uint32_t type, const QByteArray &data);

} // namespace nimb
