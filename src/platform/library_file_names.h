// Names of files as libraries take them that know nothing of QString.
#pragma once

#include <QByteArray>
#include <QString>

namespace nimb
{

QByteArray fileNameForSqlite(const QString &path);
QByteArray fileNameForHunspell(const QString &path);

} // namespace nimb
