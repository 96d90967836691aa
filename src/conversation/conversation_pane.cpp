#include "conversation/conversation_pane.h"

#include "base/limits.h"
#include "base/line_break.h"
#include "conversation/conversation.h"
#include "conversation/emoji_picker.h"
#include "conversation/emoji_stock.h"
#include "conversation/emoticon_picker.h"
#include "conversation/file_drops.h"
#include "conversation/file_panel.h"
#include "conversation/history_choice.h"
#include "conversation/message_input.h"
#include "files/file_transfers.h"
#include "log/RTFSubClass.h"
#include "log/cleared_band.h"
#include "log/log_font.h"
#include "log/log_room.h"
#include "log/rich_text_log.h"
#include "widgets/accessible_window.h"
#include "widgets/band.h"
#include "widgets/file_dialogs.h"
#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/former_size.h"
#include "widgets/scratch_folder.h"
#include "widgets/screen_room.h"
#include "widgets/tool_button.h"
#include "widgets/tool_row.h"
#include "widgets/window_attention.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace nimb
{

using form_layout::spacing;

namespace
{

/// Of what is typed where nothing takes it.
bool isMeantForMessage(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste))
        return true;
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return isEnter || (!event.text().isEmpty() && event.text().front().isPrint());
}

} // namespace

ConversationPane::ConversationPane(Conversation &conversation, const ConversationTools &tools, QWidget *parent)
    : QWidget(parent), m_conversation(&conversation), m_links(tools.links), m_openHistory(tools.openHistory),
      m_openTransfers(tools.openTransfers), m_emoji(tools.emoji), m_folders(tools.folders), m_scratch(tools.scratch),
      m_pictures(tools.pictures)
{
    buildControls();
    connectControls();
    connectFiles();
    m_links.HookRichText(*m_outtext, *this);
    tools.logRoom.join(*m_outtext, [this] { return m_conversation && m_conversation->isSpared(); });
    intext->setSpelling(tools.spelling);
    QAccessible::installFactory(makeAccessibleWindow); // again and again, which Qt ignores
    parent->installEventFilter(this);
    m_formerSize = new FormerSize(*parent); // which owns it
    intext->setFocus();
}

void ConversationPane::buildControls()
{
    m_outtext = named(new RichTextLogEdit(this), "outtext");
    m_outtext->setAccessibleName(tr("Conversation"));
    m_outtext->setTabChangesFocus(true);
    ListViewEmot = new EmoticonPicker(this);
    ListViewEmot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ListViewEmot->hide();

    m_column = new QVBoxLayout(this);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(spacing);
    m_logRow = new QHBoxLayout;
    m_logRow->setSpacing(spacing);
    m_logRow->addWidget(m_outtext, 1);
    m_column->addLayout(m_logRow, 1);
    m_cleared = new ClearedBand(*m_outtext, tr("The conversation was cleared."), this);
    m_column->addWidget(m_cleared->strip());
    m_column->addWidget(ListViewEmot);
    m_column->addWidget(makeToolRow());
    m_column->addWidget(makeCutBand());
    m_column->addLayout(makeInput());
    m_column->insertWidget(m_column->indexOf(m_cleared->strip()),
                           makeHistoryBand()); // made last, so that the Tab key comes to it last
    fileBand = named(makeBandWithLink(this), "fileBand");
    fileBand->setAccessibleName(tr("Files"));
    m_column->insertWidget(m_column->indexOf(m_cleared->strip()), fileBand);
}

QWidget *ConversationPane::makeToolRow()
{
    Emoticbtn = toolButton(this, "Emoticbtn", tr("Emoticons"), "emoticons");
    Emoticbtn->setCheckable(true);
    if (EmojiTable::isThere())
        Emoticbtn->setToolTip(tr("Emoticons and emoji (Ctrl+.)"));
    datetimebtn = toolButton(this, "datetimebtn", tr("Date&&Time"), "datetime");
    clearbtn = toolButton(this, "clearbtn", tr("Clear"), "clear");
    m_toolRow = new ToolRow(this);
    for (QToolButton *const tool : {Emoticbtn, datetimebtn, clearbtn})
        m_toolRow->add(tool);
    messageCounter = named(new QLabel(this), "messageCounter");
    messageCounter->setAccessibleName(tr("Length of the message"));
    messageCounter->hide();
    m_toolRow->addAtEnd(messageCounter);
    return m_toolRow;
}

/// Says what of a paste did not fit, and offers it.
QWidget *ConversationPane::makeCutBand()
{
    cutBand = named(makeBandWithLink(this), "cutBand");
    cutBand->setAccessibleName(tr("What did not fit"));
    return cutBand;
}

/// Asks once, in the first conversation, whether what is said is kept.
QWidget *ConversationPane::makeHistoryBand()
{
    historyBand = named(makeBandWithLink(this), "historyBand");
    const QString sentence = tr("Conversations are not kept.");
    historyBand->setText(sentence
                         + tr(" Keep them: %1", "answers that can be clicked")
                               .arg(bandAnswers({bandAnswer(QStringLiteral("year"), tr("for a year")),
                                                 bandAnswer(QStringLiteral("ever"), tr("for ever")),
                                                 bandAnswer(QStringLiteral("no"), tr("no"))})));
    historyBand->setAccessibleName(sentence);
    return historyBand;
}

QHBoxLayout *ConversationPane::makeInput()
{
    intext = named(new MessageInput(this), "intext");
    intext->setAccessibleName(tr("Message"));
    intext->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    sendbtn = named(new QPushButton(namedPicture(QStringLiteral("send")), tr("Send"), this), "sendbtn");
    sendbtn->setDefault(true);
    sendbtn->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    auto *const row = new QHBoxLayout;
    row->setSpacing(spacing);
    // Not among the tools, whose captions need the room.
    sendFileBtn = toolButton(this, "sendFileBtn", tr("Send files"), "file");
    sendFileBtn->setToolButtonStyle(Qt::ToolButtonIconOnly);
    sendFileBtn->setToolTip(tr("Send files; the arrow, or the Down key, has folders too"));
    sendFileBtn->setPopupMode(QToolButton::MenuButtonPopup);
    sendFileBtn->setVisible(m_conversation->transfers().offers.isAvailable());
    row->addWidget(intext);
    row->addWidget(sendFileBtn);
    row->addWidget(sendbtn);
    return row;
}

void ConversationPane::connectControls()
{
    connect(sendbtn, &QPushButton::clicked, this, &ConversationPane::sendbtn_Click);
    connect(intext, &MessageInput::entered, sendbtn, &QPushButton::click);
    connect(intext, &MessageInput::recallWanted, this, [this] { setTypedText(*intext, m_lastSent); });
    connect(intext, &QPlainTextEdit::textChanged, this, &ConversationPane::showRoomLeft);
    connect(intext, &MessageInput::pasteCut, this, &ConversationPane::offerRest);
    connect(cutBand, &QLabel::linkActivated, this, [this] {
        QGuiApplication::clipboard()->setText(m_rest);
        cutBand->setText(tr("The rest is on the clipboard."));
        cutBand->setAccessibleName(cutBand->text());
        focusInput();
    });
    auto *const close = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this);
    connect(close, &QShortcut::activated, this, [this] { window()->close(); });
    connect(historyBand, &QLabel::linkActivated, this, &ConversationPane::historyBand_Click);
    connect(&m_conversation->history(), &HistoryChoice::chosen, this, &ConversationPane::showHistoryBand);
    m_outtext->setEarlierSource([this] { return m_conversation && m_conversation->showEarlier(); });
    connect(m_outtext, &RichTextLogEdit::keptWanted, this, &ConversationPane::openHistory);
    showHistoryBand();
    auto *const history = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_H), this);
    connect(history, &QShortcut::activated, this, [this] { openHistory({}); });
    connect(m_cleared, &ClearedBand::broughtBack, this, &ConversationPane::focusInput);
    if (EmojiTable::isThere()) {
        auto *const find = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Period), this);
        connect(find, &QShortcut::activated, this, &ConversationPane::findEmoji);
    }
    connect(clearbtn, &QToolButton::clicked, this, &ConversationPane::Clearbtn_Click);
    connect(datetimebtn, &QToolButton::clicked, this, &ConversationPane::datetimebtn_Click);
    connect(Emoticbtn, &QToolButton::toggled, this, &ConversationPane::Emoticbtn_Click);
    connect(ListViewEmot, &EmoticonPicker::picked, this, &ConversationPane::ListViewEmot_ItemClick);
    connect(m_outtext, &QTextEdit::textChanged, this, &ConversationPane::outtext_Change);
    connect(m_outtext, &RichTextLogEdit::endReached, this, &ConversationPane::noteWhatIsSeen);
    connect(m_outtext, &RichTextLogEdit::keptNewShown, this, &ConversationPane::comeIntoSight);
    connect(m_outtext->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (m_conversation && m_conversation->hasUnread() && !m_outtext->isAtItsEnd())
            noteWhatIsSeen();
    });
}

/// Where nothing can be sent, nothing is offered to.
void ConversationPane::connectFiles()
{
    if (!m_conversation->transfers().offers.isAvailable())
        return;
    m_drops = new FileDrops(this);
    for (QWidget *const place : {parentWidget(), intext->viewport(), m_outtext->viewport()})
        m_drops->watch(*place);
    // A question may come first, which must not stand there while the other program waits for the end of the drop.
    connect(m_drops, &FileDrops::dropped, this, &ConversationPane::sendFiles, Qt::QueuedConnection);
    connect(sendFileBtn, &QToolButton::clicked, this, &ConversationPane::askForSentFiles);
    connect(fileBand, &QLabel::linkActivated, this, &ConversationPane::fileBand_Click);
    intext->setTakesPictures(true);
    connect(intext, &MessageInput::picturePasted, this, &ConversationPane::offerPicture);
    auto *const sendFile = named(new QAction(tr("Send Fil&es..."), this), "logSendFile");
    connect(sendFile, &QAction::triggered, this, &ConversationPane::askForSentFiles);
    auto *const sendFolder = named(new QAction(tr("Send a Fol&der..."), this), "logSendFolder");
    connect(sendFolder, &QAction::triggered, this, &ConversationPane::askForFolderToSend);
    m_outtext->setFurtherCommands({sendFile, sendFolder});
    sendFileBtn->addActions({sendFile, sendFolder}); // of which the button makes a menu while it is open
    auto *const open = new QShortcut(Qt::Key_Down, sendFileBtn);
    open->setContext(Qt::WidgetShortcut);
    connect(open, &QShortcut::activated, sendFileBtn, &QToolButton::showMenu);
}

// --- files

void ConversationPane::askForSentFiles()
{
    if (m_conversation && m_conversation->mayFilesBeSent())
        askForFiles(*window(), [this](const QStringList &paths) { sendFiles(paths); });
}

void ConversationPane::askForFolderToSend()
{
    if (m_conversation && m_conversation->mayFilesBeSent())
        askForSentFolder(*window(), [this](const QString &path) { sendFiles({path}); });
}

void ConversationPane::sendFiles(const QStringList &paths)
{
    if (m_conversation && intext->isEnabled())
        m_conversation->sendFiles(paths);
}

/// Not at once: who pastes may have meant a text.
void ConversationPane::offerPicture(const QImage &picture)
{
    if (!m_conversation || !m_conversation->mayFilesBeSent())
        return;
    const QString name = tr("Picture %1.png").arg(++m_pastedPictures);
    const QString path = QDir(m_scratch.path()).filePath(QStringLiteral("%1-%2").arg(quintptr(this)).arg(name));
    if (m_scratch.path().isEmpty() || !picture.save(path, "PNG"))
        return showFileTrouble(tr("The picture cannot be sent, for there is no room for it."));
    m_pastedPicture = path;
    m_pastedQuestion = tr("A picture was pasted (%1 × %2).").arg(picture.width()).arg(picture.height());
    showFileBand();
}

/// What went wrong, and below it what is asked.
void ConversationPane::showFileBand()
{
    QStringList said = m_fileTroubles, lines;
    if (m_earlierTroubles > 0)
        said.prepend(tr("Earlier troubles with files: %1.").arg(m_earlierTroubles));
    for (const QString &sentence : said)
        lines += sentence.toHtmlEscaped();
    if (!lines.empty())
        lines.back() += u' ' + bandAnswer(QStringLiteral("close"), tr("Close"));
    if (!m_pastedQuestion.isEmpty()) {
        said += m_pastedQuestion;
        lines += m_pastedQuestion + u' '
            + bandAnswers({bandAnswer(QStringLiteral("send"), tr("Send it")),
                           bandAnswer(QStringLiteral("no"), tr("leave it"))});
    }
    fileBand->setText(lines.join(QLatin1String("<br>")));
    fileBand->setAccessibleName(said.join(u' '));
    fileBand->setVisible(!lines.empty());
}

void ConversationPane::fileBand_Click(const QString &answer)
{
    if (answer == QLatin1String("close")) {
        m_fileTroubles.clear();
        m_earlierTroubles = 0;
    } else {
        m_pastedQuestion.clear();
    }
    showFileBand();
    if (answer == QLatin1String("send"))
        sendFiles({std::exchange(m_pastedPicture, {})});
    focusInput();
}

/// The newest ones, each once.
void ConversationPane::showFileTrouble(const QString &sentence)
{
    m_fileTroubles.removeAll(sentence);
    m_fileTroubles += sentence;
    for (; m_fileTroubles.size() > limits::fileTroublesShown; ++m_earlierTroubles)
        m_fileTroubles.removeFirst();
    showFileBand();
}

void ConversationPane::withdrawFileTrouble(const QString &sentence)
{
    if (m_fileTroubles.removeAll(sentence) > 0)
        showFileBand();
}

void ConversationPane::addReceivedFile(int number)
{
    if (!m_files) {
        m_files = new FilePanel(m_conversation->transfers().received, m_folders, m_scratch, m_pictures, this);
        connect(m_files, &FilePanel::allWanted, this, m_openTransfers);
        m_column->insertWidget(m_column->indexOf(m_cleared->strip()), m_files);
    }
    m_files->add(number);
}

// --- what the window adds

void ConversationPane::putBesideLog(QWidget *panel)
{
    m_logRow->addWidget(panel);
}

void ConversationPane::insertTools(Tool behind, std::initializer_list<QWidget *> tools)
{
    QWidget *before = behind == Tool::emoticons ? Emoticbtn : datetimebtn;
    for (QWidget *const tool : tools) {
        m_toolRow->insertBehind(before, tool);
        setTabOrder(before, tool);
        before = tool;
    }
}

void ConversationPane::setTabStopsBehindLog(std::initializer_list<QWidget *> controls)
{
    QWidget *before = ListViewEmot;
    for (QWidget *const control : controls) {
        setTabOrder(before, control);
        before = control;
    }
}

// --- the end of the window

void ConversationPane::Form_QueryUnload(QCloseEvent &event)
{
    if (!m_conversation)
        return event.accept();
    const UnloadMode mode = qApp->isSavingSession() ? UnloadMode::sessionEnd : UnloadMode::closeBox;
    const CloseDecision decision = m_conversation->Form_QueryUnload(mode);
    // The program may have ended while a question stood there.
    if (!m_conversation)
        return event.accept();
    if (decision == CloseDecision::hide)
        window()->hide();
    if (decision != CloseDecision::unload)
        return event.ignore();
    event.accept();
    m_conversation->closed(mode);
}

void ConversationPane::letGo()
{
    Form_Unload();
    m_conversation = nullptr;
    window()->hide();
    window()->deleteLater();
}

void ConversationPane::Form_Unload()
{
    m_links.UnhookRichText(*m_outtext);
}

// --- event procedures

void ConversationPane::sendbtn_Click()
{
    const QString typed = typedText();
    if (m_conversation->send(typed)) {
        m_lastSent = typed;
        intext->clear();
        cutBand->hide();
        m_outtext->showEnd();
    }
    intext->setFocus();
}

void ConversationPane::showRoomLeft()
{
    const qsizetype length = nimb::typedText(*intext).size();
    if (length == 0)
        cutBand->hide(); // what it belongs to is gone
    const bool isShown = length >= limits::messageLengthShown;
    const bool isFull = length >= limits::messageLength;
    QFont weight = messageCounter->font();
    const bool changes = isShown != messageCounter->isVisibleTo(this) || isFull != weight.bold();
    messageCounter->setVisible(isShown);
    // What is typed beyond goes nowhere, which must not pass unseen.
    weight.setBold(isFull);
    messageCounter->setFont(weight);
    if (isShown)
        messageCounter->setText(tr("%1 of %2").arg(length).arg(limits::messageLength));
    if (changes)
        m_toolRow->refit();
}

void ConversationPane::offerRest(const QString &rest)
{
    m_rest = rest;
    m_rest.replace(lineBreak, QLatin1String("\n"));
    const QString sentence = tr("A message holds %1 characters; the last %2 of what you pasted did not fit.")
                                 .arg(limits::messageLength)
                                 .arg(m_rest.size());
    cutBand->setText(sentence + u' ' + bandAnswer(QStringLiteral("rest"), tr("Copy the rest")));
    cutBand->setAccessibleName(sentence);
    cutBand->show();
}

void ConversationPane::showHistoryBand()
{
    historyBand->setVisible(!m_needsRoom && m_conversation && !m_conversation->isOver()
                            && m_conversation->history().isToBeAsked());
}

/// A conference has no address of its own to be found by.
void ConversationPane::openHistory(const QString &words) const
{
    if (!m_conversation)
        return;
    const KeptConversation kept = m_conversation->keptAs();
    m_openHistory(kept.kind == KeptConversation::Kind::contact ? kept.address : QString(), words);
}

void ConversationPane::setNeedsRoom(bool needsRoom)
{
    m_needsRoom = needsRoom;
    showHistoryBand();
}

void ConversationPane::historyBand_Click(const QString &answer)
{
    if (!m_conversation)
        return;
    const auto keep = answer == QLatin1String("year") ? KeepHistory::year
        : answer == QLatin1String("ever")             ? KeepHistory::ever
                                                      : KeepHistory::no;
    m_conversation->history().choose(keep);
    focusInput();
}

void ConversationPane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && Emoticbtn->isChecked()) {
        Emoticbtn->setChecked(false);
        return focusInput();
    }
    if (!intext->isEnabled() || intext->hasFocus() || !isMeantForMessage(*event))
        return QWidget::keyPressEvent(event);
    focusInput();
    QCoreApplication::sendEvent(intext, event);
}

void ConversationPane::Clearbtn_Click()
{
    m_cleared->clear([this] { m_conversation->Clearbtn_Click(); });
    if (intext->isEnabled())
        intext->setFocus();
}

void ConversationPane::datetimebtn_Click()
{
    if (!intext->isEnabled())
        return;
    intext->insertPlainText(m_conversation->dateAndTime());
    intext->setFocus();
}

void ConversationPane::Emoticbtn_Click(bool shown)
{
    ListViewEmot->setVisible(shown);
    if (EmojiTable::isThere())
        showEmoji(shown);
    if (shown) {
        keepLogBesideEmoji();
        m_formerSize->growOnce();
    } else {
        m_outtext->setMinimumHeight(0);
    }
    Q_EMIT emoticonsToggled();
}

/// Who chooses an emoji still sees what he answers: where there is no room for both, the window grows meanwhile, and
/// where the screen has none either, the log has fewer lines first.
void ConversationPane::keepLogBesideEmoji()
{
    constexpr int linesBeside = 6, fewestBeside = 3; // one of them the empty one at the end
    const int frame = 2 * (m_outtext->frameWidth() + qRound(m_outtext->document()->documentMargin()));
    // Of large letters on a small screen as many as there is room for.
    const int most = roomOnScreen(*window()).height() / 4;
    for (int lines = linesBeside; lines >= fewestBeside; --lines) {
        m_outtext->setMinimumHeight(qMin(lines * m_outtext->heightOfLine() + frame, most));
        if (hasAllRowsOfEmoji())
            return;
    }
}

/// Gives them as many rows as the screen has room for beside everything else.
bool ConversationPane::hasAllRowsOfEmoji()
{
    if (!m_emojiPicker)
        return true;
    m_emojiPicker->setLeastRows(EmojiPicker::fewestRows);
    // From the inside outwards, or the window would count with what was there before.
    for (QWidget *widget = this; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (QLayout *const inner = widget->layout())
            inner->activate();
    }
    const QLayout &all = *window()->layout();
    // A band whose sentence takes two lines needs more than the least that a layout knows of.
    const int needed = qMax(all.totalMinimumSize().height(), all.totalMinimumHeightForWidth(window()->width()));
    const int rows = m_emojiPicker->rowsWith(roomOnScreen(*window()).height() - needed);
    m_emojiPicker->setLeastRows(rows);
    return rows == EmojiPicker::mostRows;
}

void ConversationPane::showEmoji(bool shown)
{
    if (!m_emojiPicker && shown)
        makeEmojiPicker();
    if (!m_emojiPicker)
        return;
    const bool hadFocus = m_emojiPicker->isAncestorOf(window()->focusWidget());
    m_emojiPicker->setVisible(shown);
    if (shown && intext->isEnabled())
        m_emojiPicker->search().setFocus(Qt::OtherFocusReason);
    else if (hadFocus)
        focusInput();
}

void ConversationPane::makeEmojiPicker()
{
    m_emojiPicker = new EmojiPicker(m_emoji, this);
    m_emojiPicker->hide();
    m_column->insertWidget(m_column->indexOf(ListViewEmot) + 1, m_emojiPicker);
    setTabOrder(ListViewEmot, &m_emojiPicker->search());
    setTabOrder(&m_emojiPicker->search(), &m_emojiPicker->list());
    connect(m_emojiPicker, &EmojiPicker::picked, this, &ConversationPane::insertEmoji);
    connect(m_emojiPicker, &EmojiPicker::inputWanted, intext, qOverload<>(&QWidget::setFocus));
}

void ConversationPane::findEmoji()
{
    Emoticbtn->setChecked(true);
    m_emojiPicker->search().setFocus(Qt::ShortcutFocusReason);
    m_emojiPicker->search().selectAll();
}

/// At the caret, whole or not at all: half of one is another one, or none.
void ConversationPane::insertEmoji(const QString &emoji)
{
    const QString selected = intext->textCursor().selectedText();
    const qsizetype breaks = selected.count(QChar::ParagraphSeparator); // two characters each in a message
    const qsizetype length = typedText().size() - selected.size() - breaks + emoji.size();
    if (!intext->isEnabled() || length > limits::messageLength)
        return;
    intext->insertPlainText(emoji);
    m_emoji.use(emoji);
}

void ConversationPane::ListViewEmot_ItemClick(const QString &emoticon)
{
    if (!intext->isEnabled())
        return;
    setTypedText(*intext, typedText() + emoticon);
    intext->setFocus();
}

void ConversationPane::outtext_Change()
{
    if (m_conversation)
        m_conversation->outtext_Change();
}

// --- what is seen

RichTextLog &ConversationPane::outtext()
{
    return *m_outtext;
}

void ConversationPane::setCaption(const QString &caption)
{
    setWindowCaption(*window(), caption);
}

void ConversationPane::setLogFont(const LogFont &font)
{
    intext->setFont(font == LogFont() ? QFont() : fontOf(font)); // the desktop's own may change
    m_outtext->setSelFont(font);
}

QString ConversationPane::typedText() const
{
    return nimb::typedText(*intext);
}

void ConversationPane::setDraft(const QString &text)
{
    const QSignalBlocker nobodyTypes(intext);
    setTypedText(*intext, text);
    showRoomLeft();
}

void ConversationPane::setInputEnabled(bool enabled)
{
    intext->setEnabled(enabled);
    sendbtn->setEnabled(enabled);
    sendFileBtn->setEnabled(enabled);
    showHistoryBand();
    Q_EMIT inputEnabled(enabled);
}

void ConversationPane::focusInput()
{
    if (!intext->isEnabled())
        return;
    intext->setFocus();
    intext->moveCursor(QTextCursor::End);
}

Colour ConversationPane::windowTextColour() const
{
    return logColour(palette().color(QPalette::WindowText));
}

bool ConversationPane::isMinimisedOrInactive() const
{
    return window()->isMinimized() || !window()->isActiveWindow();
}

bool ConversationPane::isEndSeen() const
{
    return !isMinimisedOrInactive() && m_outtext->isAtItsEnd();
}

/// Each widget of a window hears that it has become the active one; changeEvent() tells the window alone.
bool ConversationPane::event(QEvent *event)
{
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate)
        comeIntoSight();
    if (event->type() == QEvent::WindowDeactivate && m_conversation)
        m_conversation->turnedAway();
    return taken;
}

/// A window that was minimised while it was the active one is so already when it comes back.
bool ConversationPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::WindowStateChange)
        QMetaObject::invokeMethod(this, &ConversationPane::comeIntoSight,
                                  Qt::QueuedConnection); // it gets its size first
    return QWidget::eventFilter(watched, event);
}

void ConversationPane::comeIntoSight()
{
    if (isMinimisedOrInactive())
        return;
    m_outtext->showNew();
    noteWhatIsSeen();
}

void ConversationPane::noteWhatIsSeen()
{
    if (!m_conversation || isMinimisedOrInactive())
        return;
    const bool isAtEnd = m_outtext->isAtItsEnd();
    if (!isAtEnd && !m_conversation->hasUnread())
        return;
    m_conversation->seen(isAtEnd ? 0 : m_outtext->messagesBelow());
    if (!m_conversation->hasUnread())
        m_outtext->newWasSeen();
}

void ConversationPane::flash()
{
    if (!window()->isHidden())
        flashTaskBarButton(*window());
}

} // namespace nimb
