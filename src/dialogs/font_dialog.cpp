#include "dialogs/font_dialog.h"

#include "core/log_font.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

namespace nimb
{

LogFontDialog::LogFontDialog(const LogFont &preset, Prompts &prompts, QWidget *parent)
    : QFontDialog(parent), m_prompts(prompts)
{
    setObjectName(QStringLiteral("font_dialog"));
    setWindowTitle(tr("Font of the logs"));
    // The desktop's own dialogs cannot be kept open when the size is none of ours.
    setOption(QFontDialog::DontUseNativeDialog);
    // A face that is not installed, or stands for another one, offers no bold: the real one does.
    const QFont font = fontOf(preset);
    setCurrentFont(QFont(QFontInfo(font).family(), font.pointSize(), font.weight(), font.italic()));
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
    QString style;
    if (font.bold())
        style += QLatin1Char('b');
    if (font.italic())
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
