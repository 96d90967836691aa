#include "private_chat/live_type.h"

#include "base/limits.h"
#include "base/line_break.h"
#include "base/remote_text.h"

namespace nimb
{
namespace
{

QString withoutOuterSpaces(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.mid(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

} // namespace

QString liveTypeToSend(const QString &typed)
{
    const QString line = QString(typed).replace(lineBreak, QLatin1String(" "));
    QStringView end = QStringView(line).last(qMin(line.size(), limits::liveTextLength));
    if (end.size() < line.size() && end.front().isLowSurrogate())
        end = end.mid(1);
    return withoutOuterSpaces(end);
}

QString liveTypeToShow(const QString &received)
{
    const QString line = QString(received).replace(lineBreak, QLatin1String(" "));
    return shownText(remoteLine(line));
}

double liveTypeHeight(qsizetype length)
{
    constexpr double empty = 150, aCharacter = 75, highest = 1000;
    return qMin(highest, empty + aCharacter * double(length));
}

} // namespace nimb
