#include "base/presence_picture.h"

namespace nimb
{

QString pictureKey(Picture picture)
{
    switch (picture) {
    case Picture::green:
        return QStringLiteral("green");
    case Picture::yellow:
        return QStringLiteral("yellow");
    case Picture::red:
        return QStringLiteral("red");
    case Picture::busy:
        return QStringLiteral("busy");
    case Picture::away:
        return QStringLiteral("away");
    case Picture::invisible:
        break;
    }
    return QStringLiteral("invisible");
}

int picturePosition(Picture picture)
{
    return static_cast<int>(picture) + 1;
}

std::optional<Picture> pictureAt(int position)
{
    if (position < 1 || position > static_cast<int>(allPictures.size()))
        return std::nullopt;
    return allPictures[static_cast<std::size_t>(position - 1)];
}

} // namespace nimb
