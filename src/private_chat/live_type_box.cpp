#include "private_chat/live_type_box.h"

#include "widgets/muted_colour.h"

#include <QPainter>

namespace nimb
{
namespace
{
constexpr int mostLines = 4;
constexpr double roundCorner = 4; // pixels
} // namespace

LiveTypeBox::LiveTypeBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::AlternateBase); // lies over the log, whose ground is Base
    QFont notSaidYet;
    notSaidYet.setItalic(true);
    setFont(notSaidYet);
}

int LiveTypeBox::fit()
{
    const int lines = qBound(1, qRound(document()->size().height()), mostLines); // of this kind of text: in lines
    const int needed = lines * fontMetrics().lineSpacing() + 2 * qRound(document()->documentMargin());
    const int seen = qMin(needed, height());
    setViewportMargins(0, height() - seen, 0, 0);
    setMask(QRect(0, height() - seen, width(), seen));
    return seen;
}

void LiveTypeBox::paintEvent(QPaintEvent *event)
{
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outlineColour(palette()), 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(0.5, 0.5, -0.5, -0.5), roundCorner, roundCorner);
}

} // namespace nimb
