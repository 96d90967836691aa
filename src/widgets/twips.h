// Twips and pixels: the one place where they are converted.
#pragma once

#include <QtGlobal>

namespace nimb
{

constexpr int twipsPerPixel = 15;

/// Logical pixels, rounded.
constexpr int pixels(double twips)
{
    return qRound(twips / twipsPerPixel);
}

/// Logical pixels, truncated, as the notification window is placed.
constexpr int wholePixels(int twips)
{
    return twips / twipsPerPixel;
}

constexpr double twips(int pixels)
{
    return pixels * twipsPerPixel;
}

} // namespace nimb
