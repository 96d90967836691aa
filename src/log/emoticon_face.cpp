#include "log/emoticon_face.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>

namespace nimb
{
namespace
{

// A face lies in a square of 24 units.
constexpr double faceUnits = 24;
constexpr QPointF leftEye(8.2, 9.4), rightEye(15.8, 9.4);

const QColor outlineColour(0x8A, 0x5A, 0x00), skinColour(0xFF, 0xD2, 0x3F), lightColour(0xFF, 0xEF, 0xA0),
    shadeColour(0xF0, 0xAE, 0x1C), lineColour(0x2B, 0x20, 0x13), mouthColour(0x8C, 0x1D, 0x18),
    tongueColour(0xE8, 0x47, 0x5C), tearColour(0x2F, 0x8F, 0xE8);

enum class Eyes { open, wink, happy, shut };
enum class Mouth { smile, sad, straight, tongue, laugh, grin, wail };

struct Face {
    Eyes eyes;
    Mouth mouth;
    bool hasTears;
    const char *name;
};

/// In the order of the pictures.
constexpr std::array<Face, 9> drawnFaces{{
    {Eyes::happy, Mouth::laugh, false, QT_TRANSLATE_NOOP("EmoticonFace", "laughing face")},
    {Eyes::shut, Mouth::wail, true, QT_TRANSLATE_NOOP("EmoticonFace", "crying face")},
    {Eyes::open, Mouth::smile, false, QT_TRANSLATE_NOOP("EmoticonFace", "smiling face")},
    {Eyes::open, Mouth::sad, false, QT_TRANSLATE_NOOP("EmoticonFace", "sad face")},
    {Eyes::open, Mouth::straight, false, QT_TRANSLATE_NOOP("EmoticonFace", "neutral face")},
    {Eyes::open, Mouth::tongue, false, QT_TRANSLATE_NOOP("EmoticonFace", "face with tongue out")},
    {Eyes::wink, Mouth::smile, false, QT_TRANSLATE_NOOP("EmoticonFace", "winking face")},
    {Eyes::wink, Mouth::tongue, false, QT_TRANSLATE_NOOP("EmoticonFace", "winking face with tongue out")},
    {Eyes::open, Mouth::grin, false, QT_TRANSLATE_NOOP("EmoticonFace", "grinning face")},
}};

QPen linePen(double width)
{
    return QPen(lineColour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void paintHead(QPainter &painter)
{
    QRadialGradient skin(QPointF(9, 7), 17);
    skin.setColorAt(0, lightColour);
    skin.setColorAt(0.45, skinColour);
    skin.setColorAt(1, shadeColour);
    painter.setPen(QPen(outlineColour, 1.2));
    painter.setBrush(skin);
    painter.drawEllipse(QPointF(12, 12), 10.9, 10.9);
}

/// From the left end to the right one; bend: how far the middle lies below the ends.
QPainterPath arc(QPointF left, QPointF right, double bend)
{
    QPainterPath path(left);
    path.quadTo((left + right) / 2 + QPointF(0, 2 * bend), right);
    return path;
}

void paintOpenEye(QPainter &painter, QPointF middle)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(lineColour);
    painter.drawEllipse(middle, 1.5, 2.2);
}

void paintCurvedEye(QPainter &painter, QPointF middle, double bend)
{
    painter.setPen(linePen(1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(arc(middle - QPointF(2.3, -bend / 2), middle + QPointF(2.3, bend / 2), -bend));
}

void paintEyes(QPainter &painter, Eyes eyes)
{
    constexpr double upwards = 2.2, downwards = -1.4, flat = 0.5;
    switch (eyes) {
    case Eyes::open:
        paintOpenEye(painter, leftEye);
        return paintOpenEye(painter, rightEye);
    case Eyes::wink:
        paintOpenEye(painter, leftEye);
        return paintCurvedEye(painter, rightEye, flat);
    case Eyes::happy:
        paintCurvedEye(painter, leftEye, upwards);
        return paintCurvedEye(painter, rightEye, upwards);
    case Eyes::shut:
        paintCurvedEye(painter, leftEye, downwards);
        return paintCurvedEye(painter, rightEye, downwards);
    }
}

void paintLips(QPainter &painter, double height, double bend)
{
    painter.setPen(linePen(1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(arc({7, height}, {17, height}, bend));
}

/// An open mouth with a straight upper lip; teeth: how high they are.
void paintOpenMouth(QPainter &painter, double top, double depth, double teeth)
{
    QPainterPath mouth = arc({6.2, top}, {17.8, top}, depth);
    mouth.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(mouthColour);
    painter.drawPath(mouth);
    painter.save();
    painter.setClipPath(mouth, Qt::IntersectClip);
    painter.fillRect(QRectF(6, top, 12, teeth), Qt::white);
    painter.setBrush(tongueColour);
    painter.drawEllipse(QPointF(12, top + depth + 1), 3.4, 2.2);
    painter.restore();
    painter.setPen(linePen(1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mouth);
}

void paintTongue(QPainter &painter)
{
    QPainterPath tongue;
    tongue.addRoundedRect(QRectF(11.4, 15.6, 4.8, 5.6), 2.4, 2.4);
    painter.setPen(QPen(mouthColour, 0.9));
    painter.setBrush(tongueColour);
    painter.drawPath(tongue);
    paintLips(painter, 14.8, 1.6);
}

void paintWail(QPainter &painter)
{
    painter.setPen(linePen(1.2));
    painter.setBrush(mouthColour);
    painter.drawEllipse(QPointF(12, 17.2), 3.4, 2.6);
}

void paintMouth(QPainter &painter, Mouth mouth)
{
    switch (mouth) {
    case Mouth::smile:
        return paintLips(painter, 14.6, 2.6);
    case Mouth::sad:
        return paintLips(painter, 17.8, -2.4);
    case Mouth::straight:
        return paintLips(painter, 16, 0);
    case Mouth::tongue:
        return paintTongue(painter);
    case Mouth::laugh:
        return paintOpenMouth(painter, 13, 5.6, 2.2);
    case Mouth::grin:
        return paintOpenMouth(painter, 13.6, 4.2, 1.9);
    case Mouth::wail:
        return paintWail(painter);
    }
}

void paintTears(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(tearColour);
    for (const double x : {6.2, 17.8}) {
        QPainterPath tear(QPointF(x, 10.8));
        tear.cubicTo({x + 2.6, 15}, {x + 1.8, 17}, {x, 17});
        tear.cubicTo({x - 1.8, 17}, {x - 2.6, 15}, {x, 10.8});
        painter.drawPath(tear);
    }
}

} // namespace

void paintFace(QPainter &painter, const QRectF &place, std::size_t face)
{
    const Face &drawn = drawnFaces.at(face - 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / faceUnits, place.height() / faceUnits);
    paintHead(painter);
    paintEyes(painter, drawn.eyes);
    paintMouth(painter, drawn.mouth);
    if (drawn.hasTears)
        paintTears(painter);
    painter.restore();
}

QString faceName(std::size_t face)
{
    return QCoreApplication::translate("EmoticonFace", drawnFaces.at(face - 1).name);
}

} // namespace nimb
