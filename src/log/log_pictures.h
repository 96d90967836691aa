// Draws the pictures of a log.
#pragma once

#include <QHash>
#include <QImage>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextObjectInterface>

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

namespace nimb
{

struct IndexedBitmap;

/// The colour of the corner is the ground, which is left transparent.
QImage imageOf(const IndexedBitmap &bitmap);
/// The same with every pixel drawn as a square of this many device pixels.
QImage enlarged(const QImage &image, int factor);

/// Takes the place of Qt's own handler for images, which would look for them in files. The emoticons' pictures are
/// drawn as faces as high as the letters. Of any other one a pixel covers a whole number of device pixels, so that it
/// is as sharp on every screen and in every zoom as it was drawn.
class LogPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    struct Scale {
        qreal deviceRatio = 1;   ///< device pixels per logical pixel
        qreal zoom = 1;          ///< of the text
        qreal letterHeight = 12; ///< logical pixels, from the highest to the lowest, zoomed
    };
    LogPictures(std::function<Scale()> scale, QObject *parent);

    /// The format of a character that shows the fragment's picture; nothing when the fragment holds none.
    std::optional<QTextImageFormat> format(const QString &fragment, const QString &alternative);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    /// Whole device pixels per pixel of a picture.
    static int factor(const Scale &scale);
    /// Of a face, in device pixels.
    static int sideOf(const Scale &scale);
    QImage drawn(std::size_t face, const Scale &scale);

    std::function<Scale()> m_scale;
    QHash<QString, QString> m_names; ///< by fragment
    QHash<QString, QImage> m_images; ///< by name, those that are no faces
    std::array<QImage, 9> m_faces;   ///< as they were drawn last
};

/// Which face a picture's character shows, 1 to 9; nothing for any other character.
std::optional<std::size_t> faceOf(const QTextFormat &format);

/// What a picture's character stands for in copied and spoken text; empty for any other character.
QString alternativeText(const QTextFormat &format);

/// The document's text between two positions, pictures as what they stand for, lines broken by "\n".
QString textWithAlternatives(const QTextDocument &document, int from, int to);
/// The same as it is read aloud: faces by their names.
QString spokenText(const QTextDocument &document, int from, int to);

} // namespace nimb
