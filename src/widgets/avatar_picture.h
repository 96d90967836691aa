// An avatar on the screen.
#pragma once

#include <QImage>
#include <QWidget>

#include <optional>

namespace nimb
{

/// So many times as large as an avatar, each pixel of which covers a whole number of device pixels. Without a picture
/// it shows the one that stands for nobody.
class AvatarPicture : public QWidget
{
    Q_OBJECT

public:
    AvatarPicture(QWidget *parent, int enlargement);

    void setPicture(const std::optional<QByteArray> &body);
    bool hasPicture() const { return !m_image.isNull(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_enlargement;
    QImage m_image;
};

} // namespace nimb
