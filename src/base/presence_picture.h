// The state pictures, shared by the contact list and the own-state chooser.
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace nimb
{

/// In the order of the picture list: the position, counted from 1, is what stored personalised states begin with.
enum class Picture { green, yellow, red, busy, away, invisible };

inline constexpr std::array allPictures
    = {Picture::green, Picture::yellow, Picture::red, Picture::busy, Picture::away, Picture::invisible};

/// "green", "yellow", "red", "busy", "away" or "invisible".
QString pictureKey(Picture picture);

/// Position in the picture list, 1 to 6.
int picturePosition(Picture picture);
/// Empty for a position that the list does not have.
std::optional<Picture> pictureAt(int position);

} // namespace nimb
