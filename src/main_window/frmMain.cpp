#include "main_window/frmMain.h"

#include "log/cleared_band.h"
#include "main_window/auto_reply_frame.h"
#include "main_window/contact_commands.h"
#include "main_window/contact_view.h"
#include "main_window/main_layout.h"
#include "main_window/main_window.h"
#include "main_window/personalized_state_frame.h"
#include "main_window/row_flash.h"
#include "main_window/state_chooser.h"
#include "widgets/bring_back.h"
#include "widgets/elided_label.h"
#include "widgets/elided_line.h"
#include "widgets/file_dialogs.h"
#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/keyed_selection.h"
#include "widgets/pictures.h"
#include "widgets/twips.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;
constexpr int highestRow = 26;
/// Above the rows of the contact list: the own-state chooser, a gap, the tabs.
constexpr int roomAboveRows = 2 * highestRow + spacing;
constexpr double smallestFont = 6; ///< points
constexpr int narrowInnerWidth = pixels(main_layout::widthWithoutLog) - 2 * margin;

QLabel *panel(QWidget *bar, const char *name)
{
    return named(new ElidedLabel(bar), name);
}

} // namespace

frmMain::frmMain(RichTextLogEdit &log) : m_menus(*this), m_outtext(log)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("NIMB-Chat 1.2"));
    setWindowIcon(programIcon());
    setMinimumHeight(pixels(main_layout::lowestHeight));
    // The width is fixed, so there is nothing to maximise.
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    buildControls();
    resize(pixels(main_layout::widthWithLog), pixels(m_place.height));
}

void frmMain::buildControls()
{
    auto *const area = new QWidget(this);
    setCentralWidget(area);
    buildContacts(area);
    buildOwnState(area);

    m_outtext.setParent(area);
    m_outtext.setObjectName(QStringLiteral("outtext"));
    m_outtext.setAccessibleName(tr("Log"));
    m_cleared = new ClearedBand(m_outtext, tr("Cleared."), area);
    m_cleared->strip()->setWordWrap(false);
    m_cleared->strip()->setMargin(2);
    clearbtn = named(new QPushButton(namedPicture(QStringLiteral("clear")), tr("Clear"), area), "clearbtn");
    buildStatusBar();
    orderControls();
    fitFonts();
}

/// The fixed width leaves no room for a large desktop font in the rows of controls. They take the largest size
/// that fits; the list and the logs keep the desktop's.
void frmMain::fitFonts()
{
    const auto fits = [this] {
        const int row = RescanBtn->sizeHint().width() + buzzmute->sizeHint().width() + ListDetails->sizeHint().width();
        const int replyRow = AutoReplyOn->sizeHint().width() + Autoreplybtn->sizeHint().width();
        const bool wide = qMax(row + 2 * spacing, replyRow + spacing) > narrowInnerWidth
            || TabStrip1->sizeHint().width() > narrowInnerWidth
            || menuBar()->sizeHint().width() > pixels(main_layout::widthWithoutLog);
        return !wide && RescanBtn->fontMetrics().height() + 4 <= highestRow;
    };
    QFont font = this->font();
    for (;;) {
        for (QWidget *const control : std::initializer_list<QWidget *>{
                 ImageCombo1,    TabStrip1,   RescanBtn,           buzzmute,       ListDetails,
                 ItemDetailstxt, AutoReplyOn, Autoreplybtn,        clearbtn,       menuBar(),
                 statusBar(),    m_status,    m_activity,          searchProgress, stopSearchBtn,
                 m_network,      m_trouble,   m_personalizedState, m_autoReply,    ListView1->header()})
            control->setFont(font);
        if (fits() || font.pointSizeF() <= smallestFont)
            return;
        font.setPointSizeF(font.pointSizeF() - 0.5);
    }
}

void frmMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange && clearbtn) {
        fitFonts();
        Form_Resize();
    }
}

/// The Tab key walks as the eye does: down the left side, then the log.
void frmMain::orderControls()
{
    QWidget *previous = ImageCombo1;
    for (QWidget *const next : std::initializer_list<QWidget *>{
             m_personalizedState, TabStrip1, &ListView1->filterBox(), ListView1, m_autoReply, RescanBtn, buzzmute,
             ListDetails, ItemDetailstxt, AutoReplyOn, Autoreplybtn, &m_outtext, clearbtn}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void frmMain::buildContacts(QWidget *parent)
{
    ListView1 = named(new ContactView(parent), "ListView1");
    ListView1->setAccessibleName(tr("Contacts"));
    ListView1->setRoomAbove(roomAboveRows);

    TabStrip1 = named(new QTabBar(parent), "TabStrip1");
    TabStrip1->setAccessibleName(tr("Details of the contacts"));
    TabStrip1->setExpanding(false);
    TabStrip1->setDrawBase(false);
    TabStrip1->setUsesScrollButtons(false);
    TabStrip1->setTabData(TabStrip1->addTab(tr("Nickname && status")), QStringLiteral("noinfo"));
    TabStrip1->setTabData(TabStrip1->addTab(tr("User(s) full details")), QStringLiteral("fulldetail"));

    RescanBtn = named(new QPushButton(namedPicture(QStringLiteral("rescan")), tr("&Rescan"), parent), "RescanBtn");
    buzzmute = named(new QCheckBox(tr("Mute Buzz"), parent), "buzzmute");
    ListDetails = named(new QCheckBox(tr("Users &details"), parent), "ListDetails");
    ItemDetailstxt = named(new ElidedLine(parent), "ItemDetailstxt");
    ItemDetailstxt->setAccessibleName(tr("Selected contact"));
    ItemDetailstxt->setFrame(false);
    ItemDetailstxt->setFocusPolicy(Qt::ClickFocus);
    QPalette ground = ItemDetailstxt->palette();
    ground.setColor(QPalette::Base, Qt::transparent);
    ItemDetailstxt->setPalette(ground);
}

void frmMain::buildOwnState(QWidget *parent)
{
    ImageCombo1 = named(new StateChooser(parent), "ImageCombo1");
    nameCombo(*ImageCombo1, tr("Own state"));
    ImageCombo1->setMaxVisibleItems(13);
    m_personalizedState = new PersonalizedStateFrame(parent);
    AutoReplyOn = named(new QCheckBox(tr("AutoReply"), parent), "AutoReplyOn");
    Autoreplybtn = named(new QPushButton(tr("AutoReply text..."), parent), "Autoreplybtn");
    m_autoReply = new AutoreplyFrame(parent);
    AutoReplyOn->hide();
    Autoreplybtn->hide();
}

void frmMain::buildStatusBar()
{
    QStatusBar *const bar = named(statusBar(), "StatusBar");
    bar->setSizeGripEnabled(false);
    bar->setContentsMargins(margin - 2, 0, margin - 2, 0);
    m_status = panel(bar, "StatusBar_status");
    m_status->setText(tr("Status: %1").arg(stateWord(BaseState::online)));
    m_activity = panel(bar, "StatusBar_activity");
    m_trouble = panel(bar, "StatusBar_trouble");
    m_trouble->hide();
    m_network = panel(bar, "StatusBar_network");
    m_network->hide();
    bar->addWidget(m_status);
    bar->addWidget(m_activity, 1);
    addSearchProgress(*bar);
    bar->addPermanentWidget(m_network);
    bar->addPermanentWidget(m_trouble);
    bar->setAttribute(Qt::WA_Hover);
    for (QLabel *const label : {m_status, m_activity, m_network, m_trouble})
        label->setMouseTracking(true);
    bar->installEventFilter(this);
}

/// Only there while a search goes on.
void frmMain::addSearchProgress(QStatusBar &bar)
{
    searchProgress = named(new QProgressBar(&bar), "searchProgress");
    searchProgress->setAccessibleName(tr("Addresses asked"));
    searchProgress->setFormat(QStringLiteral("%v / %m"));
    searchProgress->setFixedSize(90, 16);
    stopSearchBtn = named(new QToolButton(&bar), "stopSearchBtn");
    stopSearchBtn->setText(tr("Stop"));
    stopSearchBtn->setToolTip(tr("Asks nobody else"));
    stopSearchBtn->setAutoRaise(true);
    stopSearchBtn->setFocusPolicy(Qt::TabFocus);
    for (QWidget *const part : std::initializer_list<QWidget *>{searchProgress, stopSearchBtn}) {
        bar.addPermanentWidget(part);
        part->hide();
    }
}

void frmMain::connectControls(const MainWindowEngine &engine, std::function<void()> ended)
{
    m_engine.emplace(engine);
    m_ended = std::move(ended);
    connectContacts();
    connectOwnState();
    connect(clearbtn, &QPushButton::clicked, this, &frmMain::clearbtn_Click);
    connect(stopSearchBtn, &QToolButton::clicked, this, [this] { m_engine->windows.stopSearching(); });
    connectMenus();
}

void frmMain::connectMenus()
{
    const auto on = [this](const char *entry, const auto &procedure) {
        connect(m_menus.entry(entry), &QAction::triggered, this, procedure);
    };
    // The chosen file has no use so far. "*.*" would hide files without a dot.
    on("mnuFileOpen",
       [this] { askForFile(*this, tr("All Files (*.*)") + QLatin1String(" (*)"), [](const QString &) {}); });
    on("mnuFilePageSetup", [this] { showPageSetup(*this); });
    on("mnuFileExit", [this] { unload(UnloadMode::code); });
    on("mnuPrivateChat", [this] { m_engine->commands.mnuPrivateChat(selectedContact()); });
    on("mnuBuzzUser", [this] { m_engine->commands.mnuBuzzUser(selectedContact()); });
    on("mnuRemoveUser", [this] { removeSelected(); });
    on("mnuMuteContact", [this](bool muted) { m_engine->commands.mnuMuteContact(selectedContact(), muted); });
    on("mnuHistory", [this] { m_engine->windows.mnuHistory({}); });
    on("mnuContactHistory", [this] { m_engine->windows.mnuHistory(selectedContact()); });
    on("mnuLeaveOut", [this](bool leftOut) { m_engine->windows.mnuLeaveOut(selectedContact(), leftOut); });
    on("mnuSendFile", [this] { m_engine->windows.mnuSendFile(selectedContact()); });
    on("mnuNetworkscan", [this] { m_engine->windows.mnuNetworkscan(); });
    on("mnuAddUser", [this] { m_engine->windows.mnuAddUser(); });
    on("mnuImportContacts", [this] { m_engine->windows.mnuImportContacts(); });
    on("mnuExportContacts", [this] { m_engine->windows.mnuExportContacts(); });
    on("mnuFindEverybody", [this] { m_engine->windows.mnuFindEverybody(); });
    on("mnuTransfers", [this] { m_engine->windows.mnuTransfers(); });
    on("mnuToolsOptions", [this] { m_engine->windows.mnuToolsOptions(); });
    on("mnuHelpAbout", [this] { m_engine->windows.mnuHelpAbout(); });
    on("mnuTOTD", [this] { m_engine->windows.mnuTOTD(); });
    on("mnuShortcuts", [this] { m_engine->windows.mnuShortcuts(); });
    on("mnuManual", [this] { m_engine->windows.mnuManual(); });
    m_menus.entry("mnuManual")->setEnabled(m_engine->windows.hasManual());
    on("mnuNetworkDoctor", [this] { m_engine->windows.mnuNetworkDoctor(); });
    on("mnusendcontacts", [this] { m_engine->windows.mnusendcontacts(selectedContact()); });
    on("mnuinviteuser", [this] { m_engine->windows.mnuinviteuser(selectedContact()); });
    on("mnuCreateNewConf", [this] { m_engine->windows.mnuCreateNewConf(); });
    on("mnushowinvitations", [this] { m_engine->windows.mnushowinvitations(); });
    for (int slot = 1; slot <= MainMenus::conferenceSlots; ++slot)
        connect(m_menus.invitation(slot), &QAction::triggered, this,
                [this, slot] { m_engine->windows.mnuInvite2Conf(slot, selectedContact()); });
    connect(m_menus.entry("mnuLogWindow"), &QAction::toggled, this, &frmMain::Form_Resize);
}

void frmMain::connectContacts()
{
    setModelOfKeyedRows(*ListView1, m_engine->contacts);
    ListView1->setAvatars(m_engine->avatars);
    ListView1->setClock(m_engine->clock);
    connect(ListView1, &ContactView::contactClicked, this, &frmMain::ListView1_Click);
    connect(ListView1, &ContactView::contactOpened, this, &frmMain::ListView1_DblClick);
    connect(ListView1, &ContactView::removalWanted, this, &frmMain::removeSelected);
    const auto *const find = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_K), this);
    connect(find, &QShortcut::activated, this, &frmMain::findContact);
    connect(ListView1, &ContactView::everybodyWanted, this, [this] { m_engine->windows.mnuFindEverybody(); });
    connect(ListView1, &ContactView::pointedAt, this, &frmMain::ListView1_MouseMove);
    connect(ListView1, &ContactView::menuWanted, this, &frmMain::mnuPopUp_Show);
    connect(ListView1->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmMain::refreshContextMenu);
    connect(&m_engine->contacts, &ContactList::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) { contactsChanged(first.row(), last.row()); });
    connect(TabStrip1, &QTabBar::currentChanged, this, &frmMain::TabStrip1_Click);
    connect(ListDetails, &QCheckBox::toggled, this, &frmMain::ListDetails_Click);
    connect(RescanBtn, &QPushButton::clicked, this, &frmMain::RescanBtn_Click);
    connect(buzzmute, &QCheckBox::toggled, this, [this](bool muted) { m_engine->common.buzzmute = muted; });
}

void frmMain::connectOwnState()
{
    connect(ImageCombo1, &QComboBox::activated, this, &frmMain::ImageCombo1_Click);
    connect(m_personalizedState, &PersonalizedStateFrame::chosen, this, &frmMain::personalizedStateChosen);
    connect(m_personalizedState, &PersonalizedStateFrame::cancelled, this,
            [this] { m_engine->ownState.cancelPersonalized(); });
    connect(AutoReplyOn, &QCheckBox::clicked, this, [this](bool on) { m_engine->ownState.setAutoReply(on); });
    connect(Autoreplybtn, &QPushButton::clicked, m_autoReply, &AutoreplyFrame::edit);
    connect(m_autoReply, &AutoreplyFrame::closed, this, &frmMain::autoReplyClosed);
    connect(m_autoReply, &AutoreplyFrame::textLeft, this,
            [this](const QString &text) { m_engine->ownState.setAutoReplyText(text); });
}

void frmMain::Form_Load()
{
    m_engine->window.Form_Load();
    refreshContextMenu();
    ListDetails_Click();
    ListView1->setFocus();
}

// --- the window itself

void frmMain::closeEvent(QCloseEvent *event)
{
    event->ignore();
    unload(qApp->isSavingSession() ? UnloadMode::sessionEnd : UnloadMode::closeBox);
}

void frmMain::unload(UnloadMode mode)
{
    if (!m_engine || !m_ended)
        return;
    const CloseDecision decision = m_engine->window.Form_QueryUnload(mode);
    if (!m_ended)
        return; // the end came by itself while the user was asked
    switch (decision) {
    case CloseDecision::stay:
        return;
    case CloseDecision::hide:
        return hide();
    case CloseDecision::minimise:
        return showMinimized();
    case CloseDecision::unload:
        return finish();
    }
}

void frmMain::finish()
{
    const auto ended = std::exchange(m_ended, nullptr);
    m_autoReply->leaveText();
    m_engine->window.Form_Unload();
    hide();
    ended();
}

void frmMain::restore()
{
    bringBack(*this);
    activateWindow();
}

void frmMain::showContact(const QString &ip)
{
    restore();
    const Contact *const contact = m_engine->contacts.find(ip);
    const int row = contact ? m_engine->contacts.rowOf(contact->shownBy.value_or(contact->ip)) : -1;
    if (row < 0)
        return;
    ListView1->endSearch();
    ListView1->setCurrentIndex(ListView1->model()->index(row, 0));
    ListView1->setFocus();
}

void frmMain::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    noteGeometry();
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    noteGeometry();
    Form_Resize();
}

/// The normal window's place is what is saved, however the window ends. A place that rounds to the same pixels is
/// kept, or it would drift with every run.
void frmMain::noteGeometry()
{
    if (!isVisible() || windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    // A window that is moved and minimised at once may hear of both in either order. Windows puts a minimised one where
    // no screen is.
    if (isMinimized() && !QGuiApplication::screenAt(frameGeometry().center()))
        return;
    bool changed = false;
    const auto note = [&changed](double &kept, int now) {
        if (pixels(kept) == now)
            return;
        kept = twips(now);
        changed = true;
    };
    note(m_place.left, pos().x());
    note(m_place.top, pos().y());
    note(m_place.height, height());
    if (changed && m_engine)
        m_engine->window.placeChanged();
}

void frmMain::setPlace(const WindowPlace &place)
{
    m_place = place;
    m_place.height = main_layout::height(place.height);
    resize(width(), pixels(m_place.height));
    move(pixels(place.left), pixels(place.top));
    moveOntoScreen();
}

/// A window of which a part is on no screen is moved in whole, onto the first screen where its title cannot be reached
/// with the mouse, and no window is higher than its screen.
void frmMain::moveOntoScreen()
{
    constexpr QSize reachableTitle(100, 24);
    constexpr int frame = 4; // on each side, as far as one can know before the window is shown
    const QRect title(pos(), QSize(width(), reachableTitle.height()));
    const QScreen *home = nullptr;
    QRegion screens;
    for (const QScreen *const screen : QGuiApplication::screens()) {
        screens += screen->availableGeometry();
        const QRect seen = title & screen->availableGeometry();
        if (seen.width() >= reachableTitle.width() && seen.height() >= reachableTitle.height())
            home = screen;
    }
    const QRect available = (home ? home : QGuiApplication::primaryScreen())
                                ->availableGeometry()
                                .adjusted(0, 0, 0, -reachableTitle.height());
    if (height() > available.height()) {
        resize(width(), available.height());
        m_place.height = twips(height());
    }
    const QRect whole(pos(), size() + QSize(2 * frame, frame + reachableTitle.height()));
    if (QRegion(whole).subtracted(screens).isEmpty())
        return;
    const QPoint last = available.bottomRight() + QPoint(1 - width() - 2 * frame, 1 - height() - frame);
    const int left = qBound(available.left(), x(), qMax(available.left(), last.x()));
    const int top = qBound(available.top(), y(), qMax(available.top(), last.y()));
    move(left, top);
    m_place.left = twips(left);
    m_place.top = twips(top);
}

WindowPlace frmMain::place() const
{
    return m_place;
}

void frmMain::Form_Resize()
{
    if (isMinimized())
        return;
    const bool logShown = m_menus.entry("mnuLogWindow")->isChecked();
    setFixedWidth(pixels(main_layout::width(logShown)));
    const double windowHeight = twips(height());
    const int listHeight = pixels(main_layout::listHeight(windowHeight));

    ListView1->setGeometry(margin, margin, narrowInnerWidth, listHeight);
    ImageCombo1->setGeometry(margin, margin, narrowInnerWidth, highestRow);
    TabStrip1->setGeometry(margin, margin + highestRow + spacing, narrowInnerWidth, highestRow);
    placeBottomRows();
    placePanels();

    const int logLeft = pixels(main_layout::widthWithoutLog);
    const int logWidth = pixels(main_layout::widthWithLog) - logLeft - margin;
    m_outtext.setGeometry(logLeft, 0, logWidth, pixels(main_layout::logHeight(windowHeight)));
    const QSize button = clearbtn->sizeHint();
    clearbtn->setGeometry(logLeft + logWidth - button.width(), RescanBtn->y(), button.width(), bottomRowHeight());
    m_outtext.setVisible(logShown);
    clearbtn->setVisible(logShown);
    placeClearedStrip();
}

/// Beside the button that clears, for the log's height is fixed.
void frmMain::placeClearedStrip()
{
    QLabel &strip = *m_cleared->strip();
    const int left = m_outtext.x() + margin;
    const int top = qMax(clearbtn->y(), m_outtext.geometry().bottom() + 1);
    const QRect place(QPoint(left, top), QPoint(clearbtn->x() - spacing - 1, clearbtn->geometry().bottom()));
    QFont font = clearbtn->font();
    strip.setFont(font);
    while (strip.sizeHint().boundedTo(place.size()) != strip.sizeHint() && font.pointSizeF() > smallestFont) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
        strip.setFont(font);
    }
    strip.setGeometry(place);
}

/// Two rows share what the fixed place of the first one leaves above the status bar.
int frmMain::bottomRowHeight() const
{
    const int room
        = height() - menuBar()->height() - statusBar()->height() - pixels(main_layout::rescanTop(twips(height())));
    return qMin(highestRow, (room - spacing / 2) / 2);
}

void frmMain::placeBottomRows()
{
    const double windowHeight = twips(height());
    const int top = pixels(main_layout::rescanTop(windowHeight));
    const int rowHeight = bottomRowHeight();
    const int right = margin + narrowInnerWidth;
    RescanBtn->setGeometry(margin, top, RescanBtn->sizeHint().width(), rowHeight);
    const int checkTop = pixels(main_layout::buzzmuteTop(windowHeight));
    const int checkHeight = rowHeight - 2 * (checkTop - top);
    const int detailsWidth = ListDetails->sizeHint().width();
    ListDetails->setGeometry(right - detailsWidth, checkTop, detailsWidth, checkHeight);
    const int muteWidth = buzzmute->sizeHint().width();
    const int gap = ListDetails->x() - RescanBtn->geometry().right() - 1 - muteWidth;
    buzzmute->setGeometry(RescanBtn->geometry().right() + 1 + gap / 2, checkTop, muteWidth, checkHeight);

    const int room = height() - menuBar()->height() - statusBar()->height() - top;
    const int second = top + qMin(rowHeight + spacing, room - rowHeight);
    const int replyWidth = Autoreplybtn->sizeHint().width();
    ItemDetailstxt->setGeometry(margin, second, narrowInnerWidth, rowHeight);
    AutoReplyOn->setGeometry(margin, second, narrowInnerWidth - replyWidth - spacing, rowHeight);
    Autoreplybtn->setGeometry(right - replyWidth, second, replyWidth, rowHeight);
}

/// The panels lie over the list: the personalised state hangs from the chooser, the automatic reply stands on the
/// controls that open it.
void frmMain::placePanels()
{
    const int belowChooser = margin + highestRow + 2;
    m_personalizedState->setGeometry(margin, belowChooser, narrowInnerWidth, m_personalizedState->sizeHint().height());
    constexpr int replyHeight = 130;
    m_autoReply->setGeometry(margin, ListView1->geometry().bottom() + 1 - replyHeight, narrowInnerWidth, replyHeight);
}

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    const bool pointed = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove;
    if (watched == statusBar() && pointed && m_engine)
        statusBar()->setToolTip(m_engine->statusNotes());
    return QMainWindow::eventFilter(watched, event);
}

// --- contacts

QString frmMain::selectedContact() const
{
    return ListView1->selectedAddress();
}

void frmMain::ListView1_Click(const QString &ip)
{
    m_engine->commands.openWaiting(ip);
}

void frmMain::ListView1_DblClick(const QString &ip)
{
    m_engine->commands.mnuPrivateChat(ip);
}

void frmMain::removeSelected()
{
    m_engine->commands.removeUsers(ListView1->selectedAddresses());
}

/// A panel that lies over the list would lie over the box as well.
void frmMain::findContact()
{
    if (!m_personalizedState->isVisible())
        ListView1->find();
}

void frmMain::ListView1_MouseMove(const QString &ip)
{
    ListView1->viewport()->setToolTip(m_engine->commands.toolTip(ip));
}

void frmMain::mnuPopUp_Show(const QPoint &position)
{
    refreshContextMenu();
    m_menus.popUp(position);
}

void frmMain::refreshContextMenu()
{
    const QString contact = selectedContact();
    m_menus.setContact(m_engine->commands.captions(contact, ListView1->selectedAddresses().size()), !contact.isEmpty());
    m_menus.entry("mnuSendFile")->setVisible(m_engine->windows.canSendFiles());
    showItemDetails();
}

/// What names the selected contact follows it.
void frmMain::contactsChanged(int firstRow, int lastRow)
{
    const int selected = ListView1->selectedRow();
    if (selected >= firstRow && selected <= lastRow)
        refreshContextMenu();
}

void frmMain::showItemDetails()
{
    ItemDetailstxt->setText(m_engine->commands.details(selectedContact(), ListView1->selectedAddresses().size()));
    ItemDetailstxt->setCursorPosition(0);
}

void frmMain::ListDetails_Click()
{
    const bool full = ListDetails->isChecked();
    const main_layout::Columns widths = main_layout::columns(full);
    ListView1->setDetailColumns(pixels(widths.workstation), pixels(widths.ipAddress), pixels(widths.stateText));
    TabStrip1->setCurrentIndex(full ? 1 : 0);
    buzzmute->setFocus();
}

void frmMain::TabStrip1_Click(int tab)
{
    ListDetails->setChecked(TabStrip1->tabData(tab).toString() == QLatin1String("fulldetail"));
}

void frmMain::RescanBtn_Click()
{
    m_engine->announcement.run();
    refreshContextMenu();
}

void frmMain::setRescanEnabled(bool enabled)
{
    RescanBtn->setEnabled(enabled);
}

void frmMain::setRescanToolTip(const QString &text)
{
    RescanBtn->setToolTip(text);
}

RichTextLog &frmMain::outtext()
{
    return m_outtext;
}

void frmMain::clearbtn_Click()
{
    m_cleared->clear([this] { m_engine->log.clear(); });
}

// --- the own state

void frmMain::addOwnState(const OwnStateEntry &entry)
{
    ImageCombo1->addItem(entry.picture ? statePicture(*entry.picture) : QIcon(), entry.text, entry.key);
}

void frmMain::removeOwnState(int position)
{
    ImageCombo1->removeItem(position - 1);
    for (int i = position - 1; i < ImageCombo1->count(); ++i)
        ImageCombo1->setItemData(i, m_engine->ownState.entries()[static_cast<std::size_t>(i)].key);
}

void frmMain::selectOwnState(int position)
{
    ImageCombo1->setCurrentIndex(position - 1);
}

void frmMain::ImageCombo1_Click(int index)
{
    m_engine->ownState.choose(index + 1);
}

void frmMain::personalizedStateChosen(BaseState base, const QString &text)
{
    if (m_engine->ownState.addPersonalized(base, text))
        m_personalizedState->clearText();
    else
        m_personalizedState->focusText();
}

void frmMain::setPersonalizedStateVisible(bool visible)
{
    if (visible)
        return m_personalizedState->ask();
    // Hiding a control that has the focus would pass it on to whatever comes next.
    if (m_personalizedState->isAncestorOf(focusWidget()))
        ImageCombo1->setFocus();
    m_personalizedState->hide();
}

void frmMain::setStatusPanel(const QString &text)
{
    m_status->setText(text);
}

void frmMain::setAutoReply(const std::optional<AutoReplyPanel> &panel)
{
    AutoReplyOn->setVisible(panel.has_value());
    Autoreplybtn->setVisible(panel.has_value());
    ItemDetailstxt->setVisible(!panel);
    if (!panel)
        return m_autoReply->hide();
    AutoReplyOn->setChecked(panel->on);
    m_autoReply->setReply(panel->caption, panel->text);
}

void frmMain::autoReplyClosed()
{
    Autoreplybtn->setFocus();
    m_autoReply->hide();
}

// --- what else is seen

void frmMain::setCaption(const QString &caption)
{
    m_caption = caption;
    setWindowCaption(*this, caption);
}

void frmMain::setInvite2ConfVisible(int slot, bool visible)
{
    m_menus.invitation(slot)->setVisible(visible);
    refreshContextMenu();
}

void frmMain::setActivityPanel(const QString &text)
{
    m_activity->setText(text);
}

void frmMain::flashContact(const QString &ip)
{
    const Contact *const contact = m_engine ? m_engine->contacts.find(ip) : nullptr;
    const int row = contact ? m_engine->contacts.rowOf(contact->shownBy.value_or(contact->ip)) : -1;
    if (row >= 0)
        flashRow(*ListView1, ListView1->model()->index(row, 0));
}

void frmMain::setSearchProgress(const std::optional<SearchProgress> &progress)
{
    if (progress) {
        searchProgress->setMaximum(progress->all);
        searchProgress->setValue(progress->asked);
    }
    searchProgress->setVisible(progress.has_value());
    stopSearchBtn->setVisible(progress.has_value());
}

void frmMain::setTroublePanel(const QString &text)
{
    m_trouble->setText(text);
    m_trouble->setVisible(!text.isEmpty());
}

void frmMain::setNetworkPanel(const QString &text)
{
    m_network->setText(text);
    m_network->setVisible(!text.isEmpty());
}

} // namespace nimb
