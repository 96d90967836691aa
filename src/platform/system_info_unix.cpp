#include "platform/system_info.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

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

} // namespace

bool SystemInfo::StartSysInfo()
{
    return std::ranges::any_of(tools, start);
}

} // namespace nimb
