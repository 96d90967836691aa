// How large a window may be.
#pragma once

#include <QScreen>
#include <QWidget>

namespace nimb
{

/// What its screen offers to a window, less what the frame around it takes, and panels that the desktop did not tell
/// of.
inline QSize roomOnScreen(const QWidget &window)
{
    constexpr double share = 0.88;
    return window.screen()->availableSize() * share;
}

} // namespace nimb
