#include "core/window_attention.h"

#include <QApplication>

#ifdef NIMB_XCB
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>
#endif

namespace nimb
{
namespace
{

/// An idle program sends its requests to the X server only with the next one. QGuiApplication::sync() would do it too,
/// but runs events meanwhile.
void flushRequests()
{
#ifdef NIMB_XCB
    if (const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        xcb_flush(x11->connection());
#endif
}

} // namespace

void flashTaskBarButton(QWidget &window)
{
    QApplication::alert(&window);
    flushRequests();
}

} // namespace nimb
