// A panel of a status bar: shows as much of its text as there is room for, and the rest as an ellipsis.
#pragma once

#include <QLabel>

namespace nimb
{

/// Its text never widens the window. Plain text always.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace nimb
