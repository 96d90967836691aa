#include "widgets/empty_hint.h"

#include "widgets/folded_caption.h"
#include "widgets/form_layout.h"
#include "widgets/muted_text.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nimb
{

EmptyHint::EmptyHint(QAbstractItemView &list, const char *name, const QString &sentence)
    : QWidget(list.viewport()), m_list(list), m_sentence(named(new QLabel(sentence, this), name))
{
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setForegroundRole(QPalette::WindowText); // on the ground of a list it would be that of its rows
    auto *const column = new QVBoxLayout(this);
    column->setSpacing(form_layout::spacing);
    column->addStretch(1);
    column->addWidget(m_sentence);
    column->addStretch(1);
    keepMuted(*m_sentence); // quieter than rows would be
    list.viewport()->installEventFilter(this);
    const QAbstractItemModel &rows = *list.model();
    connect(&rows, &QAbstractItemModel::rowsInserted, this, &EmptyHint::followRows);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::followRows);
    connect(&rows, &QAbstractItemModel::modelReset, this, &EmptyHint::followRows);
    followRows();
}

QPushButton *EmptyHint::addButton(const char *name, const QString &caption)
{
    auto *const button = named(new QPushButton(caption, this), name);
    auto *const column = qobject_cast<QVBoxLayout *>(layout());
    column->insertWidget(column->indexOf(m_sentence) + 1, button, 0, Qt::AlignHCenter);
    m_buttons.push_back({button, caption});
    fitButtons();
    return button;
}

void EmptyHint::fitButtons()
{
    const QMargins margins = layout()->contentsMargins();
    const int room = m_list.viewport()->width() - margins.left() - margins.right();
    for (const auto &[button, caption] : m_buttons)
        showCaption(*button, caption, room);
}

void EmptyHint::followRows()
{
    const bool isEmpty = m_list.model() && m_list.model()->rowCount() == 0;
    // Hiding a control that has the focus would pass it on to whatever comes next.
    if (!isEmpty && isAncestorOf(window()->focusWidget()))
        m_list.setFocus();
    setGeometry(m_list.viewport()->rect());
    setVisible(isEmpty);
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize) {
        fitButtons();
        setGeometry(m_list.viewport()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace nimb
