#include "private_chat/frmPrivate.h"

#include "conversation/conversation_pane.h"
#include "conversation/message_input.h"
#include "log/rich_text_log.h"
#include "private_chat/live_type.h"
#include "private_chat/live_type_box.h"
#include "private_chat/mood_gauge.h"
#include "private_chat/peer_header.h"
#include "private_chat/private_chat.h"
#include "widgets/avatar_picture.h"
#include "widgets/bring_back.h"
#include "widgets/elided_label.h"
#include "widgets/form_layout.h"
#include "widgets/screen_room.h"
#include "widgets/tool_button.h"
#include "widgets/twips.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace nimb
{
namespace
{
using form_layout::margin;
using form_layout::spacing;
constexpr quint64 longestRepeatGap = 1; // milliseconds
} // namespace

frmPrivate::frmPrivate(PrivateChat &chat, const ConversationTools &tools)
    : m_chat(&chat), m_pane(new ConversationPane(chat, tools, this))
{
    setObjectName(QStringLiteral("frmPrivate"));
    setWindowTitle(tr("NIMB-Chat - Private Chat"));
    setWindowIcon(programIcon());
    buildControls();
    connectControls();
    resize(firstSize(*this, {600, 490}));
}

void frmPrivate::buildControls()
{
    futuretype = named(new LiveTypeBox(this), "futuretype");
    futuretype->setAccessibleName(tr("What the peer is typing"));
    futuretype->hide();
    makeTools();
    m_pane->putBesideLog(makeSidePanels());
    m_pane->setTabStopsBehindLog({&m_pane->input(), &m_pane->sendButton()});

    auto *const margins = new QVBoxLayout;
    margins->setContentsMargins(margin, margin, margin, spacing);
    margins->addWidget(m_pane);
    m_header = new PeerHeader(this);
    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(m_header);
    whole->addLayout(margins, 1);
    whole->addWidget(makeStatusBar());
}

void frmPrivate::makeTools()
{
    BuzzBtn = toolButton(m_pane, "BuzzBtn", tr("Buzz!"), "buzz");
    BuzzBtn->setToolTip(tr("(CTRL+G)"));
    livetypebtn = named(new QCheckBox(tr("LiveType!"), m_pane), "livetypebtn");
    livetypebtn->setToolTip(tr("The other one sees what you type before you send it"));
    moodbtn = toolButton(m_pane, "moodbtn", tr("Mood"), "mood");
    AvatarBtn = toolButton(m_pane, "AvatarBtn", tr("Avatar"), "avatar");
    moodbtn->setCheckable(true);
    AvatarBtn->setCheckable(true);
    m_pane->insertTools(ConversationPane::Tool::emoticons, {BuzzBtn});
    m_pane->insertTools(ConversationPane::Tool::dateAndTime, {livetypebtn, moodbtn, AvatarBtn});
}

/// Beside the log: the peer's avatar and the moods.
QWidget *frmPrivate::makeSidePanels()
{
    m_sidePanels = new QWidget(m_pane);
    Avatarframe = named(new QGroupBox(tr("Avatar"), m_sidePanels), "Avatarframe");
    Picture1 = named(new AvatarPicture(Avatarframe, 2), "Picture1");
    Picture1->setAccessibleName(tr("Avatar of the peer"));
    AvatarCh = named(new QLineEdit(Avatarframe), "AvatarCh");
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
    auto *const panel = named(new QGroupBox(tr("Mood"), parent), "Moodframe");
    m_moodPanel = panel;
    mymoodpct = named(new MoodGauge(panel), "mymoodpct");
    mymoodpct->setToolTip(tr("Your mood (unspecified)"));
    mymoodpct->setCursor(Qt::PointingHandCursor);
    hismoodpct = named(new MoodGauge(panel), "hismoodpct");
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
    auto *const bar = named(new QWidget(this), "StatusBar");
    auto *const row = new QHBoxLayout(bar);
    row->setContentsMargins(margin, 0, margin, spacing);
    row->setSpacing(2 * spacing);
    for (int i = 0; i < 2; ++i) {
        m_panels[i] = new ElidedLabel(bar);
        m_panels[i]->setObjectName(QStringLiteral("StatusBar_%1").arg(i + 1));
        row->addWidget(m_panels[i], i);
    }
    rIP = named(new QLineEdit(bar), "rIP");
    rIP->setAccessibleName(tr("Address of the peer"));
    rIP->setReadOnly(true);
    rIP->setFrame(false);
    rIP->setFocusPolicy(Qt::ClickFocus);
    rIP->setAlignment(Qt::AlignRight);
    QPalette ground = rIP->palette();
    ground.setColor(QPalette::Base, Qt::transparent);
    rIP->setPalette(ground);
    row->addWidget(rIP);
    return bar;
}

void frmPrivate::connectControls()
{
    connect(m_header, &PeerHeader::sendLaterPressed, this, [this] {
        if (m_chat)
            m_chat->sendLaterBtn_Click();
    });
    connect(m_pane, &ConversationPane::lastMessageChanged, m_panels[0], &QLabel::setText);
    m_pane->input().installEventFilter(this);
    m_pane->log().installEventFilter(this);
    connect(&m_pane->input(), &QPlainTextEdit::textChanged, this, &frmPrivate::intext_Change);
    connect(BuzzBtn, &QToolButton::clicked, this, [this] { m_chat->BuzzBtn_Click(); });
    connect(livetypebtn, &QCheckBox::clicked, this, [this] { m_chat->livetypebtn_Click(); });
    connect(futuretype, &QPlainTextEdit::textChanged, this, &frmPrivate::futuretype_Change);
    connect(moodbtn, &QToolButton::toggled, this, &frmPrivate::moodbtn_Click);
    connect(mymoodpct, &MoodGauge::pressed, this, [this](float value) { m_chat->mymoodpct_MouseDown(value); });
    connect(AvatarBtn, &QToolButton::toggled, this, &frmPrivate::AvatarBtn_Click);
}

void frmPrivate::intext_Change()
{
    if (m_chat)
        m_chat->intext_Change(m_pane->typedText());
}

/// The preview grows upwards over the lower part of the log, whose lines make room for what is seen of it.
void frmPrivate::futuretype_Change()
{
    constexpr double aboveLogsEnd = 340; // twips
    const RichTextLogEdit &outtext = m_pane->log();
    const QRect log(outtext.mapTo(this, QPoint(0, 0)), outtext.size());
    const int room = log.height() - pixels(aboveLogsEnd);
    const int boxHeight = qMin(pixels(liveTypeHeight(futuretype->toPlainText().size())), qMax(0, room));
    const int inset = spacing;
    futuretype->setGeometry(log.left() + inset, log.bottom() + 1 - boxHeight - pixels(aboveLogsEnd),
                            log.width() - 2 * inset - outtext.verticalScrollBar()->sizeHint().width(), boxHeight);
    futuretype->raise();
    const int seen = futuretype->fit();
    m_pane->log().setRoomBelow(futuretype->isHidden() ? 0 : seen + pixels(aboveLogsEnd) + inset);
}

void frmPrivate::moodbtn_Click(bool shown)
{
    m_moodPanel->setVisible(shown);
    m_pane->setNeedsRoom(shown || AvatarBtn->isChecked());
    m_sidePanels->setVisible(shown || AvatarBtn->isChecked());
    m_pane->focusInput();
}

void frmPrivate::AvatarBtn_Click(bool shown)
{
    if (shown)
        m_chat->avatarWanted();
    Avatarframe->setVisible(shown);
    m_pane->setNeedsRoom(shown || moodbtn->isChecked());
    m_sidePanels->setVisible(shown || moodbtn->isChecked());
}

/// The form sees keys before its controls do.
bool frmPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && Form_KeyDown(*static_cast<QKeyEvent *>(event)))
        return true;
    if (event->type() == QEvent::KeyRelease)
        m_lastRelease = static_cast<QKeyEvent *>(event)->timestamp();
    if (event->type() == QEvent::Resize && watched == &m_pane->log())
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

void frmPrivate::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !isMinimized() && m_chat)
        m_chat->Form_Activate();
}

void frmPrivate::closeEvent(QCloseEvent *event)
{
    m_pane->Form_QueryUnload(*event);
}

void frmPrivate::letGo()
{
    m_chat = nullptr;
    m_pane->letGo();
}

ConversationView &frmPrivate::conversation()
{
    return *m_pane;
}

void frmPrivate::setPeerAddress(const QString &ip)
{
    rIP->setText(ip);
    rIP->setFixedWidth(rIP->fontMetrics().horizontalAdvance(ip) + 2 * margin);
}

void frmPrivate::setPeer(const PeerShown &peer)
{
    m_header->setPeer(peer);
}

void frmPrivate::setPeerActivity(const QString &text)
{
    m_panels[1]->setText(text);
}

void frmPrivate::setLiveType(const QString &text)
{
    if (text.isEmpty() && futuretype->isHidden())
        return; // every message empties it, which is work even where nothing is
    futuretype->setVisible(!text.isEmpty());
    futuretype->setPlainText(text);
    futuretype->moveCursor(QTextCursor::End);
}

void frmPrivate::setLiveTypeOn(bool on)
{
    livetypebtn->setChecked(on);
}

bool frmPrivate::isLiveTypeOn() const
{
    return livetypebtn->isChecked();
}

void frmPrivate::setAvatar(const QString &marker, const std::optional<QByteArray> &picture)
{
    AvatarCh->setText(marker);
    Picture1->setPicture(picture);
    m_header->setAvatar(picture);
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
        m_pane->input().setFocus();
        break;
    }
}

} // namespace nimb
