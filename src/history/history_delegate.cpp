#include "history/history_delegate.h"

#include "history/found_words.h"
#include "history/history_model.h"
#include "widgets/emoji_look.h"
#include "widgets/muted_colour.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <cmath>

namespace nimb
{
namespace
{

constexpr int messageEdge = 6; // pixels

int textWidth(const QStyleOptionViewItem &option)
{
    const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
    return qMax(100, (view ? view->viewport()->width() : option.rect.width()) - 2 * messageEdge);
}

/// The ground of a hit, on which the colour of the text can be read.
QColor hitGround(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    return isDark(base) ? QColor(0x6B, 0x55, 0x00) : QColor(0xFF, 0xE9, 0x8A);
}

} // namespace

void HistoryDelegate::layOut(QTextDocument &text, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    new EmojiLook(text); // which owns it
    text.setUndoRedoEnabled(false);
    text.setDocumentMargin(0);
    text.setDefaultFont(option.font);
    QTextCharFormat muted, plain;
    plain.setForeground(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    muted.setForeground(selected ? option.palette.color(QPalette::HighlightedText) : mutedTextColour(option.palette));
    QTextCursor cursor(&text);
    cursor.insertText(index.data(HistoryModel::HeadRole).toString(), muted);
    cursor.insertBlock();
    const int begin = cursor.position();
    cursor.insertText(index.data().toString(), plain);
    if (!selected) {
        QTextCharFormat hit;
        hit.setBackground(hitGround(option.palette));
        for (const FoundWord &word : findWords(m_words, text.toPlainText().sliced(begin))) {
            cursor.setPosition(begin + static_cast<int>(word.begin));
            cursor.setPosition(begin + static_cast<int>(word.end), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(hit);
        }
    }
    text.setTextWidth(textWidth(option));
}

void HistoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *const style = row.widget ? row.widget->style() : nullptr;
    if (style)
        style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    QTextDocument text;
    layOut(text, option, index);
    painter->save();
    painter->translate(option.rect.topLeft() + QPoint(messageEdge, messageEdge / 2));
    text.drawContents(painter);
    painter->restore();
}

QSize HistoryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QTextDocument text;
    layOut(text, option, index);
    return {textWidth(option), static_cast<int>(std::ceil(text.size().height())) + messageEdge};
}

} // namespace nimb
