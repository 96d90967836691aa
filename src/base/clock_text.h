// Date and time as the logs show them.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace nimb
{

/// The date in the user's short form.
inline QString shortDate(const QDateTime &when)
{
    return QLocale().toString(when.date(), QLocale::ShortFormat);
}

/// Hours, minutes and seconds: 14:05:09.
inline QString longTime(const QDateTime &when)
{
    return when.time().toString(QStringLiteral("HH:mm:ss"));
}

/// Hours and minutes: 14:05.
inline QString shortTime(const QDateTime &when)
{
    return when.time().toString(QStringLiteral("HH:mm"));
}

/// The same for a time of this day, else the date.
inline QString timeOrDate(const QDateTime &when, const QDate &today)
{
    return when.date() == today ? shortTime(when) : shortDate(when);
}

} // namespace nimb
