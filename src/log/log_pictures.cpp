#include "log/log_pictures.h"

#include "log/emoticon_face.h"
#include "log/emoticon_tables.h"
#include "log/metafile.h"

#include <QPainter>
#include <QTextBlock>

namespace nimb
{
namespace
{

/// In front of the number, where other pictures have names of their own.
const QString faceMark = QStringLiteral("face ");

/// 0 for a picture that is none.
std::size_t faceOfFragment(const QString &fragment)
{
    for (std::size_t face = 1; face <= emoticonTables.pictures.size(); ++face) {
        if (fragment == emoticonFragment(face))
            return face;
    }
    return 0;
}

} // namespace

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

LogPictures::LogPictures(std::function<Scale()> scale, QObject *parent) : QObject(parent), m_scale(std::move(scale)) { }

std::optional<QTextImageFormat> LogPictures::format(const QString &fragment, const QString &alternative)
{
    QString name = m_names.value(fragment);
    if (const std::size_t face = name.isEmpty() ? faceOfFragment(fragment) : 0; face > 0) {
        name = faceMark + QString::number(face);
        m_names.insert(fragment, name);
    }
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

int LogPictures::factor(const Scale &scale)
{
    return qMax(1, qRound(scale.deviceRatio * scale.zoom));
}

int LogPictures::sideOf(const Scale &scale)
{
    return qMax(12, qRound(scale.letterHeight * scale.deviceRatio));
}

QSizeF LogPictures::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const Scale scale = m_scale();
    if (faceOf(format))
        return QSizeF(sideOf(scale), sideOf(scale)) / scale.deviceRatio;
    const QImage &image = m_images[format.toImageFormat().name()];
    return QSizeF(image.size()) * factor(scale) / scale.deviceRatio;
}

/// A log full of faces would take long to draw one by one.
QImage LogPictures::drawn(std::size_t face, const Scale &scale)
{
    QImage &image = m_faces.at(face - 1);
    const QSize size(sideOf(scale), sideOf(scale));
    if (image.size() == size)
        return image;
    image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintFace(painter, QRectF(QPointF(), QSizeF(size)), face);
    return image;
}

void LogPictures::drawObject(QPainter *painter, const QRectF &place, QTextDocument *, int, const QTextFormat &format)
{
    const Scale scale = m_scale();
    const std::optional<std::size_t> face = faceOf(format);
    QImage image = face ? drawn(*face, scale) : enlarged(m_images[format.toImageFormat().name()], factor(scale));
    image.setDevicePixelRatio(scale.deviceRatio);
    const QTransform toDevice = painter->deviceTransform();
    const QPoint corner = toDevice.map(place.topLeft()).toPoint();
    painter->drawImage(toDevice.inverted().map(QPointF(corner)), image);
}

std::optional<std::size_t> faceOf(const QTextFormat &format)
{
    const QString name = format.isImageFormat() ? format.toImageFormat().name() : QString();
    return name.startsWith(faceMark) ? std::optional<std::size_t>(name.mid(faceMark.size()).toUInt()) : std::nullopt;
}

QString alternativeText(const QTextFormat &format)
{
    return format.isImageFormat() ? format.stringProperty(QTextFormat::ImageAltText) : QString();
}

namespace
{

QString spokenOf(const QTextFormat &format)
{
    const std::optional<std::size_t> face = faceOf(format);
    return face ? faceName(*face) : alternativeText(format);
}

/// insteadOf: what stands for a picture; empty for text.
QString textOf(const QTextDocument &document, int from, int to, QString (*insteadOf)(const QTextFormat &))
{
    QString text;
    for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() < to; block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int first = qMax(fragment.position(), from);
            const int length = qMin(fragment.position() + fragment.length(), to) - first;
            if (length <= 0)
                continue;
            const QString alternative = insteadOf(fragment.charFormat());
            text += alternative.isEmpty() ? fragment.text().mid(first - fragment.position(), length)
                                          : alternative.repeated(length);
        }
        if (block.position() + block.length() <= to)
            text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

QString textWithAlternatives(const QTextDocument &document, int from, int to)
{
    return textOf(document, from, to, alternativeText);
}

QString spokenText(const QTextDocument &document, int from, int to)
{
    return textOf(document, from, to, spokenOf);
}

} // namespace nimb
