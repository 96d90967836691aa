#include "main_window/accessible_contacts.h"

#include "contacts/contact_list.h"
#include "main_window/contact_view.h"

#include <QPersistentModelIndex>
#include <QPointer>

namespace nimb
{
namespace
{

class AccessibleContact : public QAccessibleInterface
{
public:
    AccessibleContact(ContactView &view, const QModelIndex &contact) : m_view(&view), m_contact(contact) { }

    const QPersistentModelIndex &contact() const { return m_contact; }

    bool isValid() const override { return m_view && m_contact.isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return parent()->window(); }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString &) override { }

    QString text(QAccessible::Text which) const override
    {
        if (!isValid())
            return {};
        if (which == QAccessible::Name)
            return m_contact.data(Qt::AccessibleTextRole).toString();
        return which == QAccessible::Description ? details() : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        QRect row = m_view->visualRect(m_contact);
        row.setLeft(0);
        row.setWidth(m_view->viewport()->width());
        return row.translated(m_view->viewport()->mapToGlobal(QPoint(0, 0)));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        const QPoint corner = m_view->viewport()->mapToGlobal(QPoint(0, 0));
        state.offscreen = !rect().intersects(QRect(corner, m_view->viewport()->size()));
        state.invisible = m_view->isRowHidden(m_contact.row(), {});
        state.selectable = true;
        state.multiSelectable = true;
        state.focusable = true;
        state.selected = m_view->selectionModel()->isRowSelected(m_contact.row());
        state.focused = m_view->hasFocus() && m_view->currentIndex().row() == m_contact.row();
        return state;
    }

private:
    /// Of the columns that are shown.
    QString details() const
    {
        QStringList shown;
        for (const int column : {ContactList::Workstation, ContactList::IpAddress}) {
            if (!m_view->isColumnHidden(column))
                shown.append(m_contact.sibling(m_contact.row(), column).data().toString());
        }
        return shown.join(QLatin1String(", "));
    }

    QPointer<ContactView> m_view;
    QPersistentModelIndex m_contact;
};

/// What lies over the rows, as far as it is shown.
QList<QWidget *> over(const ContactView &view)
{
    QList<QWidget *> shown;
    for (QWidget *const part : view.partsOverRows()) {
        if (part->isVisible())
            shown.append(part);
    }
    return shown;
}

} // namespace

AccessibleContacts::AccessibleContacts(ContactView &view)
    : QAccessibleWidget(&view, QAccessible::List), m_view(view),
      m_removals(QObject::connect(&view, &ContactView::rowsAboutToGo, &view,
                                  [this](int first, int last) { forget(first, last); }))
{
}

AccessibleContacts::~AccessibleContacts()
{
    QObject::disconnect(m_removals);
    for (const auto &[address, id] : m_rows)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface *AccessibleContacts::make(const QString &, QObject *object)
{
    auto *const view = qobject_cast<ContactView *>(object);
    return view ? new AccessibleContacts(*view) : nullptr; // kept and deleted by Qt's cache
}

int AccessibleContacts::childCount() const
{
    return m_view.shownCount() + static_cast<int>(over(m_view).size());
}

QAccessibleInterface *AccessibleContacts::child(int number) const
{
    if (m_view.countsCells()) // the captions, then the columns of the first row that is shown, and so on
        return rowOf(m_view.shownAt(number / ContactList::ColumnCount - 1));
    if (number < m_view.shownCount())
        return rowOf(m_view.shownAt(number));
    return QAccessible::queryAccessibleInterface(over(m_view).value(number - m_view.shownCount()));
}

int AccessibleContacts::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *const row = dynamic_cast<const AccessibleContact *>(child))
        return m_view.numberOf(row->contact());
    for (int i = 0; i < static_cast<int>(over(m_view).size()); ++i) {
        if (child && child->object() == over(m_view).at(i))
            return m_view.shownCount() + i;
    }
    return -1;
}

QAccessibleInterface *AccessibleContacts::childAt(int x, int y) const
{
    for (QWidget *const part : over(m_view)) {
        if (part->rect().contains(part->mapFromGlobal(QPoint(x, y))))
            return QAccessible::queryAccessibleInterface(part);
    }
    const QPoint place = m_view.viewport()->mapFromGlobal(QPoint(x, y));
    return m_view.viewport()->rect().contains(place) ? rowOf(m_view.indexAt(place)) : nullptr;
}

QAccessibleInterface *AccessibleContacts::focusChild() const
{
    for (QWidget *const part : over(m_view)) {
        if (part->hasFocus())
            return QAccessible::queryAccessibleInterface(part);
    }
    return m_view.hasFocus() ? rowOf(m_view.currentIndex()) : nullptr;
}

QAccessibleInterface *AccessibleContacts::rowOf(const QModelIndex &contact) const
{
    if (!contact.isValid())
        return nullptr;
    const auto [row, isNew] = m_rows.try_emplace(contact.data(ContactList::TagRole).toString());
    if (isNew)
        row->second = QAccessible::registerAccessibleInterface(
            new AccessibleContact(m_view, contact.siblingAtColumn(ContactList::Nickname)));
    return QAccessible::accessibleInterface(row->second);
}

void AccessibleContacts::forget(int firstRow, int lastRow)
{
    for (int row = firstRow; row <= lastRow; ++row) {
        const auto known = m_rows.find(m_view.model()->index(row, 0).data(ContactList::TagRole).toString());
        if (known == m_rows.end())
            continue;
        QAccessible::deleteAccessibleInterface(known->second);
        m_rows.erase(known);
    }
}

} // namespace nimb
