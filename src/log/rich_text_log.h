// The rich-text log on the screen, which every window with a log uses.
#pragma once

#include "base/rich_text.h"
#include "log/log_marks.h"
#include "log/log_pictures.h"
#include "log/screen_readers.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QHash>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace nimb
{

class EarlierMessages;
class FindBar;
struct StoredMessage;

/// Bounded: beyond limits::logLines, logCharacters and logPictures the oldest lines go. Lines that are broken because
/// the window is narrow, and those that continue another, are indented. What is written is gathered and goes in at most
/// once a frame, so that a burst costs one layout and one painting. Follows new text only while the reader is at the
/// end, and while nobody reads, in a window that is not the active one, no further than to where the new begins.
/// Colours are adapted to the ground, and again when it changes; on a light one the document keeps them as they were
/// asked for, and they are adapted on the screen alone. Times, days and the like are painted beside the text and above
/// it, see LogMarks, and stand in no text.
class RichTextLogEdit : public QTextEdit, public RichTextLog
{
    Q_OBJECT

public:
    explicit RichTextLogEdit(QWidget *parent = nullptr);
    ~RichTextLogEdit() override;

    /// Empty strips above and below the text area, in pixels, that show the window's ground.
    void setInsets(int above, int below);
    /// Turns web addresses in lines that are completed from now on into links.
    void setLinkDetection(bool on) { m_detectsLinks = on; }
    /// Entries of the context menu behind the log's own, in that order.
    void setFurtherCommands(const QList<QAction *> &commands) { m_furtherCommands = commands; }
    /// Larger or smaller letters by this many points; 0 goes back to the font's own size.
    void zoom(int points);
    /// Puts in what has been gathered.
    void writeGathered();
    /// Goes to the end, and follows it from now on.
    void showEnd();
    /// What is added comes into sight.
    bool isAtItsEnd() const { return m_follows; }
    /// How much of what it may hold it holds, 0 to 1: of lines, characters or pictures, whichever is most.
    double fullness() const;
    /// False when there is no line to drop.
    bool dropOldestTenth();
    /// Where the log was out of sight when new text came, and has grown by more than can be seen at once: goes to where
    /// the new text begins.
    void showNew();
    /// All that is marked as new has been read.
    void newWasSeen() { m_newIsUnread = false; }
    /// Messages of others that begin below what is in sight.
    int messagesBelow() const;
    /// Pixels that a line takes, without what is painted above it.
    int heightOfLine() const;
    /// Room above and below the text, in pixels, for what would lie over it.
    void setRoomAbove(int room);
    void setRoomBelow(int room);
    /// Shows them above the log, in front of those that are there, until it is cleared. They are no part of its text.
    /// readTo: those with a higher number are marked as new.
    void addEarlier(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo = {});
    /// Asks for others in front of those that are there, which then come by addEarlier(); without any when none are
    /// left. False when there is nobody to ask, or it is known already that none are.
    void setEarlierSource(std::function<bool()> source) { m_earlierSource = std::move(source); }
    bool fetchEarlier() { return hasEarlier() && m_earlierSource && m_earlierSource(); }
    bool hasEarlier() const { return m_earlier != nullptr; }
    /// All that stands in the log, so that it can be brought back after it was cleared.
    struct Kept {
        QTextDocumentFragment text;
        QTextBlockFormat firstLine;
        LogMarks marks;
        QColor ground; ///< to which its colours are adapted
        qsizetype pictures = 0;
        bool hasMargin = false;
        std::shared_ptr<EarlierMessages> earlier{}; ///< null where there are none
    };
    Kept kept();
    /// In front of what is there now, whose first characters it replaces.
    void bringBack(const Kept &kept, qsizetype replaced);
    /// Marks these places of the text, each of this many characters, in the order of the text.
    void setFound(std::vector<int> places, int length);
    /// The text of the earlier messages, a character for each place.
    QString earlierText() const;
    /// The same there, where one of the places, by its number, can be the one that the reader has come to.
    void setFoundEarlier(std::vector<int> places, int length, qsizetype current);
    /// Brings this place there into sight; nothing of the log is selected any more.
    void seeEarlier(int position);

    qsizetype textLength() const override;
    void setSelStart(qsizetype position) override;
    void setSelColor(Colour colour) override;
    /// The font of the whole log.
    void setSelFont(const LogFont &font) override;
    void setSelContinues(bool continues) override { m_continues = continues; }
    void setSelCommand(const QString &name) override { m_command = name; }
    void setSelMessage(const std::optional<LogMessage> &message) override;
    void setSelBold(bool bold) override;
    void setFate(int message, MessageFate fate) override;
    void markNew() override;
    void unmarkNew() override;
    void setSelText(const QString &text) override;
    void setSelRtf(const QString &fragment, const QString &alternative) override;
    void clear() override;

Q_SIGNALS:
    /// Something has been put in.
    void written();
    /// The left button was pressed on a link.
    void linkPressed(const QUrl &target);
    /// The same on a command; see setSelCommand().
    void commandPressed(const QString &name);
    /// The reader has come to the end of the text.
    void endReached();
    /// What screen readers have been told of new text.
    void toldReaders(const QString &text);
    /// There are others, or none any more, or no more have come.
    void earlierChanged();
    /// What an earlier run has left unread is among the earlier messages, or is not to be had.
    void keptNewShown();
    /// What was kept is to be searched for these words.
    void keptWanted(const QString &words);
    /// So many lines have come since the reader has left the end.
    void linesBelow(int lines);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
    struct Piece {
        QString text;
        QTextCharFormat format;
        bool continues = false;                    ///< the lines that it begins continue the one before
        bool isOwn = false;                        ///< they are of a message of one's own
        std::optional<QTextBlockFormat> line = {}; ///< of the line that it begins, when that is a message's first
    };

    void buildCommands();
    qsizetype caretPosition() const;
    void gather(const QString &text, const QTextCharFormat &format);
    bool isAtEnd() const;
    bool isOutOfSight() const;
    void followEnd();
    /// What is marked as new begins here, in what stands above the log or in the log itself.
    std::optional<int> topOfNew() const;
    /// Where nobody reads, nothing new is to be scrolled past: the place beyond which the log does not follow its end.
    std::optional<int> farthestUnread() const;
    /// Of the lines that do not end in sight.
    int countBelow(bool (*counts)(const QTextBlock &line)) const;
    int linesOutOfSight() const;
    void insertGathered();
    void tellReaders(int begin);
    void applyColour(Colour colour);
    void insert(const Piece &piece);
    /// Of the first line of an empty log, and of those behind it.
    void prepareLines();
    void setNewLine(bool isNew);
    /// The earlier messages in the width and the font as they are now.
    void placeEarlier();
    /// While there is room for more of them in sight, or nearly so.
    void askForEarlier();
    /// Room for the marks as the font is now.
    void makeRoom();
    std::vector<LogMarks::Seen> linesIn(const QRect &place) const;
    void paintAround(const QRectF &changed);
    void paintText(QPainter &painter, const QRect &place, const std::vector<LogMarks::Seen> &lines);
    QList<QAbstractTextDocumentLayout::Selection> adaptedColours(const std::vector<LogMarks::Seen> &lines);
    void showFound(QList<QAbstractTextDocumentLayout::Selection> &selections,
                   const std::vector<LogMarks::Seen> &lines) const;
    void noteLinesBelow(int lines);
    void markLinks(QTextBlock line);
    /// What a log holds.
    struct Amount {
        qsizetype lines, characters, pictures;
    };
    Amount amount() const;
    void dropOldLines();
    /// The oldest ones, until no more than this is left. False when none had to go.
    bool dropLinesBeyond(const Amount &most);
    void adaptColours();
    void applyFont();
    qreal zoomFactor() const;
    LogPictures::Scale pictureScale() const;
    QColor linkColour() const;
    QTextCharFormat commandFormat() const;
    /// What the link at this place leads to, be it in the log or above it.
    QString targetAt(const QPoint &place) const;
    QUrl linkAt(const QPoint &place) const;
    /// What the mark at this place means, likewise.
    QString meaningAt(const QPoint &place) const;
    /// Empty where there is none.
    QString commandAt(const QPoint &place) const;

    QTextCursor m_caret;
    QTextCursor m_new; ///< at the beginning of what is new; null while nothing is
    bool m_newIsUnseen = false;
    bool m_newIsUnread = false;
    QTextCharFormat m_format;
    bool m_continues = false;
    bool m_isOwn = false;
    std::optional<QTextBlockFormat> m_firstLine; ///< of the message that begins with what is written next
    LogMarks m_marks;
    bool m_hasMargin = false; ///< beside the text, for times
    QString m_command;
    std::optional<LogFont> m_font;
    int m_zoom = 0; ///< points
    bool m_detectsLinks = false;
    std::vector<Piece> m_gathered;
    qsizetype m_gatheredLength = 0;
    qsizetype m_pictureCount = 0; ///< in the document
    bool m_follows = true;        ///< the reader is at the end and stays there
    QTimer m_frame;
    QElapsedTimer m_sinceWritten;
    int m_wheel = 0; ///< turned since the last whole notch, in eighths of a degree
    int m_linesBelow = 0;
    std::vector<int> m_found; ///< places
    int m_foundLength = 0;
    QHash<QRgb, QColor> m_adapted; ///< colours of the document as they are shown on this ground
    int m_insetAbove = 0, m_insetBelow = 0, m_roomAbove = 0, m_roomBelow = 0;
    std::shared_ptr<EarlierMessages> m_earlier; ///< once there are some
    std::function<bool()> m_earlierSource;
    int m_earlierHeight = 0;
    QTimer m_roomForEarlier; ///< asks for more of them
    ScreenReaders m_screenReaders;
    LogPictures *m_pictures;
    FindBar *m_findBar = nullptr;
    QWidget *m_above;
    QWidget *m_below;
    QAction *m_copy = nullptr;
    QAction *m_selectAll = nullptr;
    QAction *m_find = nullptr;
    QAction *m_save = nullptr;
    QAction *m_print = nullptr;
    QAction *m_zoomIn = nullptr;
    QAction *m_zoomOut = nullptr;
    QAction *m_resetZoom = nullptr;
    QList<QAction *> m_furtherCommands;
};

/// A colour of the logs as the screen takes it, and back.
QColor screenColour(Colour colour);
Colour logColour(const QColor &colour);

/// The colour that a piece of a log is meant to have, before it is adapted to the ground of the screen. Nothing where
/// it has none of its own: it is the reader's for texts.
std::optional<QColor> meantColour(const QTextCharFormat &format);

} // namespace nimb
