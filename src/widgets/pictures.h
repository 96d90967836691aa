// The program's own pictures.
#pragma once

#include "base/presence_picture.h"

#include <QIcon>

namespace nimb
{

/// A picture of the program by its name, such as "rescan"; one without any size where there is none. Those of one
/// colour take that of the text around them and follow selection, disabled controls and changes of the palette; the
/// others keep their colours when selected.
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
