#include "widgets/picture_delegate.h"

#include "widgets/pictures.h"

namespace nimb
{

QSize PictureDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(rowHeight, hint.height())};
}

void PictureDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != 0)
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(pictureSide, pictureSide);
    const QString name = index.data(Qt::UserRole + 2).toString();
    const auto [picture, isNew] = m_pictures.try_emplace(name);
    if (isNew)
        picture->second = namedPicture(name);
    option->icon = picture->second;
}

} // namespace nimb
