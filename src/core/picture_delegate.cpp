#include "core/picture_delegate.h"

#include "core/pictures.h"

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
    option->icon = untinted(index.data(Qt::UserRole + 2).toString(), *option);
}

/// Styles tint the pictures of selected rows, but a state is told by its colour too. Drawn once for each scale: reading
/// a picture takes longer than painting the row.
QIcon PictureDelegate::untinted(const QString &name, const QStyleOptionViewItem &option) const
{
    const double scale = option.widget ? option.widget->devicePixelRatioF() : 1.0;
    QIcon &result = m_pictures[{name, scale}];
    if (!result.isNull())
        return result;
    const QPixmap pixels = namedPicture(name).pixmap(option.decorationSize, scale);
    result.addPixmap(pixels, QIcon::Normal);
    result.addPixmap(pixels, QIcon::Selected);
    return result;
}

} // namespace nimb
