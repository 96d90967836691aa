#include "widgets/plain_tool_tips.h"

#include "widgets/form_text.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace nimb
{

bool PlainToolTips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->toolTip().isEmpty())
        return QObject::eventFilter(watched, event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(widget->toolTip()), widget);
    return true;
}

} // namespace nimb
