// Draws the pictures of a log.
#pragma once

#include <QHash>
#include <QImage>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextObjectInterface>

#include <functional>
#include <optional>

namespace nimb
{

struct IndexedBitmap;

/// The colour of the corner is the ground, which is left transparent.
QImage imageOf(const IndexedBitmap &bitmap);
/// The same with every pixel drawn as a square of this many device pixels.
QImage enlarged(const QImage &image, int factor);

/// Takes the place of Qt's own handler for images, which would look for them in files. A pixel of a picture covers a
/// whole number of device pixels, so that it is as sharp on every screen and in every zoom as it was drawn.
class LogPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// deviceScale: device pixels per logical pixel, times the zoom of the text.
    /// deviceRatio: device pixels per logical pixel.
    LogPictures(std::function<qreal()> deviceScale, std::function<qreal()> deviceRatio, QObject *parent);

    /// The format of a character that shows the fragment's picture; nothing when the fragment holds none.
    std::optional<QTextImageFormat> format(const QString &fragment, const QString &alternative);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    int factor() const;

    std::function<qreal()> m_deviceScale;
    std::function<qreal()> m_deviceRatio;
    QHash<QString, QString> m_names; ///< by fragment
    QHash<QString, QImage> m_images; ///< by name
};

/// What a picture's character stands for in copied and spoken text; empty for any other character.
QString alternativeText(const QTextFormat &format);

/// The document's text between two positions, pictures as what they stand for, lines broken by "\n".
QString textWithAlternatives(const QTextDocument &document, int from, int to);

} // namespace nimb
