#include "widgets/fitting_area.h"

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

QSize FittingArea::sizeHint() const
{
    QSize size = widget() ? widget()->sizeHint() : QScrollArea::sizeHint();
    const int room = roomOnScreen(*window()).height() - m_heightBeside;
    if (size.height() > room)
        size = {size.width() + verticalScrollBar()->sizeHint().width(), room};
    return size;
}

} // namespace nimb
