#include "widgets/picture_label.h"

#include <QEvent>

#include <utility>

namespace nimb
{

PictureLabel::PictureLabel(QIcon picture, int side, QWidget *parent)
    : QLabel(parent), m_picture(std::move(picture)), m_side(side)
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
