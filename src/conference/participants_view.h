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
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QColor m_ground = Qt::white;
};

} // namespace nimb
