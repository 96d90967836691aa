#include "options/font_dialog.h"

#include "log/log_font.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

namespace nimb
{
namespace
{

/// The name of the face's style that is just bold, italic, both or neither; empty when there is none. "Condensed Bold"
/// is bold as well: the shortest name is the plain one.
QString styleName(const QString &family, bool bold, bool italic)
{
    QString best;
    for (const QString &style : QFontDatabase::styles(family)) {
        const int weight = QFontDatabase::weight(family, style);
        if (weight != (bold ? QFont::Bold : QFont::Normal) || QFontDatabase::italic(family, style) != italic)
            continue;
        if (best.isEmpty() || style.size() < best.size())
            best = style;
    }
    return best;
}

/// The stored font as the dialog must be told: the real face, for one that is not installed offers no styles, and its
/// style by name, for Qt finds none that the face calls in its own way ("Book") and takes the first instead.
QFont presetFont(const LogFont &preset)
{
    QFont font = fontOf(preset);
    const QString family = QFontInfo(font).family();
    font = QFont(family, font.pointSize());
    for (const auto &[bold, italic] :
         {std::pair(preset.bold(), preset.italic()), {preset.bold(), false}, {false, false}}) {
        if (const QString style = styleName(family, bold, italic); !style.isEmpty()) {
            font.setStyleName(style);
            break;
        }
    }
    return font;
}

} // namespace

LogFontDialog::LogFontDialog(const LogFont &preset, Prompts &prompts, QWidget *parent)
    : QFontDialog(parent), m_preset(preset), m_prompts(prompts)
{
    setObjectName(QStringLiteral("font_dialog"));
    setWindowTitle(tr("Font of the logs"));
    // The desktop's own dialogs cannot be kept open when the size is none of ours.
    setOption(QFontDialog::DontUseNativeDialog);
    setCurrentFont(presetFont(preset));
    m_shownFirst = currentFont();
    hideEffects();
    // Beside the effects the sample had its height from them.
    if (auto *const sample = findChild<QLineEdit *>(QStringLiteral("qt_fontDialog_sampleEdit")))
        sample->setMinimumHeight(3 * fontMetrics().height());
}

/// Underlined and struck-out logs are not stored.
void LogFontDialog::hideEffects()
{
    for (QGroupBox *const group : findChildren<QGroupBox *>()) {
        if (group->findChild<QCheckBox *>())
            group->hide();
    }
}

LogFont LogFontDialog::chosenFont() const
{
    const QFont font = currentFont();
    const bool sameStyle = font.styleName() == m_shownFirst.styleName();
    QString style;
    if (sameStyle ? m_preset.bold() : font.bold())
        style += QLatin1Char('b');
    if (sameStyle ? m_preset.italic() : font.italic())
        style += QLatin1Char('i');
    return {font.family(), static_cast<std::int16_t>(font.pointSize()), style};
}

void LogFontDialog::done(int result)
{
    const int size = currentFont().pointSize();
    if (result == QDialog::Accepted && (size < log_font_size::smallest || size > log_font_size::largest)) {
        m_prompts.tell(
            tr("The size must be from %1 to %2 points.").arg(log_font_size::smallest).arg(log_font_size::largest),
            windowTitle());
        return;
    }
    QFontDialog::done(result);
}

} // namespace nimb
