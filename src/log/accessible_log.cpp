#include "log/accessible_log.h"

#include "log/log_pictures.h"
#include "log/rich_text_log.h"

namespace nimb
{

AccessibleLog::AccessibleLog(RichTextLogEdit &log) : QAccessibleWidget(&log, QAccessible::EditableText), m_log(log) { }

QAccessibleInterface *AccessibleLog::make(const QString &, QObject *object)
{
    auto *const log = qobject_cast<RichTextLogEdit *>(object);
    return log ? new AccessibleLog(*log) : nullptr; // kept and deleted by Qt's cache
}

QString AccessibleLog::text(QAccessible::Text which) const
{
    if (which == QAccessible::Value)
        return text(0, characterCount());
    if (which == QAccessible::Description) {
        if (const QString meaning = LogMarks::meaningOf(m_log.textCursor().blockFormat()); !meaning.isEmpty())
            return meaning;
    }
    return QAccessibleWidget::text(which);
}

QAccessible::State AccessibleLog::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void *AccessibleLog::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

// --- reading

QString AccessibleLog::text(int startOffset, int endOffset) const
{
    return spokenText(*m_log.document(), startOffset, endOffset);
}

QTextCursor AccessibleLog::cursorAt(int offset) const
{
    QTextCursor cursor(m_log.document());
    cursor.setPosition(qBound(0, offset, characterCount()));
    return cursor;
}

QString AccessibleLog::unitAt(const QTextCursor &cursor, QAccessible::TextBoundaryType boundary, int *startOffset,
                              int *endOffset) const
{
    const QPair<int, int> ends = QAccessible::qAccessibleTextBoundaryHelper(cursor, boundary);
    *startOffset = ends.first;
    *endOffset = ends.second;
    return text(ends.first, ends.second);
}

QString AccessibleLog::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                                        int *endOffset) const
{
    unitAt(cursorAt(offset), boundary, startOffset, endOffset);
    return unitAt(cursorAt(*startOffset - 1), boundary, startOffset, endOffset);
}

QString AccessibleLog::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                                       int *endOffset) const
{
    unitAt(cursorAt(offset), boundary, startOffset, endOffset);
    return unitAt(cursorAt(*endOffset + 1), boundary, startOffset, endOffset);
}

QString AccessibleLog::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                                    int *endOffset) const
{
    return unitAt(cursorAt(offset), boundary, startOffset, endOffset);
}

int AccessibleLog::characterCount() const
{
    return m_log.document()->characterCount() - 1;
}

QRect AccessibleLog::characterRect(int offset) const
{
    const QRect left = m_log.cursorRect(cursorAt(offset));
    const QRect right = m_log.cursorRect(cursorAt(offset + 1));
    const int width = right.top() == left.top() ? right.left() - left.left() : 1;
    return {m_log.viewport()->mapToGlobal(left.topLeft()), QSize(qMax(1, width), left.height())};
}

int AccessibleLog::offsetAtPoint(const QPoint &point) const
{
    return m_log.cursorForPosition(m_log.viewport()->mapFromGlobal(point)).position();
}

QString AccessibleLog::attributes(int offset, int *startOffset, int *endOffset) const
{
    // All text looks alike as far as a screen reader cares.
    *startOffset = 0;
    *endOffset = characterCount();
    return offset < 0 || offset > characterCount() ? QString() : QStringLiteral("read-only:true;");
}

// --- moving and selecting

int AccessibleLog::cursorPosition() const
{
    return m_log.textCursor().position();
}

void AccessibleLog::setCursorPosition(int position)
{
    m_log.setTextCursor(cursorAt(position));
}

void AccessibleLog::selection(int selectionIndex, int *startOffset, int *endOffset) const
{
    const QTextCursor cursor = m_log.textCursor();
    const bool there = selectionIndex == 0 && cursor.hasSelection();
    *startOffset = there ? cursor.selectionStart() : 0;
    *endOffset = there ? cursor.selectionEnd() : 0;
}

int AccessibleLog::selectionCount() const
{
    return m_log.textCursor().hasSelection() ? 1 : 0;
}

void AccessibleLog::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void AccessibleLog::removeSelection(int selectionIndex)
{
    if (selectionIndex == 0)
        setCursorPosition(cursorPosition());
}

void AccessibleLog::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (selectionIndex != 0)
        return;
    QTextCursor cursor = cursorAt(startOffset);
    cursor.setPosition(qBound(0, endOffset, characterCount()), QTextCursor::KeepAnchor);
    m_log.setTextCursor(cursor);
}

void AccessibleLog::scrollToSubstring(int startIndex, int endIndex)
{
    setSelection(0, startIndex, endIndex);
    m_log.ensureCursorVisible();
}

} // namespace nimb
