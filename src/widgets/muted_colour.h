// Readable colours on the desktop's own ground.
#pragma once

#include <QColor>
#include <QPalette>

namespace nimb
{

/// Contrast of two colours, 1 (none) to 21 (black on white), as web accessibility measures it.
double contrast(const QColor &one, const QColor &other);

/// For what matters less, still readable: contrast 4.5 on the list's ground.
QColor mutedTextColour(const QPalette &palette);

/// A log's colour as it is on a light ground, its lighter sister of the same hue on a dark one.
QColor readableOn(const QColor &colour, const QColor &ground);

} // namespace nimb
