#include "widgets/fitting_area.h"

#include "widgets/form_layout.h"
#include "widgets/screen_room.h"

#include <QScrollBar>

namespace nimb
{

FittingArea::FittingArea(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // it follows the focus of what is in it
}

void FittingArea::setHeightBeside(int height)
{
    m_roomHeight = roomOnScreen(*window()).height() - height;
    setViewportMargins(0, 0, isTooHigh() ? form_layout::spacing : 0, 0);
}

bool FittingArea::isTooHigh() const
{
    return widget() && widget()->sizeHint().height() > m_roomHeight;
}

QSize FittingArea::sizeHint() const
{
    const QSize whole = widget() ? widget()->sizeHint() : QScrollArea::sizeHint();
    if (!isTooHigh())
        return whole;
    return {whole.width() + form_layout::spacing + verticalScrollBar()->sizeHint().width(), m_roomHeight};
}

} // namespace nimb
