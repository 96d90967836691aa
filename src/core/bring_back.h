// Brings a window back into view.
#pragma once

#include <QWidget>

namespace nimb
{

/// Shows the window in its normal state, whether it was hidden, minimised or both; the focus is the caller's business.
inline void bringBack(QWidget &window)
{
    // A window that was once shown minimised would come up so again: the window system keeps that wish until it is told
    // otherwise, and Qt tells it changes alone.
    if (!window.isVisible())
        window.setWindowState(window.windowState() | Qt::WindowMinimized);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
}

} // namespace nimb
