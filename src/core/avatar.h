// Avatars: pictures of 50 by 50 pixels with a text that says which one it is.
#pragma once

#include <QByteArray>

#include <string>

namespace nimb
{

constexpr int avatarSide = 50; ///< pixels
/// Three bytes a pixel (blue, green, red), row by row from the top.
constexpr qsizetype avatarBytes = 3 * avatarSide * avatarSide;

struct Avatar {
    std::string head; ///< as it travels; empty for no avatar
    QByteArray body;  ///< avatarBytes bytes, or empty for no picture
};

/// True for the head of a picture that changes all the time and is asked for again and again.
inline bool isPolledPicture(const std::string &head)
{
    return head.rfind("WEBCAM", 0) == 0;
}

} // namespace nimb
