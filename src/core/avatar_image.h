// Avatars as images, for what has Qt's images: the windows and the sources of pictures.
#pragma once

#include "core/avatar.h"

#include <QImage>

namespace nimb
{

/// The image that the bytes of an avatar describe; a null image for any other number of bytes.
inline QImage avatarImage(const QByteArray &body)
{
    if (body.size() != avatarBytes)
        return {};
    // The lines follow each other without the gap that Qt would expect.
    return QImage(reinterpret_cast<const uchar *>(body.constData()), avatarSide, avatarSide, 3 * avatarSide,
                  QImage::Format_BGR888)
        .copy();
}

/// The bytes of an image, which is stretched over the square; none of a null image.
inline QByteArray avatarBody(const QImage &image)
{
    if (image.isNull())
        return {};
    const QImage stretched = image.scaled(avatarSide, avatarSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_BGR888);
    QByteArray body;
    for (int y = 0; y < avatarSide; ++y)
        body.append(reinterpret_cast<const char *>(stretched.constScanLine(y)), 3 * avatarSide);
    return body;
}

} // namespace nimb
