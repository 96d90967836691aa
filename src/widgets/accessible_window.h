// What screen readers take our windows for.
#pragma once

#include <QAccessibleWidget>

namespace nimb
{

/// To be given to QAccessible::installFactory(). A window that is no dialog is a window, where Qt would take it for
/// something that only holds others.
inline QAccessibleInterface *makeAccessibleWindow(const QString &className, QObject *object)
{
    auto *const widget = className == QLatin1String("QWidget") ? qobject_cast<QWidget *>(object) : nullptr;
    const bool isWindow = widget && widget->windowType() == Qt::Window && widget->isWindow();
    return isWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr; // kept and deleted by Qt's cache
}

} // namespace nimb
