#include "private_chat/mood.h"

#include "base/leading_number.h"

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
    const double value = leadingNumber(received);
    const std::int16_t whole = within16Bits(value);
    return std::abs(value - whole) <= 0.5 ? std::optional(whole) : std::nullopt;
}

QString Mood::toSend(float value)
{
    return QString::number(double(value), 'g', std::numeric_limits<float>::digits10 + 1);
}

} // namespace nimb
