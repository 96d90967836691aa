// Looks for words in a log.
#pragma once

#include <QPointer>
#include <QTextCursor>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <vector>

class QLabel;
class QLineEdit;
class QToolButton;

namespace nimb
{

class RichTextLogEdit;

/// Lies over the top of its log, whose text makes room for it. Ctrl+F in the log's window shows it, Esc hides it. All
/// places are marked, one of them is selected; the search begins with the newest, for that is what one has just read,
/// and goes up into the earlier messages that are painted above the log. Where those hold no other hit, more of them
/// are brought up, within bounds.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// A child of the log.
    explicit FindBar(RichTextLogEdit &log);

    void open();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildControls();
    void shut();
    void search();
    /// By one to the newer or the older, around the ends.
    void step(int by);
    void findPlaces();
    qsizetype allPlaces() const { return static_cast<qsizetype>(m_earlier.size() + m_places.size()); }
    bool isInEarlier() const { return m_current >= 0 && m_current < static_cast<qsizetype>(m_earlier.size()); }
    void lookAgain();
    /// Looks for an older place than those that are known in what was kept, once so much time has passed.
    void beginSeeking(std::chrono::milliseconds pause);
    void seekOn();
    void endSeeking();
    bool isSeeking() const { return m_pagesLeft > 0; }
    void showCount();
    void offerKept(bool isOffered);
    void selectPlace();
    void unselect();
    void place();

    RichTextLogEdit &m_log;
    QLineEdit *findText = nullptr;
    QToolButton *findCase = nullptr;
    QLabel *findCount = nullptr;
    QToolButton *findPrevious = nullptr;
    QToolButton *findNext = nullptr;
    QToolButton *findClose = nullptr;
    QToolButton *findKept = nullptr;
    std::vector<int> m_earlier; ///< in the text of the earlier messages, the oldest first
    std::vector<int> m_places;  ///< in that of the log
    qsizetype m_current = -1;   ///< of both, those of the earlier messages first
    QTextCursor m_selected;     ///< the place of the log that was selected last
    QTimer m_later;
    QTimer m_seekOn;
    int m_pagesLeft = 0;           ///< to be brought up
    std::size_t m_knownBefore = 0; ///< places in the earlier messages
    QPointer<QWidget> m_before;    ///< had the focus before the bar was opened
};

} // namespace nimb
