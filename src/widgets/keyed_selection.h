// Selecting rows of a list that changes while the user looks at it.
#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemView>

namespace nimb
{

/// Shows the model. When the selected row goes nothing is selected any more, where Qt would go on with its neighbour:
/// the next click would act on somebody whom the user has not chosen.
inline void setModelOfKeyedRows(QAbstractItemView &view, QAbstractItemModel &model)
{
    // Before the view itself hears of it.
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &view,
                     [&view](const QModelIndex &, int first, int last) {
                         const QModelIndex current = view.currentIndex();
                         if (!current.isValid() || current.row() < first || current.row() > last)
                             return;
                         view.selectionModel()->clear();
                         // Said outright, or the view would mark its first row when the focus comes back.
                         view.setCurrentIndex({});
                     });
    view.setModel(&model);
}

} // namespace nimb
