#include "history/frmHistory.h"

#include "base/isolated.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "history/history_delegate.h"
#include "history/history_model.h"
#include "widgets/dialog_parts.h"
#include "widgets/file_dialogs.h"
#include "widgets/form_layout.h"
#include "widgets/muted_text.h"
#include "widgets/pictures.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

constexpr std::chrono::milliseconds typingPause{150};
constexpr int aroundHit = 100; ///< messages on each side of one
constexpr int exportPiece = 1000;
constexpr int waitingRole = Qt::UserRole + 1; ///< of the row of what waits
const QDate noDay(1900, 1, 1);                ///< what a date box holds that restricts nothing

QDateEdit *dateBox(QWidget *parent, const char *name, const QString &open, const QString &accessible)
{
    auto *const box = named(new QDateEdit(parent), name);
    box->setCalendarPopup(true);
    box->setMinimumDate(noDay);
    box->setSpecialValueText(open);
    box->setDate(noDay);
    box->setAccessibleName(accessible);
    return box;
}

QStringList wordsIn(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return text.split(blanks, Qt::SkipEmptyParts);
}

} // namespace

struct frmHistory::Export {
    explicit Export(const QString &path) : file(path), format(historyFormatOf(path)) { }

    QSaveFile file;
    HistoryFormat format;
    HistoryQuestion question;
    int written = 0;
};

frmHistory::frmHistory(History &history, WaitingMessages &waiting, Prompts &prompts, QWidget *parent)
    : QDialog(parent), m_history(history), m_waiting(waiting), m_prompts(prompts), m_model(new HistoryModel(this)),
      m_delegate(new HistoryDelegate(this))
{
    setObjectName(QStringLiteral("frmHistory"));
    setWindowTitle(tr("NIMB-Chat - History"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connectControls();
    resize(820, 520);
    list();
    searchText->setFocus();
}

frmHistory::~frmHistory() = default;

void frmHistory::buildControls()
{
    auto *const sides = new QSplitter(this);
    sides->setChildrenCollapsible(false);
    conversationList = named(new QListWidget(sides), "conversations");
    conversationList->setAccessibleName(tr("Conversations"));
    conversationList->setTextElideMode(Qt::ElideRight);
    messagesView = named(new QListView(sides), "messages");
    messagesView->setAccessibleName(tr("Messages"));
    messagesView->setModel(m_model);
    messagesView->setItemDelegate(m_delegate);
    messagesView->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    messagesView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Rows that are as high as they need without it would be too low once it takes some of their width.
    messagesView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    messagesView->setResizeMode(QListView::Adjust);
    messagesView->setContextMenuPolicy(Qt::CustomContextMenu);
    sides->setStretchFactor(0, 0);
    sides->setStretchFactor(1, 1);
    sides->setSizes({220, 600});
    m_nothing = named(new QLabel(messagesView->viewport()), "nothingKept");
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_nothing->setForegroundRole(QPalette::WindowText);
    keepMuted(*m_nothing);
    m_nothing->hide();
    auto *const room = new QVBoxLayout(messagesView->viewport());
    room->addWidget(m_nothing);

    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(form_layout::margin, form_layout::margin, form_layout::margin, form_layout::margin);
    column->setSpacing(form_layout::spacing);
    column->addWidget(makeSearchRow());
    column->addWidget(sides, 1);
    column->addWidget(makeButtonRow());
}

QWidget *frmHistory::makeSearchRow()
{
    auto *const row = new QWidget(this);
    searchText = named(new QLineEdit(row), "searchText");
    searchText->setPlaceholderText(tr("Search in what is chosen"));
    searchText->setAccessibleName(tr("Search"));
    searchText->setClearButtonEnabled(true);
    fromDate = dateBox(row, "fromDate", tr("first day"), tr("From"));
    untilDate = dateBox(row, "untilDate", tr("last day"), tr("To"));
    auto *const line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(form_layout::spacing);
    line->addWidget(searchText, 1);
    line->addWidget(new QLabel(tr("from"), row));
    line->addWidget(fromDate);
    line->addWidget(new QLabel(tr("to"), row));
    line->addWidget(untilDate);
    return row;
}

QWidget *frmHistory::makeButtonRow()
{
    auto *const row = new QWidget(this);
    m_progress = named(new QLabel(row), "exportProgress");
    exportBtn = named(new QPushButton(tr("&Export..."), row), "exportBtn");
    cancelExportBtn = named(new QPushButton(tr("&Stop"), row), "cancelExportBtn");
    cancelExportBtn->hide();
    eraseBtn = named(new QPushButton(tr("E&rase..."), row), "eraseBtn");
    closeBtn = named(new QPushButton(tr("Close"), row), "closeBtn");
    for (QPushButton *const button : {exportBtn, cancelExportBtn, eraseBtn, closeBtn})
        button->setAutoDefault(false);
    auto *const line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(form_layout::spacing);
    line->addWidget(m_progress, 1);
    for (QPushButton *const button : {cancelExportBtn, exportBtn, eraseBtn, closeBtn})
        line->addWidget(button);
    return row;
}

void frmHistory::connectControls()
{
    m_typed = new QTimer(this);
    m_typed->setSingleShot(true);
    m_typed->setInterval(typingPause);
    connect(m_typed, &QTimer::timeout, this, &frmHistory::find);
    connect(searchText, &QLineEdit::textChanged, m_typed, qOverload<>(&QTimer::start));
    connect(searchText, &QLineEdit::returnPressed, this, &frmHistory::find);
    connect(fromDate, &QDateEdit::dateChanged, this, &frmHistory::find);
    connect(untilDate, &QDateEdit::dateChanged, this, &frmHistory::find);
    connect(conversationList, &QListWidget::currentRowChanged, this, &frmHistory::find);
    connect(messagesView, &QListView::activated, this, &frmHistory::showPlaceOf);
    connect(messagesView, &QListView::customContextMenuRequested, this, &frmHistory::showEraseMenu);
    // Rows get their final heights only with the final width of the list.
    connect(messagesView->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int end) {
        if (m_staysAtEnd)
            messagesView->verticalScrollBar()->setValue(end);
    });
    connect(messagesView->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        m_staysAtEnd = value == messagesView->verticalScrollBar()->maximum() && !m_hasNewer;
        const int near = messagesView->viewport()->height() / 2;
        if (value < near)
            findOlder();
        if (value > messagesView->verticalScrollBar()->maximum() - near)
            findNewer();
    });
    // The end of a conversation of which a place in the middle is shown.
    connect(conversationList, &QListWidget::itemClicked, this, [this] {
        if (m_hasNewer)
            find();
    });
    connect(exportBtn, &QPushButton::clicked, this, &frmHistory::exportBtn_Click);
    connect(cancelExportBtn, &QPushButton::clicked, this, [this] { endExport(tr("The export was stopped.")); });
    connect(eraseBtn, &QPushButton::clicked, this, &frmHistory::showEraseMenu);
    connect(closeBtn, &QPushButton::clicked, this, &frmHistory::close);
    connect(&m_waiting, &WaitingMessages::changed, this, &frmHistory::list);
    auto *const search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, searchText, qOverload<>(&QLineEdit::setFocus));
}

/// Whoever comes back sees what was said meanwhile, unless he is reading what was there.
void frmHistory::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    const QScrollBar &bar = *messagesView->verticalScrollBar();
    const bool isReading = messagesView->selectionModel()->hasSelection() || bar.value() < bar.maximum() || m_hasNewer;
    if (isActiveWindow() && std::exchange(m_wasLeft, false) && !isReading)
        list();
    else if (!isActiveWindow())
        m_wasLeft = true;
}

// --- conversations

void frmHistory::list()
{
    m_history.list([self = QPointer(this)](const std::vector<StoredConversation> &conversations) {
        if (self)
            self->listed(conversations);
    });
}

void frmHistory::choose(const QString &address, const QString &words)
{
    m_wantedAddress = address;
    if (!words.isEmpty()) {
        const QSignalBlocker quiet(searchText); // it is looked for when the list has come
        searchText->setText(words);
    }
    list();
}

/// The first row stands for all. Who was chosen stays so.
void frmHistory::listed(const std::vector<StoredConversation> &conversations)
{
    const std::optional<std::int64_t> chosen = chosenConversation();
    const bool wasWaitingChosen = isWaitingChosen();
    const QSignalBlocker quiet(conversationList);
    conversationList->clear();
    m_names.clear();
    conversationList->addItem(new QListWidgetItem(namedPicture(QStringLiteral("search")), tr("All conversations")));
    addWaiting();
    int current = wasWaitingChosen && m_wantedAddress.isEmpty() ? conversationList->count() - 1 : 0;
    for (const StoredConversation &stored : conversations) {
        const QString name
            = paintedName(stored.conversation.name.isEmpty() ? stored.conversation.address : stored.conversation.name);
        const bool isConference = stored.conversation.kind == KeptConversation::Kind::conference;
        const QString shown = isConference
            ? tr("%1, %2").arg(isolated(name), QLocale().toString(stored.conversation.begun, QLocale::ShortFormat))
            : name;
        m_names.insert(stored.number, shown);
        auto *const item = new QListWidgetItem(
            namedPicture(isConference ? QStringLiteral("conference") : QStringLiteral("avatar")),
            tr("%1 (%2)").arg(isolated(shown), QString::number(stored.messages)), conversationList);
        item->setData(Qt::UserRole, QVariant::fromValue(stored.number));
        item->setToolTip(stored.conversation.address);
        const bool isWanted
            = !isConference && !m_wantedAddress.isEmpty() && stored.conversation.address == m_wantedAddress;
        if (isWanted || (m_wantedAddress.isEmpty() && chosen == stored.number))
            current = conversationList->count() - 1;
    }
    m_wantedAddress.clear();
    conversationList->setCurrentRow(current);
    find();
}

/// In front of the conversations, for it is not over.
void frmHistory::addWaiting()
{
    if (m_waiting.messages().empty())
        return;
    auto *const item = new QListWidgetItem(namedPicture(QStringLiteral("datetime")),
                                           tr("To be sent (%1)").arg(static_cast<int>(m_waiting.messages().size())),
                                           conversationList);
    item->setData(waitingRole, true);
    item->setToolTip(tr("What you have written to contacts who were away"));
}

bool frmHistory::isWaitingChosen() const
{
    const QListWidgetItem *const item = conversationList->currentItem();
    return item && item->data(waitingRole).toBool();
}

std::optional<std::int64_t> frmHistory::chosenConversation() const
{
    const QListWidgetItem *const item = conversationList->currentItem();
    const QVariant number = item ? item->data(Qt::UserRole) : QVariant();
    return number.isValid() ? std::optional(number.value<std::int64_t>()) : std::nullopt;
}

// --- messages

bool frmHistory::isSearch() const
{
    return !wordsIn(searchText->text()).isEmpty();
}

HistoryQuestion frmHistory::question() const
{
    HistoryQuestion question{.words = searchText->text(), .conversation = chosenConversation()};
    if (fromDate->date() != noDay)
        question.from = fromDate->date().startOfDay();
    if (untilDate->date() != noDay)
        question.until = untilDate->date().addDays(1).startOfDay();
    question.most = isSearch() ? limits::historyShown : limits::historyPage;
    return question;
}

void frmHistory::find()
{
    m_typed->stop();
    m_asksOlder = false;
    m_isAll = false;
    m_hasNewer = false;
    m_delegate->setWords(wordsIn(searchText->text()));
    if (isWaitingChosen())
        return showWaiting();
    m_history.find(question(),
                   [self = QPointer(this), asked = ++m_question](const std::vector<StoredMessage> &messages) {
                       if (self && self->m_question == asked)
                           self->found(messages);
                   });
}

void frmHistory::found(const std::vector<StoredMessage> &messages)
{
    m_model->setNames(m_names, !chosenConversation());
    m_model->setMessages(messages);
    showEmptiness();
    m_staysAtEnd = true;
    messagesView->scrollToBottom();
}

void frmHistory::showWaiting()
{
    ++m_question; // what was asked before is of no use any more
    m_isAll = true;
    const QStringList words = wordsIn(searchText->text());
    std::vector<StoredMessage> shown;
    for (const WaitingMessage &waiting : m_waiting.messages()) {
        const auto isIn = [&waiting](const QString &word) { return waiting.text.contains(word, Qt::CaseInsensitive); };
        if (!std::ranges::all_of(words, isIn))
            continue;
        const QString name = isolated(paintedName(waiting.nickname));
        shown.push_back({.number = waiting.number,
                         .message = {.time = waiting.written,
                                     .isOwn = true,
                                     .writer = waiting.isGivenUp ? tr("Not sent to %1").arg(name)
                                                                 : tr("To be sent to %1").arg(name),
                                     .text = waiting.text}});
    }
    found(shown);
}

void frmHistory::showEmptiness()
{
    const bool isEmpty = m_model->rowCount() == 0;
    const bool isNothingKept = conversationList->count() <= 1;
    const QString empty = isNothingKept
        ? tr("Nothing is kept yet. In the options you choose whether conversations are.")
        : tr("Nothing fits what you look for.");
    m_nothing->setText(m_history.troubleNow().value_or(empty));
    m_nothing->setVisible(isEmpty);
    exportBtn->setEnabled(!isEmpty && !m_export && !isWaitingChosen());
    eraseBtn->setEnabled(!isNothingKept);
}

void frmHistory::findOlder()
{
    if (m_asksOlder || m_isAll || m_model->messages().empty())
        return;
    m_asksOlder = true;
    HistoryQuestion older = question();
    older.before = m_model->messages().front().number;
    older.most = limits::historyPage;
    m_history.find(older, [self = QPointer(this), asked = m_question](const std::vector<StoredMessage> &messages) {
        if (!self || self->m_question != asked)
            return;
        self->m_asksOlder = false;
        self->m_isAll = messages.empty();
        if (self->m_isAll)
            return;
        const bool wasAtEnd = self->m_staysAtEnd;
        const QModelIndex top = self->messagesView->indexAt(QPoint(1, 1));
        const int row = top.isValid() ? top.row() : 0;
        self->m_model->addOlder(messages);
        if (wasAtEnd)
            return self->messagesView->scrollToBottom();
        self->messagesView->scrollTo(self->m_model->index(row + static_cast<int>(messages.size())),
                                     QAbstractItemView::PositionAtTop);
    });
}

/// Only where a place in the middle is shown; everything else ends with the newest.
void frmHistory::findNewer()
{
    if (!std::exchange(m_hasNewer, false))
        return;
    m_history.find(
        {.conversation = chosenConversation(), .after = m_model->messages().back().number, .most = limits::historyPage},
        [self = QPointer(this), asked = m_question](const std::vector<StoredMessage> &messages) {
            if (!self || self->m_question != asked)
                return;
            self->m_model->addNewer(messages);
            self->m_hasNewer = messages.size() == limits::historyPage;
        });
}

void frmHistory::showPlaceOf(const QModelIndex &hit)
{
    if (!isSearch() || !hit.isValid())
        return;
    const auto number = hit.data(HistoryModel::NumberRole).value<std::int64_t>();
    const auto conversation = hit.data(HistoryModel::ConversationRole).value<std::int64_t>();
    {
        const QSignalBlocker quietList(conversationList), quietSearch(searchText), quietFrom(fromDate),
            quietUntil(untilDate);
        for (int row = 0; row < conversationList->count(); ++row) {
            if (conversationList->item(row)->data(Qt::UserRole).value<std::int64_t>() == conversation && row > 0)
                conversationList->setCurrentRow(row);
        }
        searchText->clear();
        fromDate->setDate(noDay);
        untilDate->setDate(noDay);
    }
    const int asked = ++m_question;
    m_isAll = false;
    m_hasNewer = false;
    m_asksOlder = false;
    const auto isOld = [self = QPointer(this), asked] { return !self || self->m_question != asked; };
    m_history.find({.conversation = conversation, .before = number + 1, .most = aroundHit},
                   [this, isOld, conversation, number](const std::vector<StoredMessage> &before) {
                       if (isOld())
                           return;
                       found(before);
                       m_history.find({.conversation = conversation, .after = number, .most = aroundHit},
                                      [this, isOld, number](const std::vector<StoredMessage> &after) {
                                          if (isOld())
                                              return;
                                          std::vector<StoredMessage> all = m_model->messages();
                                          all.insert(all.end(), after.begin(), after.end());
                                          m_model->setMessages(std::move(all));
                                          m_hasNewer = after.size() == aroundHit;
                                          const QModelIndex place = m_model->index(m_model->rowOf(number));
                                          messagesView->setCurrentIndex(place);
                                          messagesView->scrollTo(place, QAbstractItemView::PositionAtCenter);
                                          messagesView->setFocus();
                                      });
                   });
}

// --- export

void frmHistory::exportBtn_Click()
{
    const QString filters = tr("Text (*.txt)") + QLatin1String(";;") + tr("Web page (*.html)") + QLatin1String(";;")
        + tr("JSON Lines (*.jsonl)");
    askForNewFile(*this, QStringLiteral("history.txt"), filters, [this](const QString &path) { startExport(path); });
}

void frmHistory::startExport(const QString &path)
{
    m_export = std::make_unique<Export>(path);
    m_export->question = question();
    m_export->question.after = 0;
    m_export->question.most = exportPiece;
    if (!m_export->file.open(QIODevice::WriteOnly))
        return endExport(tr("%1 cannot be written: %2.").arg(path, m_export->file.errorString()));
    m_export->file.write(exportBegin(m_export->format, tr("NIMB-Chat history")));
    cancelExportBtn->show();
    exportBtn->setEnabled(false);
    exportMore();
}

void frmHistory::exportMore()
{
    m_history.find(
        m_export->question,
        [self = QPointer(this), exported = m_export.get()](const std::vector<StoredMessage> &messages) {
            if (!self || self->m_export.get() != exported)
                return; // stopped
            QByteArray bytes;
            for (const StoredMessage &stored : messages)
                bytes += nimb::exported(exported->format, stored.message, self->m_names.value(stored.conversation));
            if (messages.empty())
                bytes = exportEnd(exported->format);
            const bool isWritten = exported->file.write(bytes) == bytes.size();
            exported->written += static_cast<int>(messages.size());
            if (!isWritten || (messages.empty() && !exported->file.commit()))
                return self->endExport(
                    tr("%1 cannot be written: %2.").arg(exported->file.fileName(), exported->file.errorString()));
            if (messages.empty())
                return self->endExport(tr("Messages written: %1.").arg(exported->written));
            exported->question.after = messages.back().number;
            self->m_progress->setText(tr("Messages written so far: %1").arg(exported->written));
            self->exportMore();
        });
}

/// The file that was there stays as it is unless all of the new one could be written.
void frmHistory::endExport(const QString &sentence)
{
    m_export.reset();
    m_progress->setText(sentence);
    cancelExportBtn->hide();
    exportBtn->setEnabled(m_model->rowCount() > 0);
}

// --- erasing

void frmHistory::showEraseMenu()
{
    auto *const menu = named(new QMenu(this), "eraseMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu](const char *name, const QString &caption, bool isPossible,
                                  const HistorySelection &selection, const QString &sentence) {
        QAction *const action = named(menu->addAction(caption), name);
        action->setEnabled(isPossible);
        connect(action, &QAction::triggered, this, [this, selection, sentence] { erase(selection, sentence); });
    };
    const QModelIndex message = messagesView->currentIndex();
    const auto number = message.data(HistoryModel::NumberRole).value<std::int64_t>();
    if (isWaitingChosen()) {
        QAction *const forget = named(menu->addAction(tr("The chosen &message")), "mnuForgetWaiting");
        forget->setEnabled(message.isValid());
        connect(forget, &QAction::triggered, this, [this, number] { forgetWaiting(number); });
        menu->popup(eraseBtn->mapToGlobal(QPoint(0, eraseBtn->height())));
        return;
    }
    add("mnuEraseMessage", tr("The chosen &message"), message.isValid(), {.message = number},
        tr("Erase the chosen message for good?"));
    const std::optional<std::int64_t> conversation = chosenConversation();
    add("mnuEraseConversation", tr("The chosen &conversation"), conversation.has_value(),
        {.conversation = conversation},
        tr("Erase all that is kept of \"%1\" for good?")
            .arg(conversation ? isolated(m_names.value(*conversation)) : QString()));
    const HistoryQuestion shown = question();
    add("mnuEraseDays", tr("The chosen &days"), shown.from.isValid() || shown.until.isValid(),
        {.conversation = conversation, .from = shown.from, .until = shown.until},
        tr("Erase all that is kept of the chosen days for good?"));
    menu->addSeparator();
    add("mnuEraseAll", tr("&All"), true, {},
        m_waiting.messages().empty()
            ? tr("Erase all that is kept of all conversations for good?")
            : tr("Erase all that is kept of all conversations for good? What waits to be sent stays and is sent."));
    menu->popup(eraseBtn->mapToGlobal(QPoint(0, eraseBtn->height())));
}

void frmHistory::forgetWaiting(std::int64_t number)
{
    if (m_prompts.decideCarefully(tr("Erase the chosen message? It will not be sent."), windowTitle()).value_or(false))
        m_waiting.erase(number);
}

void frmHistory::erase(const HistorySelection &selection, const QString &sentence)
{
    if (!m_prompts.decideCarefully(sentence, windowTitle()).value_or(false))
        return;
    m_progress->setText(tr("Erasing..."));
    m_history.erase(selection, [self = QPointer(this)](bool done) {
        if (!self)
            return;
        self->m_progress->setText(done ? QString() : tr("Nothing was erased: the history cannot be written."));
        self->list();
    });
}

} // namespace nimb
