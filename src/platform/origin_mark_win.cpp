#include "platform/origin_mark.h"

#include <QFile>

namespace nimb
{

/// The second stream of the file that Windows asks before it opens something from elsewhere. Zone 3 is the internet:
/// what a neighbour sends deserves no more trust.
void markOrigin(const QString &path, const QString &address)
{
    QFile mark(path + QLatin1String(":Zone.Identifier"));
    if (mark.open(QIODevice::WriteOnly))
        mark.write("[ZoneTransfer]\r\nZoneId=3\r\nHostUrl=" + address.toUtf8() + "\r\n");
}

} // namespace nimb
