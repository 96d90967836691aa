#include "platform/desktop_autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

namespace nimb
{
namespace
{

const QString programsOfALogin = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
/// Where the task manager notes which of them the user has switched off; an odd first byte says so.
const QString approvals
    = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StartupApproved\\Run");
const QString entry = QStringLiteral("NIMB-Chat");

/// What no file name has, and a nickname may: it ends the quotes, as backslashes before it would not.
QString quoted(QString text)
{
    text.replace(u'"', QLatin1String("\\\""));
    return u'"' + text + u'"';
}

std::optional<QString> troubleOf(QSettings &settings)
{
    settings.sync();
    if (settings.status() == QSettings::NoError)
        return std::nullopt;
    return QCoreApplication::translate("DesktopAutostart", "the registry cannot be written");
}

} // namespace

DesktopAutostart::DesktopAutostart(const QString &, const QString &name, QString program)
    : m_path(name), m_program(std::move(program))
{
}

bool DesktopAutostart::isOn() const
{
    const QByteArray approval = QSettings(approvals, QSettings::NativeFormat).value(entry).toByteArray();
    const bool isSwitchedOff = !approval.isEmpty() && (approval.at(0) & 1) != 0;
    return !isSwitchedOff && QSettings(programsOfALogin, QSettings::NativeFormat).contains(entry);
}

std::optional<QString> DesktopAutostart::switchOn(const QString &nickname)
{
    QSettings settings(programsOfALogin, QSettings::NativeFormat);
    settings.setValue(entry, quoted(QDir::toNativeSeparators(m_program)) + u' ' + quoted(nickname));
    QSettings(approvals, QSettings::NativeFormat).remove(entry);
    return troubleOf(settings);
}

std::optional<QString> DesktopAutostart::switchOff()
{
    QSettings settings(programsOfALogin, QSettings::NativeFormat);
    settings.remove(entry);
    return troubleOf(settings);
}

} // namespace nimb
