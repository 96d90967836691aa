// What is too large for some screens with some fonts.
#pragma once

#include <QScrollArea>

namespace nimb
{

/// As large as its widget where the screen has room for that; elsewhere the widget can be scrolled up and down.
class FittingArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittingArea(QWidget *parent);

    /// height: what the window needs above and below, in pixels. The widget is there already.
    void setHeightBeside(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    bool isTooHigh() const;

    int m_roomHeight = QWIDGETSIZE_MAX;
};

} // namespace nimb
