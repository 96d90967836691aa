// Avatars as images, for the windows.
#pragma once

#include "base/avatar.h"

#include <QImage>

namespace nimb
{

/// The image that the bytes of an avatar describe; a null image for any other number of bytes.
inline QImage avatarImage(const QByteArray &body)
{
    if (body.size() != avatarBytes)
        return {};
    // The lines follow each other without the gap that Qt would expect.
    return QImage(reinterpret_cast<const uchar *>(body.constData()), avatarSide, avatarSide, qsizetype(3) * avatarSide,
                  QImage::Format_BGR888)
        .copy();
}

/// The bytes of an image, which is stretched over the square; none of a null image.
inline QByteArray avatarBody(const QImage &image)
{
    if (image.isNull())
        return {};
    const QImage stretched = image.scaled(avatarSide, avatarSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_RGB32);
    return avatarBodyOf(
        AvatarPixels(reinterpret_cast<const std::uint32_t *>(stretched.constBits()), AvatarPixels::extent));
}

} // namespace nimb
