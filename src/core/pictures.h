// The program's own pictures.
#pragma once

#include "core/presence_picture.h"

#include <QIcon>

namespace nimb
{

/// A picture of the program by its name, such as "rescan".
QIcon namedPicture(const QString &name);

inline QIcon statePicture(Picture picture)
{
    return namedPicture(pictureKey(picture));
}

inline QIcon programIcon()
{
    return namedPicture(QStringLiteral("nimb-chat"));
}

} // namespace nimb
