// Flashing a window's task-bar button.
#pragma once

class QWidget;

namespace nimb
{

/// Asks for the user's attention at once. Runs no events, so that it may be called from the arrival of a datagram.
void flashTaskBarButton(QWidget &window);

/// A window that was once shown minimised would come up so again after it was hidden: the window system keeps that wish
/// from then on. Takes it back; the window must be hidden.
void forgetMinimisedWish(QWidget &window);

} // namespace nimb
