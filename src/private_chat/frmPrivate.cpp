#include "private_chat/frmPrivate.h"

#include "conversation/emoticon_picker.h"
#include "conversation/message_input.h"
#include "log/RTFSubClass.h"
#include "log/log_font.h"
#include "log/rich_text_log.h"
#include "private_chat/live_type.h"
#include "private_chat/mood_gauge.h"
#include "private_chat/private_chat.h"
#include "widgets/avatar_picture.h"
#include "widgets/bring_back.h"
#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/form_text.h"
#include "widgets/pictures.h"
#include "widgets/tool_button.h"
#include "widgets/twips.h"
#include "widgets/window_attention.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace nimb
{
namespace
{
using form_layout::margin;
using form_layout::spacing;
constexpr quint64 longestRepeatGap = 1; // milliseconds
} // namespace

frmPrivate::frmPrivate(PrivateChat &chat, RTFSubClass &links) : m_chat(&chat), m_links(links)
{
    setObjectName(QStringLiteral("frmPrivate"));
    setWindowTitle(tr("NIMB-Chat - Private Chat"));
    setWindowIcon(programIcon());
    buildControls();
    connectControls();
    m_links.HookRichText(*m_outtext, *this);
    resize(600, 490);
}

void frmPrivate::buildControls()
{
    m_outtext = new RichTextLogEdit(this);
    m_outtext->setObjectName(QStringLiteral("outtext"));
    m_outtext->setAccessibleName(tr("Conversation"));
    m_outtext->setTabChangesFocus(true);

    futuretype = new QPlainTextEdit(this);
    futuretype->setObjectName(QStringLiteral("futuretype"));
    futuretype->setReadOnly(true);
    futuretype->setFocusPolicy(Qt::NoFocus);
    futuretype->setAccessibleName(tr("What the peer is typing"));
    futuretype->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    futuretype->viewport()->setBackgroundRole(QPalette::AlternateBase); // lies over the log, whose ground is Base
    futuretype->hide();

    ListViewEmot = new EmoticonPicker(this);
    ListViewEmot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ListViewEmot->hide();

    intext = new MessageInput(this);
    intext->setObjectName(QStringLiteral("intext"));
    intext->setAccessibleName(tr("Message"));
    intext->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    sendbtn = new QPushButton(namedPicture(QStringLiteral("send")), tr("Send"), this);
    sendbtn->setObjectName(QStringLiteral("sendbtn"));
    sendbtn->setDefault(true);
    sendbtn->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

    auto *const input = new QHBoxLayout;
    input->setSpacing(spacing);
    input->addWidget(intext);
    input->addWidget(sendbtn);

    auto *const column = new QVBoxLayout;
    column->setContentsMargins(margin, margin, margin, spacing);
    column->setSpacing(spacing);
    auto *const conversation = new QHBoxLayout;
    conversation->setSpacing(spacing);
    conversation->addWidget(m_outtext, 1);
    conversation->addWidget(makeSidePanels());
    column->addLayout(conversation, 1);
    column->addWidget(ListViewEmot);
    column->addLayout(makeToolRow());
    column->addLayout(input);

    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(column, 1);
    whole->addWidget(makeStatusBar());
    setTabOrder(intext, sendbtn);
    intext->setFocus();
}

QHBoxLayout *frmPrivate::makeToolRow()
{
    Emoticbtn = toolButton(this, "Emoticbtn", tr("Emoticons"), "emoticons");
    Emoticbtn->setCheckable(true);
    BuzzBtn = toolButton(this, "BuzzBtn", tr("Buzz!"), "buzz");
    BuzzBtn->setToolTip(tr("(CTRL+G)"));
    datetimebtn = toolButton(this, "datetimebtn", tr("Date&&Time"), "datetime");
    livetypebtn = new QCheckBox(tr("LiveType!"), this);
    livetypebtn->setObjectName(QStringLiteral("livetypebtn"));
    moodbtn = toolButton(this, "moodbtn", tr("Mood"), "mood");
    AvatarBtn = toolButton(this, "AvatarBtn", tr("Avatar"), "avatar");
    clearbtn = toolButton(this, "clearbtn", tr("Clear"), "clear");
    moodbtn->setCheckable(true);
    AvatarBtn->setCheckable(true);

    auto *const row = new QHBoxLayout;
    row->setSpacing(2);
    for (QWidget *tool :
         std::initializer_list<QWidget *>{Emoticbtn, BuzzBtn, datetimebtn, livetypebtn, moodbtn, AvatarBtn, clearbtn})
        row->addWidget(tool);
    row->addStretch(1);
    return row;
}

/// Beside the log: the peer's avatar and the moods.
QWidget *frmPrivate::makeSidePanels()
{
    m_sidePanels = new QWidget(this);
    Avatarframe = new QGroupBox(tr("Avatar"), m_sidePanels);
    Avatarframe->setObjectName(QStringLiteral("Avatarframe"));
    Picture1 = new AvatarPicture(Avatarframe, 2);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setAccessibleName(tr("Avatar of the peer"));
    AvatarCh = new QLineEdit(Avatarframe);
    AvatarCh->setObjectName(QStringLiteral("AvatarCh"));
    AvatarCh->hide();
    auto *const frame = new QVBoxLayout(Avatarframe);
    frame->setContentsMargins(margin, margin, margin, margin);
    frame->addWidget(Picture1, 0, Qt::AlignCenter);

    auto *const column = new QVBoxLayout(m_sidePanels);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(Avatarframe);
    column->addWidget(makeMoodPanel(m_sidePanels));
    column->addStretch(1);
    Avatarframe->hide();
    m_moodPanel->hide();
    m_sidePanels->hide();
    return m_sidePanels;
}

QWidget *frmPrivate::makeMoodPanel(QWidget *parent)
{
    auto *const panel = new QGroupBox(tr("Mood"), parent);
    panel->setObjectName(QStringLiteral("Moodframe"));
    m_moodPanel = panel;
    mymoodpct = new MoodGauge(panel);
    mymoodpct->setObjectName(QStringLiteral("mymoodpct"));
    mymoodpct->setToolTip(tr("Your mood (unspecified)"));
    mymoodpct->setCursor(Qt::PointingHandCursor);
    hismoodpct = new MoodGauge(panel);
    hismoodpct->setObjectName(QStringLiteral("hismoodpct"));
    hismoodpct->setToolTip(tr("His/her mood (unspecified)"));
    auto *const grid = new QGridLayout(panel);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    grid->addWidget(new QLabel(tr("You"), panel), 0, 0, Qt::AlignHCenter);
    grid->addWidget(new QLabel(tr("Peer"), panel), 0, 1, Qt::AlignHCenter);
    grid->addWidget(mymoodpct, 1, 0, Qt::AlignHCenter);
    grid->addWidget(hismoodpct, 1, 1, Qt::AlignHCenter);
    return panel;
}

QWidget *frmPrivate::makeStatusBar()
{
    auto *const bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("StatusBar"));
    auto *const row = new QHBoxLayout(bar);
    row->setContentsMargins(margin, 0, margin, spacing);
    row->setSpacing(2 * spacing);
    for (int i = 0; i < 2; ++i) {
        m_panels[i] = new ElidedLabel(bar);
        m_panels[i]->setObjectName(QStringLiteral("StatusBar_%1").arg(i + 1));
        row->addWidget(m_panels[i], i);
    }
    rIP = new QLineEdit(bar);
    rIP->setObjectName(QStringLiteral("rIP"));
    rIP->setAccessibleName(tr("Address of the peer"));
    rIP->setReadOnly(true);
    rIP->setFrame(false);
    rIP->setFocusPolicy(Qt::ClickFocus);
    rIP->setAlignment(Qt::AlignRight);
    rIP->setFixedWidth(120);
    QPalette ground = rIP->palette();
    ground.setColor(QPalette::Base, Qt::transparent);
    rIP->setPalette(ground);
    row->addWidget(rIP);
    return bar;
}

void frmPrivate::connectControls()
{
    connect(sendbtn, &QPushButton::clicked, this, &frmPrivate::sendbtn_Click);
    connect(intext, &MessageInput::entered, sendbtn, &QPushButton::click);
    connect(clearbtn, &QToolButton::clicked, this, &frmPrivate::clearbtn_Click);
    connect(datetimebtn, &QToolButton::clicked, this, &frmPrivate::datetimebtn_Click);
    intext->installEventFilter(this);
    m_outtext->installEventFilter(this);
    connect(intext, &QPlainTextEdit::textChanged, this, &frmPrivate::intext_Change);
    connect(BuzzBtn, &QToolButton::clicked, this, [this] { m_chat->BuzzBtn_Click(); });
    connect(livetypebtn, &QCheckBox::clicked, this, [this] { m_chat->livetypebtn_Click(); });
    connect(futuretype, &QPlainTextEdit::textChanged, this, &frmPrivate::futuretype_Change);
    connect(moodbtn, &QToolButton::toggled, this, &frmPrivate::moodbtn_Click);
    connect(mymoodpct, &MoodGauge::pressed, this, [this](float value) { m_chat->mymoodpct_MouseDown(value); });
    connect(AvatarBtn, &QToolButton::toggled, this, &frmPrivate::AvatarBtn_Click);
    connect(Emoticbtn, &QToolButton::toggled, this, &frmPrivate::Emoticbtn_Click);
    connect(ListViewEmot, &EmoticonPicker::picked, this, &frmPrivate::ListViewEmot_ItemClick);
    connect(m_outtext, &QTextEdit::textChanged, this, &frmPrivate::outtext_Change);
}

void frmPrivate::sendbtn_Click()
{
    if (m_chat->send(typedText()))
        intext->clear();
    intext->setFocus();
}

void frmPrivate::clearbtn_Click()
{
    m_chat->Clearbtn_Click();
    intext->setFocus();
}

void frmPrivate::datetimebtn_Click()
{
    intext->insertPlainText(m_chat->dateAndTime());
    intext->setFocus();
}

void frmPrivate::Emoticbtn_Click(bool shown)
{
    ListViewEmot->setVisible(shown);
}

void frmPrivate::ListViewEmot_ItemClick(const QString &emoticon)
{
    setTypedText(*intext, typedText() + emoticon);
    intext->setFocus();
}

void frmPrivate::intext_Change()
{
    if (m_chat)
        m_chat->intext_Change(nimb::typedText(*intext));
}

/// The preview grows upwards over the lower part of the log.
void frmPrivate::futuretype_Change()
{
    constexpr double aboveLogsEnd = 340; // twips
    const QRect log(m_outtext->mapTo(this, QPoint(0, 0)), m_outtext->size());
    const int room = log.height() - pixels(aboveLogsEnd);
    const int boxHeight = qMin(pixels(liveTypeHeight(futuretype->toPlainText().size())), qMax(0, room));
    const int inset = spacing;
    futuretype->setGeometry(log.left() + inset, log.bottom() + 1 - boxHeight - pixels(aboveLogsEnd),
                            log.width() - 2 * inset - m_outtext->verticalScrollBar()->sizeHint().width(), boxHeight);
    futuretype->raise();
}

void frmPrivate::moodbtn_Click(bool shown)
{
    m_moodPanel->setVisible(shown);
    m_sidePanels->setVisible(shown || AvatarBtn->isChecked());
    focusInput();
}

void frmPrivate::AvatarBtn_Click(bool shown)
{
    if (shown)
        m_chat->avatarWanted();
    Avatarframe->setVisible(shown);
    m_sidePanels->setVisible(shown || moodbtn->isChecked());
}

/// The form sees keys before its controls do.
bool frmPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && Form_KeyDown(*static_cast<QKeyEvent *>(event)))
        return true;
    if (event->type() == QEvent::KeyRelease)
        m_lastRelease = static_cast<QKeyEvent *>(event)->timestamp();
    if (event->type() == QEvent::Resize && watched == m_outtext)
        futuretype_Change();
    return QWidget::eventFilter(watched, event);
}

void frmPrivate::keyReleaseEvent(QKeyEvent *event)
{
    m_lastRelease = event->timestamp();
    QWidget::keyReleaseEvent(event);
}

void frmPrivate::keyPressEvent(QKeyEvent *event)
{
    if (!Form_KeyDown(*event))
        QWidget::keyPressEvent(event);
}

bool frmPrivate::Form_KeyDown(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_G || event.modifiers() != Qt::ControlModifier || !m_chat)
        return false;
    // One press, one buzz. A held key that repeats is released and pressed at the same moment, which Qt does not always
    // recognise.
    const bool isDated = event.timestamp() != 0;
    const bool repeats = event.isAutoRepeat() || (isDated && event.timestamp() - m_lastRelease <= longestRepeatGap);
    if (!repeats)
        m_chat->BuzzBtn_Click();
    return true;
}

void frmPrivate::outtext_Change()
{
    if (m_chat)
        m_chat->outtext_Change();
}

bool frmPrivate::Form_QueryUnload(UnloadMode mode)
{
    if (m_chat->Form_QueryUnload(mode) == CloseDecision::unload)
        return true;
    hide();
    return false;
}

void frmPrivate::closeEvent(QCloseEvent *event)
{
    if (!m_chat)
        return event->accept();
    const UnloadMode mode = qApp->isSavingSession() ? UnloadMode::sessionEnd : UnloadMode::closeBox;
    if (!Form_QueryUnload(mode))
        return event->ignore();
    event->accept();
    m_chat->closed();
}

void frmPrivate::Form_Unload()
{
    m_links.UnhookRichText(*m_outtext);
}

void frmPrivate::letGo()
{
    Form_Unload();
    m_chat = nullptr;
    hide();
    deleteLater();
}

RichTextLog &frmPrivate::outtext()
{
    return *m_outtext;
}

void frmPrivate::setCaption(const QString &caption)
{
    setWindowCaption(*this, caption);
}

void frmPrivate::setPeerAddress(const QString &ip)
{
    rIP->setText(ip);
}

void frmPrivate::setLogFont(const LogFont &font)
{
    intext->setFont(fontOf(font));
    m_outtext->setSelFont(font);
}

void frmPrivate::setLastMessage(const QString &text)
{
    m_panels[0]->setText(text);
}

void frmPrivate::setPeerActivity(const QString &text)
{
    m_panels[1]->setText(text);
}

void frmPrivate::setInputEnabled(bool enabled)
{
    intext->setEnabled(enabled);
    sendbtn->setEnabled(enabled);
}

void frmPrivate::setLiveType(const QString &text)
{
    futuretype->setPlainText(text);
    futuretype->setVisible(!text.isEmpty());
    futuretype->moveCursor(QTextCursor::End);
}

void frmPrivate::setLiveTypeOn(bool on)
{
    livetypebtn->setChecked(on);
}

QString frmPrivate::typedText() const
{
    return nimb::typedText(*intext);
}

bool frmPrivate::isLiveTypeOn() const
{
    return livetypebtn->isChecked();
}

void frmPrivate::focusInput()
{
    intext->setFocus();
    intext->moveCursor(QTextCursor::End);
}

void frmPrivate::setAvatar(const QString &marker, const std::optional<QByteArray> &picture)
{
    AvatarCh->setText(marker);
    Picture1->setPicture(picture);
}

void frmPrivate::setOwnMood(const MoodMark &mood)
{
    mymoodpct->setMood(mood);
    mymoodpct->setToolTip(tr("Your mood (%1)").arg(mood.name));
}

void frmPrivate::setPeersMood(const MoodMark &mood)
{
    hismoodpct->setMood(mood);
    hismoodpct->setToolTip(tr("His/her mood (%1)").arg(mood.name));
}

Colour frmPrivate::windowTextColour() const
{
    return logColour(palette().color(QPalette::WindowText));
}

void frmPrivate::showWindow(ShowMode mode)
{
    setAttribute(Qt::WA_ShowWithoutActivating, mode != ShowMode::active);
    switch (mode) {
    case ShowMode::minimised:
        showMinimized();
        break;
    case ShowMode::onTop:
        if (isMinimized())
            show();
        else
            bringBack(*this);
        break;
    case ShowMode::active:
        bringBack(*this);
        activateWindow();
        break;
    }
}

bool frmPrivate::isMinimisedOrInactive() const
{
    return isMinimized() || !isActiveWindow();
}

void frmPrivate::flash()
{
    if (QWidget::isHidden())
        return;
    flashTaskBarButton(*this);
}

} // namespace nimb
