#include "widgets/pictures.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <array>

/// Resources of a static library are there only once somebody asks for them, outside every namespace.
static void registerPictures()
{
    Q_INIT_RESOURCE(pictures);
}

namespace nimb
{
namespace
{

constexpr std::array renderedSizes{NIMB_PICTURE_SIZES}; // pixels, ascending

/// What window managers and trays are given. Each window sends all of them as they are: every size that was rendered
/// takes a megabyte for each.
constexpr std::array iconSizes{16, 22, 24, 32, 48, 64, 128, 256};

/// Larger ones are drawn once, as the icon of a window; they would fill more room than all others together.
constexpr int largestKept = 96;

/// Draws what was rendered while the program was built: no plugin takes part. Only paint() and pixmap() are its own,
/// whose sizes mean the same in every version of Qt.
class PictureEngine : public QIconEngine
{
public:
    explicit PictureEngine(const QString &name)
        : m_isMask(QFile::exists(fileOf(QLatin1String("masks/") + name, renderedSizes.front()))),
          m_path(m_isMask ? QLatin1String("masks/") + name : name)
    {
    }

    /// rect is square: QIcon asks actualSize() first.
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double scale = painter->device()->devicePixelRatio();
        QPixmap picture = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
        picture.setDevicePixelRatio(scale);
        // On whole device pixels, or it would be blurred.
        const QTransform toDevice = painter->deviceTransform();
        const QPoint corner = toDevice.map(QPointF(rect.topLeft())).toPoint();
        painter->drawPixmap(toDevice.inverted().map(QPointF(corner)), picture);
    }

    /// size: device pixels. The result is square.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        if (side <= 0 || isNull())
            return {};
        const QColor colour = colourIn(mode);
        const QString key = QStringLiteral("nimb %1 %2 %3 %4").arg(m_path).arg(side).arg(mode).arg(colour.rgba());
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        QImage image = rendered(side);
        if (m_isMask)
            tint(image, colour);
        result = QPixmap::fromImage(image);
        if (mode == QIcon::Disabled && !m_isMask) {
            QStyleOption option;
            option.palette = QGuiApplication::palette();
            result = QApplication::style()->generatedIconPixmap(mode, result, &option);
        }
        if (side <= largestKept)
            QPixmapCache::insert(key, result);
        return result;
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        return {side, side};
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (const int size : iconSizes)
            sizes.append({size, size});
        return sizes;
    }

    bool isNull() override { return !QFile::exists(fileOf(m_path, renderedSizes.front())); }
    QString key() const override { return QStringLiteral("PictureEngine"); }
    QIconEngine *clone() const override { return new PictureEngine(*this); }

private:
    static QString fileOf(const QString &path, int size)
    {
        return QStringLiteral(":/pictures/%1-%2.png").arg(path).arg(size);
    }

    /// Scaled down where this very size was not rendered.
    QImage rendered(int side) const
    {
        const auto *const next = std::ranges::lower_bound(renderedSizes, side);
        const int size = next == renderedSizes.end() ? renderedSizes.back() : *next;
        // Before it is scaled: turned afterwards, what Qt 6.4 has scaled gets colours brighter than their share.
        const QImage image = QImage(fileOf(m_path, size)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (size == side)
            return image;
        return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    QColor colourIn(QIcon::Mode mode) const
    {
        if (!m_isMask)
            return {};
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::Text);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        default:
            return palette.color(QPalette::Text);
        }
    }

    static void tint(QImage &image, const QColor &colour)
    {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), colour);
    }

    bool m_isMask;
    QString m_path; ///< below :/pictures, without size
};

} // namespace

QIcon namedPicture(const QString &name)
{
    registerPictures();
    return QIcon(new PictureEngine(name));
}

} // namespace nimb
