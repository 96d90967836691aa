#include "widgets/former_size.h"

#include <QLayout>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include <utility>

namespace nimb
{

FormerSize::FormerSize(QWidget &window) : QObject(&window), m_window(window)
{
    window.installEventFilter(this);
}

bool FormerSize::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) { // the layout has been there already
        goBack();
        grow();
    }
    if (event->type() != QEvent::Resize || m_goesBack)
        return QObject::eventFilter(watched, event);
    const auto &resized = *static_cast<QResizeEvent *>(event);
    const QSize needed = resized.oldSize().expandedTo(least());
    const bool hadToGrow = m_window.isVisible() && resized.oldSize().isValid() && resized.oldSize() != needed
        && resized.size() == needed;
    if (hadToGrow && !m_former.isValid())
        m_former = resized.oldSize();
    if (hadToGrow)
        m_grown = resized.size();
    else if (resized.size() != m_grown)
        m_former = {}; // somebody wants it so
    return QObject::eventFilter(watched, event);
}

QSize FormerSize::least() const
{
    const QLayout *const layout = m_window.layout();
    return layout ? m_window.minimumSize().expandedTo(layout->totalMinimumSize()) : m_window.minimumSize();
}

void FormerSize::grow()
{
    if (!std::exchange(m_grows, false) || m_window.isMaximized())
        return;
    if (const QSize needed = m_window.size().expandedTo(least()); needed != m_window.size())
        m_window.resize(needed);
}

void FormerSize::goBack()
{
    if (!m_former.isValid() || m_window.size() != m_grown)
        return;
    const QSize size = m_former.expandedTo(least());
    const QScopedValueRollback<bool> ownDoing(m_goesBack, true);
    m_grown = size;
    if (size == m_former)
        m_former = {};
    m_window.resize(size);
}

} // namespace nimb
