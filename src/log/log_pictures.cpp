#include "log/log_pictures.h"

#include "log/metafile.h"

#include <QPainter>
#include <QTextBlock>

namespace nimb
{

QImage imageOf(const IndexedBitmap &bitmap)
{
    QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32);
    const std::uint8_t ground = bitmap.pixels.front();
    for (int y = 0; y < bitmap.height; ++y) {
        for (int x = 0; x < bitmap.width; ++x) {
            const std::uint8_t index = bitmap.pixels[std::size_t(y) * std::size_t(bitmap.width) + std::size_t(x)];
            image.setPixel(x, y, index == ground ? 0 : 0xFF000000 | bitmap.palette[index]);
        }
    }
    return image;
}

QImage enlarged(const QImage &image, int factor)
{
    return image.scaled(image.size() * factor, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

LogPictures::LogPictures(std::function<qreal()> deviceScale, std::function<qreal()> deviceRatio, QObject *parent)
    : QObject(parent), m_deviceScale(std::move(deviceScale)), m_deviceRatio(std::move(deviceRatio))
{
}

std::optional<QTextImageFormat> LogPictures::format(const QString &fragment, const QString &alternative)
{
    QString name = m_names.value(fragment);
    if (name.isEmpty()) {
        const std::optional<IndexedBitmap> bitmap = decodePictureFragment(fragment);
        if (!bitmap)
            return std::nullopt;
        name = QStringLiteral("picture %1").arg(m_names.size() + 1);
        m_names.insert(fragment, name);
        m_images.insert(name, imageOf(*bitmap));
    }
    QTextImageFormat format;
    format.setName(name);
    format.setProperty(QTextFormat::ImageAltText, alternative);
    return format;
}

int LogPictures::factor() const
{
    return qMax(1, qRound(m_deviceScale()));
}

QSizeF LogPictures::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const QImage &image = m_images[format.toImageFormat().name()];
    return QSizeF(image.size()) * factor() / m_deviceRatio();
}

void LogPictures::drawObject(QPainter *painter, const QRectF &place, QTextDocument *, int, const QTextFormat &format)
{
    QImage image = enlarged(m_images[format.toImageFormat().name()], factor());
    image.setDevicePixelRatio(m_deviceRatio());
    const QTransform toDevice = painter->deviceTransform();
    const QPoint corner = toDevice.map(place.topLeft()).toPoint();
    painter->drawImage(toDevice.inverted().map(QPointF(corner)), image);
}

QString alternativeText(const QTextFormat &format)
{
    return format.isImageFormat() ? format.stringProperty(QTextFormat::ImageAltText) : QString();
}

QString textWithAlternatives(const QTextDocument &document, int from, int to)
{
    QString text;
    for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() < to; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int first = qMax(fragment.position(), from);
            const int length = qMin(fragment.position() + fragment.length(), to) - first;
            if (length <= 0)
                continue;
            const QString alternative = alternativeText(fragment.charFormat());
            text += alternative.isEmpty() ? fragment.text().mid(first - fragment.position(), length)
                                          : alternative.repeated(length);
        }
        if (block.position() + block.length() <= to)
            text += QLatin1Char('\n');
    }
    return text;
}

} // namespace nimb
