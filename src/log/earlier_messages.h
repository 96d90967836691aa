// What was said before the window was opened, painted above a log.
#pragma once

#include "base/history.h"
#include "base/rich_text.h"
#include "log/log_marks.h"

#include <QAbstractTextDocumentLayout>
#include <QPalette>
#include <QTextCursor>
#include <QTextDocument>

#include <optional>
#include <vector>

class QPainter;
class QTextBlockFormat;

namespace nimb
{

class LogPictures;

/// A text of its own above that of the log, which looks as that does but for its paler letters: it can be read,
/// searched and followed where it holds links, and is counted, copied and spoken nowhere.
class EarlierMessages
{
public:
    /// pictures: those of the log; outlives this.
    explicit EarlierMessages(LogPictures &pictures);

    bool isEmpty() const { return !m_first; }
    /// In front of those that are there. readTo: the first one with a higher number is marked as new, as long as that
    /// is not unmarked also among those that come in front of it later.
    void add(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo = {});
    bool hasNew() const { return !m_new.isNull(); }
    void unmarkNew();
    /// In the layout as it is now, in pixels from above.
    int topOfNew() const;
    /// Of the lines that do not end above this place.
    int countBelow(int place, bool (*counts)(const QTextBlock &line)) const;
    /// The height of all in pixels, in this width and font, with a gap below.
    int layOut(int width, const QFont &font);
    struct Look {
        QPalette palette;
        QColor link;
    };
    /// place: what of it is to be painted. The colours are paler than those of the log.
    void paint(QPainter &painter, const QRect &place, const Look &look);
    /// Where the link at this place leads to; empty where there is none.
    QString anchorAt(const QPointF &place) const;

    const QTextDocument &text() const { return m_text; }
    /// Places of the text, each of so many characters, in its order. One of them, by its number, may be the one at
    /// which the reader is.
    struct Found {
        std::vector<int> places;
        int length = 0;
        qsizetype current = -1;
    };
    void setFound(Found found) { m_found = std::move(found); }
    /// The line in which this place of the text stands, from above in pixels.
    QRect lineAt(int position) const;

private:
    /// The first one that is to be marked as new instead of the one that is; null where none is.
    const StoredMessage *firstNewOf(const std::vector<StoredMessage> &messages);
    void removeMark();
    void write(QTextCursor &cursor, const KeptMessage &message, const QTextBlockFormat &first);
    /// Beside the text and above the lines, as the font is now.
    void makeRoom();
    /// The links and what was found in these lines, in their colours.
    QList<QAbstractTextDocumentLayout::Selection> coloured(const std::vector<LogMarks::Seen> &lines, const Look &look);

    LogPictures &m_pictures;
    QTextDocument m_text;
    std::optional<LogMessage> m_first;
    std::optional<std::int64_t> m_readTo; ///< until what is new is known to begin nowhere further up
    QTextCursor m_new;                    ///< in the first line of what is new; null where nothing is
    Found m_found;
};

} // namespace nimb
