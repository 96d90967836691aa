#include "main_window/contact_filter.h"

#include "widgets/pictures.h"

#include <QAction>
#include <QFocusEvent>
#include <QKeyEvent>

namespace nimb
{

ContactFilter::ContactFilter(QWidget *parent) : QLineEdit(parent)
{
    setObjectName(QStringLiteral("contactFilter"));
    setPlaceholderText(tr("Find a contact (Ctrl+K)"));
    setAccessibleName(tr("Find a contact"));
    addAction(namedPicture(QStringLiteral("search")), LeadingPosition);
    const QAction *const cross = addAction(namedPicture(QStringLiteral("close")), TrailingPosition);
    connect(cross, &QAction::triggered, this, &ContactFilter::cancelled);
}

QStringList ContactFilter::words() const
{
    return text().simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void ContactFilter::keyPressEvent(QKeyEvent *event)
{
    const QKeyCombination pressed = event->keyCombination();
    if (pressed.key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else if (pressed.key() == Qt::Key_Down)
        Q_EMIT listWanted();
    else if (pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter)
        Q_EMIT entered();
    else if (pressed == (Qt::CTRL | Qt::Key_K)) // cuts off the rest of the line on some desktops
        selectAll();
    else
        QLineEdit::keyPressEvent(event);
    event->accept();
}

void ContactFilter::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool went
        = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (went && text().isEmpty())
        Q_EMIT leftEmpty();
}

} // namespace nimb
