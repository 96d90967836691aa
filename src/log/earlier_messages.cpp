#include "log/earlier_messages.h"

#include "base/remote_text.h"
#include "widgets/muted_colour.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>

#include <cmath>

namespace nimb
{
namespace
{

constexpr int gapBelow = 10; // pixels
constexpr int dayDistance = 6;
constexpr int continuedIndent = 12;
/// Characters of one message: all of them are in the history, and fifty of the longest would stop the window.
constexpr qsizetype longestEarlier = 500;
constexpr double lineHeight = 120; // percent

QTextBlockFormat dayLine()
{
    QTextBlockFormat line;
    line.setAlignment(Qt::AlignHCenter);
    line.setTopMargin(dayDistance);
    line.setBottomMargin(dayDistance);
    return line;
}

QTextBlockFormat messageLine()
{
    QTextBlockFormat line;
    line.setLeftMargin(continuedIndent);
    line.setTextIndent(-continuedIndent);
    line.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    return line;
}

QString dayText(const QDate &day)
{
    return QLocale().toString(day,
                              day.year() == QDate::currentDate().year() ? QStringLiteral("dddd, d MMMM")
                                                                        : QStringLiteral("dddd, d MMMM yyyy"));
}

void write(QTextCursor &cursor, const KeptMessage &message)
{
    QTextCharFormat plain, bold;
    bold.setFontWeight(QFont::Bold);
    QString text = shownText(message.text);
    if (text.size() > longestEarlier)
        text = text.left(longestEarlier) + QChar(0x2026);
    text.replace(QLatin1String("\r\n"), QString(QChar::LineSeparator));
    cursor.setBlockFormat(messageLine());
    cursor.insertText(QLocale().toString(message.time.time(), QStringLiteral("HH:mm")) + QLatin1String("  "), plain);
    cursor.insertText(message.writer + QLatin1String("> "), bold);
    cursor.insertText(text, plain);
}

} // namespace

EarlierMessages::EarlierMessages()
{
    m_text.setUndoRedoEnabled(false);
}

void EarlierMessages::add(const std::vector<StoredMessage> &messages)
{
    if (messages.empty())
        return;
    QTextCursor cursor(&m_text);
    cursor.beginEditBlock();
    const bool goesOn = !isEmpty() && messages.back().message.time.date() == m_first;
    if (goesOn) { // its day stands above what comes in front of it
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    QDate day;
    for (const StoredMessage &stored : messages) {
        if (const QDate date = stored.message.time.date(); date != day) {
            day = date;
            cursor.setBlockFormat(dayLine());
            cursor.insertText(dayText(day), QTextCharFormat());
            cursor.insertBlock();
        }
        write(cursor, stored.message);
        cursor.insertBlock();
    }
    if (isEmpty())
        cursor.deletePreviousChar();
    cursor.endEditBlock();
    m_first = messages.front().message.time.date();
}

void EarlierMessages::clear()
{
    m_text.clear();
    m_first = {};
}

int EarlierMessages::layOut(int width, const QFont &font)
{
    if (isEmpty())
        return 0;
    m_text.setDefaultFont(font);
    m_text.setTextWidth(width);
    return static_cast<int>(std::ceil(m_text.size().height())) + gapBelow;
}

void EarlierMessages::paint(QPainter &painter, const QRect &place, const QPalette &palette)
{
    const int bottom = static_cast<int>(std::ceil(m_text.size().height()));
    if (isEmpty() || place.top() > bottom + gapBelow)
        return;
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette;
    context.palette.setColor(QPalette::Text, mutedTextColour(palette));
    context.clip = place;
    m_text.documentLayout()->draw(&painter, context);
    painter.setPen(context.palette.color(QPalette::Text));
    const int line = bottom + gapBelow / 2;
    painter.drawLine(0, line, static_cast<int>(m_text.textWidth()), line);
}

} // namespace nimb
