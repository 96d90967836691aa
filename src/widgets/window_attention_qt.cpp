#include "widgets/window_attention.h"

#include <QApplication>
#include <QWidget>

namespace nimb
{

void forgetMinimisedWish(QWidget &) { }

void flashTaskBarButton(QWidget &window)
{
    QApplication::alert(&window);
}

} // namespace nimb
