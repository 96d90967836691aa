// Names in one line of a log.
#pragma once

#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"

#include <QCoreApplication>
#include <QStringList>

namespace nimb
{

/// "Ann, Ben, 3 more": limits::namesInLine of them at most, as they are painted. all: how many there are, those without
/// a name included.
inline QString nameList(const QStringList &names, qsizetype all)
{
    QStringList shown;
    for (const QString &name : names.mid(0, limits::namesInLine))
        shown.append(isolated(paintedName(name)));
    if (const qsizetype more = all - shown.size(); more > 0)
        shown.append(QCoreApplication::translate("NameList", "%n more", nullptr, static_cast<int>(more)));
    return shown.join(QStringLiteral(", "));
}

} // namespace nimb
