// The private window.
#pragma once

#include "private_chat/private_chat_view.h"

#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace nimb
{

class AvatarPicture;
class ConversationPane;
struct ConversationTools;
class LiveTypeBox;
class MoodGauge;
class PeerHeader;

class frmPrivate : public QWidget, public PrivateChatView
{
    Q_OBJECT

public:
    frmPrivate(PrivateChat &chat, const ConversationTools &tools);

    ConversationView &conversation() override;
    void setPeerAddress(const QString &ip) override;
    void setPeer(const PeerShown &peer) override;
    void setPeerActivity(const QString &text) override;
    void setLiveType(const QString &text) override;
    void setLiveTypeOn(bool on) override;
    bool isLiveTypeOn() const override;
    void setAvatar(const QString &marker, const std::optional<QByteArray> &picture) override;
    void setOwnMood(const MoodMark &mood) override;
    void setPeersMood(const MoodMark &mood) override;
    bool isHidden() const override { return QWidget::isHidden(); }
    void showWindow(ShowMode mode) override;
    void hideWindow() override { hide(); }
    void letGo() override;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void makeTools();
    QWidget *makeSidePanels();
    QWidget *makeMoodPanel(QWidget *parent);
    QWidget *makeStatusBar();
    void connectControls();

    void intext_Change();
    void futuretype_Change();
    void moodbtn_Click(bool shown);
    void AvatarBtn_Click(bool shown);
    bool Form_KeyDown(const QKeyEvent &event);

    PrivateChat *m_chat; ///< null once the window was let go

    ConversationPane *m_pane;
    PeerHeader *m_header = nullptr;
    QLineEdit *rIP = nullptr;
    LiveTypeBox *futuretype = nullptr;
    QToolButton *BuzzBtn = nullptr;
    QToolButton *moodbtn = nullptr;
    QToolButton *AvatarBtn = nullptr;
    QCheckBox *livetypebtn = nullptr;
    QWidget *m_sidePanels = nullptr;
    QWidget *m_moodPanel = nullptr;
    MoodGauge *mymoodpct = nullptr;
    MoodGauge *hismoodpct = nullptr;
    QGroupBox *Avatarframe = nullptr;
    AvatarPicture *Picture1 = nullptr;
    QLineEdit *AvatarCh = nullptr; ///< hidden; holds the head of the avatar that is shown
    quint64 m_lastRelease = 0;     ///< of a key, as the window system counts milliseconds
    QLabel *m_panels[2] = {};
};

} // namespace nimb
