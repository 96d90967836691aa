#include "conference/frmConference.h"

#include "conference/conference.h"
#include "conference/participants_view.h"
#include "conversation/emoticon_picker.h"
#include "conversation/message_input.h"
#include "log/RTFSubClass.h"
#include "log/log_font.h"
#include "log/rich_text_log.h"
#include "widgets/avatar_picture.h"
#include "widgets/bring_back.h"
#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/keyed_selection.h"
#include "widgets/picture_delegate.h"
#include "widgets/picture_label.h"
#include "widgets/pictures.h"
#include "widgets/tool_button.h"
#include "widgets/twips.h"
#include "widgets/window_attention.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
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
    button->setFixedWidth(16);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return button;
}

} // namespace

frmConference::frmConference(Conference &conference, RTFSubClass &links) : m_conference(&conference), m_links(links)
{
    setObjectName(QStringLiteral("frmConference"));
    setWindowIcon(programIcon());
    setMinimumSize(pixels(leastWidth), pixels(leastHeight));
    buildControls();
    connectControls();
    m_links.HookRichText(*m_outtext, *this);
    resize(pixels(leastWidth), 460);
    Form_Resize();
}

void frmConference::buildControls()
{
    m_outtext = named(new RichTextLogEdit(this), "outtext");
    m_outtext->setAccessibleName(tr("Conversation"));
    m_outtext->setTabChangesFocus(true);
    ListViewEmot = new EmoticonPicker(this);
    ListViewEmot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ListViewEmot->hide();
    buildParticipants();
    buildAvatars();

    auto *const tools = new QHBoxLayout;
    tools->setSpacing(2);
    Emoticbtn = toolButton(this, "Emoticbtn", tr("Emoticons"), "emoticons");
    Emoticbtn->setCheckable(true);
    datetimebtn = toolButton(this, "datetimebtn", tr("Date&&Time"), "datetime");
    clearbtn = toolButton(this, "clearbtn", tr("Clear"), "clear");
    for (QToolButton *const tool : {Emoticbtn, datetimebtn, clearbtn})
        tools->addWidget(tool);
    tools->addStretch(1);

    auto *const column = new QVBoxLayout;
    column->setSpacing(spacing);
    column->addWidget(m_outtext, 1);
    column->addWidget(ListViewEmot);
    column->addLayout(tools);
    column->addWidget(makeInput());

    auto *const sides = new QHBoxLayout;
    sides->setContentsMargins(margin, margin, margin, spacing);
    sides->setSpacing(2);
    sides->addWidget(AvatarsFrame);
    sides->addWidget(showavatars);
    sides->addLayout(column, 1);
    sides->addWidget(showlist);
    sides->addWidget(m_listSide);

    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(sides, 1);
    whole->addWidget(makeStatusBar());
    setTabOrder(intext, sendbtn);
    intext->setFocus();
}

void frmConference::buildParticipants()
{
    m_listSide = new QWidget(this);
    m_listSide->setFixedWidth(pixels(listWidth));
    partecipanti = named(new QTreeView(m_listSide), "partecipanti");
    partecipanti->setAccessibleName(tr("Participants"));
    partecipanti->setRootIsDecorated(false);
    partecipanti->setUniformRowHeights(true);
    partecipanti->setItemDelegate(new PictureDelegate(partecipanti));
    auto *const model = new ParticipantsProxy(partecipanti);
    model->setSourceModel(&m_conference->partecipanti());
    model->setGround(palette().color(QPalette::Base));
    setModelOfKeyedRows(*partecipanti, *model);
    partecipanti->setColumnHidden(Participants::Mark, true);
    partecipanti->header()->setStretchLastSection(true);
    refreshlistbtn = named(new QPushButton(tr("Refresh list"), m_listSide), "refreshlistbtn");
    kickuserbtn = named(new QPushButton(tr("Kick user"), m_listSide), "kickuserbtn");
    const bool hosted = m_conference->isHostedHere();
    refreshlistbtn->setEnabled(!hosted);
    refreshlistbtn->setVisible(!hosted);
    kickuserbtn->setVisible(hosted);
    kickuserbtn->setEnabled(false);
    auto *const column = new QVBoxLayout(m_listSide);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(partecipanti, 1);
    column->addWidget(refreshlistbtn);
    column->addWidget(kickuserbtn);
    showlist = flipButton(this, "showlist", pointsLeft, tr("Show/Hide partecipants"));
}

void frmConference::buildAvatars()
{
    constexpr int frameMargin = 4;
    AvatarsFrame = named(new QGroupBox(tr("Avatars"), this), "AvatarsFrame");
    AvatarsFrame->setFixedWidth(pixels(avatarsWidth));
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

QWidget *frmConference::makeInput()
{
    auto *const area = new QWidget(this);
    intext = named(new MessageInput(area), "intext");
    intext->setAccessibleName(tr("Message"));
    intext->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    sendbtn = named(new QPushButton(namedPicture(QStringLiteral("send")), tr("Send"), area), "sendbtn");
    sendbtn->setDefault(true);
    sendbtn->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    auto *const row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(intext);
    row->addWidget(sendbtn);
    return area;
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
    connect(sendbtn, &QPushButton::clicked, this, &frmConference::sendbtn_Click);
    connect(intext, &MessageInput::entered, sendbtn, &QPushButton::click);
    connect(clearbtn, &QToolButton::clicked, this, &frmConference::Clearbtn_Click);
    connect(datetimebtn, &QToolButton::clicked, this, &frmConference::datetimebtn_Click);
    connect(Emoticbtn, &QToolButton::toggled, this, &frmConference::Emoticbtn_Click);
    connect(ListViewEmot, &EmoticonPicker::picked, this, &frmConference::ListViewEmot_ItemClick);
    connect(kickuserbtn, &QPushButton::clicked, this, &frmConference::kickuserbtn_Click);
    connect(refreshlistbtn, &QPushButton::clicked, this, &frmConference::refreshlistbtn_Click);
    connect(showlist, &QToolButton::clicked, this, &frmConference::showlist_Click);
    connect(showavatars, &QToolButton::clicked, this, &frmConference::showavatars_Click);
    connect(partecipanti->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmConference::partecipanti_ItemClick);
    connect(m_outtext, &QTextEdit::textChanged, this, &frmConference::outtext_Change);
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
    if (!m_conference)
        return event->accept();
    const UnloadMode mode = qApp->isSavingSession() ? UnloadMode::sessionEnd : UnloadMode::closeBox;
    const CloseDecision decision = m_conference->Form_QueryUnload(mode);
    // The program may have ended while the question stood there.
    if (decision == CloseDecision::stay && m_conference)
        return event->ignore();
    event->accept();
    if (m_conference)
        m_conference->closed();
}

void frmConference::Form_Unload()
{
    m_links.UnhookRichText(*m_outtext);
}

void frmConference::letGo()
{
    Form_Unload();
    // The participants die with the conference, the window a little later.
    partecipanti->setModel(nullptr);
    m_conference = nullptr;
    hide();
    deleteLater();
}

void frmConference::showWindow()
{
    bringBack(*this);
    activateWindow();
}

bool frmConference::isMinimisedOrInactive() const
{
    return isMinimized() || !isActiveWindow();
}

void frmConference::flash()
{
    if (!isHidden())
        flashTaskBarButton(*this);
}

// --- event procedures

void frmConference::sendbtn_Click()
{
    if (m_conference->send(typedText()))
        intext->clear();
    intext->setFocus();
}

void frmConference::Clearbtn_Click()
{
    m_conference->Clearbtn_Click();
    if (intext->isEnabled())
        intext->setFocus();
}

void frmConference::datetimebtn_Click()
{
    if (!intext->isEnabled())
        return;
    intext->insertPlainText(m_conference->dateAndTime());
    intext->setFocus();
}

void frmConference::focusInput()
{
    if (!intext->isEnabled())
        return;
    intext->setFocus();
    intext->moveCursor(QTextCursor::End);
}

void frmConference::Emoticbtn_Click(bool shown)
{
    ListViewEmot->setVisible(shown);
    focusInput();
}

void frmConference::ListViewEmot_ItemClick(const QString &emoticon)
{
    if (!intext->isEnabled())
        return;
    setTypedText(*intext, typedText() + emoticon);
    intext->setFocus();
}

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
        intext->setFocus();
    kickuserbtn->setEnabled(kickable);
}

void frmConference::kickuserbtn_Click()
{
    m_conference->kickuserbtn_Click(selectedParticipant());
}

void frmConference::refreshlistbtn_Click()
{
    m_conference->refreshlistbtn_Click();
    if (sendbtn->isEnabled())
        sendbtn->setFocus();
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

void frmConference::outtext_Change()
{
    if (m_conference)
        m_conference->outtext_Change();
}

// --- what is seen

RichTextLog &frmConference::outtext()
{
    return *m_outtext;
}

void frmConference::setCaption(const QString &caption)
{
    setWindowCaption(*this, caption);
}

void frmConference::setLogFont(const LogFont &font)
{
    intext->setFont(fontOf(font));
    m_outtext->setSelFont(font);
}

void frmConference::setLastMessage(const QString &text)
{
    m_panel->setText(text);
}

QString frmConference::typedText() const
{
    return nimb::typedText(*intext);
}

void frmConference::setInputEnabled(bool enabled)
{
    intext->setEnabled(enabled);
    sendbtn->setEnabled(enabled);
}

void frmConference::showAvatar(const QString &name, const std::optional<QByteArray> &picture)
{
    AvatarLabel->setText(name);
    AvatarLabel->setToolTip(name);
    m_avatarPicture->setPicture(picture);
    m_avatarPicture->setVisible(picture.has_value());
    NoAvatarImg->setVisible(!picture);
}

Colour frmConference::windowTextColour() const
{
    return logColour(palette().color(QPalette::WindowText));
}

} // namespace nimb
