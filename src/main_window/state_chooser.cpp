#include "main_window/state_chooser.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace nimb
{

void StateChooser::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void StateChooser::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return showPopup();
    default:
        QComboBox::keyPressEvent(event);
    }
}

} // namespace nimb
