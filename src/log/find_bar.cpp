#include "log/find_bar.h"

#include "log/rich_text_log.h"
#include "widgets/tool_button.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

namespace nimb
{
namespace
{

/// Of what was kept, for one search: some two thousand messages, which take as long as a blink.
constexpr int pagesSought = 10;
/// Nobody wants what begins with the first letters of a word.
constexpr std::chrono::milliseconds pauseOfTyping{300};

/// text: has a character for each place.
std::vector<int> placesOf(const QString &word, const QString &text, Qt::CaseSensitivity sensitivity)
{
    std::vector<int> places;
    if (word.isEmpty())
        return places;
    for (qsizetype at = text.indexOf(word, 0, sensitivity); at >= 0;
         at = text.indexOf(word, at + word.size(), sensitivity))
        places.push_back(static_cast<int>(at));
    return places;
}

QToolButton *pictureButton(QWidget *parent, const char *name, const QString &tip, const char *picture)
{
    QToolButton *const button = toolButton(parent, name, tip, picture);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setToolTip(tip);
    return button;
}

} // namespace

FindBar::FindBar(RichTextLogEdit &log) : QWidget(&log), m_log(log)
{
    setObjectName(QStringLiteral("findBar"));
    setAutoFillBackground(true);
    hide();
    log.viewport()->installEventFilter(this);
    auto *const find = new QShortcut(QKeySequence(QKeySequence::Find), &log);
    connect(find, &QShortcut::activated, this, &FindBar::open);
    // A flood of lines is searched now and then, not with each of them.
    m_later.setSingleShot(true);
    m_later.setInterval(std::chrono::milliseconds(100));
    connect(&m_later, &QTimer::timeout, this, &FindBar::lookAgain);
    const auto later = [this] {
        if (!isHidden() && !m_later.isActive())
            m_later.start();
    };
    connect(&log, &QTextEdit::textChanged, this, later);
    connect(&log, &RichTextLogEdit::earlierChanged, this, later);
    m_seekOn.setSingleShot(true);
    connect(&m_seekOn, &QTimer::timeout, this, &FindBar::seekOn);
    connect(&log, &RichTextLogEdit::earlierChanged, this, [this] {
        if (isSeeking())
            m_seekOn.start(0);
    });
}

void FindBar::buildControls()
{
    findText = new QLineEdit(this);
    findText->setObjectName(QStringLiteral("findText"));
    findText->setPlaceholderText(tr("Find"));
    findText->setAccessibleName(findText->placeholderText());
    findText->setToolTip(tr("Searches this conversation; Ctrl+H searches everything that was kept"));
    findText->setClearButtonEnabled(true);
    findText->addAction(namedPicture(QStringLiteral("search")), QLineEdit::LeadingPosition);
    findCount = new QLabel(this);
    findCount->setObjectName(QStringLiteral("findCount"));
    findCase = toolButton(this, "findCase", tr("Aa"), "");
    findCase->setToolButtonStyle(Qt::ToolButtonTextOnly);
    findCase->setToolTip(tr("Match case"));
    findCase->setAccessibleName(findCase->toolTip());
    findCase->setCheckable(true);
    findPrevious = pictureButton(this, "findPrevious", tr("Previous (Enter)"), "up");
    findNext = pictureButton(this, "findNext", tr("Next (Shift+Enter)"), "down");
    findClose = pictureButton(this, "findClose", tr("Close (Esc)"), "close");
    findKept = toolButton(this, "findKept", tr("Search all that was kept"), "search");
    findKept->setToolTip(tr("Opens the history's window"));
    findKept->hide();
    auto *const rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 4, 6, 4);
    rows->setSpacing(4);
    auto *const row = new QHBoxLayout;
    row->setSpacing(4);
    rows->addLayout(row);
    rows->addWidget(findKept, 0, Qt::AlignRight); // beside the others it would leave no room for words
    row->addWidget(findText, 1);
    row->addWidget(findCount);
    for (QToolButton *const button : {findCase, findPrevious, findNext, findClose})
        row->addWidget(button);
    connect(findText, &QLineEdit::textChanged, this, &FindBar::search);
    connect(findCase, &QToolButton::toggled, this, &FindBar::search);
    connect(findPrevious, &QToolButton::clicked, this, [this] { step(-1); });
    connect(findNext, &QToolButton::clicked, this, [this] { step(1); });
    connect(findKept, &QToolButton::clicked, this, [this] { Q_EMIT m_log.keptWanted(findText->text()); });
    connect(findClose, &QToolButton::clicked, this, &FindBar::shut);
}

void FindBar::open()
{
    if (!findText)
        buildControls(); // most of fifty windows never need them
    if (!isAncestorOf(window()->focusWidget()))
        m_before = window()->focusWidget();
    const QString selected = m_log.textCursor().selectedText();
    show();
    raise();
    m_log.setRoomAbove(sizeHint().height());
    place();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        findText->setText(selected);
    findText->setFocus(Qt::ShortcutFocusReason);
    findText->selectAll();
    search();
}

void FindBar::shut()
{
    endSeeking();
    hide();
    m_log.setRoomAbove(0);
    m_log.setFound({}, 0);
    m_log.setFoundEarlier({}, 0, -1);
    if (m_before)
        m_before->setFocus();
}

void FindBar::search()
{
    if (isHidden())
        return;
    endSeeking();
    findPlaces();
    m_current = allPlaces() - 1;
    if (m_current < 0 && !findText->text().isEmpty())
        beginSeeking(pauseOfTyping);
    showCount();
    selectPlace();
}

void FindBar::findPlaces()
{
    m_later.stop();
    m_log.writeGathered();
    const QString word = findText->text();
    const auto sensitivity = findCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    m_earlier = placesOf(word, m_log.earlierText(), sensitivity);
    m_places = placesOf(word, m_log.document()->toRawText(), sensitivity);
    m_log.setFound(m_places, static_cast<int>(word.size()));
    m_log.setFoundEarlier(m_earlier, static_cast<int>(word.size()), -1);
    m_later.stop();
}

/// The place that is selected stays so, at whatever number it is now.
void FindBar::lookAgain()
{
    if (isHidden())
        return;
    const bool wasInEarlier = isInEarlier();
    const auto fromLog = static_cast<qsizetype>(m_earlier.size()) - m_current; // others come in front of them only
    findPlaces();
    const auto earlier = static_cast<qsizetype>(m_earlier.size());
    const auto selected = std::ranges::lower_bound(m_places, m_log.textCursor().selectionStart());
    m_current = wasInEarlier ? qMax<qsizetype>(earlier - fromLog, 0) : earlier + (selected - m_places.begin());
    m_current = qMin(m_current, allPlaces() - 1);
    if (isInEarlier())
        m_log.setFoundEarlier(m_earlier, static_cast<int>(findText->text().size()), m_current);
    showCount();
}

void FindBar::beginSeeking(std::chrono::milliseconds pause)
{
    if (!m_log.hasEarlier())
        return;
    m_pagesLeft = pagesSought + 1; // the last one is looked through as well
    m_knownBefore = m_earlier.size();
    m_seekOn.start(pause);
}

/// The newest of those that have come up now is the next one.
void FindBar::seekOn()
{
    if (isHidden() || !isSeeking())
        return;
    lookAgain();
    if (const std::size_t more = m_earlier.size() - m_knownBefore; more > 0) {
        endSeeking();
        m_current = static_cast<qsizetype>(more) - 1;
    } else if (--m_pagesLeft > 0 && m_log.fetchEarlier()) {
        return;
    } else {
        endSeeking();
        m_current = allPlaces() - 1;
    }
    showCount();
    selectPlace();
}

void FindBar::endSeeking()
{
    m_pagesLeft = 0;
    m_seekOn.stop();
}

void FindBar::step(int by)
{
    endSeeking();
    if (m_later.isActive())
        lookAgain();
    const qsizetype count = allPlaces();
    if (count == 0)
        return search();
    if (by < 0 && m_current == 0 && m_log.hasEarlier())
        return beginSeeking(std::chrono::milliseconds(0));
    m_current = (m_current + by + count) % count;
    showCount();
    selectPlace();
}

void FindBar::showCount()
{
    const bool isFound = m_current >= 0;
    findPrevious->setEnabled(isFound);
    findNext->setEnabled(isFound);
    const bool isMissed = !isFound && !isSeeking() && !findText->text().isEmpty();
    offerKept(isMissed && m_log.hasEarlier());
    if (findText->text().isEmpty())
        findCount->clear();
    else if (isFound)
        findCount->setText(tr("%1 of %2").arg(m_current + 1).arg(allPlaces()));
    else
        findCount->setText(isSeeking() ? tr("Searching...") : tr("Not found"));
}

void FindBar::offerKept(bool isOffered)
{
    if (findKept->isVisibleTo(this) == isOffered)
        return;
    findKept->setVisible(isOffered);
    layout()->activate();
    m_log.setRoomAbove(sizeHint().height());
    place();
}

void FindBar::selectPlace()
{
    if (m_current < 0)
        return unselect();
    const int length = static_cast<int>(findText->text().size());
    m_log.setFoundEarlier(m_earlier, length, isInEarlier() ? m_current : -1);
    if (isInEarlier())
        return m_log.seeEarlier(m_earlier[static_cast<std::size_t>(m_current)]);
    QTextCursor found(m_log.document());
    found.setPosition(m_places[static_cast<std::size_t>(m_current) - m_earlier.size()]);
    found.setPosition(found.position() + length, QTextCursor::KeepAnchor);
    m_log.setTextCursor(found);
    m_selected = found;
    m_log.ensureCursorVisible();
}

/// What the reader has selected himself stays so.
void FindBar::unselect()
{
    QTextCursor shown = m_log.textCursor();
    const bool isOurs = !m_selected.isNull() && shown.selectionStart() == m_selected.selectionStart()
        && shown.selectionEnd() == m_selected.selectionEnd();
    m_selected = QTextCursor();
    if (!isOurs)
        return;
    shown.clearSelection();
    m_log.setTextCursor(shown);
}

void FindBar::place()
{
    const QRect shown = m_log.viewport()->geometry();
    const int height = sizeHint().height();
    setGeometry(m_log.frameWidth(), shown.top() - height, m_log.width() - 2 * m_log.frameWidth(), height);
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (!isHidden() && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        place();
    return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return shut();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        step(event->modifiers() & Qt::ShiftModifier ? 1 : -1);
    event->accept(); // nothing that is typed here is meant for the conversation
}

} // namespace nimb
