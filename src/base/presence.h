// Whether a peer is there, and what stands for it where it is shown and sorted.
#pragma once

#include "base/presence_picture.h"

#include <QString>

namespace nimb
{

/// In the order in which the contact list shows them.
enum class Presence {
    online,
    busy,
    away,
    unknown, ///< not asked yet, or asked and not answered yet
    offline,
};

/// The peer is known to be there, whatever it is doing.
constexpr bool isPresent(Presence presence)
{
    return presence != Presence::unknown && presence != Presence::offline;
}

Picture pictureOf(Presence presence);

/// "A_", "Ab", "Aw", "B_" or "C_", and the nickname as it is given.
QString sortKeyOf(Presence presence, const QString &nickname);

} // namespace nimb
