// The program's pictures, in a process that finds no plugin but the one that draws windows.
#include "main_window/Tray.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"

#include <QApplication>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QLibraryInfo>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

namespace nimb::test
{
namespace
{

/// The names of all drawings in the sources.
std::vector<QString> drawings(const QString &folder)
{
    std::vector<QString> names;
    QDirIterator files(QStringLiteral(NIMB_DRAWINGS) + folder, {QStringLiteral("*.svg")}, QDir::Files);
    while (files.hasNext())
        names.push_back(QFileInfo(files.next()).completeBaseName());
    return names;
}

/// Whether a corner is left free and something is seen.
bool isDrawn(const QImage &image)
{
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar *const line = alpha.constScanLine(y);
        if (std::any_of(line, line + alpha.width(), [](uchar value) { return value > 200; }))
            return alpha.pixelColor(0, 0).alpha() == 0;
    }
    return false;
}

/// Whether every pixel that can be seen at all has this colour.
bool hasOnlyColour(const QImage &image, const QColor &colour)
{
    bool visible = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 200) // what is half transparent is rounded
                continue;
            visible = true;
            if (qAbs(pixel.red() - colour.red()) > 2 || qAbs(pixel.green() - colour.green()) > 2
                || qAbs(pixel.blue() - colour.blue()) > 2)
                return false;
        }
    }
    return visible;
}

bool showsColour(const QImage &image, const QColor &colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

class Palette
{
public:
    explicit Palette(const QColor &text, const QColor &ground) : m_before(QGuiApplication::palette())
    {
        QPalette palette(ground);
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            palette.setColor(role, text);
        palette.setColor(QPalette::HighlightedText, Qt::yellow);
        palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
        QApplication::setPalette(palette);
    }
    ~Palette() { QApplication::setPalette(m_before); }
    Palette(const Palette &) = delete;
    Palette &operator=(const Palette &) = delete;

private:
    QPalette m_before;
};

TEST(Pictures, NoPluginReadsThem)
{
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    EXPECT_FALSE(formats.contains("jpeg")) << "a plugin was found after all";
    EXPECT_FALSE(formats.contains("svg"));
}

TEST(Pictures, EveryDrawingIsThereInEverySizeAndScale)
{
    std::vector<QString> names = drawings(QString());
    EXPECT_GE(names.size(), 7U);
    const std::vector<QString> masks = drawings(QStringLiteral("/masks"));
    EXPECT_GE(masks.size(), 16U);
    names.insert(names.end(), masks.begin(), masks.end());
    for (const QString &name : names) {
        const QIcon picture = namedPicture(name);
        EXPECT_FALSE(picture.isNull());
        for (const int side : {16, 24, 32, 48, 64}) {
            for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
                const QPixmap pixels = picture.pixmap(QSize(side, side), scale);
                EXPECT_EQ(pixels.size(), (QSizeF(side, side) * scale).toSize())
                    << name.toStdString() << " at " << scale;
                EXPECT_EQ(pixels.devicePixelRatio(), scale);
                EXPECT_TRUE(isDrawn(pixels.toImage())) << name.toStdString() << " at " << side;
            }
        }
    }
}

TEST(Pictures, AreRenderedForTheSizeAndNotScaled)
{
    for (const int side : {16, 20, 24, 28, 32, 40, 48, 72, 96, 128, 256}) {
        const QImage shown = namedPicture(QStringLiteral("green")).pixmap(side, side).toImage();
        const QImage rendered(QStringLiteral(":/pictures/green-%1.png").arg(side));
        ASSERT_FALSE(rendered.isNull()) << side;
        const auto format = QImage::Format_ARGB32_Premultiplied;
        EXPECT_EQ(shown.convertToFormat(format), rendered.convertToFormat(format)) << side;
    }
}

TEST(Pictures, ASizeBetweenIsScaledFromALargerOne)
{
    const QImage shown = namedPicture(QStringLiteral("green")).pixmap(50, 50).toImage();
    EXPECT_EQ(shown.size(), QSize(50, 50));
    EXPECT_EQ(shown.pixelColor(25, 5), QColor(0x2a, 0x9d, 0x4e));
}

TEST(Pictures, ANameWithoutADrawingIsAnEmptyPicture)
{
    EXPECT_TRUE(namedPicture(QStringLiteral("nothing")).pixmap(16, 16).isNull());
}

TEST(Pictures, ThoseOfOneColourTakeTheTextColour)
{
    for (const QString &name : drawings(QStringLiteral("/masks"))) {
        const QIcon picture = namedPicture(name);
        {
            const Palette light(Qt::black, Qt::white);
            EXPECT_TRUE(hasOnlyColour(picture.pixmap(48, 48).toImage(), Qt::black)) << name.toStdString();
            EXPECT_TRUE(hasOnlyColour(picture.pixmap(48, 48, QIcon::Disabled).toImage(), Qt::gray))
                << name.toStdString();
        }
        const Palette dark(Qt::white, Qt::black);
        EXPECT_TRUE(hasOnlyColour(picture.pixmap(48, 48).toImage(), Qt::white)) << name.toStdString();
        EXPECT_TRUE(hasOnlyColour(picture.pixmap(48, 48, QIcon::Selected).toImage(), Qt::yellow)) << name.toStdString();
    }
}

/// What a painter adds up: a colour is never brighter than its share of the point.
bool isSound(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb point = line[x];
            if (qMax(qRed(point), qMax(qGreen(point), qBlue(point))) > qAlpha(point))
                return false;
        }
    }
    return true;
}

TEST(Pictures, NoneHasAFringeInAnySize)
{
    const Palette dark(QColor(0xEE, 0xEE, 0xEE), Qt::black);
    const QIcon avatar = namedPicture(QStringLiteral("avatar")), online = namedPicture(QStringLiteral("green"));
    for (int side = 16; side <= 96; ++side) {
        EXPECT_TRUE(isSound(avatar.pixmap(side, side).toImage())) << side;
        EXPECT_TRUE(isSound(online.pixmap(side, side).toImage())) << side;
    }
}

TEST(Pictures, ThoseOfSeveralColoursKeepThem)
{
    const Palette dark(Qt::white, Qt::black);
    const QColor green(0x2a, 0x9d, 0x4e);
    const QIcon picture = namedPicture(QStringLiteral("green"));
    EXPECT_TRUE(showsColour(picture.pixmap(16, 16).toImage(), green));
    EXPECT_TRUE(showsColour(picture.pixmap(16, 16, QIcon::Selected).toImage(), green));
    EXPECT_FALSE(showsColour(picture.pixmap(16, 16, QIcon::Disabled).toImage(), green));
}

TEST(Pictures, AreGivenToWindowManagersInEverySizeThatTheyShow)
{
    EXPECT_THAT(programIcon().availableSizes(),
                testing::IsSupersetOf({QSize(16, 16), QSize(32, 32), QSize(48, 48), QSize(256, 256)}));
}

TEST(Pictures, OfAWindowTakeLessThanHalfAMegabyte)
{
    int bytes = 0;
    for (const QSize size : programIcon().availableSizes())
        bytes += size.width() * size.height() * 4;
    EXPECT_LT(bytes, 500'000);
}

TEST(Pictures, AreDrawnInSizesThatNoWindowIsGiven)
{
    EXPECT_EQ(programIcon().pixmap(60, 60).size(), QSize(60, 60));
    EXPECT_EQ(programIcon().pixmap(160, 160).size(), QSize(160, 160));
}

TEST(Pictures, AreDrawnCrispIntoAControl)
{
    QPixmap target(40, 20);
    target.fill(Qt::white);
    QPainter painter(&target);
    namedPicture(QStringLiteral("green")).paint(&painter, QRect(4, 0, 20, 20));
    painter.end();
    QImage expected(40, 20, QImage::Format_RGB32);
    expected.fill(Qt::white);
    const QImage rendered(QStringLiteral(":/pictures/green-20.png"));
    QPainter(&expected).drawImage(4, 0, rendered.convertToFormat(QImage::Format_ARGB32_Premultiplied));

    EXPECT_EQ(target.toImage().convertToFormat(QImage::Format_RGB32), expected);
}

TEST(PictureLabel, TakesTheNewTextColourWhenItChanges)
{
    PictureLabel label(namedPicture(QStringLiteral("tip")), 48, nullptr);
    label.show();
    const Palette dark(Qt::white, Qt::black);
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasOnlyColour(label.pixmap().toImage(), Qt::white); }));
}

TEST(TrayIcon, BearsABadgeAtEverySizeAndTheNumberWhereItCanBeRead)
{
    const QIcon one = badgedIcon(programIcon(), 1), many = badgedIcon(programIcon(), 12);
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        const QSize size(side, side);
        const QImage plain = programIcon().pixmap(size, 1.0).toImage(), badged = one.pixmap(size, 1.0).toImage();
        EXPECT_TRUE(showsColour(badged, QColor(0xC6, 0x28, 0x28))) << side;
        EXPECT_FALSE(showsColour(plain, QColor(0xC6, 0x28, 0x28))) << side;
        EXPECT_EQ(badged.pixelColor(1, 1), plain.pixelColor(1, 1)) << side;
        EXPECT_EQ(badged != many.pixmap(size, 1.0).toImage(), side > 16) << side;
    }
}

} // namespace
} // namespace nimb::test

int main(int argumentCount, char **arguments)
{
    testing::InitGoogleMock(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH",
            (QLibraryInfo::path(QLibraryInfo::PluginsPath) + QLatin1String("/platforms")).toUtf8());
    QCoreApplication::setLibraryPaths({});
    QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
