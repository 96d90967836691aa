// Brings a window back into view.
#pragma once

#include "widgets/window_attention.h"

#include <QWidget>

namespace nimb
{

/// Shows the window in its normal state, whether it was hidden, minimised or both; the focus is the caller's business.
inline void bringBack(QWidget &window)
{
    if (!window.isVisible())
        forgetMinimisedWish(window);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
}

} // namespace nimb
