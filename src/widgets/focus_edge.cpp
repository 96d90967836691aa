#include "widgets/focus_edge.h"

#include "widgets/clear_outlines.h"
#include "widgets/muted_colour.h"

#include <QAbstractScrollArea>
#include <QFocusEvent>
#include <QPainter>

namespace nimb
{
namespace
{

/// Whoever goes there with the mouse knows where he is. Coming back from another window changes nothing.
bool isByKeys(Qt::FocusReason reason, bool before)
{
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        return before;
    default:
        return false;
    }
}

} // namespace

FocusEdge::FocusEdge(QAbstractScrollArea &area) : QWidget(&area)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    area.installEventFilter(this);
    area.viewport()->installEventFilter(this); // it is placed after the area
    refresh();
}

QAbstractScrollArea *FocusEdge::area() const
{
    return qobject_cast<QAbstractScrollArea *>(parentWidget());
}

bool FocusEdge::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        m_byKeys = isByKeys(static_cast<QFocusEvent *>(event)->reason(), m_byKeys);
        refresh();
        break;
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::PaletteChange:
        refresh();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

/// Above the area, not in it: what is scrolled would take a painted edge along. Hidden where it is not needed, for
/// nothing is scrolled fast below another widget.
void FocusEdge::refresh()
{
    const QAbstractScrollArea *const seenArea = area();
    if (!seenArea)
        return;
    // With the scroll bar, and without what the area leaves empty above and below.
    const QRect seen = seenArea->viewport()->geometry();
    setGeometry(0, seen.top(), seenArea->width(), seen.height());
    setVisible((seenArea->hasFocus() && m_byKeys) || isOfHighContrast(palette()));
    raise();
    update();
}

void FocusEdge::paintEvent(QPaintEvent *)
{
    const bool isFocus = parentWidget()->hasFocus() && m_byKeys;
    QPainter painter(this);
    painter.setPen(isFocus ? focusColour(palette()) : outlineColour(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace nimb
