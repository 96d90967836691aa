#include "conversation/emoji_model.h"

#include <algorithm>

namespace nimb
{
namespace
{
constexpr int headingOfRecent = EmojiTable::groups; // behind those of the groups
} // namespace

EmojiModel::EmojiModel(const EmojiTable &table, std::vector<bool> offered, QObject *parent)
    : QAbstractListModel(parent), m_table(table), m_offered(std::move(offered))
{
}

void EmojiModel::add(std::size_t emoji)
{
    if (m_offered[emoji])
        m_rows.push_back(static_cast<int>(emoji));
}

void EmojiModel::showAll(const QStringList &recent)
{
    beginResetModel();
    m_rows.clear();
    addHeading(headingOfRecent);
    for (const QString &text : recent) {
        if (const std::optional<std::size_t> emoji = m_table.find(text))
            add(*emoji);
    }
    if (m_rows.size() == 1)
        m_rows.clear();
    int group = -1;
    for (std::size_t i = 0; i < m_table.all().size(); ++i) {
        if (m_offered[i] && m_table.all()[i].group != group)
            addHeading(group = m_table.all()[i].group);
        add(i);
    }
    endResetModel();
}

void EmojiModel::showFound(const QString &typed)
{
    beginResetModel();
    m_rows.clear();
    for (const std::size_t emoji : m_table.search(typed))
        add(emoji);
    endResetModel();
}

std::optional<int> EmojiModel::headingOf(int group) const
{
    const auto found = std::ranges::find(m_rows, -1 - group);
    if (found == m_rows.end())
        return std::nullopt;
    return static_cast<int>(found - m_rows.begin());
}

int EmojiModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant EmojiModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = m_rows[static_cast<std::size_t>(index.row())];
    if (row < 0) {
        if (role != Qt::DisplayRole)
            return {};
        const int heading = -1 - row;
        return heading == headingOfRecent ? tr("Recently used") : EmojiTable::groupName(heading);
    }
    const EmojiTable::Emoji &emoji = m_table.all()[static_cast<std::size_t>(row)];
    if (role == Qt::DisplayRole)
        return emoji.text.toString();
    if (role == nameRole || role == Qt::AccessibleTextRole)
        return emoji.name.toString();
    return {};
}

Qt::ItemFlags EmojiModel::flags(const QModelIndex &index) const
{
    return isHeading(index) ? Qt::ItemNeverHasChildren
                            : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

} // namespace nimb
