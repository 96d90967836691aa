#include "core/pictures.h"

#include <QtGlobal>

/// Resources of a static library are there only once somebody asks for them, outside every namespace.
static bool registerPictures()
{
    Q_INIT_RESOURCE(resources);
    return true;
}

namespace nimb
{

QIcon namedPicture(const QString &name)
{
    static const bool registered = registerPictures();
    Q_UNUSED(registered);
    return QIcon(QLatin1String(":/pictures/") + name + QLatin1String(".svg"));
}

} // namespace nimb
