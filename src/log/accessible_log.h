// A log as screen readers see it.
#pragma once

#include <QAccessibleWidget>

namespace nimb
{

class RichTextLogEdit;

/// Reads the texts of the pictures in their places, where Qt would say that some object is there, and describes itself
/// by what the mark beside the line of the caret means. Positions are those of the document, in which a picture is one
/// character.
class AccessibleLog : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit AccessibleLog(RichTextLogEdit &log);
    /// To be given to QAccessible::installFactory().
    static QAccessibleInterface *make(const QString &className, QObject *object);

    QString text(QAccessible::Text which) const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QString text(int startOffset, int endOffset) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                             int *endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                            int *endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *startOffset,
                         int *endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    QString attributes(int offset, int *startOffset, int *endOffset) const override;

    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    void selection(int selectionIndex, int *startOffset, int *endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    void scrollToSubstring(int startIndex, int endIndex) override;

private:
    QTextCursor cursorAt(int offset) const;
    QString unitAt(const QTextCursor &cursor, QAccessible::TextBoundaryType boundary, int *startOffset,
                   int *endOffset) const;

    RichTextLogEdit &m_log;
};

} // namespace nimb
