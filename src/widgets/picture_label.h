// A label that shows one of the program's pictures.
#pragma once

#include <QIcon>
#include <QLabel>

namespace nimb
{

/// A label keeps the pixels that it was given; this one takes new ones when colours or the screen change.
class PictureLabel : public QLabel
{
    Q_OBJECT

public:
    /// side: of the picture, in logical pixels.
    PictureLabel(QIcon picture, int side, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void renew();

    QIcon m_picture;
    int m_side;
};

} // namespace nimb
