#include "base/presence.h"

namespace nimb
{
namespace
{

struct Appearance {
    Picture picture;
    QLatin1String sortPrefix; ///< ascending, so that the list shows those who are there first
};

Appearance appearanceOf(Presence presence)
{
    switch (presence) {
    case Presence::online:
        return {Picture::green, QLatin1String("A_")};
    case Presence::busy:
        return {Picture::busy, QLatin1String("Ab")};
    case Presence::away:
        return {Picture::away, QLatin1String("Aw")};
    case Presence::unknown:
        return {Picture::yellow, QLatin1String("B_")};
    case Presence::offline:
        break;
    }
    return {Picture::red, QLatin1String("C_")};
}

} // namespace

Picture pictureOf(Presence presence)
{
    return appearanceOf(presence).picture;
}

QString sortKeyOf(Presence presence, const QString &nickname)
{
    return appearanceOf(presence).sortPrefix + nickname;
}

} // namespace nimb
