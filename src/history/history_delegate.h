// How a kept message is painted in a list.
#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

class QTextDocument;

namespace nimb
{

/// Who and when in a muted line, the whole text below, what was looked for marked in it.
class HistoryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setWords(const QStringList &words) { m_words = words; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void layOut(QTextDocument &text, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    QStringList m_words;
};

} // namespace nimb
