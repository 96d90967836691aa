#include "conference/participants_view.h"

#include "base/remote_text.h"
#include "conference/participants.h"
#include "log/rich_text_log.h"
#include "widgets/muted_colour.h"

#include <QBrush>
#include <QEvent>
#include <QWidget>

namespace nimb
{

ParticipantsProxy::ParticipantsProxy(QWidget &list) : QIdentityProxyModel(&list), m_list(list)
{
    list.installEventFilter(this);
}

void ParticipantsProxy::setOver()
{
    m_isOver = true;
    looksChanged();
}

bool ParticipantsProxy::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        looksChanged();
    return QIdentityProxyModel::eventFilter(watched, event);
}

void ParticipantsProxy::looksChanged()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QVariant ParticipantsProxy::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Participants::PictureRole:
        return m_isOver ? QVariant(QString()) : QIdentityProxyModel::data(index, role);
    case Qt::ForegroundRole: {
        if (m_isOver)
            return QBrush(mutedTextColour(m_list.palette()));
        const QVariant colour = QIdentityProxyModel::data(index, Participants::ColourRole);
        if (!colour.isValid())
            return {};
        return QBrush(contrastingOn(screenColour(colour.toUInt()), m_list.palette()));
    }
    case Qt::ToolTipRole:
        return QIdentityProxyModel::data(index.siblingAtColumn(0), Qt::DisplayRole);
    default:
        return QIdentityProxyModel::data(index, role);
    }
}

} // namespace nimb
