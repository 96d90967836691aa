#include "log/log_marks.h"

#include "base/clock_text.h"
#include "base/isolated.h"
#include "base/remote_text.h"
#include "widgets/muted_colour.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QTextLayout>

namespace nimb
{
namespace
{

/// Properties of a line. Whole minutes and days, so that few formats serve many lines.
enum Property {
    ownMessage = QTextFormat::UserProperty + 16,
    fateShown,     ///< a MessageFate, where it is not `sent`
    messageNumber, ///< where the fate may change
    gapAbove,      ///< pixels
    timeShown,     ///< text
    dayShown,      ///< Julian day
    beginsNew,
    yearShown,
    receiverName, ///< of a message that bears a number
};

constexpr double lineHeight = 135;             // percent
constexpr int gapOfWriter = 2, gapOfOther = 6; // pixels
constexpr int markEdge = 12, besideMark = 8;   // pixels, beside what is painted

QFont smaller(QFont font)
{
    font.setBold(false);
    font.setItalic(false);
    font.setPointSizeF(font.pointSizeF() * 0.85);
    return font;
}

int roomOfLine(const QFont &font)
{
    return QFontMetrics(font).lineSpacing() + 4;
}

QTextBlockFormat line()
{
    QTextBlockFormat format;
    format.setIndent(1); // at the side from which the line is read
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    format.setTopMargin(gapOfWriter);
    return format;
}

/// A word between two thin lines.
void paintDivider(QPainter &painter, const QRect &place, const QString &word, const QColor &colour)
{
    const int wordWidth = painter.fontMetrics().horizontalAdvance(word);
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignCenter, word);
    QColor faint = colour;
    faint.setAlphaF(0.5F);
    painter.setPen(faint);
    const int middle = place.center().y(), centre = place.center().x();
    painter.drawLine(place.left() + markEdge, middle, centre - wordWidth / 2 - besideMark, middle);
    painter.drawLine(centre + wordWidth / 2 + besideMark, middle, place.right() - markEdge, middle);
}

void paintRing(QPainter &painter, const QRectF &place, const QColor &colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(place);
}

/// A ring with an exclamation mark, which needs no font.
void paintUndelivered(QPainter &painter, const QRectF &place, const QColor &colour)
{
    painter.save();
    paintRing(painter, place, colour);
    const QPointF middle = place.center();
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(middle.x(), place.top() + place.height() * 0.25),
                     QPointF(middle.x(), place.top() + place.height() * 0.55));
    painter.drawPoint(QPointF(middle.x(), place.top() + place.height() * 0.76));
    painter.restore();
}

/// A clock, for the same reason.
void paintWaiting(QPainter &painter, const QRectF &place, const QColor &colour)
{
    painter.save();
    paintRing(painter, place, colour);
    const QPointF middle = place.center();
    painter.setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle, QPointF(middle.x(), place.top() + place.height() * 0.25));
    painter.drawLine(middle, QPointF(place.left() + place.width() * 0.7, middle.y()));
    painter.restore();
}

/// The side at which a reader's lines end.
bool timesAreAtTheLeft()
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

QRect placeOfTime(const LogMarks::Seen &line, int width, const QFont &font)
{
    const int left = timesAreAtTheLeft() ? markEdge : 0;
    const QFontMetrics metrics(font);
    // A picture makes its line higher; the letters beside it stand on their own line all the same.
    const QTextLine first = line.block.layout()->lineCount() > 0 ? line.block.layout()->lineAt(0) : QTextLine();
    const double baseline = first.isValid() ? first.y() + first.ascent() : metrics.ascent();
    return {left, qRound(line.place.top() + baseline) - metrics.ascent(), width - markEdge, metrics.height()};
}

} // namespace

QTextBlockFormat LogMarks::ownLine()
{
    QTextBlockFormat format = line();
    format.setTextIndent(-continuationIndent);
    // Whatever name stands in it, it is one of the program's own sentences.
    format.setLayoutDirection(QGuiApplication::layoutDirection());
    return format;
}

QTextBlockFormat LogMarks::continuedLine(bool isOwnMessage)
{
    QTextBlockFormat format = line();
    format.setTopMargin(0);
    if (isOwnMessage)
        format.setProperty(ownMessage, true);
    return format;
}

QTextBlockFormat LogMarks::firstLine(const LogMessage &message)
{
    QTextBlockFormat format = ownLine();
    format.clearProperty(QTextFormat::LayoutDirection); // that of what was written
    format.setProperty(gapAbove, message.writer == m_writer ? gapOfWriter : gapOfOther);
    m_writer = message.writer;
    if (message.isOwn)
        format.setProperty(ownMessage, true);
    setFate(format, message.fate);
    if (message.number != 0) {
        format.setProperty(messageNumber, message.number);
        format.setProperty(receiverName, message.receiver);
    }
    const QDateTime minute(message.time.date(), QTime(message.time.time().hour(), message.time.time().minute()));
    if (minute != m_minute)
        format.setProperty(timeShown, shortTime(minute));
    if (minute.date() != m_day)
        format.setProperty(dayShown, minute.date().toJulianDay());
    m_minute = minute;
    m_day = minute.date();
    return format;
}

void LogMarks::setNew(QTextBlockFormat &line, bool isNew)
{
    if (isNew)
        line.setProperty(beginsNew, true);
    else
        line.clearProperty(beginsNew);
}

bool LogMarks::isNew(const QTextBlockFormat &line)
{
    return line.hasProperty(beginsNew);
}

bool LogMarks::isOwnMessage(const QTextBlockFormat &line)
{
    return line.hasProperty(ownMessage);
}

bool LogMarks::isReceived(const QTextBlockFormat &line)
{
    return line.hasProperty(gapAbove) && !line.hasProperty(ownMessage);
}

QString LogMarks::timeOf(const QTextBlockFormat &line)
{
    return line.stringProperty(timeShown);
}

QString LogMarks::dayOf(const QTextBlockFormat &line)
{
    if (!line.hasProperty(dayShown))
        return {};
    return QLocale().toString(QDate::fromJulianDay(line.property(dayShown).toLongLong()),
                              line.hasProperty(yearShown) ? QStringLiteral("dddd, d MMMM yyyy")
                                                          : QStringLiteral("dddd, d MMMM"));
}

void LogMarks::setYearShown(QTextBlockFormat &line)
{
    line.setProperty(yearShown, true);
}

void LogMarks::setFoundLook(QTextCharFormat &text, const QPalette &palette)
{
    constexpr QColor yellow(0xFF, 0xD5, 0x4F), dimYellow(0x5C, 0x4A, 0x12);
    constexpr double toldApart = 1.5;
    const bool likeSelection = contrast(yellow, palette.color(QPalette::Highlight)) < toldApart;
    text.setBackground(likeSelection ? dimYellow : yellow);
    text.setForeground(likeSelection ? QColor(Qt::white) : QColor(0x1B, 0x1F, 0x24));
}

MessageFate LogMarks::fateOf(const QTextBlockFormat &line)
{
    return line.hasProperty(fateShown) ? static_cast<MessageFate>(line.intProperty(fateShown)) : MessageFate::sent;
}

void LogMarks::setFate(QTextBlockFormat &line, MessageFate fate)
{
    if (fate == MessageFate::sent)
        line.clearProperty(fateShown);
    else
        line.setProperty(fateShown, static_cast<int>(fate));
}

QString LogMarks::meaningOf(const QTextBlockFormat &line)
{
    const QString receiver = isolated(paintedName(line.stringProperty(receiverName)));
    switch (fateOf(line)) {
    case MessageFate::sent:
        break;
    case MessageFate::lost:
        return QCoreApplication::translate("LogMarks", "%1 was not online: this has probably not arrived")
            .arg(receiver);
    case MessageFate::waits:
        return QCoreApplication::translate("LogMarks", "Waits until %1 is back").arg(receiver);
    }
    return {};
}

QRectF LogMarks::placeOfFate(const Seen &line, int width, const QFont &font)
{
    const double side = QFontMetrics(smaller(font)).height() * 0.8;
    const QRect time = placeOfTime(line, width, font);
    const double left = timesAreAtTheLeft() ? time.left() : time.right() - side;
    return {left, time.center().y() - side / 2, side, side};
}

int LogMarks::numberOf(const QTextBlockFormat &line)
{
    return line.intProperty(messageNumber);
}

bool LogMarks::hasRoomAbove(const QTextBlockFormat &line)
{
    return line.hasProperty(beginsNew) || line.hasProperty(dayShown);
}

QTextBlockFormat LogMarks::withRoom(QTextBlockFormat line, const QFont &font)
{
    const int dividers = (line.hasProperty(beginsNew) ? 1 : 0) + (line.hasProperty(dayShown) ? 1 : 0);
    const int own = line.hasProperty(gapAbove) ? line.intProperty(gapAbove) : gapOfWriter;
    line.setTopMargin(own + dividers * roomOfLine(font));
    return line;
}

int LogMarks::heightOfLine(const QFont &font)
{
    return qRound(QFontMetrics(font).height() * lineHeight / 100) + gapOfWriter;
}

void LogMarks::leaveRoomForTimes(QTextDocument &log, const QFont &font)
{
    const int room = QFontMetrics(smaller(font)).horizontalAdvance(QStringLiteral("00:00")) + markEdge + 2 * besideMark;
    QTextFrameFormat margins = log.rootFrame()->frameFormat();
    if (timesAreAtTheLeft())
        margins.setLeftMargin(room);
    else
        margins.setRightMargin(room);
    log.rootFrame()->setFrameFormat(margins);
}

void LogMarks::paintGround(QPainter &painter, const Seen &line, const QPalette &palette)
{
    const QTextBlockFormat format = line.block.blockFormat();
    if (!format.hasProperty(ownMessage))
        return;
    // What a line is higher than its letters is below them, and no part of the place; the ground has half of it on
    // either side, and no gap between two of one writer.
    const double half = QFontMetrics(line.block.charFormat().font()).height() * (lineHeight - 100) / 200;
    const double above = format.topMargin() <= gapOfWriter ? format.topMargin() : 0;
    const QRectF place = line.place.adjusted(0, -half - above, 0, half);
    painter.fillRect(QRectF(0, place.top(), painter.viewport().width(), place.height()).toAlignedRect(),
                     tintedGround(palette));
}

void LogMarks::paintMarks(QPainter &painter, const Seen &line, const QPalette &palette, const QFont &font)
{
    const QTextBlockFormat format = line.block.blockFormat();
    const int width = painter.viewport().width();
    const QColor muted = mutedTextColour(palette);
    painter.setFont(smaller(font));
    const int room = roomOfLine(font);
    // From the line upwards.
    QRect above(0, qRound(line.place.top()) - format.intProperty(gapAbove) - room, width, room);
    if (format.hasProperty(beginsNew)) {
        paintDivider(painter, above, QCoreApplication::translate("LogMarks", "new"),
                     contrastingOn(QColor(0xD1, 0x24, 0x2F), palette));
        above.translate(0, -room);
    }
    if (format.hasProperty(dayShown))
        paintDivider(painter, above, dayOf(format), muted);
    QRect time = placeOfTime(line, width, font);
    if (const MessageFate fate = fateOf(format); fate != MessageFate::sent) {
        const QRectF place = placeOfFate(line, width, font);
        if (fate == MessageFate::lost)
            paintUndelivered(painter, place, contrastingOn(QColor(0x7A, 0x41, 0x00), palette));
        else
            paintWaiting(painter, place, muted);
        const int taken = qRound(place.width()) + besideMark / 2;
        time.adjust(timesAreAtTheLeft() ? taken : 0, 0, timesAreAtTheLeft() ? 0 : -taken, 0);
    }
    if (format.hasProperty(timeShown)) {
        painter.setPen(muted);
        painter.drawText(time, Qt::AlignTrailing | Qt::AlignVCenter, timeOf(format));
    }
}

} // namespace nimb
