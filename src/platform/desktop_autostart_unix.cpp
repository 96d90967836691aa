#include "platform/desktop_autostart.h"

#include "platform/profile_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace nimb
{
namespace
{

/// As an argument of a desktop entry's line Exec: quoted for it, then once more as a value of the file.
QString asArgument(const QString &text)
{
    QString quoted;
    for (const QChar character : text) {
        if (QStringView(u"\"`$\\").contains(character))
            quoted += u'\\';
        quoted += character;
    }
    quoted.replace(u'\\', QLatin1String("\\\\"));
    quoted.replace(u'%', QLatin1String("%%"));
    return u'"' + quoted + u'"';
}

} // namespace

DesktopAutostart::DesktopAutostart(const QString &folder, const QString &name, QString program)
    : m_path(QDir(folder).filePath(name + QLatin1String(".desktop"))), m_program(std::move(program))
{
}

bool DesktopAutostart::isOn() const
{
    QFile entry(m_path);
    if (!entry.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = entry.readAll().split('\n');
    return !lines.contains("Hidden=true") && !lines.contains("X-GNOME-Autostart-enabled=false");
}

std::optional<QString> DesktopAutostart::switchOn(const QString &nickname)
{
    if (std::optional<QString> problem = makePrivateFolder(QFileInfo(m_path).path()))
        return problem;
    QSaveFile entry(m_path);
    if (!entry.open(QIODevice::WriteOnly))
        return entry.errorString();
    const QString text = QStringLiteral("[Desktop Entry]\nType=Application\nName=NIMB-Chat\nIcon=%1\nExec=%2 %3\n"
                                        "Terminal=false\nX-GNOME-Autostart-enabled=true\n")
                             .arg(QFileInfo(m_path).completeBaseName(), asArgument(m_program), asArgument(nickname));
    entry.write(text.toUtf8());
    if (!entry.commit())
        return entry.errorString();
    return std::nullopt;
}

std::optional<QString> DesktopAutostart::switchOff()
{
    QFile entry(m_path);
    if (!entry.exists() || entry.remove())
        return std::nullopt;
    return entry.errorString();
}

} // namespace nimb
