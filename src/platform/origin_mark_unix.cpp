#include "platform/origin_mark.h"

#include <QFile>

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace nimb
{

void markOrigin([[maybe_unused]] const QString &path, [[maybe_unused]] const QString &address)
{
#ifdef __linux__
    const QByteArray value = address.toUtf8();
    setxattr(QFile::encodeName(path).constData(), "user.xdg.origin.url", value.constData(),
             static_cast<std::size_t>(value.size()), 0);
#endif
}

} // namespace nimb
