#include "widgets/picture_label.h"

#include <QEvent>

namespace nimb
{

PictureLabel::PictureLabel(const QIcon &picture, int side, QWidget *parent)
    : QLabel(parent), m_picture(picture), m_side(side)
{
    renew();
}

void PictureLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        renew();
}

/// The scale is known for certain only now.
void PictureLabel::showEvent(QShowEvent *event)
{
    renew();
    QLabel::showEvent(event);
}

void PictureLabel::renew()
{
    setPixmap(m_picture.pixmap(QSize(m_side, m_side), devicePixelRatioF()));
}

} // namespace nimb
