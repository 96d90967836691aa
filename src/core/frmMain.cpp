#include "core/frmMain.h"

#include "core/auto_reply_frame.h"
#include "core/contact_commands.h"
#include "core/contact_view.h"
#include "core/form_layout.h"
#include "core/form_text.h"
#include "core/main_layout.h"
#include "core/main_menu.h"
#include "core/main_window.h"
#include "core/personalized_state_frame.h"
#include "core/pictures.h"
#include "core/twips.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;
constexpr int rowHeight = 26;
constexpr int conferenceSlots = 5;
/// Above the rows of the contact list: the own-state chooser, a gap, the tabs.
constexpr int roomAboveRows = 2 * rowHeight + spacing;
constexpr int narrowInnerWidth = pixels(main_layout::widthWithoutLog) - 2 * margin;

QLabel *panel(QWidget *bar, const char *name)
{
    auto *const label = named(new QLabel(bar), name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmMain::frmMain(const Log &log) : m_outtextWidget(log.widget), m_outtext(log.text)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("NIMB-Chat 1.2"));
    setWindowIcon(programIcon());
    setMinimumHeight(pixels(main_layout::lowestHeight));
    buildControls();
    resize(pixels(main_layout::widthWithLog), pixels(m_place.height));
}

void frmMain::buildControls()
{
    buildMenuBar();
    buildPopUpMenu();
    auto *const area = new QWidget(this);
    setCentralWidget(area);
    buildContacts(area);
    buildOwnState(area);

    m_outtextWidget.setParent(area);
    m_outtextWidget.setObjectName(QStringLiteral("outtext"));
    m_outtextWidget.setAccessibleName(tr("Log"));
    clearbtn = named(new QPushButton(namedPicture(QStringLiteral("clear")), tr("Clear"), area), "clearbtn");
    buildStatusBar();
    orderControls();
}

/// The Tab key walks as the eye does: down the left side, then the log.
void frmMain::orderControls()
{
    QWidget *previous = ImageCombo1;
    for (QWidget *const next : std::initializer_list<QWidget *>{
             m_personalizedState, TabStrip1, ListView1, m_autoReply, RescanBtn, buzzmute, ListDetails, ItemDetailstxt,
             AutoReplyOn, Autoreplybtn, &m_outtextWidget, clearbtn}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void frmMain::buildMenuBar()
{
    for (const Menu &entry : mainMenus) {
        QMenu *const menu
            = named(menuBar()->addMenu(QCoreApplication::translate("MainMenu", entry.caption)), entry.name);
        for (const MenuEntry &item : entry.entries) {
            if (!item.name)
                continue;
            QAction *const action
                = named(menu->addAction(QCoreApplication::translate("MainMenu", item.caption)), item.name);
            action->setEnabled(false);
        }
    }
    menuEntry("mnuFileExit")->setEnabled(true);
    menuEntry("mnuFileExit")->setShortcut(QKeySequence::Quit);
    menuEntry("mnuFileExit")->setMenuRole(QAction::QuitRole);
    menuEntry("mnuHelpAbout")->setMenuRole(QAction::AboutRole);
    menuEntry("mnuToolsOptions")->setMenuRole(QAction::PreferencesRole);
    QAction *const log = menuEntry("mnuLogWindow");
    log->setEnabled(true);
    log->setCheckable(true);
    log->setChecked(true);
}

void frmMain::buildPopUpMenu()
{
    mnuPopUp = named(new QMenu(this), "mnuPopUp");
    const auto add = [this](const char *name) { return named(mnuPopUp->addAction(QString()), name); };
    mnuPopUp->setDefaultAction(add("mnuPrivateChat"));
    add("mnuBuzzUser")->setEnabled(false);
    for (int slot = 1; slot <= conferenceSlots; ++slot) {
        QAction *const invite = mnuPopUp->addAction(tr("Invite to Conference #&%1").arg(slot));
        invite->setObjectName(QStringLiteral("mnuInvite2Conf%1").arg(slot));
        invite->setVisible(false);
    }
    add("mnusendcontacts")->setEnabled(false);
    add("mnuRemoveUser");
    add("mnuinviteuser")->setEnabled(false);
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
    ItemDetailstxt = named(new QLineEdit(parent), "ItemDetailstxt");
    ItemDetailstxt->setAccessibleName(tr("Selected contact"));
    ItemDetailstxt->setReadOnly(true);
    ItemDetailstxt->setFrame(false);
    QPalette ground = ItemDetailstxt->palette();
    ground.setColor(QPalette::Base, Qt::transparent);
    ItemDetailstxt->setPalette(ground);
}

void frmMain::buildOwnState(QWidget *parent)
{
    ImageCombo1 = named(new QComboBox(parent), "ImageCombo1");
    ImageCombo1->setAccessibleName(tr("Own state"));
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
    m_status->setText(tr("Status: %1").arg(QStringLiteral("ONLINE")));
    m_activity = panel(bar, "StatusBar_activity");
    m_trouble = panel(bar, "StatusBar_trouble");
    m_trouble->hide();
    bar->addWidget(m_status);
    bar->addWidget(m_activity, 1);
    bar->addPermanentWidget(m_trouble);
    bar->installEventFilter(this);
}

QAction *frmMain::menuEntry(const char *name) const
{
    auto *const action = findChild<QAction *>(QLatin1String(name));
    Q_ASSERT(action);
    return action;
}

void frmMain::connectControls(const MainWindowEngine &engine, std::function<void()> ended)
{
    m_engine.emplace(engine);
    m_ended = std::move(ended);
    connectContacts();
    connectOwnState();
    connect(clearbtn, &QPushButton::clicked, this, &frmMain::clearbtn_Click);
    connect(menuEntry("mnuFileExit"), &QAction::triggered, this, [this] { unload(UnloadMode::code); });
    connect(menuEntry("mnuLogWindow"), &QAction::toggled, this, &frmMain::Form_Resize);
}

void frmMain::connectContacts()
{
    ListView1->setModel(&m_engine->contacts);
    connect(ListView1, &ContactView::contactOpened, this, &frmMain::ListView1_DblClick);
    connect(ListView1, &ContactView::pointedAt, this, &frmMain::ListView1_MouseMove);
    connect(ListView1, &ContactView::menuWanted, this, &frmMain::mnuPopUp_Show);
    connect(ListView1->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmMain::refreshContextMenu);
    connect(&m_engine->contacts, &ContactList::dataChanged, this, &frmMain::showItemDetails);
    connect(TabStrip1, &QTabBar::currentChanged, this, &frmMain::TabStrip1_Click);
    connect(ListDetails, &QCheckBox::toggled, this, &frmMain::ListDetails_Click);
    connect(RescanBtn, &QPushButton::clicked, this, &frmMain::RescanBtn_Click);
    connect(buzzmute, &QCheckBox::toggled, this, [this](bool muted) { m_engine->common.buzzmute = muted; });
    connect(menuEntry("mnuPrivateChat"), &QAction::triggered, this,
            [this] { m_engine->commands.mnuPrivateChat(selectedContact()); });
    connect(menuEntry("mnuRemoveUser"), &QAction::triggered, this,
            [this] { m_engine->commands.mnuRemoveUser(selectedContact()); });
}

void frmMain::connectOwnState()
{
    connect(ImageCombo1, &QComboBox::activated, this, &frmMain::ImageCombo1_Click);
    connect(m_personalizedState, &PersonalizedStateFrame::chosen, this, &frmMain::personalizedStateChosen);
    connect(m_personalizedState, &PersonalizedStateFrame::cancelled, this, &frmMain::personalizedStateCancelled);
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
    switch (m_engine->window.Form_QueryUnload(mode)) {
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
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
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
    if (!isVisible() || isMinimized())
        return;
    const auto note = [](double &kept, int now) {
        if (pixels(kept) != now)
            kept = twips(now);
    };
    note(m_place.left, pos().x());
    note(m_place.top, pos().y());
    note(m_place.height, height());
}

void frmMain::setPlace(const WindowPlace &place)
{
    m_place = place;
    m_place.height = main_layout::height(place.height);
    resize(width(), pixels(m_place.height));
    move(pixels(place.left), pixels(place.top));
    moveOntoScreen();
}

void frmMain::moveOntoScreen()
{
    const QRect frame(pos(), size());
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen->availableGeometry().contains(frame.center()))
            return;
    }
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const int left = qBound(available.left(), frame.left(), qMax(available.left(), available.right() - frame.width()));
    const int top = qBound(available.top(), frame.top(), qMax(available.top(), available.bottom() - frame.height()));
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
    const bool logShown = menuEntry("mnuLogWindow")->isChecked();
    setFixedWidth(pixels(main_layout::width(logShown)));
    const double windowHeight = twips(height());
    const int listHeight = pixels(main_layout::listHeight(windowHeight));

    ListView1->setGeometry(margin, margin, narrowInnerWidth, listHeight);
    ImageCombo1->setGeometry(margin, margin, narrowInnerWidth, rowHeight);
    TabStrip1->setGeometry(margin, margin + rowHeight + spacing, narrowInnerWidth, rowHeight);
    placeBottomRows();
    placePanels();

    const int logLeft = pixels(main_layout::widthWithoutLog);
    const int logWidth = pixels(main_layout::widthWithLog) - logLeft - margin;
    m_outtextWidget.setGeometry(logLeft, 0, logWidth, pixels(main_layout::logHeight(windowHeight)));
    const QSize button = clearbtn->sizeHint();
    clearbtn->setGeometry(logLeft + logWidth - button.width(), RescanBtn->y(), button.width(), rowHeight);
    m_outtextWidget.setVisible(logShown);
    clearbtn->setVisible(logShown);
}

void frmMain::placeBottomRows()
{
    const double windowHeight = twips(height());
    const int top = pixels(main_layout::rescanTop(windowHeight));
    const int right = margin + narrowInnerWidth;
    RescanBtn->setGeometry(margin, top, RescanBtn->sizeHint().width(), rowHeight);
    const int checkHeight = buzzmute->sizeHint().height();
    const int checkTop = pixels(main_layout::buzzmuteTop(windowHeight));
    const int detailsWidth = ListDetails->sizeHint().width();
    ListDetails->setGeometry(right - detailsWidth, checkTop, detailsWidth, checkHeight);
    const int muteWidth = buzzmute->sizeHint().width();
    const int gap = ListDetails->x() - RescanBtn->geometry().right() - 1 - muteWidth;
    buzzmute->setGeometry(RescanBtn->geometry().right() + 1 + gap / 2, checkTop, muteWidth, checkHeight);

    const int second = top + rowHeight + spacing;
    const int replyWidth = Autoreplybtn->sizeHint().width();
    ItemDetailstxt->setGeometry(margin, second, narrowInnerWidth, rowHeight);
    AutoReplyOn->setGeometry(margin, second, narrowInnerWidth - replyWidth - spacing, rowHeight);
    Autoreplybtn->setGeometry(right - replyWidth, second, replyWidth, rowHeight);
}

/// The panels lie over the list: the personalised state hangs from the chooser, the automatic reply stands on the
/// controls that open it.
void frmMain::placePanels()
{
    const int belowChooser = margin + rowHeight + 2;
    m_personalizedState->setGeometry(margin, belowChooser, narrowInnerWidth, m_personalizedState->sizeHint().height());
    constexpr int replyHeight = 130;
    m_autoReply->setGeometry(margin, ListView1->geometry().bottom() + 1 - replyHeight, narrowInnerWidth, replyHeight);
}

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == statusBar() && event->type() == QEvent::ToolTip && m_engine)
        statusBar()->setToolTip(m_engine->statusNotes());
    return QMainWindow::eventFilter(watched, event);
}

// --- contacts

QString frmMain::selectedContact() const
{
    return ListView1->selectedAddress();
}

void frmMain::ListView1_DblClick(const QString &ip)
{
    m_engine->commands.mnuPrivateChat(ip);
}

void frmMain::ListView1_MouseMove(const QString &ip)
{
    ListView1->viewport()->setToolTip(m_engine->commands.toolTip(ip));
}

void frmMain::mnuPopUp_Show(const QPoint &position)
{
    refreshContextMenu();
    mnuPopUp->popup(position);
}

void frmMain::refreshContextMenu()
{
    const ContactMenuCaptions captions = m_engine->commands.captions(selectedContact());
    menuEntry("mnuPrivateChat")->setText(captions.mnuPrivateChat);
    menuEntry("mnuBuzzUser")->setText(captions.mnuBuzzUser);
    menuEntry("mnuRemoveUser")->setText(captions.mnuRemoveUser);
    menuEntry("mnusendcontacts")->setText(captions.mnusendcontacts);
    menuEntry("mnuinviteuser")->setText(captions.mnuinviteuser);
    showItemDetails();
}

void frmMain::showItemDetails()
{
    ItemDetailstxt->setText(m_engine->commands.details(selectedContact()));
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

void frmMain::clearbtn_Click()
{
    m_engine->log.clear();
}

// --- the own state

void frmMain::addOwnState(const OwnStateEntry &entry)
{
    ImageCombo1->addItem(entry.picture ? statePicture(*entry.picture) : QIcon(), entry.text, entry.key);
}

void frmMain::selectOwnState(int position)
{
    ImageCombo1->setCurrentIndex(position - 1);
    m_chosenState = position - 1;
}

void frmMain::ImageCombo1_Click(int index)
{
    if (ImageCombo1->itemData(index).toString() != QLatin1String("_personalized"))
        m_chosenState = index;
    m_engine->ownState.choose(index + 1);
}

void frmMain::personalizedStateChosen(Picture base, const QString &text)
{
    if (m_engine->ownState.addPersonalized(base, text))
        m_personalizedState->clearText();
    else
        m_personalizedState->focusText();
}

void frmMain::personalizedStateCancelled()
{
    selectOwnState(m_chosenState + 1);
    setPersonalizedStateVisible(false);
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

void frmMain::setTroublePanel(const QString &text)
{
    m_trouble->setText(text);
    m_trouble->setVisible(!text.isEmpty());
}

} // namespace nimb
