#include "log/earlier_messages.h"

#include "base/remote_text.h"
#include "log/emoticons.h"
#include "log/link_marks.h"
#include "log/log_pictures.h"
#include "log/metafile.h"
#include "widgets/emoji_look.h"
#include "widgets/muted_colour.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace nimb
{
namespace
{

constexpr int gapBelow = 10; // pixels
/// Characters of one message: all of them are in the history, and fifty of the longest would stop the window.
constexpr qsizetype longestEarlier = 500;

QString shownPart(const QString &message)
{
    QString text = shownText(message);
    if (text.size() > longestEarlier)
        text = text.left(longestEarlier) + QChar(0x2026);
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

LogMessage asMarked(const KeptMessage &message)
{
    return {.writer = message.writer, .time = message.time, .isOwn = message.isOwn};
}

/// The form of its first line, after what the marks have seen.
QTextBlockFormat firstLineOf(const LogMessage &message, LogMarks &marks)
{
    QTextBlockFormat format = marks.firstLine(message);
    if (message.time.date().year() != QDate::currentDate().year())
        LogMarks::setYearShown(format);
    return format;
}

QAbstractTextDocumentLayout::Selection inLook(QTextDocument &text, int position, int length,
                                              const QTextCharFormat &look)
{
    QAbstractTextDocumentLayout::Selection selection;
    selection.cursor = QTextCursor(&text);
    selection.cursor.setPosition(position);
    selection.cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    selection.format = look;
    return selection;
}

} // namespace

EarlierMessages::EarlierMessages(LogPictures &pictures) : m_pictures(pictures)
{
    new EmojiLook(m_text); // which owns it
    m_text.setUndoRedoEnabled(false);
    m_text.setIndentWidth(LogMarks::continuationIndent);
    m_text.documentLayout()->registerHandler(QTextFormat::ImageObject, &pictures);
}

void EarlierMessages::add(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo)
{
    if (messages.empty())
        return;
    if (readTo)
        m_readTo = readTo;
    const StoredMessage *const firstNew = firstNewOf(messages);
    if (firstNew)
        removeMark();
    QTextCursor cursor(&m_text);
    cursor.beginEditBlock();
    if (!isEmpty()) {
        cursor.insertBlock();
        cursor.movePosition(QTextCursor::Start);
    }
    LogMarks marks;
    for (const StoredMessage &stored : messages) {
        if (&stored != &messages.front())
            cursor.insertBlock();
        QTextBlockFormat first = firstLineOf(asMarked(stored.message), marks);
        const bool isFirstNew = &stored == firstNew;
        LogMarks::setNew(first, isFirstNew);
        const int position = cursor.position();
        write(cursor, stored.message, first);
        if (isFirstNew) {
            m_new = QTextCursor(&m_text);
            m_new.setPosition(position);
        }
    }
    if (!isEmpty()) { // what stands above it has changed
        cursor.movePosition(QTextCursor::NextBlock);
        QTextBlockFormat first = firstLineOf(*m_first, marks);
        LogMarks::setNew(first, LogMarks::isNew(cursor.blockFormat()));
        cursor.setBlockFormat(LogMarks::withRoom(first, m_text.defaultFont()));
    }
    cursor.endEditBlock();
    m_first = asMarked(messages.front().message);
}

const StoredMessage *EarlierMessages::firstNewOf(const std::vector<StoredMessage> &messages)
{
    if (!m_readTo)
        return nullptr;
    const auto first = std::ranges::find_if(messages, [this](const auto &stored) { return stored.number > *m_readTo; });
    if (first != messages.begin())
        m_readTo.reset(); // some of them were read
    return first == messages.end() ? nullptr : &*first;
}

void EarlierMessages::unmarkNew()
{
    m_readTo.reset();
    removeMark();
}

void EarlierMessages::removeMark()
{
    if (!hasNew())
        return;
    QTextBlockFormat line = m_new.blockFormat();
    LogMarks::setNew(line, false);
    m_new.setBlockFormat(LogMarks::withRoom(line, m_text.defaultFont()));
    m_new = QTextCursor();
}

int EarlierMessages::topOfNew() const
{
    const QTextBlock first = m_new.block();
    return qRound(m_text.documentLayout()->blockBoundingRect(first).top() - first.blockFormat().topMargin());
}

int EarlierMessages::countBelow(int place, bool (*counts)(const QTextBlock &line)) const
{
    int below = 0;
    for (QTextBlock line = m_text.lastBlock(); line.isValid(); line = line.previous()) {
        if (m_text.documentLayout()->blockBoundingRect(line).bottom() <= place)
            break;
        below += counts(line) ? 1 : 0;
    }
    return below;
}

/// At the beginning of an empty line.
void EarlierMessages::write(QTextCursor &cursor, const KeptMessage &message, const QTextBlockFormat &first)
{
    QTextCharFormat plain, bold;
    bold.setFontWeight(QFont::Bold);
    cursor.setBlockFormat(LogMarks::withRoom(first, m_text.defaultFont()));
    const QTextBlock line = cursor.block();
    cursor.insertText(message.writer + QLatin1String("> "), bold);
    const QTextBlockFormat next = LogMarks::continuedLine(message.isOwn);
    splitAtEmoticons(shownPart(message.text), [&](QStringView piece, std::size_t picture) {
        const auto face = picture > 0 ? m_pictures.format(emoticonFragment(picture), piece.toString()) : std::nullopt;
        if (face)
            return cursor.insertText(QString(QChar::ObjectReplacementCharacter), *face);
        qsizetype from = 0;
        for (qsizetype end = 0; (end = piece.indexOf(u'\n', from)) >= 0; from = end + 1) {
            cursor.insertText(piece.mid(from, end - from).toString(), plain);
            cursor.insertBlock(next, plain);
        }
        cursor.insertText(piece.mid(from).toString(), plain);
    });
    for (QTextBlock written = line; written != cursor.block().next(); written = written.next())
        markLinksOf(written, {});
}

void EarlierMessages::makeRoom()
{
    QTextCursor cursor(&m_text);
    cursor.beginEditBlock();
    for (QTextBlock block = m_text.begin(); block.isValid(); block = block.next()) {
        if (!LogMarks::hasRoomAbove(block.blockFormat()))
            continue;
        cursor.setPosition(block.position());
        cursor.setBlockFormat(LogMarks::withRoom(block.blockFormat(), m_text.defaultFont()));
    }
    cursor.endEditBlock();
    LogMarks::leaveRoomForTimes(m_text, m_text.defaultFont());
}

int EarlierMessages::layOut(int width, const QFont &font)
{
    if (isEmpty())
        return 0;
    if (m_text.textWidth() < 0 || m_text.defaultFont() != font) {
        m_text.setDefaultFont(font);
        makeRoom();
    }
    m_text.setTextWidth(width);
    return static_cast<int>(std::ceil(m_text.size().height())) + gapBelow;
}

void EarlierMessages::paint(QPainter &painter, const QRect &place, const Look &look)
{
    const int bottom = static_cast<int>(std::ceil(m_text.size().height()));
    if (isEmpty() || place.top() > bottom + gapBelow)
        return;
    QAbstractTextDocumentLayout &layout = *m_text.documentLayout();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = look.palette;
    context.palette.setColor(QPalette::Text, mutedTextColour(look.palette));
    context.clip = place;
    std::vector<LogMarks::Seen> lines;
    QTextBlock block = m_text.findBlock(qMax(0, layout.hitTest(place.topLeft(), Qt::FuzzyHit)));
    for (block = block.previous().isValid() ? block.previous() : block; block.isValid(); block = block.next()) {
        lines.push_back({block, layout.blockBoundingRect(block)});
        if (lines.back().place.top() > place.bottom() && lines.size() > 2)
            break;
    }
    for (const LogMarks::Seen &line : lines)
        LogMarks::paintGround(painter, line, look.palette);
    context.selections = coloured(lines, look);
    layout.draw(&painter, context);
    for (const LogMarks::Seen &line : lines)
        LogMarks::paintMarks(painter, line, look.palette, m_text.defaultFont());
    painter.setPen(context.palette.color(QPalette::Text));
    const int line = bottom + gapBelow / 2;
    painter.drawLine(0, line, static_cast<int>(m_text.textWidth()), line);
}

QList<QAbstractTextDocumentLayout::Selection> EarlierMessages::coloured(const std::vector<LogMarks::Seen> &lines,
                                                                        const Look &look)
{
    QTextCharFormat link, found, current;
    link.setForeground(look.link);
    LogMarks::setFoundLook(found, look.palette);
    current.setBackground(look.palette.brush(QPalette::Highlight));
    current.setForeground(look.palette.brush(QPalette::HighlightedText));
    QList<QAbstractTextDocumentLayout::Selection> selections;
    for (const LogMarks::Seen &line : lines) {
        for (auto it = line.block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.charFormat().isAnchor())
                selections.append(inLook(m_text, fragment.position(), fragment.length(), link));
        }
    }
    if (m_found.places.empty() || lines.empty())
        return selections;
    const int last = lines.back().block.position() + lines.back().block.length();
    const auto &places = m_found.places;
    for (auto place = std::ranges::lower_bound(places, lines.front().block.position());
         place != places.end() && *place < last; ++place) {
        const bool isCurrent = place - places.begin() == m_found.current;
        selections.append(inLook(m_text, *place, m_found.length, isCurrent ? current : found));
    }
    return selections;
}

QRect EarlierMessages::lineAt(int position) const
{
    const QTextBlock block = m_text.findBlock(position);
    const QRectF place = m_text.documentLayout()->blockBoundingRect(block);
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    return line.isValid() ? line.rect().translated(place.topLeft()).toAlignedRect() : place.toAlignedRect();
}

QString EarlierMessages::anchorAt(const QPointF &place) const
{
    return isEmpty() ? QString() : m_text.documentLayout()->anchorAt(place);
}

} // namespace nimb
