#include "widgets/muted_colour.h"

#include <cmath>

namespace nimb
{
namespace
{

constexpr double readableContrast = 4.5, highContrast = 7;
/// Below this a colour vanishes on its ground, whatever somebody meant by it.
constexpr double visibleContrast = 2.0;
/// An edge needs 3; some are drawn a little fainter than they are meant, and corners are blurred.
constexpr double edgeContrast = 3.7, strongEdgeContrast = 7;
constexpr double blackAndWhite = 20;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor &colour, const QColor &with, double share)
{
    const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(colour.redF(), with.redF()), mix(colour.greenF(), with.greenF()),
                            mix(colour.blueF(), with.blueF()));
}

/// Moves the colour towards another until it stands out enough from the ground.
QColor moved(const QColor &colour, const QColor &towards, const QColor &ground, double least)
{
    QColor result = colour;
    for (int step = 1; step <= 20 && contrast(result, ground) < least; ++step)
        result = mixed(colour, towards, step / 20.0);
    return result;
}

double leastContrast(const QPalette &palette)
{
    return isOfHighContrast(palette) ? highContrast : readableContrast;
}

QColor towardsText(const QColor &colour, const QColor &ground, double least)
{
    return moved(colour, isDark(ground) ? Qt::white : Qt::black, ground, least);
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool isDark(const QColor &ground)
{
    return luminance(ground) < 0.18;
}

QColor mutedTextColour(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Text);
    const QColor ground = palette.color(QPalette::Base);
    return moved(mixed(text, ground, 0.4), text, ground, leastContrast(palette));
}

QColor readableOn(const QColor &colour, const QColor &ground)
{
    return isDark(ground) || contrast(colour, ground) < visibleContrast ? contrastingOn(colour, ground) : colour;
}

QColor contrastingOn(const QColor &colour, const QColor &ground)
{
    return towardsText(colour, ground, readableContrast);
}

QColor contrastingOn(const QColor &colour, const QPalette &palette)
{
    return towardsText(colour, palette.color(QPalette::Base), leastContrast(palette));
}

bool isOfHighContrast(const QPalette &palette)
{
    const auto contrastOf = [&palette](QPalette::ColorRole text, QPalette::ColorRole ground) {
        return contrast(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground));
    };
    return contrastOf(QPalette::Text, QPalette::Base) >= blackAndWhite
        && contrastOf(QPalette::WindowText, QPalette::Window) >= blackAndWhite;
}

QColor outlineColour(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window), field = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const double least = isOfHighContrast(palette) ? strongEdgeContrast : edgeContrast;
    QColor edge = window;
    for (int step = 1; step <= 20 && (contrast(edge, window) < least || contrast(edge, field) < least); ++step)
        edge = mixed(window, text, step / 20.0);
    return edge;
}

QColor tintedGround(const QPalette &palette)
{
    return mixed(palette.color(QPalette::Base), palette.color(QPalette::Highlight), 0.08);
}

} // namespace nimb
