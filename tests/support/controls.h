// Finds the controls of a window, and finds out whether a window is gone.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace nimb::test
{

template <class Widget = QWidget> Widget &controlOf(QWidget &window, const char *name)
{
    auto *const found = window.findChild<Widget *>(QLatin1String(name));
    if (!found)
        qFatal("no control %s", name);
    return *found;
}

/// Lets what is closed be destroyed first.
template <class Window> bool hasGone(const QPointer<Window> &window)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window.isNull();
}

} // namespace nimb::test
