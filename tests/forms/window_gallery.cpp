// Takes a picture of every window: window_gallery FOLDER light|dark|contrast [POINTS [LANGUAGE]], where 0 points are
// the desktop's
#include "every_window.h"
#include "platform/translations.h"
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

/// code: of a language of the program, or "pseudo".
void speak(Translations &translations, const QString &code)
{
    const bool isPseudo = code == QLatin1String("pseudo");
    translations.use(code, isPseudo ? QStringLiteral(NIMB_PSEUDO_LANGUAGE) : QStringLiteral(NIMB_TRANSLATIONS));
    QGuiApplication::setLayoutDirection(translations.language().textDirection());
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
    const double asked = words.value(3).toDouble(), points = asked > 0 ? asked : application.font().pointSizeF();
    if (!isScheme || words.size() > 5 || asked < 0) {
        std::fprintf(stderr, "usage: window_gallery FOLDER light|dark|contrast [POINTS [LANGUAGE]]\n");
        return 2;
    }
    nimb::Translations translations;
    nimb::test::speak(translations, words.value(4, QStringLiteral("en")));
    nimb::test::applyScheme(words[2]);
    nimb::test::applyFont(points);
    nimb::test::visitEveryWindow([folder = QDir(words[1])](QWidget &window, const char *name) {
        nimb::test::takePicture(window, folder.filePath(QLatin1String(name) + QLatin1String(".png")));
    });
    return 0;
}
