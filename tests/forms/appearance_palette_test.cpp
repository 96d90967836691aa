#include "widgets/appearance_palette.h"

#include "widgets/band.h"
#include "widgets/muted_colour.h"
#include "widgets/muted_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>

namespace nimb::test
{
namespace
{

using Scheme = Appearance::Scheme;

const QPalette lightDesktop(QColor(0xEF, 0xEF, 0xEF));

QPalette darkDesktop()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    return palette;
}

TEST(AppearancePalette, LeavesTheDesktopsColoursWhereTheyAreWhatItAsksFor)
{
    EXPECT_FALSE(paletteFor({}, lightDesktop));
    EXPECT_FALSE(paletteFor({}, darkDesktop()));
    EXPECT_FALSE(paletteFor({Scheme::light, false}, lightDesktop));
    EXPECT_FALSE(paletteFor({Scheme::dark, false}, darkDesktop()));
}

TEST(AppearancePalette, BringsWhatTheDesktopAsksForAndItsStyleDoesNot)
{
    const auto dark = paletteFor({Scheme::dark, false}, lightDesktop);
    ASSERT_TRUE(dark);
    EXPECT_TRUE(isDark(dark->color(QPalette::Base)));
    EXPECT_TRUE(isDark(dark->color(QPalette::Window)));
    const auto light = paletteFor({Scheme::light, false}, darkDesktop());
    ASSERT_TRUE(light);
    EXPECT_FALSE(isDark(light->color(QPalette::Base)));
}

TEST(AppearancePalette, HighContrastIsBlackAndWhiteOnEitherGround)
{
    for (const Scheme scheme : {Scheme::dark, Scheme::light}) {
        const auto palette = paletteFor({scheme, true}, lightDesktop);
        ASSERT_TRUE(palette);
        EXPECT_EQ(contrast(palette->color(QPalette::Text), palette->color(QPalette::Base)), 21);
        EXPECT_EQ(isDark(palette->color(QPalette::Base)), scheme == Scheme::dark);
    }
    EXPECT_TRUE(isDark(paletteFor({Scheme::unsaid, true}, darkDesktop())->color(QPalette::Base)));
}

TEST(AppearancePalette, EverythingThatIsReadStandsOutFromItsGround)
{
    for (const Appearance &appearance : {Appearance{Scheme::dark, false}, Appearance{Scheme::light, false},
                                         Appearance{Scheme::dark, true}, Appearance{Scheme::light, true}}) {
        const QPalette desktop = appearance.scheme == Scheme::dark ? lightDesktop : darkDesktop();
        const QPalette palette = *paletteFor(appearance, desktop);
        const auto stands = [&palette](QPalette::ColorRole text, QPalette::ColorRole ground, double least) {
            EXPECT_GE(contrast(palette.color(text), palette.color(ground)), least) << text << " on " << ground;
        };
        constexpr double readable = 4.5, visible = 3;
        stands(QPalette::WindowText, QPalette::Window, readable);
        stands(QPalette::Text, QPalette::Base, readable);
        stands(QPalette::Text, QPalette::AlternateBase, readable);
        stands(QPalette::ButtonText, QPalette::Button, readable);
        stands(QPalette::ToolTipText, QPalette::ToolTipBase, readable);
        stands(QPalette::Link, QPalette::Base, readable);
        stands(QPalette::HighlightedText, QPalette::Highlight, visible);
        stands(QPalette::PlaceholderText, QPalette::Base, visible);
        EXPECT_GE(contrast(mutedTextColour(palette), palette.color(QPalette::Base)), readable);
    }
}

TEST(MutedText, StaysReadableWhenTheDesktopChangesItsColours)
{
    QWidget window;
    auto *const label = new QLabel(QStringLiteral("away"), &window);
    keepMuted(*label);
    for (const Scheme scheme : {Scheme::dark, Scheme::light, Scheme::dark}) {
        const QPalette palette = *paletteFor({scheme, false}, scheme == Scheme::dark ? lightDesktop : darkDesktop());
        window.setPalette(palette);
        const QColor shown = label->palette().color(QPalette::WindowText);
        EXPECT_EQ(shown, mutedTextColour(palette));
        EXPECT_GE(contrast(shown, palette.color(QPalette::Base)), 4.5);
    }
}

TEST(LinksOfABand, HaveTheColourOfTheDesktopThatIsThereNow)
{
    QWidget window;
    QLabel *const band = makeBandWithLink(&window);
    band->setText(QStringLiteral("<a href=\"year\">for a year</a>"));
    band->resize(200, 40);
    band->show();
    window.show();
    const QPalette before = QApplication::palette();
    for (const Scheme scheme : {Scheme::light, Scheme::dark, Scheme::light}) {
        const QPalette palette = *paletteFor({scheme, false}, scheme == Scheme::dark ? lightDesktop : darkDesktop());
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QImage image = band->grab().toImage();
        int ofLink = 0; // its underline alone has so many
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ofLink += image.pixelColor(x, y) == palette.color(QPalette::Link) ? 1 : 0;
        }
        EXPECT_GT(ofLink, 10) << palette.color(QPalette::Link).name().toStdString();
    }
    QApplication::setPalette(before);
}

TEST(Band, HasAnEdgeInHighContrastAlone)
{
    QWidget window;
    QLabel *const label = makeBand(&window);
    auto *const strip = new BandStrip(&window);
    for (const Appearance &appearance : {Appearance{Scheme::light, false}, Appearance{Scheme::dark, false},
                                         Appearance{Scheme::light, true}, Appearance{Scheme::dark, true}}) {
        const QPalette palette
            = *paletteFor(appearance, appearance.scheme == Scheme::dark ? lightDesktop : darkDesktop());
        const QColor expected = palette.color(appearance.highContrast ? QPalette::ToolTipText : QPalette::ToolTipBase);
        for (QWidget *const band : std::initializer_list<QWidget *>{label, strip}) {
            band->setPalette(palette);
            band->resize(100, 30);
            const QImage image = band->grab().toImage();
            for (const QPoint &place : {QPoint(0, 0), QPoint(50, 0), QPoint(99, 15), QPoint(50, 29), QPoint(0, 29)})
                EXPECT_EQ(image.pixelColor(place), expected) << place.x() << ' ' << place.y();
        }
    }
}

} // namespace
} // namespace nimb::test
