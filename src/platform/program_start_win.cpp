#include "platform/net_send_runner.h"
#include "platform/program_start.h"

#include <QProcess>
#include <QSettings>

#include <qt_windows.h>

namespace nimb
{

void hideConsole(QProcess &process)
{
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments *start) { start->flags |= CREATE_NO_WINDOW; });
}

/// "net" is everywhere, but it sends only where the service is installed.
MessageSystem ownMessageSystem()
{
    const QSettings service(QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Messenger"),
                            QSettings::NativeFormat);
    return service.contains(QStringLiteral("ImagePath")) ? MessageSystem::netSend : MessageSystem::msg;
}

} // namespace nimb
