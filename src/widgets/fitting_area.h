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

    /// What the window needs above and below, in pixels.
    void setHeightBeside(int height) { m_heightBeside = height; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int m_heightBeside = 0;
};

} // namespace nimb
