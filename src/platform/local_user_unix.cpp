#include "platform/local_user.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace nimb
{

QString userNumber()
{
    return QString::number(::geteuid());
}

bool isSuperuser()
{
    return ::geteuid() == 0;
}

bool belongsToUser(const QString &path)
{
    return QFileInfo(path).ownerId() == ::geteuid();
}

QStringList placesOfSockets()
{
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QStringList places = {QDir::tempPath()};
    if (!runtimeFolder.isEmpty() && QFileInfo(runtimeFolder).isDir())
        places.prepend(runtimeFolder);
    places.insert(1, QLatin1String("/run/user/") + userNumber());
    for (QString &place : places)
        place += u'/';
    return places;
}

} // namespace nimb
