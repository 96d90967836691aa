// The contact list as screen readers see it.
#pragma once

#include <QAccessibleWidget>

#include <map>

namespace nimb
{

class ContactView;

/// A list of what is shown, each row one thing that is read in one go. Qt would name every column of every row, those
/// that nobody sees included. Behind the rows stands what lies over them.
class AccessibleContacts : public QAccessibleWidget
{
public:
    explicit AccessibleContacts(ContactView &view);
    ~AccessibleContacts() override;
    Q_DISABLE_COPY_MOVE(AccessibleContacts)
    /// To be given to QAccessible::installFactory().
    static QAccessibleInterface *make(const QString &className, QObject *object);

    int childCount() const override;
    QAccessibleInterface *child(int number) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QAccessibleInterface *rowOf(const QModelIndex &contact) const;
    void forget(int firstRow, int lastRow);

    ContactView &m_view;
    mutable std::map<QString, QAccessible::Id> m_rows; ///< by address
    QMetaObject::Connection m_removals;
};

} // namespace nimb
