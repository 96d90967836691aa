#include "widgets/appearance_palette.h"

#include "widgets/muted_colour.h"

namespace nimb
{
namespace
{

struct Tones {
    QRgb window, base, alternate, button, text, faint, accent, onAccent, link, note,
        onNote; ///< notes: tool tips, bands
};

constexpr Tones lightTones{0xFFEFF0F2, 0xFFFFFFFF, 0xFFF6F7F9, 0xFFEFF0F2, 0xFF1B1F24, 0xFF8A9099,
                           0xFF2F7BD8, 0xFFFFFFFF, 0xFF1A5FB4, 0xFFFFF3CF, 0xFF1B1F24};
constexpr Tones darkTones{0xFF2B2D31, 0xFF1E1F22, 0xFF26282C, 0xFF35383D, 0xFFE6E8EB, 0xFF858A92,
                          0xFF3B82D6, 0xFFFFFFFF, 0xFF78AEED, 0xFF4A3D12, 0xFFFFEDB8};
constexpr Tones blackOnWhite{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF595959,
                             0xFF00309C, 0xFFFFFFFF, 0xFF00309C, 0xFFFFFFFF, 0xFF000000};
constexpr Tones whiteOnBlack{0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFFA6A6A6,
                             0xFFFFE14D, 0xFF000000, 0xFFFFE14D, 0xFF000000, 0xFFFFFFFF};

/// Fusion and most other styles take their edges from these.
QPalette paletteOf(const Tones &tones)
{
    QPalette palette(QColor(tones.button), QColor(tones.window));
    palette.setColor(QPalette::Base, QColor(tones.base));
    palette.setColor(QPalette::AlternateBase, QColor(tones.alternate));
    palette.setColor(QPalette::PlaceholderText, QColor(tones.faint));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText}) {
        palette.setColor(role, QColor(tones.text));
        palette.setColor(QPalette::Disabled, role, QColor(tones.faint));
    }
    palette.setColor(QPalette::ToolTipBase, QColor(tones.note));
    palette.setColor(QPalette::ToolTipText, QColor(tones.onNote));
    palette.setColor(QPalette::Highlight, QColor(tones.accent));
    palette.setColor(QPalette::HighlightedText, QColor(tones.onAccent));
    palette.setColor(QPalette::Link, QColor(tones.link));
    palette.setColor(QPalette::LinkVisited, QColor(tones.link));
    return palette;
}

} // namespace

std::optional<QPalette> paletteFor(const Appearance &appearance, const QPalette &desktops)
{
    const bool desktopIsDark = isDark(desktops.color(QPalette::Base));
    const bool dark = appearance.scheme == Appearance::Scheme::unsaid ? desktopIsDark
                                                                      : appearance.scheme == Appearance::Scheme::dark;
    if (appearance.highContrast)
        return paletteOf(dark ? whiteOnBlack : blackOnWhite);
    if (dark == desktopIsDark)
        return std::nullopt;
    return paletteOf(dark ? darkTones : lightTones);
}

} // namespace nimb
