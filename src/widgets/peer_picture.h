// A round picture of somebody: the avatar, or the initials, with the presence at its edge.
#pragma once

#include "base/presence.h"

#include <QImage>
#include <QPalette>
#include <QString>

#include <optional>

class QPainter;
class QRect;

namespace nimb
{

/// One letter or two in capitals: of the first two words, or the first one of the only word. Empty for a name without a
/// letter or a digit.
QString initialsOf(const QString &name);

struct PeerPicture {
    QString name;
    QImage avatar{};                             ///< null: the initials on a ground of their own colour
    std::optional<Presence> presence{};          ///< nothing: not shown
    QPalette::ColorRole ground = QPalette::Base; ///< on which it stands
    double strength = 1;                         ///< of the disc, not of the presence: less for whoever is not there
};

/// How far the presence reaches beyond the picture, to the right and below: pixels.
inline constexpr int presenceOverhang = 4;

/// place: a square.
void paintPeerPicture(QPainter &painter, const QRect &place, const PeerPicture &picture, const QPalette &palette);

} // namespace nimb
