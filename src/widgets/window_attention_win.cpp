#include "widgets/window_attention.h"

#include <QWidget>

#include <qt_windows.h>

namespace nimb
{

void forgetMinimisedWish(QWidget &) { }

void flashTaskBarButton(QWidget &window)
{
    constexpr UINT flashes = 3;
    constexpr DWORD usualRate = 0;
    // Qt's alert would flash until the window is looked at.
    FLASHWINFO request = {sizeof request, reinterpret_cast<HWND>(window.winId()), FLASHW_TRAY, flashes, usualRate};
    FlashWindowEx(&request);
}

} // namespace nimb
