// The mood gauges: a scale from white through green, yellow and red to black, 0 at the top.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <optional>

namespace nimb
{

/// How a mood is shown on a gauge.
struct MoodMark {
    double value = 0;    ///< 0 to below Mood::scaleEnd, in units of the scale
    bool bright = false; ///< whether the marker is white, for the dark end of the scale, or black
    QString name;
};

class Mood
{
    Q_DECLARE_TR_FUNCTIONS(Mood)

public:
    /// Every mood is below it.
    static constexpr int scaleEnd = 64;

    /// The own mood after a click at this height; nothing outside the scale.
    static std::optional<MoodMark> own(float value);
    /// The peer's mood; nothing outside the scale.
    static std::optional<MoodMark> peers(std::int16_t value);

    /// A received value: blanks before it are ignored, it ends where a number ends, halves go to the even neighbour.
    /// Nothing when it fits no 16 bits.
    static std::optional<std::int16_t> parse(const QString &received);
    /// A value as it is sent: decimal, with "." before a fraction.
    static QString toSend(float value);

private:
    static QString name(double value);
};

} // namespace nimb
