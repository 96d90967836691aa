#include "widgets/window_flashing.h"

#include <QOperatingSystemVersion>

namespace nimb
{

SystemVersion runningSystem()
{
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    if (version.type() != QOperatingSystemVersion::Windows)
        return {};
    return {SystemVersion::Platform::windowsNt, version.majorVersion(), version.minorVersion()};
}

} // namespace nimb
