#include "private/mood.h"

#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <cmath>
#include <limits>

namespace nimb
{
namespace
{

constexpr int unitsAName = 4;

bool isOnScale(double value)
{
    return value >= 0 && value < Mood::scaleEnd;
}

} // namespace

QString Mood::name(double value)
{
    const std::array names = {tr("Perfect white"), tr("Quite white"),  tr("Brightest green"), tr("Light green"),
                              tr("Green"),         tr("Almost green"), tr("Quite green"),     tr("Almost Yellow"),
                              tr("Yellow"),        tr("Yellow"),       tr("Mainly Yellow"),   tr("Quite red"),
                              tr("Red"),           tr("Dark red"),     tr("Almost black"),    tr("Black")};
    return names.at(static_cast<std::size_t>(value) / unitsAName);
}

std::optional<MoodMark> Mood::own(float value)
{
    if (!isOnScale(value))
        return std::nullopt;
    return MoodMark{value, value > 40, name(value)};
}

std::optional<MoodMark> Mood::peers(std::int16_t value)
{
    if (!isOnScale(value))
        return std::nullopt;
    return MoodMark{double(value), value >= 41, name(value)};
}

std::optional<std::int16_t> Mood::parse(const QString &received)
{
    static const QRegularExpression number(
        QStringLiteral(R"(\A[ \t]*([+-]?(?:\d++(?:\.\d*+)?|\.\d++)(?:[eE][+-]?\d++)?))"));
    const QRegularExpressionMatch match = number.match(received);
    const double value = match.hasMatch() ? QLocale::c().toDouble(match.captured(1)) : 0;
    const double rounded = std::nearbyint(value); // halves to even is the way floating point rounds by default
    using Range = std::numeric_limits<std::int16_t>;
    if (!(rounded >= Range::min() && rounded <= Range::max()))
        return std::nullopt;
    return static_cast<std::int16_t>(rounded);
}

QString Mood::toSend(float value)
{
    return QString::number(double(value), 'g', std::numeric_limits<float>::digits10 + 1);
}

} // namespace nimb
