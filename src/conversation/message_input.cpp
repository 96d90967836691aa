#include "conversation/message_input.h"

#include "base/limits.h"
#include "base/line_break.h"
#include "base/remote_text.h"
#include "conversation/spelling_marks.h"
#include "widgets/emoji_look.h"
#include "widgets/form_text.h"

#include <QContextMenuEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>

namespace nimb
{
namespace
{
constexpr int visibleLines = 3;
}

MessageInput::MessageInput(QWidget *parent) : PlainTextBox(parent)
{
    setTabChangesFocus(true);
    new EmojiLook(*document()); // which owns it
    connect(this, &QPlainTextEdit::textChanged, this, &MessageInput::cut);
}

QSize MessageInput::sizeHint() const
{
    const int frame = 2 * frameWidth() + static_cast<int>(2 * document()->documentMargin());
    return {PlainTextBox::sizeHint().width(), visibleLines * fontMetrics().lineSpacing() + frame};
}

void MessageInput::setSpelling(Spelling &spelling)
{
    m_spelling = new SpellingMarks(*this, spelling);
}

void MessageInput::paintEvent(QPaintEvent *event)
{
    PlainTextBox::paintEvent(event);
    if (m_spelling)
        m_spelling->paint(*event);
}

void MessageInput::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_spelling)
        return PlainTextBox::contextMenuEvent(event);
    m_spelling->openMenu(*event);
}

void MessageInput::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !(event->modifiers() & Qt::ShiftModifier))
        Q_EMIT entered();
    else if (event->key() == Qt::Key_Up && document()->isEmpty())
        Q_EMIT recallWanted();
    else
        PlainTextBox::keyPressEvent(event);
}

bool MessageInput::canInsertFromMimeData(const QMimeData *source) const
{
    return PlainTextBox::canInsertFromMimeData(source) || (m_takesPictures && source && source->hasImage());
}

void MessageInput::insertFromMimeData(const QMimeData *source)
{
    const bool isPicture = m_takesPictures && source && source->hasImage() && !source->hasText();
    if (!isPicture)
        return PlainTextBox::insertFromMimeData(source);
    if (const auto picture = source->imageData().value<QImage>(); !picture.isNull())
        Q_EMIT picturePasted(picture);
}

void MessageInput::cut()
{
    const QString typed = typedText(*this);
    const QString kept = cutText(typed, limits::messageLength);
    if (kept.size() == typed.size())
        return;
    setTypedText(*this, kept);
    // A key adds one character, or the two of a line break.
    if (const QString rest = typed.mid(kept.size()); rest.size() > lineBreak.size())
        Q_EMIT pasteCut(rest);
}

} // namespace nimb
