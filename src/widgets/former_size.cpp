#include "widgets/former_size.h"

#include <QLayout>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
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
    if (hadToGrow && !m_former.isValid()) {
        m_former = resized.oldSize();
        m_movedTo.reset();
    }
    if (hadToGrow) {
        m_grown = resized.size();
        makeRoom(resized.oldSize());
    } else if (resized.size() != m_grown) {
        m_former = {}; // somebody wants it so
    }
    return QObject::eventFilter(watched, event);
}

/// Window managers do so for windows which they placed themselves, and then never put them back. What was out of sight
/// before stays so: that is somebody's wish.
void FormerSize::makeRoom(QSize before)
{
    const QRect screen = m_window.screen()->availableGeometry(), window = m_window.frameGeometry();
    const auto shift = [](int end, int screenEnd, int begin, int screenBegin, int growth) {
        return qMax(0, qMin(qMin(end - screenEnd, growth), begin - screenBegin));
    };
    const QSize growth = m_window.size() - before;
    const QPoint by(shift(window.right(), screen.right(), window.left(), screen.left(), growth.width()),
                    shift(window.bottom(), screen.bottom(), window.top(), screen.top(), growth.height()));
    if (by.isNull())
        return;
    if (m_movedTo != m_window.pos())
        m_formerPlace = m_window.pos();
    m_movedTo = m_window.pos() - by;
    m_window.move(*m_movedTo);
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
    if (size != m_former)
        return m_window.resize(size);
    m_former = {};
    m_window.resize(size);
    if (m_movedTo == m_window.pos())
        m_window.move(m_formerPlace);
}

} // namespace nimb
