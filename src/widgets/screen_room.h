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

/// For a window with a log that opens for the first time: this high with letters of the usual size, higher with larger
/// ones, for each of its lines takes more; on no screen higher than on a small one.
inline QSize firstSize(const QWidget &window, QSize withUsualLetters)
{
    constexpr int usualLine = 17, smallScreen = 630;
    const int most = qMin(smallScreen, roomOnScreen(window).height());
    const int height = withUsualLetters.height() * window.fontMetrics().lineSpacing() / usualLine;
    return {withUsualLetters.width(), qMax(withUsualLetters.height(), qMin(height, most))};
}

} // namespace nimb
