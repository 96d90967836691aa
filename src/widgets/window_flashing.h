// Whether task-bar buttons are flashed.
#pragma once

namespace nimb
{

struct SystemVersion {
    enum class Platform { windows9x, windowsNt, other } platform = Platform::other;
    int major = 0;
    int minor = 0;
};

/// Windows 9x: only minor versions 10 and 90; Windows NT: only major version 5; everywhere else yes.
constexpr bool isWindowFlashingAvailable(const SystemVersion &system)
{
    switch (system.platform) {
    case SystemVersion::Platform::windows9x:
        return system.minor == 10 || system.minor == 90;
    case SystemVersion::Platform::windowsNt:
        return system.major == 5;
    case SystemVersion::Platform::other:
        break;
    }
    return true;
}

/// The system that the program runs on.
SystemVersion runningSystem();

} // namespace nimb
