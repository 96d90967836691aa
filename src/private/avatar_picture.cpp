#include "private/avatar_picture.h"

#include "core/avatar_image.h"
#include "core/pictures.h"

#include <QPainter>

#include <cmath>

namespace nimb
{
namespace
{
constexpr int enlargement = 2;
}

AvatarPicture::AvatarPicture(QWidget *parent) : QWidget(parent)
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
        namedPicture(QStringLiteral("avatar")).paint(&painter, rect().adjusted(18, 18, -18, -18));
        return;
    }
    const int factor = qMax(1, static_cast<int>(std::floor(enlargement * devicePixelRatioF())));
    QImage large = m_image.scaled(m_image.size() * factor, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    large.setDevicePixelRatio(devicePixelRatioF());
    const QSizeF size = large.deviceIndependentSize();
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    painter.drawImage(toDevice.inverted().map(QPointF(toDevice.map(corner).toPoint())), large);
}

} // namespace nimb
