#include "widgets/avatar_picture.h"

#include "widgets/avatar_image.h"
#include "widgets/pictures.h"

#include <QPainter>

#include <cmath>

namespace nimb
{
AvatarPicture::AvatarPicture(QWidget *parent, int enlargement) : QWidget(parent), m_enlargement(enlargement)
{
    setFixedSize(enlargement * avatarSide, enlargement * avatarSide);
}

void AvatarPicture::setPicture(const std::optional<QByteArray> &body)
{
    m_image = body ? avatarImage(*body) : QImage();
    update();
}

void AvatarPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        namedPicture(QStringLiteral("avatar"))
            .paint(&painter, rect().adjusted(width() / 6, height() / 6, -width() / 6, -height() / 6));
        return;
    }
    const int factor = qMax(1, static_cast<int>(std::floor(m_enlargement * devicePixelRatioF())));
    QImage large = m_image.scaled(m_image.size() * factor, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    large.setDevicePixelRatio(devicePixelRatioF());
    const QSizeF size = large.deviceIndependentSize();
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    painter.drawImage(toDevice.inverted().map(QPointF(toDevice.map(corner).toPoint())), large);
}

} // namespace nimb
