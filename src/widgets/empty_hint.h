// What a list says while nothing is in it.
#pragma once

#include <QWidget>

#include <utility>
#include <vector>

class QAbstractItemView;
class QLabel;
class QPushButton;

namespace nimb
{

/// Lies over a list for as long as it has no rows and says what is to come, or what to do. The list has its model
/// already, and becomes the parent.
class EmptyHint : public QWidget
{
    Q_OBJECT

public:
    /// name: of the sentence.
    EmptyHint(QAbstractItemView &list, const char *name, const QString &sentence);

    /// For what the sentence speaks of; below it, its caption on two lines where one is too long.
    QPushButton *addButton(const char *name, const QString &caption);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followRows();
    void fitButtons();

    QAbstractItemView &m_list;
    QLabel *m_sentence;
    std::vector<std::pair<QPushButton *, QString>> m_buttons;
};

} // namespace nimb
