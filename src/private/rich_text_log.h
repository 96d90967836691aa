// The rich-text log on the screen, which every window with a log uses.
#pragma once

#include "core/rich_text.h"

#include <QTextEdit>

namespace nimb
{

/// Append-only and bounded: beyond limits::logLines the oldest lines go. Follows new text only while the reader is
/// at the end. Colours are adapted to the ground, and again when it changes.
class RichTextLogEdit : public QTextEdit, public RichTextLog
{
    Q_OBJECT

public:
    explicit RichTextLogEdit(QWidget *parent = nullptr);

    /// Empty strips above and below the text area, in pixels, that show the window's ground.
    void setInsets(int above, int below);

    qsizetype textLength() const override;
    void setSelStart(qsizetype position) override;
    void setSelColor(Colour colour) override;
    void setSelFont(const LogFont &font) override;
    void setSelText(const QString &text) override;
    void clear() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    bool isAtEnd() const;
    void dropOldLines();
    void adaptColours();

    QTextCursor m_caret;
    QTextCharFormat m_format;
    QWidget *m_above;
    QWidget *m_below;
};

/// A colour of the logs as the screen takes it, and back.
QColor screenColour(Colour colour);
Colour logColour(const QColor &colour);

} // namespace nimb
