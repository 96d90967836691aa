// Readable colours on the desktop's own ground.
#pragma once

#include <QColor>
#include <QPalette>

namespace nimb
{

/// Contrast of two colours, 1 (none) to 21 (black on white), as web accessibility measures it.
double contrast(const QColor &one, const QColor &other);

bool isDark(const QColor &ground);

/// For what matters less, still readable: contrast 4.5 on the list's ground, 7 where the palette is of high contrast.
QColor mutedTextColour(const QPalette &palette);

/// A log's colour as it is on a light ground, its lighter sister of the same hue on a dark one.
QColor readableOn(const QColor &colour, const QColor &ground);

/// The colour where its contrast with the ground is 4.5, else its nearest sister of the same hue that has it.
QColor contrastingOn(const QColor &colour, const QColor &ground);

/// The same on the ground of lists and logs; the contrast is 7 where the palette is of high contrast.
QColor contrastingOn(const QColor &colour, const QPalette &palette);

/// Black and white, or nearly so.
bool isOfHighContrast(const QPalette &palette);

/// For the edges of controls: stands out from the ground of windows and from that of fields, without being as loud as a
/// text where the palette is not of high contrast.
QColor outlineColour(const QPalette &palette);

/// The ground of lists and logs with a breath of the accent.
QColor tintedGround(const QPalette &palette);

} // namespace nimb
