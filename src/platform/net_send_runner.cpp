#include "platform/net_send_runner.h"

#include "platform/program_start.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace nimb
{
namespace
{

/// msg.exe takes a text that begins as options do for one.
QString noOption(const QString &message)
{
    return message.startsWith(u'/') || message.startsWith(u'-') ? u' ' + message : message;
}

} // namespace

MessageCommand messageCommand(MessageSystem system, const QString &computer, const QString &message)
{
    if (system == MessageSystem::netSend)
        return {QStringLiteral("net"), {QStringLiteral("send"), computer, message}, {}};
    if (system == MessageSystem::msg) // whoever sits there; without a text it would read one from its input
        return {
            QStringLiteral("msg"), {QStringLiteral("*"), QLatin1String("/SERVER:") + computer, noOption(message)}, {}};
    // One argument with the name in it, so that no name is taken for an option.
    return {QStringLiteral("smbclient"), {QLatin1String("--message=") + computer}, message.toUtf8()};
}

QString NetSendRunner::missing() const
{
    if (m_system != MessageSystem::smbClient)
        return tr("The message was not sent: this system has no \"%1\" command.")
            .arg(messageCommand(m_system, {}, {}).program);
    return tr("The message was not sent: the program smbclient is not installed. Install the package smbclient "
              "(Debian, Ubuntu, Arch) or samba-client (Fedora) and send again.");
}

std::optional<QString> NetSendRunner::send(const QString &computer, const QString &message)
{
    const MessageCommand command = messageCommand(m_system, computer, message);
    const QString program = QStandardPaths::findExecutable(command.program);
    if (program.isEmpty())
        return missing();

    // A file, for a pipe would have to be filled by somebody who stays. The program holds it open after its removal.
    QTemporaryFile input(QDir::temp().filePath(QStringLiteral("nimb-chat-XXXXXX")));
    if (!input.open() || input.write(command.input) != command.input.size() || !input.flush())
        return tr("The message was not sent: no temporary file could be written (%1).").arg(input.errorString());

    QProcess process;
    process.setProgram(program);
    process.setArguments(command.arguments);
    process.setStandardInputFile(input.fileName());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    hideConsole(process);
    if (!process.startDetached())
        return tr("The message was not sent: %1 could not be started (%2).")
            .arg(QDir::toNativeSeparators(program), process.errorString());
    return std::nullopt;
}

} // namespace nimb
