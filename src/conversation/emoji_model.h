// The emoji as the rows of a list.
#pragma once

#include "conversation/emoji_table.h"

#include <QAbstractListModel>

#include <optional>

namespace nimb
{

/// What was used lately and then every group, each under a heading; or what a search has found, without headings. An
/// emoji that was used lately is there twice. Rows are numbers alone: texts and names stay in their table.
class EmojiModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The name of an emoji, as its tool tip has it; a heading has none.
    static constexpr int nameRole = Qt::ToolTipRole;

    /// table: outlives the model. offered: for each emoji of the table, whether it can be shown.
    EmojiModel(const EmojiTable &table, std::vector<bool> offered, QObject *parent);

    void showAll(const QStringList &recent);
    void showFound(const QString &typed);

    /// The row of a group's heading, while all are shown and the group is not empty.
    std::optional<int> headingOf(int group) const;
    static bool isHeading(const QModelIndex &index) { return !index.data(nameRole).isValid(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Headings cannot be chosen.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void add(std::size_t emoji);
    void addHeading(int heading) { m_rows.push_back(-1 - heading); }

    const EmojiTable &m_table;
    std::vector<bool> m_offered;
    std::vector<int> m_rows; ///< places in the table, or -1 and less for headings
};

} // namespace nimb
