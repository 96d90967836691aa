#include "private/rich_text_log.h"

#include "core/limits.h"
#include "core/log_font.h"
#include "core/muted_colour.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace nimb
{
namespace
{
/// The colour that was asked for, kept so that it can be adapted to another ground.
constexpr int askedColour = QTextFormat::UserProperty + 1;
} // namespace

QColor screenColour(Colour colour)
{
    return QColor(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

Colour logColour(const QColor &colour)
{
    return Colour(colour.red()) | Colour(colour.green()) << 8 | Colour(colour.blue()) << 16;
}

RichTextLogEdit::RichTextLogEdit(QWidget *parent)
    : QTextEdit(parent), m_caret(document()), m_above(new QWidget(this)), m_below(new QWidget(this))
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setAcceptDrops(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    addScrollBarWidget(m_above, Qt::AlignTop);
    addScrollBarWidget(m_below, Qt::AlignBottom);
    setInsets(0, 0);
}

void RichTextLogEdit::setInsets(int above, int below)
{
    setViewportMargins(0, above, 0, below);
    m_above->setFixedHeight(above);
    m_below->setFixedHeight(below);
}

qsizetype RichTextLogEdit::textLength() const
{
    return document()->characterCount() - 1;
}

void RichTextLogEdit::setSelStart(qsizetype position)
{
    m_caret.setPosition(static_cast<int>(qBound<qsizetype>(0, position, textLength())));
}

void RichTextLogEdit::setSelColor(Colour colour)
{
    m_format.setProperty(askedColour, colour);
    m_format.setForeground(readableOn(screenColour(colour), palette().color(QPalette::Base)));
}

void RichTextLogEdit::setSelFont(const LogFont &font)
{
    m_format.setFont(fontOf(font));
}

void RichTextLogEdit::setSelText(const QString &text)
{
    const bool follow = isAtEnd();
    m_caret.beginEditBlock();
    m_caret.insertText(text, m_format);
    dropOldLines();
    m_caret.endEditBlock();
    if (follow)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void RichTextLogEdit::clear()
{
    document()->clear();
    m_caret.setPosition(0);
    m_format = QTextCharFormat();
}

bool RichTextLogEdit::isAtEnd() const
{
    return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void RichTextLogEdit::dropOldLines()
{
    if (document()->blockCount() <= limits::logLines)
        return;
    QTextCursor oldest(document());
    oldest.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor,
                        document()->blockCount() - limits::logLines + limits::logLinesDropped);
    oldest.removeSelectedText();
}

void RichTextLogEdit::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        adaptColours();
}

void RichTextLogEdit::adaptColours()
{
    const QColor ground = palette().color(QPalette::Base);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QList<QTextFragment> fragments;
        for (auto it = block.begin(); !it.atEnd(); ++it)
            fragments.append(it.fragment());
        for (const QTextFragment &fragment : std::as_const(fragments)) {
            QTextCharFormat format = fragment.charFormat();
            if (!format.hasProperty(askedColour))
                continue;
            format.setForeground(readableOn(screenColour(format.property(askedColour).toUInt()), ground));
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
    cursor.endEditBlock();
    if (m_format.hasProperty(askedColour))
        setSelColor(m_format.property(askedColour).toUInt());
}

} // namespace nimb
