#include "log/rich_text_log.h"

#include "base/limits.h"
#include "base/line_break.h"
#include "log/accessible_log.h"
#include "log/earlier_messages.h"
#include "log/find_bar.h"
#include "log/link_finder.h"
#include "log/link_marks.h"
#include "log/log_file_dialogs.h"
#include "log/log_font.h"
#include "log/log_pictures.h"
#include "log/new_lines_button.h"
#include "widgets/emoji_look.h"
#include "widgets/muted_colour.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>

#include <algorithm>

namespace nimb
{
namespace
{

/// The colour that was asked for, kept so that it can be adapted to another ground.
constexpr int askedColour = QTextFormat::UserProperty + 1;
/// Whether that is the desktop's own for texts, which it follows.
constexpr int desktopsColour = QTextFormat::UserProperty + 2;
/// A frame of the screen, less what it takes to lay out and paint what has come.
constexpr std::chrono::milliseconds frame{14};
/// Pieces that go in at once; more in one frame would be felt as a stall.
constexpr std::size_t piecesAtOnce = 1000;
constexpr qreal smallestLetters = 5, largestLetters = 48; ///< points
constexpr int wheelNotch = 120;
constexpr int besidePointer = 4; // pixels by which one may miss a mark
/// In front of the name of a command where links have an address. No address that is found in a text begins so.
constexpr QLatin1Char commandMark('#');
qsizetype picturesIn(const QString &text)
{
    return text.count(QChar(QChar::ObjectReplacementCharacter));
}

/// What is left of a number that has become too large: a tenth of it is free again, for each removal costs a layout of
/// all that stays.
constexpr qsizetype withRoom(qsizetype limit)
{
    return limit - limit / 10;
}

} // namespace

QColor screenColour(Colour colour)
{
    return QColor(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

std::optional<QColor> meantColour(const QTextCharFormat &format)
{
    if (!format.hasProperty(askedColour) || format.property(desktopsColour).toBool())
        return std::nullopt;
    return screenColour(format.property(askedColour).toUInt());
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
    // Lines are broken anywhere. From the right to the left the toolkit would show one all the same.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    viewport()->setMouseTracking(true);
    addScrollBarWidget(m_above, Qt::AlignTop);
    addScrollBarWidget(m_below, Qt::AlignBottom);
    setInsets(0, 0);

    m_pictures = new LogPictures([this] { return pictureScale(); }, this);
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject, m_pictures);
    new EmojiLook(*document()); // which owns it
    prepareLines();
    m_frame.setSingleShot(true);
    m_frame.setTimerType(Qt::PreciseTimer);
    // Layout goes on after a change has been made, so the end may move at any time; only the reader leaves it.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &RichTextLogEdit::followEnd);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        const bool followed = std::exchange(m_follows, isAtEnd());
        if (!m_follows) {
            if (m_linesBelow > 0)
                noteLinesBelow(qMin(m_linesBelow, linesOutOfSight()));
            return askForEarlier();
        }
        if (followed)
            return;
        noteLinesBelow(0);
        Q_EMIT endReached();
    });
    connect(&m_frame, &QTimer::timeout, this, &RichTextLogEdit::writeGathered);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::update, this, &RichTextLogEdit::paintAround);
    m_roomForEarlier.setSingleShot(true);
    connect(&m_roomForEarlier, &QTimer::timeout, this, &RichTextLogEdit::askForEarlier);
    m_findBar = new FindBar(*this);
    buildCommands();
    new NewLinesButton(*this);
    QAccessible::installFactory(AccessibleLog::make); // again and again, which Qt ignores
}

RichTextLogEdit::~RichTextLogEdit() = default;

void RichTextLogEdit::buildCommands()
{
    const auto add
        = [this](const char *name, const QString &caption, const QList<QKeySequence> &keys, const auto &triggered) {
              auto *const action = new QAction(caption, this);
              action->setObjectName(QLatin1String(name));
              action->setShortcuts(keys);
              connect(action, &QAction::triggered, this, triggered);
              return action;
          };
    // The text control has the keys of these two already.
    m_copy = add("logCopy", tr("&Copy\tCtrl+C"), {}, [this] { copy(); });
    m_selectAll = add("logSelectAll", tr("Select &All\tCtrl+A"), {}, [this] { selectAll(); });
    const QList<QKeySequence> larger = {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)};
    m_zoomIn = add("logZoomIn", tr("Zoom &In"), larger, [this] { zoom(m_zoom + 1); });
    m_zoomOut
        = add("logZoomOut", tr("Zoom &Out"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { zoom(m_zoom - 1); });
    m_resetZoom = add("logResetZoom", tr("&Normal Size"), {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { zoom(0); });
    // The bar has this key.
    m_find = add("logFind", tr("&Find...\tCtrl+F"), {}, [this] { m_findBar->open(); });
    m_save = add("logSave", tr("&Save Conversation As..."), {}, [this] { askWhereToSave(*this); });
    m_print = add("logPrint", tr("&Print..."), {}, [this] { askHowToPrint(*this); });
    addActions({m_zoomIn, m_zoomOut, m_resetZoom});
}

void RichTextLogEdit::setInsets(int above, int below)
{
    m_insetAbove = above;
    m_insetBelow = below;
    setViewportMargins(0, above + m_roomAbove, 0, below + m_roomBelow);
    m_above->setFixedHeight(above + m_roomAbove);
    m_below->setFixedHeight(below + m_roomBelow);
}

void RichTextLogEdit::setRoomAbove(int room)
{
    m_roomAbove = room;
    setInsets(m_insetAbove, m_insetBelow);
}

void RichTextLogEdit::setRoomBelow(int room)
{
    if (std::exchange(m_roomBelow, room) == room)
        return;
    setBackgroundRole(QPalette::Base); // of what is around the text: it goes on below it
    setAutoFillBackground(room > 0);
    setInsets(m_insetAbove, m_insetBelow);
}

void RichTextLogEdit::addEarlier(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo)
{
    if (!messages.empty()) {
        writeGathered();
        if (!m_earlier)
            m_earlier = std::make_shared<EarlierMessages>(*m_pictures);
        m_earlier->setFound({}); // the places have moved
        m_earlier->add(messages, readTo);
        if (readTo && m_earlier->hasNew())
            m_newIsUnread = m_newIsUnseen = true;
        placeEarlier();
    }
    Q_EMIT earlierChanged();
    if (readTo)
        Q_EMIT keptNewShown();
}

void RichTextLogEdit::placeEarlier()
{
    if (!m_earlier)
        return;
    QScrollBar &bar = *verticalScrollBar();
    const bool follows = m_follows;
    const int value = bar.value();
    const int before = m_earlierHeight;
    m_earlierHeight = m_earlier->layOut(viewport()->width(), font());
    {
        const QSignalBlocker quiet(this); // nothing was said
        QTextFrameFormat room = document()->rootFrame()->frameFormat();
        room.setTopMargin(document()->documentMargin() + m_earlierHeight);
        document()->rootFrame()->setFrameFormat(room);
    }
    m_follows = follows;
    if (m_follows)
        followEnd();
    else
        bar.setValue(value + m_earlierHeight - before);
    // Where all fits, there is no scrolling up; but the window may only be on its way to its size.
    m_roomForEarlier.start();
}

void RichTextLogEdit::askForEarlier()
{
    if (isVisible() && verticalScrollBar()->value() < viewport()->height() / 2)
        fetchEarlier();
}

// --- writing

qsizetype RichTextLogEdit::textLength() const
{
    return document()->characterCount() - 1 + m_gatheredLength;
}

qsizetype RichTextLogEdit::caretPosition() const
{
    return m_caret.position() + m_gatheredLength;
}

void RichTextLogEdit::setSelStart(qsizetype position)
{
    if (position == caretPosition())
        return;
    writeGathered();
    m_caret.setPosition(static_cast<int>(qBound<qsizetype>(0, position, textLength())));
}

void RichTextLogEdit::setSelColor(Colour colour)
{
    // To find out what can be read on the ground takes longer than to write a word.
    if (m_format.property(askedColour) != QVariant(colour))
        applyColour(colour);
}

void RichTextLogEdit::applyColour(Colour colour)
{
    m_format.setProperty(askedColour, colour);
    m_format.setProperty(desktopsColour, colour == logColour(palette().color(QPalette::WindowText)));
    m_format.setForeground(readableOn(screenColour(colour), palette().color(QPalette::Base)));
}

/// What the store holds before anybody has chosen is no choice.
void RichTextLogEdit::setSelFont(const LogFont &font)
{
    m_font = font == LogFont() ? std::nullopt : std::optional(font);
    applyFont();
}

void RichTextLogEdit::setSelMessage(const std::optional<LogMessage> &message)
{
    m_isOwn = message && message->isOwn;
    m_firstLine.reset();
    if (!message)
        return;
    m_firstLine = m_marks.firstLine(*message);
    if (!std::exchange(m_hasMargin, true))
        makeRoom();
}

void RichTextLogEdit::setSelBold(bool bold)
{
    if (bold)
        m_format.setFontWeight(QFont::Bold);
    else
        m_format.clearProperty(QTextFormat::FontWeight);
}

void RichTextLogEdit::setSelText(const QString &text)
{
    // One character per line break, as the document counts. The two that it would take for frames are no text.
    QString plain = text;
    plain.replace(lineBreak, QLatin1String("\n"));
    plain.replace(QChar(0xFDD0), QChar::ReplacementCharacter).replace(QChar(0xFDD1), QChar::ReplacementCharacter);
    gather(plain, m_command.isEmpty() ? m_format : commandFormat());
}

void RichTextLogEdit::setSelRtf(const QString &fragment, const QString &alternative)
{
    if (const std::optional<QTextImageFormat> picture = m_pictures->format(fragment, alternative))
        gather(QString(QChar::ObjectReplacementCharacter), *picture);
    else
        setSelText(alternative);
}

void RichTextLogEdit::gather(const QString &text, const QTextCharFormat &format)
{
    if (text.isEmpty())
        return;
    m_gathered.push_back({text, format, m_continues, m_isOwn, std::exchange(m_firstLine, {})});
    m_gatheredLength += text.size();
    if (m_gathered.size() == piecesAtOnce)
        return m_frame.start(0);
    if (m_frame.isActive())
        return;
    const std::chrono::milliseconds since(m_sinceWritten.isValid() ? m_sinceWritten.elapsed() : frame.count());
    m_frame.start(qMax(frame - since, std::chrono::milliseconds(0)));
}

void RichTextLogEdit::writeGathered()
{
    m_frame.stop();
    if (m_gathered.empty())
        return;
    const int firstLine = m_caret.block().position(), lines = document()->blockCount();
    const int begin = m_caret.position();
    const bool followed = m_follows;
    if (m_newIsUnread && isOutOfSight())
        m_newIsUnseen = true;
    m_caret.beginEditBlock();
    insertGathered();
    tellReaders(begin);
    if (m_detectsLinks)
        markLinks(document()->findBlock(firstLine));
    m_caret.endEditBlock();
    const int more = document()->blockCount() - lines;
    dropOldLines();
    followEnd();
    if (!followed)
        noteLinesBelow(m_linesBelow + more);
    m_sinceWritten.start();
    Q_EMIT written();
}

/// Once for all that has come, whatever changes in its form later.
void RichTextLogEdit::tellReaders(int begin)
{
    if (!m_screenReaders.areThere())
        return;
    const QString text = spokenText(*document(), begin, m_caret.position());
    QAccessibleTextInsertEvent told(this, begin, text);
    QAccessible::updateAccessibility(&told);
    Q_EMIT toldReaders(text);
}

void RichTextLogEdit::insertGathered()
{
    const QTextCursor reader = textCursor();
    const int anchor = reader.anchor(), position = reader.position(), place = m_caret.position();
    for (const Piece &piece : std::exchange(m_gathered, {}))
        insert(piece);
    m_gatheredLength = 0;
    // New text at the end of what a reader has selected would become part of it.
    if (qMax(anchor, position) != place)
        return;
    QTextCursor kept(document());
    kept.setPosition(anchor);
    kept.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(kept);
}

void RichTextLogEdit::insert(const Piece &piece)
{
    m_pictureCount += picturesIn(piece.text);
    if (piece.line && m_caret.atBlockStart()) {
        QTextBlockFormat first = *piece.line;
        LogMarks::setNew(first, LogMarks::isNew(m_caret.blockFormat()));
        m_caret.setBlockFormat(LogMarks::withRoom(first, font()));
    }
    // A line break as the document inserts it hands the form of the line on to the next one.
    const QTextBlockFormat next = piece.continues ? LogMarks::continuedLine(piece.isOwn) : LogMarks::ownLine();
    if (!piece.text.contains(u'\n') || m_caret.blockFormat() == next)
        return m_caret.insertText(piece.text, piece.format);
    qsizetype from = 0;
    for (qsizetype end = 0; (end = piece.text.indexOf(u'\n', from)) >= 0; from = end + 1) {
        m_caret.insertText(piece.text.mid(from, end - from), piece.format);
        m_caret.insertBlock(next, piece.format);
    }
    m_caret.insertText(piece.text.mid(from), piece.format);
}

void RichTextLogEdit::prepareLines()
{
    document()->setIndentWidth(LogMarks::continuationIndent);
    m_caret.setBlockFormat(LogMarks::ownLine());
}

/// Looks through this line and those behind it that are complete.
void RichTextLogEdit::markLinks(QTextBlock line)
{
    QTextCharFormat look;
    look.setForeground(linkColour());
    for (; line.isValid() && line.next().isValid(); line = line.next())
        markLinksOf(line, look);
}

RichTextLogEdit::Amount RichTextLogEdit::amount() const
{
    return {document()->blockCount(), document()->characterCount(), m_pictureCount};
}

double RichTextLogEdit::fullness() const
{
    const Amount held = amount();
    const auto part = [](qsizetype number, qsizetype limit) { return double(number) / double(limit); };
    return std::max({part(held.lines, limits::logLines), part(held.characters, limits::logCharacters),
                     part(held.pictures, limits::logPictures)});
}

bool RichTextLogEdit::dropOldestTenth()
{
    const double part = fullness() * 9 / 10;
    const auto of = [part](qsizetype limit) { return static_cast<qsizetype>(part * double(limit)); };
    return dropLinesBeyond({of(limits::logLines), of(limits::logCharacters), of(limits::logPictures)});
}

void RichTextLogEdit::dropOldLines()
{
    const Amount held = amount();
    const auto bound = [](qsizetype number, qsizetype limit, qsizetype less) { return number > limit ? less : limit; };
    dropLinesBeyond({bound(held.lines, limits::logLines, limits::logLines - limits::logLinesDropped),
                     bound(held.characters, limits::logCharacters, withRoom(limits::logCharacters)),
                     bound(held.pictures, limits::logPictures, withRoom(limits::logPictures))});
}

/// Apart from the insertion: one change from the first to the last line would lay all of them out anew.
bool RichTextLogEdit::dropLinesBeyond(const Amount &most)
{
    Amount held = amount();
    QTextBlock first = document()->begin();
    for (; first.next().isValid(); first = first.next(), --held.lines) {
        if (held.lines <= most.lines && held.characters <= most.characters && held.pictures <= most.pictures)
            break;
        held.characters -= first.length();
        held.pictures -= picturesIn(first.text());
    }
    if (first.position() == 0)
        return false;
    m_pictureCount = held.pictures;
    const QTextCursor topLine = cursorForPosition(QPoint(0, fontMetrics().height() / 2));
    const int top = cursorRect(topLine).top();
    const bool follows = m_follows;
    QTextCursor oldest(document());
    oldest.setPosition(first.position(), QTextCursor::KeepAnchor);
    const QTextBlockFormat format = first.blockFormat();
    oldest.removeSelectedText();
    if (oldest.blockFormat() != format) // it may have that of the line that has gone
        oldest.setBlockFormat(format);
    m_follows = follows; // the end may have come by on its way
    if (!m_follows)      // what was read at the top stays there
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(topLine).top() - top);
    m_follows = follows;
    return true;
}

/// The newest lines are looked at first, for those who are away have mostly been so for a short while.
void RichTextLogEdit::setFate(int message, MessageFate fate)
{
    writeGathered();
    for (QTextBlock line = document()->lastBlock(); line.isValid(); line = line.previous()) {
        QTextBlockFormat format = line.blockFormat();
        if (message == 0 || LogMarks::numberOf(format) != message)
            continue;
        LogMarks::setFate(format, fate);
        QTextCursor(line).setBlockFormat(format);
        return;
    }
}

/// The line that comes next is empty so far, and gets the room above it in which the mark is painted.
void RichTextLogEdit::markNew()
{
    unmarkNew();
    writeGathered();
    m_new = QTextCursor(document());
    m_new.movePosition(QTextCursor::End);
    m_new.setKeepPositionOnInsert(true);
    setNewLine(true);
    // Where it can be seen it is not moved: its reader may be about to click on something.
    m_newIsUnseen = isOutOfSight();
    m_newIsUnread = true;
}

bool RichTextLogEdit::isOutOfSight() const
{
    return !isVisible() || window()->isMinimized();
}

int RichTextLogEdit::heightOfLine() const
{
    return LogMarks::heightOfLine(font());
}

void RichTextLogEdit::showNew()
{
    if (!std::exchange(m_newIsUnseen, false))
        return;
    writeGathered();
    const int height = qRound(document()->documentLayout()->documentSize().height()); // lays out all of it
    const std::optional<int> top = topOfNew();
    if (!top)
        return;
    if (height <= *top + viewport()->height())
        return showEnd();
    verticalScrollBar()->setValue(*top);
    noteLinesBelow(linesOutOfSight());
}

std::optional<int> RichTextLogEdit::topOfNew() const
{
    if (m_earlier && m_earlier->hasNew())
        return m_earlier->topOfNew();
    if (m_new.isNull())
        return std::nullopt;
    const QTextBlock first = m_new.block();
    const QRectF place = document()->documentLayout()->blockBoundingRect(first);
    if (place.isNull())
        return std::nullopt; // not laid out yet
    return qRound(place.top() - first.blockFormat().topMargin());
}

int RichTextLogEdit::countBelow(bool (*counts)(const QTextBlock &line)) const
{
    QAbstractTextDocumentLayout &layout = *document()->documentLayout();
    const int bottom = verticalScrollBar()->value() + viewport()->height();
    QTextBlock line = document()->findBlock(qMax(0, layout.hitTest(QPointF(0, bottom), Qt::FuzzyHit)));
    if (line.previous().isValid())
        line = line.previous();
    while (line.isValid() && layout.blockBoundingRect(line).bottom() <= bottom)
        line = line.next();
    int below = m_earlier ? m_earlier->countBelow(bottom, counts) : 0;
    for (; line.isValid(); line = line.next())
        below += counts(line) ? 1 : 0;
    return below;
}

int RichTextLogEdit::linesOutOfSight() const
{
    return countBelow([](const QTextBlock &line) { return line.length() > 1; });
}

int RichTextLogEdit::messagesBelow() const
{
    return countBelow([](const QTextBlock &line) { return LogMarks::isReceived(line.blockFormat()); });
}

void RichTextLogEdit::unmarkNew()
{
    m_newIsUnseen = false;
    m_newIsUnread = false;
    if (m_earlier && m_earlier->hasNew()) {
        m_earlier->unmarkNew();
        placeEarlier();
    }
    if (m_new.isNull())
        return;
    setNewLine(false);
    m_new = QTextCursor();
}

void RichTextLogEdit::setNewLine(bool isNew)
{
    // Its own cursor: what is inserted behind the mark comes into the selection of one that keeps its position.
    QTextCursor line(m_new.block());
    QTextBlockFormat format = line.blockFormat();
    LogMarks::setNew(format, isNew);
    line.setBlockFormat(LogMarks::withRoom(format, font()));
}

/// Beside the text and above those lines that something is painted above.
void RichTextLogEdit::makeRoom()
{
    writeGathered();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (!LogMarks::hasRoomAbove(block.blockFormat()))
            continue;
        cursor.setPosition(block.position());
        cursor.setBlockFormat(LogMarks::withRoom(block.blockFormat(), font()));
    }
    cursor.endEditBlock();
    placeEarlier();
    if (!m_hasMargin)
        return;
    LogMarks::leaveRoomForTimes(*document(), font());
}

void RichTextLogEdit::clear()
{
    m_new = QTextCursor();
    m_gathered.clear();
    m_gatheredLength = 0;
    document()->clear();
    m_pictureCount = 0;
    m_caret.setPosition(0);
    m_format = QTextCharFormat();
    m_continues = false;
    m_isOwn = false;
    m_firstLine.reset();
    m_marks.forget();
    m_hasMargin = false;
    m_earlier.reset();
    m_earlierHeight = 0;
    m_roomForEarlier.stop();
    m_command.clear();
    noteLinesBelow(0);
    prepareLines();
}

RichTextLogEdit::Kept RichTextLogEdit::kept()
{
    writeGathered();
    return {.text = QTextDocumentFragment(document()),
            .firstLine = document()->begin().blockFormat(),
            .marks = m_marks,
            .ground = palette().color(QPalette::Base),
            .pictures = m_pictureCount,
            .hasMargin = m_hasMargin,
            .earlier = m_earlier};
}

void RichTextLogEdit::bringBack(const Kept &kept, qsizetype replaced)
{
    writeGathered();
    const bool hasMore = textLength() > replaced;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(qMin(replaced, textLength())), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    // Where two lines become one, the text takes the form of either.
    const QTextBlockFormat next = cursor.blockFormat();
    cursor.insertFragment(kept.text);
    cursor.setBlockFormat(next);
    cursor.setPosition(0);
    cursor.setBlockFormat(kept.firstLine);
    cursor.endEditBlock();
    m_pictureCount += kept.pictures;
    if (!hasMore)
        m_marks = kept.marks;
    m_hasMargin = m_hasMargin || kept.hasMargin;
    if (kept.earlier && !m_earlier)
        m_earlier = kept.earlier;
    makeRoom();
    if (kept.ground != palette().color(QPalette::Base))
        adaptColours();
    dropOldLines();
    showEnd();
}

bool RichTextLogEdit::isAtEnd() const
{
    return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void RichTextLogEdit::showEnd()
{
    bool wasThere = m_follows;
    writeGathered();
    wasThere = std::exchange(m_follows, true) && wasThere;
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    if (wasThere)
        return;
    noteLinesBelow(0);
    Q_EMIT endReached();
}

void RichTextLogEdit::followEnd()
{
    if (!m_follows)
        return;
    QScrollBar &bar = *verticalScrollBar();
    // Whoever has scrolled further himself is not brought back.
    const int farthest = qMax(farthestUnread().value_or(bar.maximum()), bar.value());
    if (farthest >= bar.maximum())
        return bar.setValue(bar.maximum());
    m_follows = false;
    bar.setValue(farthest);
    noteLinesBelow(linesOutOfSight());
}

std::optional<int> RichTextLogEdit::farthestUnread() const
{
    return m_newIsUnread && !isActiveWindow() && !isOutOfSight() ? topOfNew() : std::nullopt;
}

// --- how it looks

void RichTextLogEdit::zoom(int points)
{
    const bool follows = m_follows;
    m_zoom = points;
    applyFont();
    m_follows = follows;
    followEnd();
}

void RichTextLogEdit::applyFont()
{
    const QFont own = m_font ? fontOf(*m_font) : QApplication::font(this);
    const qreal smallest = qMin(smallestLetters, own.pointSizeF());
    const qreal size = qBound(smallest, own.pointSizeF() + m_zoom, largestLetters);
    m_zoom = qRound(size - own.pointSizeF());
    // Without a font of its own the log goes on following the desktop's.
    QFont shown = m_font ? own : QFont();
    if (m_zoom != 0)
        shown.setPointSizeF(size);
    setFont(m_font || m_zoom != 0 ? shown : QFont());
}

qreal RichTextLogEdit::zoomFactor() const
{
    const qreal shown = font().pointSizeF();
    return shown / (shown - m_zoom);
}

LogPictures::Scale RichTextLogEdit::pictureScale() const
{
    return {.deviceRatio = devicePixelRatioF(), .zoom = zoomFactor(), .letterHeight = QFontMetricsF(font()).height()};
}

QColor RichTextLogEdit::linkColour() const
{
    return readableOn(palette().color(QPalette::Link), palette().color(QPalette::Base));
}

QTextCharFormat RichTextLogEdit::commandFormat() const
{
    QTextCharFormat format = m_format;
    format.setAnchor(true);
    format.setAnchorHref(commandMark + m_command);
    format.setForeground(linkColour());
    format.setFontUnderline(true);
    return format;
}

std::vector<LogMarks::Seen> RichTextLogEdit::linesIn(const QRect &place) const
{
    const int scrolled = verticalScrollBar()->value();
    QAbstractTextDocumentLayout &layout = *document()->documentLayout();
    const int hit = layout.hitTest(QPointF(0, place.top() + scrolled), Qt::FuzzyHit);
    std::vector<LogMarks::Seen> lines;
    // One more at either side: what is painted above a line, and the ground around it, reach out of it.
    QTextBlock block = document()->findBlock(qMax(hit, 0));
    if (block.previous().isValid())
        block = block.previous();
    for (; block.isValid(); block = block.next()) {
        lines.push_back({block, layout.blockBoundingRect(block).translated(0, -scrolled)});
        if (lines.back().place.top() > place.bottom() && lines.size() > 2)
            break;
    }
    return lines;
}

/// The ground of a line reaches out of what the layout knows of.
void RichTextLogEdit::paintAround(const QRectF &changed)
{
    const int around = heightOfLine();
    const QRectF sight(0, verticalScrollBar()->value(), viewport()->width(), viewport()->height());
    const QRectF place = changed.adjusted(0, -around, 0, around).intersected(sight);
    if (!place.isEmpty())
        viewport()->update(place.translated(0, -sight.top()).toAlignedRect());
}

void RichTextLogEdit::paintEvent(QPaintEvent *event)
{
    const std::vector<LogMarks::Seen> lines = linesIn(event->rect());
    QPainter painter(viewport());
    painter.setClipRect(event->rect());
    for (const LogMarks::Seen &line : lines)
        LogMarks::paintGround(painter, line, palette());
    paintText(painter, event->rect(), lines);
    if (m_earlier) {
        const int scrolled = verticalScrollBar()->value();
        painter.save();
        painter.translate(0, -scrolled);
        m_earlier->paint(painter, event->rect().translated(0, scrolled), {palette(), linkColour()});
        painter.restore();
    }
    for (const LogMarks::Seen &line : lines)
        LogMarks::paintMarks(painter, line, palette(), font());
}

/// As Qt's own painting does it, with other colours: those that cannot be read on this ground.
void RichTextLogEdit::paintText(QPainter &painter, const QRect &place, const std::vector<LogMarks::Seen> &lines)
{
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    context.clip = place.translated(scrolled);
    context.selections = adaptedColours(lines);
    showFound(context.selections, lines);
    if (textCursor().hasSelection()) {
        QAbstractTextDocumentLayout::Selection selection;
        selection.cursor = textCursor();
        const auto group = isActiveWindow() ? QPalette::Active : QPalette::Inactive;
        selection.format.setBackground(palette().brush(group, QPalette::Highlight));
        selection.format.setForeground(palette().brush(group, QPalette::HighlightedText));
        context.selections.append(selection);
    }
    painter.save();
    painter.translate(-scrolled);
    document()->documentLayout()->draw(&painter, context);
    painter.restore();
}

QList<QAbstractTextDocumentLayout::Selection> RichTextLogEdit::adaptedColours(const std::vector<LogMarks::Seen> &lines)
{
    QList<QAbstractTextDocumentLayout::Selection> selections;
    for (const LogMarks::Seen &line : lines) {
        for (auto it = line.block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            if (!format.hasProperty(QTextFormat::ForegroundBrush))
                continue;
            const QColor asked = format.foreground().color();
            auto shown = m_adapted.constFind(asked.rgb());
            if (shown == m_adapted.constEnd())
                shown = m_adapted.insert(asked.rgb(), contrastingOn(asked, palette()));
            if (*shown == asked)
                continue;
            QAbstractTextDocumentLayout::Selection selection;
            selection.cursor = QTextCursor(document());
            selection.cursor.setPosition(fragment.position());
            selection.cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            selection.format.setForeground(*shown);
            // Of two that touch, Qt paints the second one only if it has a ground.
            selection.format.setBackground(Qt::transparent);
            selections.append(selection);
        }
    }
    return selections;
}

void RichTextLogEdit::setFound(std::vector<int> places, int length)
{
    m_found = std::move(places);
    m_foundLength = length;
    viewport()->update();
}

QString RichTextLogEdit::earlierText() const
{
    return m_earlier ? m_earlier->text().toRawText() : QString();
}

void RichTextLogEdit::setFoundEarlier(std::vector<int> places, int length, qsizetype current)
{
    if (!m_earlier)
        return;
    m_earlier->setFound({std::move(places), length, current});
    viewport()->update();
}

void RichTextLogEdit::seeEarlier(int position)
{
    if (!m_earlier)
        return;
    QTextCursor nothing = textCursor();
    nothing.clearSelection();
    setTextCursor(nothing);
    const QRect line = m_earlier->lineAt(position);
    QScrollBar &bar = *verticalScrollBar();
    const int height = viewport()->height();
    if (line.top() < bar.value() || line.bottom() >= bar.value() + height)
        bar.setValue(line.center().y() - height / 2);
}

void RichTextLogEdit::showFound(QList<QAbstractTextDocumentLayout::Selection> &selections,
                                const std::vector<LogMarks::Seen> &lines) const
{
    if (m_found.empty() || lines.empty())
        return;
    const int last = lines.back().block.position() + lines.back().block.length();
    for (auto place = std::ranges::lower_bound(m_found, lines.front().block.position());
         place != m_found.end() && *place < last; ++place) {
        QAbstractTextDocumentLayout::Selection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(qMin(*place, document()->characterCount() - 1));
        selection.cursor.setPosition(qMin(*place + m_foundLength, document()->characterCount() - 1),
                                     QTextCursor::KeepAnchor);
        LogMarks::setFoundLook(selection.format, palette());
        selections.append(selection);
    }
}

void RichTextLogEdit::noteLinesBelow(int lines)
{
    if (std::exchange(m_linesBelow, lines) != lines)
        Q_EMIT linesBelow(lines);
}

void RichTextLogEdit::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_adapted.clear();
        adaptColours();
    }
    if (event->type() == QEvent::FontChange)
        makeRoom();
}

void RichTextLogEdit::resizeEvent(QResizeEvent *event)
{
    const QTextCursor topLine = cursorForPosition(QPoint(0, fontMetrics().height() / 2));
    const int top = cursorRect(topLine).top();
    const bool follows = m_follows;
    QTextEdit::resizeEvent(event);
    placeEarlier();
    m_follows = follows; // the end may have come by on its way
    if (m_follows)
        return followEnd();
    // A new width breaks lines anew; what was read at the top stays there.
    if (event->size().width() != event->oldSize().width())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(topLine).top() - top);
}

/// To another ground, and to another colour of the desktop's texts.
void RichTextLogEdit::adaptColours()
{
    writeGathered();
    const Colour texts = logColour(palette().color(QPalette::WindowText));
    const auto asked = [texts](const QTextCharFormat &format) {
        return format.property(desktopsColour).toBool() ? texts : format.property(askedColour).toUInt();
    };
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
            const Colour colour = asked(format);
            format.setProperty(askedColour, colour);
            format.setForeground(format.isAnchor() ? linkColour() : readableOn(screenColour(colour), ground));
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
    cursor.endEditBlock();
    if (m_format.hasProperty(askedColour))
        applyColour(asked(m_format));
}

// --- the reader's hands

QString RichTextLogEdit::targetAt(const QPoint &place) const
{
    const int below = place.y() + verticalScrollBar()->value();
    return m_earlier && below < m_earlierHeight ? m_earlier->anchorAt(QPointF(place.x(), below)) : anchorAt(place);
}

QUrl RichTextLogEdit::linkAt(const QPoint &place) const
{
    const QString target = targetAt(place);
    return target.startsWith(commandMark) ? QUrl() : QUrl(target, QUrl::StrictMode);
}

QString RichTextLogEdit::commandAt(const QPoint &place) const
{
    const QString target = targetAt(place);
    return target.startsWith(commandMark) ? target.mid(1) : QString();
}

QString RichTextLogEdit::meaningAt(const QPoint &place) const
{
    for (const LogMarks::Seen &line : linesIn({place, QSize(1, 1)})) {
        const QRectF mark = LogMarks::placeOfFate(line, viewport()->width(), font());
        if (mark.adjusted(-besidePointer, -besidePointer, besidePointer, besidePointer).contains(place))
            return LogMarks::meaningOf(line.block.blockFormat());
    }
    return {};
}

void RichTextLogEdit::mousePressEvent(QMouseEvent *event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    const QUrl target = isLeft ? linkAt(event->position().toPoint()) : QUrl();
    const QString command = isLeft ? commandAt(event->position().toPoint()) : QString();
    QTextEdit::mousePressEvent(event);
    if (!target.isEmpty())
        Q_EMIT linkPressed(target);
    if (!command.isEmpty())
        Q_EMIT commandPressed(command);
}

void RichTextLogEdit::mouseMoveEvent(QMouseEvent *event)
{
    const QUrl target = linkAt(event->position().toPoint());
    const bool leadsSomewhere = !targetAt(event->position().toPoint()).isEmpty();
    viewport()->setCursor(leadsSomewhere ? Qt::PointingHandCursor : Qt::IBeamCursor);
    viewport()->setToolTip(target.isEmpty() ? meaningAt(event->position().toPoint()) : readableAddress(target));
    QTextEdit::mouseMoveEvent(event);
}

void RichTextLogEdit::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() != Qt::ControlModifier)
        return QTextEdit::wheelEvent(event);
    m_wheel += event->angleDelta().y();
    const int notches = m_wheel / wheelNotch;
    m_wheel -= notches * wheelNotch;
    if (notches != 0)
        zoom(m_zoom + notches);
    event->accept();
}

void RichTextLogEdit::contextMenuEvent(QContextMenuEvent *event)
{
    auto *const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("logMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_copy->setEnabled(textCursor().hasSelection());
    menu->addAction(m_copy);
    const QUrl target = linkAt(viewport()->mapFromGlobal(event->globalPos()));
    if (!target.isEmpty())
        menu->addAction(tr("Copy &Link Address"), this,
                        [target] { QGuiApplication::clipboard()->setText(QString::fromLatin1(target.toEncoded())); });
    menu->addAction(m_selectAll);
    menu->addAction(m_find);
    menu->addSeparator();
    menu->addActions({m_save, m_print});
    menu->addSeparator();
    menu->addActions({m_zoomIn, m_zoomOut, m_resetZoom});
    menu->addSeparator();
    menu->addActions(m_furtherCommands);
    menu->popup(event->globalPos());
}

/// Plain text alone, with the texts of the pictures in their places.
QMimeData *RichTextLogEdit::createMimeDataFromSelection() const
{
    const QTextCursor selection = textCursor();
    auto *const copied = new QMimeData; // the clipboard takes it over
    copied->setText(textWithAlternatives(*document(), selection.selectionStart(), selection.selectionEnd()));
    return copied;
}

} // namespace nimb
