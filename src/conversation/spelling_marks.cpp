#include "conversation/spelling_marks.h"

#include "base/limits.h"
#include "widgets/form_layout.h"
#include "widgets/muted_colour.h"
#include "widgets/plain_text_box.h"

#include <QAction>
#include <QActionGroup>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

constexpr QColor misspeltColour(214, 32, 32);
constexpr double waveWidth = 1.3; ///< of its line, pixels
constexpr int waveHeight = 2;
constexpr int halfWave = 2;

QPolygonF waveBelow(const QLine &baseline)
{
    QPolygonF wave;
    bool low = false;
    for (int x = baseline.x1(); x <= baseline.x2(); x += halfWave, low = !low)
        wave.append(QPointF(x, baseline.y1() + 1.5 + (low ? waveHeight : 0)));
    return wave;
}

} // namespace

SpellingMarks::SpellingMarks(PlainTextBox &box, Spelling &spelling) : QObject(&box), m_box(box), m_spelling(spelling)
{
    m_look.setSingleShot(true);
    m_menuBound.setSingleShot(true);
    const auto lookSoon = [this] { m_look.start(0); };
    connect(&m_look, &QTimer::timeout, this, &SpellingMarks::look);
    connect(&m_menuBound, &QTimer::timeout, this, &SpellingMarks::openMenuNow);
    connect(&box, &QPlainTextEdit::textChanged, this, [this, lookSoon] {
        m_edited = true;
        lookSoon();
    });
    connect(&box, &QPlainTextEdit::cursorPositionChanged, this, [this, lookSoon] {
        if (m_typedAt)
            lookSoon();
    });
    connect(&spelling, &Spelling::answered, this, [this, lookSoon] {
        if (!m_complete)
            lookSoon();
    });
    connect(&spelling, &Spelling::answered, this, &SpellingMarks::openMenuIfReady);
    connect(&spelling, &Spelling::changed, this, lookSoon);
    connect(&spelling, &Spelling::changed, this, &SpellingMarks::openMenuIfReady);
    connect(&spelling, &Spelling::suggested, this, &SpellingMarks::openMenuIfReady);
    connect(box.verticalScrollBar(), &QScrollBar::valueChanged, this, lookSoon);
    box.installEventFilter(this);
}

bool SpellingMarks::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::Resize)
        m_look.start(0);
    return QObject::eventFilter(watched, event);
}

// --- marks

void SpellingMarks::look()
{
    const QString text = m_box.toPlainText();
    if (!text.isEmpty())
        m_spelling.begin();
    if (m_spelling.language().isEmpty()) // which is as cheap as no spelling
        return mark({});
    m_typedAt = typedWord(text);
    const Spelling::Findings findings = m_spelling.find(text, m_typedAt);
    m_complete = findings.areComplete;
    mark(findings.misspelt);
}

/// The word at the caret from a change of the text on, as long as the caret stays there.
std::optional<qsizetype> SpellingMarks::typedWord(const QString &text)
{
    const bool edited = std::exchange(m_edited, false);
    if (!m_box.hasFocus() || (!edited && !m_typedAt))
        return std::nullopt;
    const std::vector<WordPlace> words = wordsToCheck(text);
    const auto touched = std::ranges::find_if(
        words, [caret = m_box.textCursor().position()](const WordPlace &word) { return word.touches(caret); });
    if (touched == words.end() || (!edited && touched->start != m_typedAt))
        return std::nullopt;
    return touched->start;
}

/// From the first to the last character, whichever way each line goes.
WordPlace SpellingMarks::partInSight() const
{
    const QRect sight = m_box.viewport()->rect();
    const auto at = [this](QPoint corner) { return m_box.cursorForPosition(corner).position(); };
    const int first = std::min(at(sight.topLeft()), at(sight.topRight()));
    const int last = std::max(at(sight.bottomLeft()), at(sight.bottomRight()));
    return {first, last - first};
}

/// Words out of sight have none: each mark takes time whenever anything of the box is painted.
void SpellingMarks::mark(std::vector<WordPlace> misspelt)
{
    if (!misspelt.empty()) {
        std::erase_if(misspelt, [sight = partInSight()](const WordPlace &place) {
            return place.end() < sight.start || place.start > sight.end();
        });
    }
    const auto isMarked = [](const QTextCursor &mark, const WordPlace &place) {
        return mark.selectionStart() == place.start && mark.selectionEnd() == place.end();
    };
    if (std::ranges::equal(m_marks, misspelt, isMarked))
        return;
    m_marks.clear();
    for (const WordPlace &place : misspelt)
        m_marks.push_back(cursorAt(place));
    m_box.viewport()->update();
}

QColor SpellingMarks::colour() const
{
    return contrastingOn(misspeltColour, m_box.palette());
}

/// Qt's own waves are a dashed line, and pale, where letters are as small as here.
void SpellingMarks::paint(const QPaintEvent &event) const
{
    if (m_marks.empty())
        return;
    QPainter painter(m_box.viewport());
    painter.setClipRegion(event.region());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(), waveWidth));
    for (const QTextCursor &word : m_marks) {
        for (const QLine &baseline : baselinesOf(word))
            painter.drawPolyline(waveBelow(baseline));
    }
}

/// One, or one for each line that a long word takes.
std::vector<QLine> SpellingMarks::baselinesOf(const QTextCursor &word) const
{
    std::vector<QLine> lines;
    const auto add = [&lines, descent = m_box.fontMetrics().descent()](const QRect &from, const QRect &to) {
        const int y = from.bottom() + 1 - descent;
        lines.emplace_back(std::min(from.left(), to.left()), y, std::max(from.left(), to.left()), y);
    };
    const int end = word.selectionEnd();
    QRect first = rectAt(word.selectionStart());
    if (const QRect last = rectAt(end); last.top() == first.top()) {
        add(first, last);
        return lines;
    }
    QRect before = first;
    for (int position = word.selectionStart() + 1; position <= end; ++position) {
        const QRect here = rectAt(position);
        if (here.top() != first.top()) {
            add(first, before);
            first = here;
        }
        before = here;
    }
    add(first, before);
    return lines;
}

QRect SpellingMarks::rectAt(int position) const
{
    QTextCursor cursor(m_box.document());
    cursor.setPosition(position);
    return m_box.cursorRect(cursor);
}

QTextCursor SpellingMarks::cursorAt(const WordPlace &place) const
{
    QTextCursor cursor(m_box.document());
    cursor.setPosition(static_cast<int>(place.start));
    cursor.setPosition(static_cast<int>(place.end()), QTextCursor::KeepAnchor);
    return cursor;
}

// --- the context menu

/// A key asks for the word at the caret, the mouse for the one below it.
void SpellingMarks::openMenu(const QContextMenuEvent &event)
{
    m_spelling.begin();
    if (event.reason() == QContextMenuEvent::Keyboard)
        m_menu = MenuRequest{m_box.textCursor().position(), std::nullopt, event.globalPos()};
    else
        m_menu = MenuRequest{m_box.cursorForPosition(event.pos()).position(), event.pos(), event.globalPos()};
    m_menuBound.start(limits::suggestionTime);
    openMenuIfReady();
}

std::optional<QTextCursor> SpellingMarks::wordOf(const MenuRequest &request,
                                                 const std::vector<WordPlace> &misspelt) const
{
    for (const WordPlace &place : misspelt) {
        if (place.touches(request.position) && (!request.over || isOver(place, *request.over)))
            return cursorAt(place);
    }
    return std::nullopt;
}

/// Beside the end of a line the nearest position is that of its last word.
bool SpellingMarks::isOver(const WordPlace &place, QPoint position) const
{
    const QRect first = rectAt(static_cast<int>(place.start));
    const QRect last = rectAt(static_cast<int>(place.end()));
    return first.top() != last.top() || first.united(last).contains(position);
}

void SpellingMarks::openMenuIfReady()
{
    if (!m_menu || !m_spelling.areLanguagesKnown())
        return;
    const Spelling::Findings findings = m_spelling.find(m_box.toPlainText());
    if (!findings.areComplete)
        return;
    const std::optional<QTextCursor> word = wordOf(*m_menu, findings.misspelt);
    if (word)
        m_spelling.suggest(word->selectedText());
    if (!word || m_spelling.suggestions(word->selectedText()))
        popUp(*std::exchange(m_menu, std::nullopt), word);
}

/// With what is known by now.
void SpellingMarks::openMenuNow()
{
    if (const std::optional<MenuRequest> request = std::exchange(m_menu, std::nullopt))
        popUp(*request, wordOf(*request, m_spelling.find(m_box.toPlainText()).misspelt));
}

void SpellingMarks::popUp(const MenuRequest &request, const std::optional<QTextCursor> &word)
{
    m_menuBound.stop();
    if (!m_box.isVisible())
        return;
    QMenu *const menu = m_box.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (word)
        addWordEntries(*menu, *word);
    addLanguages(*menu);
    menu->popup(request.place);
}

void SpellingMarks::addWordEntries(QMenu &menu, const QTextCursor &word)
{
    QAction *const usual = menu.actions().value(0);
    const auto add = [&menu, usual](const char *name, const QString &caption) {
        auto *const entry = named(new QAction(caption, &menu), name);
        menu.insertAction(usual, entry);
        return entry;
    };
    const std::optional<QStringList> suggestions = m_spelling.suggestions(word.selectedText());
    for (const QString &suggestion : suggestions.value_or(QStringList()))
        connect(add("mnuSuggestion", suggestion), &QAction::triggered, this,
                [this, word, suggestion] { replace(word, suggestion); });
    if (!suggestions)
        add("mnuNoSuggestion", tr("(suggestions take longer)"))->setEnabled(false);
    else if (suggestions->isEmpty())
        add("mnuNoSuggestion", tr("(no suggestion)"))->setEnabled(false);
    connect(add("mnuAddToDictionary", tr("Add to dictionary")), &QAction::triggered, this,
            [this, text = word.selectedText()] { m_spelling.addWord(text); });
    menu.insertSeparator(usual);
}

void SpellingMarks::addLanguages(QMenu &menu)
{
    const std::vector<Spelling::Language> languages = m_spelling.languages();
    if (languages.empty())
        return;
    menu.addSeparator();
    auto *const submenu = named(menu.addMenu(tr("Spelling")), "mnuSpelling");
    submenu->setToolTipsVisible(true);
    auto *const group = new QActionGroup(submenu);
    const auto add = [&](const QString &caption, const QString &choice, const QString &language) {
        QAction *const entry = group->addAction(submenu->addAction(caption));
        entry->setCheckable(true);
        entry->setChecked(m_spelling.language() == language);
        connect(entry, &QAction::triggered, this, [this, choice] { m_spelling.choose(choice); });
        return entry;
    };
    add(tr("&Off"), Spelling::offChoice, {});
    submenu->addSeparator();
    for (const Spelling::Language &one : languages) {
        QAction *const entry = add(QString(one.title).replace(u'&', QLatin1String("&&")), one.name, one.name);
        entry->setEnabled(one.isUsable);
        if (!one.isUsable)
            entry->setToolTip(tr("The files of this dictionary cannot be read or are damaged"));
    }
}

/// One step for undo. A text that has changed under the open menu stays as it is.
void SpellingMarks::replace(const QTextCursor &word, const QString &with)
{
    if (m_box.isReadOnly() || !m_box.isEnabled())
        return;
    QTextCursor change(word);
    if (change.hasSelection())
        change.insertText(with);
}

} // namespace nimb
