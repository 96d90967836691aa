// Avatars: pictures of 50 by 50 pixels with a text that says which one it is.
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace nimb
{

constexpr int avatarSide = 50; ///< pixels
/// Three bytes per pixel (blue, green, red), row by row from the top.
constexpr qsizetype avatarBytes = qsizetype(3) * avatarSide * avatarSide;

/// A picture of avatarSide by avatarSide pixels, each 0xRRGGBB with anything in the byte above.
using AvatarPixels = std::span<const std::uint32_t, std::size_t(avatarSide) * avatarSide>;

/// The bytes of that picture.
inline QByteArray avatarBodyOf(AvatarPixels pixels)
{
    QByteArray body;
    body.reserve(avatarBytes);
    for (const std::uint32_t pixel : pixels) {
        for (const int shift : {0, 8, 16})
            body.append(static_cast<char>(pixel >> shift & 0xFF));
    }
    return body;
}

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
