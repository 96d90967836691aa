#include "conference/participants_view.h"

#include "base/remote_text.h"
#include "conference/participants.h"
#include "log/rich_text_log.h"
#include "widgets/muted_colour.h"

#include <QBrush>

namespace nimb
{

void ParticipantsProxy::setGround(const QColor &ground)
{
    m_ground = ground;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::ForegroundRole});
}

void ParticipantsProxy::setOver(const QPalette &palette)
{
    m_over = mutedTextColour(palette);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QVariant ParticipantsProxy::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Participants::PictureRole:
        return m_over.isValid() ? QVariant(QString()) : QIdentityProxyModel::data(index, role);
    case Qt::ForegroundRole: {
        if (m_over.isValid())
            return QBrush(m_over);
        const QVariant colour = QIdentityProxyModel::data(index, Participants::ColourRole);
        return colour.isValid() ? QVariant(QBrush(readableOn(screenColour(colour.toUInt()), m_ground))) : QVariant();
    }
    case Qt::ToolTipRole:
        return QIdentityProxyModel::data(index.siblingAtColumn(0), Qt::DisplayRole);
    default:
        return QIdentityProxyModel::data(index, role);
    }
}

} // namespace nimb
