// The participants as a list shows them: with their pictures, and in the colours in which they write.
#pragma once

#include "core/picture_proxy.h"

#include <QPalette>

namespace nimb
{

class ParticipantsProxy : public PictureProxy
{
    Q_OBJECT

public:
    using PictureProxy::PictureProxy;

    /// The ground on which the colours must be readable.
    void setGround(const QColor &ground);
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QColor m_ground = Qt::white;
};

} // namespace nimb
