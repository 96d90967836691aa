#include "widgets/former_size.h"

#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QWidget>

namespace nimb
{

FormerSize::FormerSize(QWidget &window) : QObject(&window), m_window(window)
{
    window.installEventFilter(this);
}

bool FormerSize::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        goBack(); // the layout has been there already
    if (event->type() != QEvent::Resize || m_goesBack)
        return QObject::eventFilter(watched, event);
    const auto &resized = *static_cast<QResizeEvent *>(event);
    const QSize least = m_window.minimumSize();
    const bool hadToGrow = m_window.isVisible() && resized.oldSize().isValid()
        && resized.oldSize() != resized.oldSize().expandedTo(least)
        && resized.size() == resized.oldSize().expandedTo(least);
    if (hadToGrow && !m_former.isValid())
        m_former = resized.oldSize();
    if (hadToGrow)
        m_grown = resized.size();
    else if (resized.size() != m_grown)
        m_former = {}; // somebody wants it so
    return QObject::eventFilter(watched, event);
}

void FormerSize::goBack()
{
    if (!m_former.isValid() || m_window.size() != m_grown)
        return;
    const QSize size = m_former.expandedTo(m_window.minimumSize());
    const QScopedValueRollback<bool> ownDoing(m_goesBack, true);
    m_grown = size;
    if (size == m_former)
        m_former = {};
    m_window.resize(size);
}

} // namespace nimb
