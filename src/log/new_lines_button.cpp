#include "log/new_lines_button.h"

#include "log/rich_text_log.h"
#include "widgets/pictures.h"

#include <QEvent>
#include <QPainter>
#include <QTextFrame>

namespace nimb
{
namespace
{
constexpr int around = 10, arrowSide = 16, besideText = 4, besideTimes = 6; // pixels
} // namespace

NewLinesButton::NewLinesButton(RichTextLogEdit &log) : QToolButton(&log), m_log(log)
{
    setObjectName(QStringLiteral("newLinesBtn"));
    setIcon(namedPicture(QStringLiteral("down")));
    setToolTip(tr("To the newest line"));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    hide();
    log.viewport()->installEventFilter(this);
    connect(&log, &RichTextLogEdit::linesBelow, this, &NewLinesButton::showLines);
    connect(this, &QToolButton::clicked, &log, &RichTextLogEdit::showEnd);
}

void NewLinesButton::showLines(int lines)
{
    setText(QString::number(lines));
    setAccessibleName(tr("%n new line(s)", nullptr, lines));
    place();
    setVisible(lines > 0);
    raise();
}

void NewLinesButton::place()
{
    const int height = fontMetrics().height() + around;
    const int width = qMax(height, arrowSide + besideText + fontMetrics().horizontalAdvance(text()) + 2 * around);
    const QRect shown = m_log.viewport()->geometry();
    // Where times are painted at the margin, it leaves them free.
    const QTextFrameFormat margins = m_log.document()->rootFrame()->frameFormat();
    const bool isAtTheLeft = layoutDirection() == Qt::RightToLeft;
    const int margin = qMax(around, qRound(isAtTheLeft ? margins.leftMargin() : margins.rightMargin()) + besideTimes);
    const int left = isAtTheLeft ? shown.left() + margin : shown.right() - width - margin;
    setGeometry(left, shown.bottom() - height - around, width, height);
}

bool NewLinesButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QToolButton::eventFilter(watched, event);
}

void NewLinesButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool lit = underMouse() || isDown();
    painter.setPen(palette().color(QPalette::Highlight));
    painter.setBrush(palette().color(lit ? QPalette::Highlight : QPalette::Window));
    painter.drawRoundedRect(shape, shape.height() / 2, shape.height() / 2);
    const QRect picture(around, (height() - arrowSide) / 2, arrowSide, arrowSide);
    icon().paint(&painter, picture, Qt::AlignCenter, lit ? QIcon::Selected : QIcon::Normal);
    painter.setPen(palette().color(lit ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(rect().adjusted(picture.right() + besideText, 0, -around, 0), Qt::AlignCenter, text());
}

} // namespace nimb
