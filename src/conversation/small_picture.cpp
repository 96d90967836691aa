#include "conversation/small_picture.h"

#include "base/event_loop_calls.h"
#include "base/limits.h"
#include "base/work_thread.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QImageReader>

#include <utility>

namespace nimb
{
namespace
{

/// Breaks off when nobody wants the picture any more, or it takes too long: its reader sees a file that ends.
class WantedFileBytes : public QFile
{
public:
    WantedFileBytes(const QString &path, const std::function<bool()> &isUnwanted)
        : QFile(path), m_isUnwanted(isUnwanted)
    {
    }

    bool isBrokenOff() const { return m_isUnwanted() || m_deadline.hasExpired(); }

protected:
    qint64 readData(char *data, qint64 most) override { return isBrokenOff() ? -1 : QFile::readData(data, most); }

private:
    const std::function<bool()> &m_isUnwanted;
    const QDeadlineTimer m_deadline{limits::shownPictureTime};
};

} // namespace

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

SmallPicture smallPicture(const QString &path, QSize room, const std::function<bool()> &isUnwanted)
{
    WantedFileBytes file(path, isUnwanted);
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
    if (!size.isValid())
        return {};
    if (qint64(size.width()) * size.height() > limits::shownPicturePixels)
        return {.isTooLarge = true};
    if (size.width() > room.width() || size.height() > room.height())
        // JPEG and WebP do it while they are read. A long line keeps its breadth of one pixel.
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage picture = reader.read();
    return {.picture = file.isBrokenOff() ? QImage() : picture}; // the rest would be made up
}

SmallPictures::SmallPictures() : m_calls(std::make_unique<EventLoopCalls>()) { }

SmallPictures::~SmallPictures()
{
    m_isOver = true;
}

std::unique_ptr<PictureReading> SmallPictures::read(const QString &path, QSize room,
                                                    std::function<void(const SmallPicture &)> done)
{
    auto reading = std::make_unique<PictureReading>();
    if (!m_thread)
        m_thread = std::make_unique<WorkThread>();
    m_thread->put([this, path, room, done = std::move(done), isUnwanted = reading->isUnwanted] {
        if (*isUnwanted)
            return;
        const SmallPicture picture = smallPicture(path, room, [&] { return *isUnwanted || m_isOver; });
        m_calls->put([picture, done, isUnwanted] {
            if (!*isUnwanted)
                done(picture);
        });
    });
    return reading;
}

} // namespace nimb
