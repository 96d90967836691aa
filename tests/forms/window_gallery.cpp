// Takes a picture of every window: window_gallery FOLDER light|dark|contrast [POINTS]
#include "every_window.h"
#include "widgets/appearance_palette.h"
#include "widgets/clear_outlines.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include <cstdio>

namespace nimb::test
{
namespace
{

void applyScheme(const QString &scheme)
{
    const Appearance appearance{scheme == QLatin1String("light") ? Appearance::Scheme::light : Appearance::Scheme::dark,
                                scheme == QLatin1String("contrast")};
    makeOutlinesClear();
    if (const std::optional<QPalette> palette = paletteFor(appearance, QApplication::palette()))
        QApplication::setPalette(*palette);
}

/// The desktop's font at another size.
void applyFont(double points)
{
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

void takePicture(QWidget &window, const QString &file)
{
    if (!window.grab().save(file))
        qFatal("cannot write %s", qPrintable(file));
    std::printf("%s\n", qPrintable(file));
}

} // namespace
} // namespace nimb::test

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    const QStringList words = QCoreApplication::arguments();
    const bool isScheme = words.size() > 2 && QStringList({"light", "dark", "contrast"}).contains(words[2]);
    const double points = words.size() == 4 ? words[3].toDouble() : application.font().pointSizeF();
    if (!isScheme || words.size() > 4 || points <= 0) {
        std::fprintf(stderr, "usage: window_gallery FOLDER light|dark|contrast [POINTS]\n");
        return 2;
    }
    nimb::test::applyScheme(words[2]);
    nimb::test::applyFont(points);
    nimb::test::visitEveryWindow([folder = QDir(words[1])](QWidget &window, const char *name) {
        nimb::test::takePicture(window, folder.filePath(QLatin1String(name) + QLatin1String(".png")));
    });
    return 0;
}
