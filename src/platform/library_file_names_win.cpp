#include "platform/library_file_names.h"

#include <QDir>

namespace nimb
{

QByteArray fileNameForSqlite(const QString &path)
{
    return path.toUtf8();
}

/// By this beginning it knows a name in UTF-8; it takes any other for one in the system's code page.
QByteArray fileNameForHunspell(const QString &path)
{
    return "\\\\?\\" + QDir::toNativeSeparators(path).toUtf8();
}

} // namespace nimb
