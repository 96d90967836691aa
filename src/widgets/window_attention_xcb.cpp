#include "widgets/window_attention.h"

#include <QApplication>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace nimb
{
namespace
{

/// Null where the windows are no X11 windows.
xcb_connection_t *connectionToX11()
{
    const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// Of the hints for the window manager: which of them count, and the state in which the window comes up.
constexpr std::size_t hintFlags = 0, initialState = 2, hintWords = 9;
constexpr std::uint32_t stateCounts = 2, normalState = 1;

void setInitialStateNormal(xcb_connection_t *connection, xcb_window_t window)
{
    const xcb_get_property_cookie_t cookie
        = xcb_get_property(connection, 0, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 0, hintWords);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(connection, cookie, nullptr), &std::free);
    std::array<std::uint32_t, hintWords> hints = {};
    if (!reply || xcb_get_property_value_length(reply.get()) != int(sizeof hints))
        return;
    std::memcpy(hints.data(), xcb_get_property_value(reply.get()), sizeof hints);
    hints[hintFlags] |= stateCounts;
    hints[initialState] = normalState;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32, hintWords,
                        hints.data());
}

} // namespace

void forgetMinimisedWish(QWidget &window)
{
    if (xcb_connection_t *const connection = connectionToX11())
        setInitialStateNormal(connection, static_cast<xcb_window_t>(window.winId()));
}

void flashTaskBarButton(QWidget &window)
{
    QApplication::alert(&window);
    // An idle program sends its requests to the X server only with the next one. QGuiApplication::sync() would do it
    // too, but runs events meanwhile.
    if (xcb_connection_t *const connection = connectionToX11())
        xcb_flush(connection);
}

} // namespace nimb
