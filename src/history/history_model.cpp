#include "history/history_model.h"

#include "base/isolated.h"
#include "base/remote_text.h"

#include <QLocale>

#include <algorithm>

namespace nimb
{

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_messages.size());
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const StoredMessage &stored = m_messages[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return QString(stored.message.text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    case Qt::AccessibleTextRole:
        return headOf(stored) + QLatin1String(": ") + stored.message.text;
    case NumberRole:
        return QVariant::fromValue(stored.number);
    case ConversationRole:
        return QVariant::fromValue(stored.conversation);
    case HeadRole:
        return headOf(stored);
    default:
        return {};
    }
}

QString HistoryModel::headOf(const StoredMessage &stored) const
{
    const QString time = QLocale().toString(stored.message.time, QLocale::ShortFormat);
    const QString writer = paintedName(stored.message.writer);
    const QString where = m_names.value(stored.conversation);
    return m_namesShown && !where.isEmpty() && where != writer
        ? tr("%1, %2, in \"%3\"").arg(isolated(writer), time, isolated(where))
        : tr("%1, %2").arg(isolated(writer), time);
}

void HistoryModel::setMessages(std::vector<StoredMessage> messages)
{
    beginResetModel();
    m_messages = std::move(messages);
    endResetModel();
}

void HistoryModel::addOlder(const std::vector<StoredMessage> &messages)
{
    if (messages.empty())
        return;
    beginInsertRows({}, 0, static_cast<int>(messages.size()) - 1);
    m_messages.insert(m_messages.begin(), messages.begin(), messages.end());
    endInsertRows();
}

void HistoryModel::addNewer(const std::vector<StoredMessage> &messages)
{
    if (messages.empty())
        return;
    const int rows = static_cast<int>(m_messages.size());
    beginInsertRows({}, rows, rows + static_cast<int>(messages.size()) - 1);
    m_messages.insert(m_messages.end(), messages.begin(), messages.end());
    endInsertRows();
}

void HistoryModel::setNames(QHash<std::int64_t, QString> names, bool shown)
{
    m_names = std::move(names);
    m_namesShown = shown;
    if (!m_messages.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int HistoryModel::rowOf(std::int64_t number) const
{
    const auto found = std::ranges::find(m_messages, number, &StoredMessage::number);
    return found == m_messages.end() ? -1 : static_cast<int>(found - m_messages.begin());
}

} // namespace nimb
