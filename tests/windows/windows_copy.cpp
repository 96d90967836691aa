#include "windows_copy.h"

#include "child_process.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace nimb::test
{
namespace
{

const QString underWine = QStringLiteral(UNDER_WINE);

} // namespace

WindowsResult runUnderWine(const QStringList &command, const QStringList &further, const QByteArray &input)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &each : further)
        variables.insert(each.section(u'=', 0, 0), each.section(u'=', 1));
    QProcess process;
    process.setProcessEnvironment(variables);
    endWithParent(process);
    process.start(underWine, command);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(static_cast<int>(patience().count()));
    const std::string printed = process.readAllStandardOutput().toStdString();
    endProcess(process);
    if (!ended || process.exitStatus() != QProcess::NormalExit)
        return {std::nullopt, printed};
    return {process.exitCode(), printed};
}

QString windowsPath(const QString &file)
{
    return QStringLiteral("Z:") + QString(file).replace(u'/', u'\\');
}

QString builtForWindows(const QString &file)
{
    return QStringLiteral(NIMB_WINDOWS_BUILD "/") + file;
}

WindowsCopy::WindowsCopy(const Rows &rows) : RunningCopy({"127.0.0.1", "WIN-PC"}, rows)
{
    setProgram(underWine);
}

void WindowsCopy::start(const QStringList &arguments)
{
    RunningCopy::start(QStringList(builtForWindows(QStringLiteral("NIMB-Chat/nimb-chat.exe"))) + arguments);
}

std::optional<int> WindowsCopy::end()
{
    EXPECT_EQ(runUnderWine({"taskkill", "/IM", "nimb-chat.exe"}).status, 0);
    return exitStatus();
}

WindowsResult WindowsCopy::ask(const QStringList &words, const QByteArray &input) const
{
    return runUnderWine(QStringList(builtForWindows(QStringLiteral("NIMB-Chat/nimb-chatctl.exe"))) + words,
                        {QStringLiteral("NIMBCHAT_PROFILE=") + profileFolder()}, input);
}

} // namespace nimb::test
