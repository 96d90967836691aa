// What a log shows beside its lines and above them, and what stands in no text: the time, the day, whose message it is,
// what is new, what has not arrived.
#pragma once

#include "base/rich_text.h"

#include <QDate>
#include <QPalette>
#include <QTextBlock>
#include <QTextBlockFormat>

class QFontMetrics;
class QPainter;
class QPalette;
class QRect;
class QTextCharFormat;
class QTextDocument;

namespace nimb
{

/// Writes into the formats of lines what belongs to them, and paints it.
class LogMarks
{
public:
    /// Of a line that belongs to no message, or that continues one.
    static QTextBlockFormat ownLine();
    static QTextBlockFormat continuedLine(bool isOwnMessage);
    /// Pixels by which what continues a line stands further in than the line.
    static constexpr int continuationIndent = 18;

    /// Of the first line of this message, which comes next.
    QTextBlockFormat firstLine(const LogMessage &message);
    /// A line of no message comes next.
    void endMessages() { m_writer.clear(); }
    /// The log is empty again.
    void forget() { *this = {}; }

    /// What is new begins with this line, or does not any more.
    static void setNew(QTextBlockFormat &line, bool isNew);
    static bool isNew(const QTextBlockFormat &line);
    /// The same line with the room that what is painted above it needs.
    static QTextBlockFormat withRoom(QTextBlockFormat line, const QFont &font);
    /// At the side at which times are painted.
    static void leaveRoomForTimes(QTextDocument &log, const QFont &font);
    /// Of a line with the gap to the one before, in pixels.
    static int heightOfLine(const QFont &font);
    static bool hasRoomAbove(const QTextBlockFormat &line);
    static bool isOwnMessage(const QTextBlockFormat &line);
    /// A message of somebody else begins with it.
    static bool isReceived(const QTextBlockFormat &line);
    /// What is painted beside the line; empty where nothing is.
    static QString timeOf(const QTextBlockFormat &line);
    /// What is painted above it; empty unless a day begins with it.
    static QString dayOf(const QTextBlockFormat &line);
    /// Of a message of one's own; `sent` for any other line.
    static MessageFate fateOf(const QTextBlockFormat &line);
    static void setFate(QTextBlockFormat &line, MessageFate fate);
    /// What the mark of its fate means, as a sentence; empty where it has none.
    static QString meaningOf(const QTextBlockFormat &line);
    /// See LogMessage; 0 where it has none.
    static int numberOf(const QTextBlockFormat &line);
    /// The day that is painted above it is of another year than this, which it says.
    static void setYearShown(QTextBlockFormat &line);

    /// Of what a search has found, beside the one place at which it stands, which is in the colours of a selection.
    static void setFoundLook(QTextCharFormat &text, const QPalette &palette);

    /// One line of the log as it is seen: where it lies, without the room above it.
    struct Seen {
        QTextBlock block;
        QRectF place;
    };
    /// Under the text; above: the line before, if there is one.
    static void paintGround(QPainter &painter, const Seen &line, const QPalette &palette);
    /// Where the mark of its fate is painted, in a log of this width.
    static QRectF placeOfFate(const Seen &line, int width, const QFont &font);
    /// Beside the text and above it.
    static void paintMarks(QPainter &painter, const Seen &line, const QPalette &palette, const QFont &font);

private:
    QString m_writer;
    QDateTime m_minute; ///< that was painted last, in whole minutes
    QDate m_day;
};

} // namespace nimb
