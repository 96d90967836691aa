#include "conversation/small_picture.h"

#include "base/limits.h"

#include <QFile>
#include <QImageReader>

namespace nimb
{

QByteArray pictureFormatOf(const QByteArray &firstBytes)
{
    if (firstBytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (firstBytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (firstBytes.startsWith("GIF87a") || firstBytes.startsWith("GIF89a"))
        return "gif";
    if (firstBytes.startsWith("RIFF") && firstBytes.mid(8, 4) == "WEBP")
        return "webp";
    return {};
}

QImage smallPicture(const QString &path, QSize room)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    constexpr qint64 longestMark = 12;
    const QByteArray format = pictureFormatOf(file.peek(longestMark));
    if (format.isEmpty())
        return {};
    QImageReader reader(&file, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > limits::pictureFilePixels)
        return {};
    if (size.width() > room.width() || size.height() > room.height())
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace nimb
