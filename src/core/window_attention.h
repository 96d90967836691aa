// Flashing a window's task-bar button.
#pragma once

class QWidget;

namespace nimb
{

/// Asks for the user's attention at once. Runs no events, so that it may be called from the arrival of a datagram.
void flashTaskBarButton(QWidget &window);

} // namespace nimb
