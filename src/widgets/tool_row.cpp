#include "widgets/tool_row.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace nimb
{

ToolRow::ToolRow(QWidget *parent) : QWidget(parent), m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(2);
    m_row->addStretch(1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ToolRow::add(QWidget *tool)
{
    int stretch = 0;
    while (!m_row->itemAt(stretch)->spacerItem())
        ++stretch;
    m_row->insertWidget(stretch, tool);
}

void ToolRow::insertBehind(const QWidget *tool, QWidget *added)
{
    m_row->insertWidget(m_row->indexOf(tool) + 1, added);
}

void ToolRow::addAtEnd(QWidget *widget)
{
    m_row->addWidget(widget);
}

QList<QToolButton *> ToolRow::buttons() const
{
    return findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

QSize ToolRow::minimumSizeHint() const
{
    const QSize now = m_row->minimumSize();
    return {m_foldedWidth > 0 ? m_foldedWidth : now.width(), qMax(m_height, now.height())};
}

QSize ToolRow::sizeHint() const
{
    const QSize now = m_row->sizeHint();
    return {now.width(), qMax(m_height, now.height())};
}

void ToolRow::setFolded(bool folded)
{
    m_isFolded = folded;
    for (QToolButton *const button : buttons()) {
        button->setToolButtonStyle(folded ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
        if (button->toolTip().isEmpty())
            button->setToolTip(button->text().replace(QLatin1String("&&"), QLatin1String("&")));
    }
}

void ToolRow::refit()
{
    const bool wasFolded = m_isFolded;
    setFolded(true);
    m_row->invalidate();
    m_foldedWidth = m_row->minimumSize().width();
    setFolded(false);
    m_row->invalidate();
    m_wholeWidth = m_row->minimumSize().width();
    m_height = m_row->minimumSize().height();
    setFolded(wasFolded);
    fold();
    updateGeometry();
}

void ToolRow::fold()
{
    if (m_wholeWidth == 0 || m_isFolded == (width() < m_wholeWidth))
        return;
    setFolded(!m_isFolded);
    m_row->activate(); // at once, or the captions would come a frame later than their room
}

bool ToolRow::event(QEvent *event)
{
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange || event->type() == QEvent::Polish)
        refit();
    return taken;
}

void ToolRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fold();
}

} // namespace nimb
