// How lists paint rows that name a picture.
#pragma once

#include <QStyledItemDelegate>

#include <map>

namespace nimb
{

/// Column 0 gets the picture whose name is the row's Qt::UserRole + 2, with its own colours in selected rows too. Rows
/// are at least rowHeight pixels high.
class PictureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 24;
    static constexpr int pictureSide = 16; // pixels

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    mutable std::map<QString, QIcon> m_pictures; ///< by name
};

} // namespace nimb
