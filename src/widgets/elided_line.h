// A line of text that can be selected but not changed, and says where it goes on.
#pragma once

#include <QLineEdit>

namespace nimb
{

/// Without the focus it ends in an ellipsis where there is no room for all of it, which its tool tip shows then. With
/// the focus it is scrolled as any other. The text is always the whole one.
class ElidedLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit ElidedLine(QWidget *parent);

    /// As it is painted without the focus.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRect textPlace() const;
    void refreshToolTip();
};

} // namespace nimb
