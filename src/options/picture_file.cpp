#include "options/picture_file.h"

#include "base/limits.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace nimb
{
namespace
{

QString sentence(const char *text)
{
    return QCoreApplication::translate("PictureFile", text);
}

const char *const tooLarge = QT_TRANSLATE_NOOP("PictureFile",
                                               "This picture has more than 50 megapixels. Choose a "
                                               "smaller one.");
const char *const damaged = QT_TRANSLATE_NOOP("PictureFile", "This picture is damaged.");
const char *const unknownSize = QT_TRANSLATE_NOOP("PictureFile", "This picture is damaged, or far too large.");
const char *const noPicture = QT_TRANSLATE_NOOP("PictureFile", "This is no picture that NIMB-Chat can read.");

bool isTooLarge(const QSize &size)
{
    return qint64(size.width()) * size.height() > limits::pictureFilePixels;
}

/// Knows whether its reader wanted more than there is: several of Qt's readers then make up the rest of the picture
/// and report success.
class WatchedSource : public QIODevice
{
public:
    explicit WatchedSource(QIODevice &source) : m_source(source) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    void forget() { m_shortReads = m_emptyReads = false; }
    bool cameShort() const { return m_shortReads; }
    bool cameToItsEnd() const { return m_emptyReads; }

    qint64 size() const override { return m_source.size(); }
    bool seek(qint64 position) override { return QIODevice::seek(position) && m_source.seek(position); }

protected:
    qint64 readData(char *data, qint64 wanted) override
    {
        const qint64 got = m_source.read(data, wanted);
        m_shortReads |= got < wanted;
        m_emptyReads |= got <= 0 && wanted > 0;
        return got;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice &m_source;
    bool m_shortReads = false;
    bool m_emptyReads = false;
};

/// Bitmaps are read piece by piece, each of a known size; the two others in chunks, until the picture is complete.
bool endedTooEarly(const WatchedSource &source, const QByteArray &format)
{
    if (format == "bmp" || format == "dib")
        return source.cameShort();
    return (format == "jpeg" || format == "jpg" || format == "gif") && source.cameToItsEnd();
}

QImage onWhite(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage ground(picture.size(), QImage::Format_RGB32);
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(0, 0, picture);
    return ground;
}

} // namespace

ReadPicture checkPicture(const QImage &picture)
{
    if (picture.isNull())
        return sentence(noPicture);
    if (isTooLarge(picture.size()))
        return sentence(tooLarge);
    return onWhite(picture);
}

ReadPicture readPicture(QIODevice &source)
{
    WatchedSource watched(source);
    QImageReader reader(&watched);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (format.isEmpty())
        return sentence(noPicture);
    const QSize size = reader.size();
    if (isTooLarge(size))
        return sentence(tooLarge);
    watched.forget();
    const QImage picture = reader.read();
    // Some of Qt's readers take no header with more than 16384 pixels per side.
    if (picture.isNull() && !size.isValid())
        return sentence(unknownSize);
    if (picture.isNull() || endedTooEarly(watched, format))
        return sentence(damaged);
    return checkPicture(picture);
}

ReadPicture readPictureFile(const QString &path)
{
    QFile file(path);
    // Anything else than a file may never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("PictureFile", "\"%1\" cannot be opened.").arg(QFileInfo(path).fileName());
    return readPicture(file);
}

} // namespace nimb
