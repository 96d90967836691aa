// The box that finds contacts in the list.
#pragma once

#include <QLineEdit>

namespace nimb
{

/// Keeps all keys that it gets: in the list below they would do something else.
class ContactFilter : public QLineEdit
{
    Q_OBJECT

public:
    explicit ContactFilter(QWidget *parent);

    /// Each of them is to be found.
    QStringList words() const;

Q_SIGNALS:
    /// The Escape key, or the cross at the end.
    void cancelled();
    /// The user went elsewhere without having typed anything.
    void leftEmpty();
    /// The Down key.
    void listWanted();
    void entered();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace nimb
