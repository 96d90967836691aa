// A picture as a frame of the own polled picture.
#pragma once

#include "base/avatar.h"

#include <QImage>

namespace nimb
{

/// The middle square of the picture, not the whole of it squeezed; nothing of a null picture.
inline QByteArray frameOf(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const int side = qMin(picture.width(), picture.height());
    const QImage frame = picture.copy((picture.width() - side) / 2, (picture.height() - side) / 2, side, side)
                             .scaled(avatarSide, avatarSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGB32);
    return avatarBodyOf(AvatarPixels(reinterpret_cast<const std::uint32_t *>(frame.constBits()), AvatarPixels::extent));
}

} // namespace nimb
