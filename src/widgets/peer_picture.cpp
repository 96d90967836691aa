#include "widgets/peer_picture.h"

#include "widgets/muted_colour.h"
#include "widgets/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextBoundaryFinder>

namespace nimb
{
namespace
{

/// Beginning at a letter or a digit, with the marks that belong to it; empty without one.
QString firstLetter(const QString &word)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    for (qsizetype from = 0, to = 0; (to = finder.toNextBoundary()) >= 0; from = to) {
        if (const QString letter = word.mid(from, to - from); !letter.isEmpty() && letter.front().isLetterOrNumber())
            return letter;
    }
    return {};
}

/// The same for the same name at every start.
int hueOf(const QString &name)
{
    uint sum = 0;
    for (const QChar unit : name)
        sum = sum * 31 + unit.unicode();
    return static_cast<int>(sum % 360);
}

/// base: what the colours go with, also where a selected row has a ground of its own.
void paintInitials(QPainter &painter, const QRectF &disc, const QString &name, const QColor &base)
{
    const QColor fill = QColor::fromHsl(hueOf(name), 60, isDark(base) ? 70 : 205);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(disc);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(8, qRound(disc.height() * 0.4)));
    painter.setFont(font);
    painter.setPen(readableOn(QColor::fromHsl(hueOf(name), 90, isDark(base) ? 220 : 60), fill));
    painter.drawText(disc, Qt::AlignCenter, initialsOf(name));
}

void paintAvatar(QPainter &painter, const QRectF &disc, const QImage &avatar)
{
    QPainterPath round;
    round.addEllipse(disc);
    painter.save();
    painter.setClipPath(round);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(disc, avatar);
    painter.restore();
}

} // namespace

QString initialsOf(const QString &name)
{
    QString initials;
    for (const QString &word : name.split(u' ', Qt::SkipEmptyParts)) {
        if (initials.size() < 2)
            initials += firstLetter(word).left(2).toUpper();
    }
    return initials;
}

void paintPeerPicture(QPainter &painter, const QRect &place, const PeerPicture &picture, const QPalette &palette)
{
    const QColor ground = palette.color(picture.ground);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(picture.strength);
    if (picture.avatar.isNull())
        paintInitials(painter, place, picture.name, palette.color(QPalette::Base));
    else
        paintAvatar(painter, place, picture.avatar);
    painter.setOpacity(1);
    if (picture.presence) {
        // A ring of the ground keeps the two apart. Smaller ones could not be told by their shape. On the colour of
        // what is selected the blue of who is away would be lost.
        const bool isSelected = picture.ground == QPalette::Highlight;
        const int side = qMax(12, place.height() * 2 / 5), ring = presenceOverhang / 2;
        const QRect badge(place.right() + 1 - side + ring, place.bottom() + 1 - side + ring, side, side);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSelected ? palette.color(QPalette::Base) : ground);
        painter.drawEllipse(badge.adjusted(-ring, -ring, ring, ring));
        statePicture(pictureOf(*picture.presence)).paint(&painter, badge);
    }
    painter.restore();
}

} // namespace nimb
