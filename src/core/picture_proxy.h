// Rows as a list shows them: with the picture whose name they bear.
#pragma once

#include "core/pictures.h"

#include <QIdentityProxyModel>

namespace nimb
{

/// In front of every model whose rows have the name of their picture as Qt::UserRole + 2, in column 0.
class PictureProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DecorationRole)
            return QIdentityProxyModel::data(index, role);
        if (index.column() != 0)
            return {};
        const QString name = QIdentityProxyModel::data(index, Qt::UserRole + 2).toString();
        return name.isEmpty() ? QVariant() : namedPicture(name);
    }
};

} // namespace nimb
