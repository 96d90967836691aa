// The faces of the emoticons, drawn at any size.
#pragma once

#include <QString>

#include <cstddef>

class QPainter;
class QRectF;

namespace nimb
{

/// face: the number of its picture among the emoticons' tables, 1 to 9, here and below.
void paintFace(QPainter &painter, const QRectF &place, std::size_t face);

/// What somebody hears who cannot see it, in the user's language.
QString faceName(std::size_t face);

} // namespace nimb
