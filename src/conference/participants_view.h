// The participants as a list shows them: in the colours in which they write.
#pragma once

#include <QIdentityProxyModel>
#include <QPalette>

namespace nimb
{

class ParticipantsProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    /// The ground on which the colours must be readable.
    void setGround(const QColor &ground);
    /// Nobody is there any more: no picture of presence, and the names are muted.
    void setOver(const QPalette &palette);
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QColor m_ground = Qt::white;
    QColor m_over; ///< of the names; invalid before the end
};

} // namespace nimb
