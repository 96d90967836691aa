#include "conference/frmConference.h"

#include "base/remote_text.h"
#include "conference/conference.h"
#include "conference/participants_view.h"
#include "conversation/conversation_pane.h"
#include "conversation/message_input.h"
#include "widgets/avatar_picture.h"
#include "widgets/bring_back.h"
#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/keyed_selection.h"
#include "widgets/link_colours.h"
#include "widgets/muted_text.h"
#include "widgets/picture_delegate.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"
#include "widgets/screen_room.h"
#include "widgets/twips.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace nimb
{
namespace
{

using form_layout::margin;
using form_layout::spacing;

constexpr double leastWidth = 10000, leastHeight = 4600; // twips
constexpr double listWidth = 2235, avatarsWidth = 1155;  // twips
const QString pointsLeft = QStringLiteral("<");
const QString pointsRight = QStringLiteral(">");

QToolButton *flipButton(QWidget *parent, const char *name, const QString &caption, const QString &hint)
{
    auto *const button = named(new QToolButton(parent), name);
    button->setText(caption);
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setAutoRaise(true);
    button->setFixedWidth(qMax(16, button->fontMetrics().horizontalAdvance(caption) + 4));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return button;
}

} // namespace

frmConference::frmConference(Conference &conference, const ConversationTools &tools)
    : m_conference(&conference), m_pane(new ConversationPane(conference, tools, this))
{
    setObjectName(QStringLiteral("frmConference"));
    setWindowIcon(programIcon());
    setMinimumSize(pixels(leastWidth), pixels(leastHeight));
    buildControls();
    connectControls();
    resize(firstSize(*this, {pixels(leastWidth), 460}));
    Form_Resize();
}

void frmConference::buildControls()
{
    buildParticipants();
    buildAvatars();
    m_pane->setTabStopsBehindLog({partecipanti, refreshlistbtn, kickuserbtn, showlist, showavatars});

    auto *const sides = new QHBoxLayout;
    sides->setContentsMargins(margin, margin, margin, spacing);
    sides->setSpacing(2);
    sides->addWidget(AvatarsFrame);
    sides->addWidget(showavatars);
    sides->addWidget(m_pane, 1);
    sides->addWidget(showlist);
    sides->addWidget(m_listSide);

    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(sides, 1);
    whole->addWidget(makeStatusBar());
}

void frmConference::buildParticipants()
{
    m_listSide = new QWidget(this);
    partecipanti = named(new QTreeView(m_listSide), "partecipanti");
    partecipanti->setAccessibleName(tr("Participants"));
    partecipanti->setRootIsDecorated(false);
    partecipanti->setUniformRowHeights(true);
    partecipanti->setItemDelegate(new PictureDelegate(partecipanti));
    auto *const model = new ParticipantsProxy(*partecipanti);
    connect(m_pane, &ConversationPane::inputEnabled, model, [model](bool enabled) {
        if (!enabled)
            model->setOver();
    });
    model->setSourceModel(&m_conference->partecipanti());
    setModelOfKeyedRows(*partecipanti, *model);
    partecipanti->setColumnHidden(Participants::Mark, true);
    partecipanti->header()->setStretchLastSection(true);
    refreshlistbtn = named(new QPushButton(tr("Refresh list"), m_listSide), "refreshlistbtn");
    kickuserbtn = named(new QPushButton(tr("Kick user"), m_listSide), "kickuserbtn");
    m_listSide->setFixedWidth(
        qMax(pixels(listWidth), qMax(refreshlistbtn->sizeHint().width(), kickuserbtn->sizeHint().width())));
    const bool hosted = m_conference->isHostedHere();
    refreshlistbtn->setEnabled(!hosted);
    refreshlistbtn->setVisible(!hosted);
    kickuserbtn->setVisible(hosted);
    kickuserbtn->setEnabled(false);
    auto *const column = new QVBoxLayout(m_listSide);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(partecipanti, 1);
    if (hosted)
        column->addWidget(makeInviteHint());
    column->addWidget(refreshlistbtn);
    column->addWidget(kickuserbtn);
    showlist = flipButton(this, "showlist", pointsLeft, tr("Show/Hide partecipants"));
}

/// Says how others come in, and lets them be chosen.
QWidget *frmConference::makeInviteHint()
{
    m_inviteHint = named(new QLabel(m_listSide), "inviteHint");
    m_inviteHint->setTextFormat(Qt::RichText);
    m_inviteHint->setWordWrap(true);
    // It takes no focus, so that what is typed goes to the input; the menu of a contact invites by keys.
    m_inviteHint->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    keepMuted(*m_inviteHint);
    keepLinkColours(*m_inviteHint);
    const Participants &rows = m_conference->partecipanti();
    connect(&rows, &Participants::rowsInserted, this, &frmConference::showInviteHint);
    connect(&rows, &Participants::rowsRemoved, this, &frmConference::showInviteHint);
    connect(m_inviteHint, &QLabel::linkActivated, this, &frmConference::openInviteMenu);
    showInviteHint();
    return m_inviteHint;
}

void frmConference::showInviteHint()
{
    const QString sentence = tr("Nobody else is here yet.");
    const bool isAlone = m_conference && m_conference->partecipanti().rowCount() < 2;
    const QString link = isAlone ? tr("Invite somebody...") : tr("Invite somebody else...");
    const QString shown = QStringLiteral("<a href=\"invite\">%1</a>").arg(link);
    m_inviteHint->setText(isAlone ? sentence + QLatin1Char(' ') + shown : shown);
    m_inviteHint->setAccessibleName(isAlone ? sentence : link);
}

/// Those who can come: who is there, and is not in it already.
void frmConference::openInviteMenu()
{
    if (!m_conference)
        return;
    auto *const menu = named(new QMenu(this), "inviteMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const ContactAddress &ip : m_conference->invitable()) {
        QAction *const one = menu->addAction(menuName(m_conference->nameOf(ip)));
        connect(one, &QAction::triggered, this, [this, ip] {
            if (m_conference)
                m_conference->invite(ip);
        });
    }
    if (menu->isEmpty())
        menu->addAction(tr("No other contact is online"))->setEnabled(false);
    connect(menu, &QMenu::aboutToHide, this, [this] { m_pane->input().setFocus(); });
    menu->popup(m_inviteHint->mapToGlobal(m_inviteHint->rect().bottomLeft()));
}

void frmConference::buildAvatars()
{
    constexpr int frameMargin = 4;
    AvatarsFrame = named(new QGroupBox(tr("Avatars"), this), "AvatarsFrame");
    const int titleWidth = AvatarsFrame->fontMetrics().horizontalAdvance(AvatarsFrame->title()) + 2 * margin;
    AvatarsFrame->setFixedWidth(qMax(pixels(avatarsWidth), titleWidth));
    m_avatarPicture = named(new AvatarPicture(AvatarsFrame, 1), "AvatarPicture");
    m_avatarPicture->hide();
    NoAvatarImg = named(new PictureLabel(namedPicture(QStringLiteral("avatar")), 32, AvatarsFrame), "NoAvatarImg");
    NoAvatarImg->setAlignment(Qt::AlignCenter);
    NoAvatarImg->setFixedSize(m_avatarPicture->size());
    AvatarLabel = named(new ElidedLabel(AvatarsFrame), "AvatarLabel");
    AvatarLabel->setAlignment(Qt::AlignCenter);
    auto *const column = new QVBoxLayout(AvatarsFrame);
    column->setContentsMargins(frameMargin, frameMargin, frameMargin, frameMargin);
    column->setSpacing(frameMargin);
    column->addWidget(m_avatarPicture, 0, Qt::AlignHCenter);
    column->addWidget(NoAvatarImg, 0, Qt::AlignHCenter);
    column->addWidget(AvatarLabel);
    column->addStretch(1);
    showavatars = flipButton(this, "showavatars", pointsRight, tr("Show/Hide avatars"));
}

QWidget *frmConference::makeStatusBar()
{
    auto *const bar = named(new QWidget(this), "StatusBar1");
    auto *const row = new QHBoxLayout(bar);
    row->setContentsMargins(margin, 0, margin, spacing);
    m_panel = named(new ElidedLabel(bar), "StatusBar1_1");
    row->addWidget(m_panel, 1);
    return bar;
}

void frmConference::connectControls()
{
    connect(m_pane, &ConversationPane::lastMessageChanged, m_panel, &QLabel::setText);
    connect(m_pane, &ConversationPane::emoticonsToggled, m_pane, &ConversationPane::focusInput);
    connect(kickuserbtn, &QPushButton::clicked, this, &frmConference::kickuserbtn_Click);
    connect(refreshlistbtn, &QPushButton::clicked, this, &frmConference::refreshlistbtn_Click);
    connect(showlist, &QToolButton::clicked, this, &frmConference::showlist_Click);
    connect(showavatars, &QToolButton::clicked, this, &frmConference::showavatars_Click);
    connect(partecipanti->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmConference::partecipanti_ItemClick);
}

// --- the window itself

void frmConference::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Form_Resize();
}

void frmConference::Form_Resize()
{
    if (isMinimized())
        return;
    m_listSide->setVisible(showlist->text() == pointsLeft);
    AvatarsFrame->setVisible(showavatars->text() == pointsRight);
}

void frmConference::closeEvent(QCloseEvent *event)
{
    m_pane->Form_QueryUnload(*event);
}

void frmConference::letGo()
{
    // The participants die with the conference, the window a little later.
    partecipanti->setModel(nullptr);
    m_conference = nullptr;
    m_pane->letGo();
}

void frmConference::showWindow()
{
    bringBack(*this);
    activateWindow();
}

// --- event procedures

QString frmConference::selectedParticipant() const
{
    const QModelIndexList rows = partecipanti->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.front().data(Participants::TagRole).toString();
}

void frmConference::partecipanti_ItemClick()
{
    const QString selected = selectedParticipant();
    const Participant *const row = m_conference ? m_conference->partecipanti().find(selected) : nullptr;
    const bool kickable = row && !row->own;
    // Whoever types on must not press what the focus would pass on to.
    if (!kickable && kickuserbtn->hasFocus())
        m_pane->input().setFocus();
    kickuserbtn->setEnabled(kickable);
}

void frmConference::kickuserbtn_Click()
{
    m_conference->kickuserbtn_Click(selectedParticipant());
}

void frmConference::refreshlistbtn_Click()
{
    m_conference->refreshlistbtn_Click();
    if (m_pane->sendButton().isEnabled())
        m_pane->sendButton().setFocus();
}

void frmConference::showlist_Click()
{
    showlist->setText(showlist->text() == pointsLeft ? pointsRight : pointsLeft);
    Form_Resize();
}

void frmConference::showavatars_Click()
{
    showavatars->setText(showavatars->text() == pointsRight ? pointsLeft : pointsRight);
    Form_Resize();
}

// --- what is seen

ConversationView &frmConference::conversation()
{
    return *m_pane;
}

void frmConference::showAvatar(const QString &name, const std::optional<QByteArray> &picture)
{
    AvatarLabel->setText(name);
    AvatarLabel->setToolTip(name);
    m_avatarPicture->setPicture(picture);
    m_avatarPicture->setVisible(picture.has_value());
    NoAvatarImg->setVisible(!picture);
}

} // namespace nimb
