// Marks misspelt words in an input box, and offers what they may have been meant to be.
#pragma once

#include "conversation/spelling.h"

#include <QColor>
#include <QLine>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTextCursor>
#include <QTimer>

class QContextMenuEvent;
class QMenu;
class QPaintEvent;

namespace nimb
{

class PlainTextBox;

/// The marks are painted: text, undo and what is sent are as they are without them. The word at the caret has none
/// until it is left. A key press only notes that there is something to look at; that happens when the event loop comes
/// to it.
class SpellingMarks : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the box.
    SpellingMarks(PlainTextBox &box, Spelling &spelling);

    /// Opens the box's context menu with what spelling adds to it: at once, or as soon as what it takes is known, but
    /// after limits::suggestionTime in any case. The event loop goes on meanwhile.
    void openMenu(const QContextMenuEvent &event);

    /// Over the text, when that has been painted.
    void paint(const QPaintEvent &event) const;

    /// The marked words, selected.
    const std::vector<QTextCursor> &marks() const { return m_marks; }
    /// Readable on the box's ground.
    QColor colour() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void look();
    std::optional<qsizetype> typedWord(const QString &text);
    void mark(std::vector<WordPlace> misspelt);
    WordPlace partInSight() const;
    std::vector<QLine> baselinesOf(const QTextCursor &word) const;
    QRect rectAt(int position) const;
    bool isOver(const WordPlace &place, QPoint position) const;
    QTextCursor cursorAt(const WordPlace &place) const;

    struct MenuRequest {
        int position = 0;             ///< in the text
        std::optional<QPoint> over{}; ///< where the mouse is, in the box
        QPoint place{};               ///< of the menu, on the screen
    };
    std::optional<QTextCursor> wordOf(const MenuRequest &request, const std::vector<WordPlace> &misspelt) const;
    void openMenuIfReady();
    void openMenuNow();
    void popUp(const MenuRequest &request, const std::optional<QTextCursor> &word);
    void addWordEntries(QMenu &menu, const QTextCursor &word);
    void addLanguages(QMenu &menu);
    void replace(const QTextCursor &word, const QString &with);

    PlainTextBox &m_box;
    Spelling &m_spelling;
    std::vector<QTextCursor> m_marks; ///< which follow changes of the text
    QTimer m_look;
    QTimer m_menuBound;
    bool m_edited = false;              ///< since the last look
    std::optional<qsizetype> m_typedAt; ///< where the word begins that is being typed
    bool m_complete = true;
    std::optional<MenuRequest> m_menu;
};

} // namespace nimb
