// A picture that somebody else has sent, made small enough to be shown beside the conversation.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace nimb
{

/// What the first bytes of a file say that it is, for Qt: "png", "jpeg", "gif" or "webp"; empty for all else, however
/// it is named. Nothing that may lead elsewhere, such as a drawing with links, is among them.
QByteArray pictureFormatOf(const QByteArray &firstBytes);

/// Not larger than the room. Null where it is none of those formats, cannot be read, or has more pixels than anybody
/// photographs. From any thread.
QImage smallPicture(const QString &path, QSize room);

} // namespace nimb
