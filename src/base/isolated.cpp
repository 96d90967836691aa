#include "base/isolated.h"

#include <QCoreApplication>
#include <QList>
#include <QVariant>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr char16_t firstStrongIsolate = 0x2068;
constexpr char16_t popIsolate = 0x2069;

bool turnsItsLine(uint c)
{
    switch (QChar::direction(c)) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
        return true;
    default:
        return false;
    }
}

/// By the property's name: an engine without windows has no class that knows it.
bool isLaidOutFromTheRight()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return application && application->property("layoutDirection").value<Qt::LayoutDirection>() == Qt::RightToLeft;
}

bool isWrittenFromTheRight(const QString &text)
{
    const QList<uint> all = text.toUcs4(); // not all such scripts are in the first plane
    return std::any_of(all.begin(), all.end(), turnsItsLine);
}

} // namespace

QString isolated(const QString &text)
{
    if (text.isEmpty() || (!isWrittenFromTheRight(text) && !isLaidOutFromTheRight()))
        return text;
    return QChar(firstStrongIsolate) + text + QChar(popIsolate);
}

} // namespace nimb
