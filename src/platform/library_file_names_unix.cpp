#include "platform/library_file_names.h"

#include <QFile>

namespace nimb
{

QByteArray fileNameForSqlite(const QString &path)
{
    return QFile::encodeName(path);
}

QByteArray fileNameForHunspell(const QString &path)
{
    return QFile::encodeName(path);
}

} // namespace nimb
