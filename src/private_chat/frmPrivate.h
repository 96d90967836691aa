// The private window.
#pragma once

#include "base/unload_mode.h"
#include "private_chat/private_chat_view.h"

#include <QWidget>

class QCheckBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace nimb
{

class AvatarPicture;
class EmoticonPicker;
class MessageInput;
class MoodGauge;
class RTFSubClass;
class RichTextLogEdit;

class frmPrivate : public QWidget, public PrivateChatView, public ConversationView
{
    Q_OBJECT

public:
    /// links: opens what is pressed in the log; outlives the window.
    frmPrivate(PrivateChat &chat, RTFSubClass &links);

    ConversationView &conversation() override { return *this; }
    RichTextLog &outtext() override;
    void setCaption(const QString &caption) override;
    void setPeerAddress(const QString &ip) override;
    void setLogFont(const LogFont &font) override;
    void setLastMessage(const QString &text) override;
    void setPeerActivity(const QString &text) override;
    void setLiveType(const QString &text) override;
    void setLiveTypeOn(bool on) override;
    QString typedText() const override;
    void setInputEnabled(bool enabled) override;
    bool isLiveTypeOn() const override;
    void focusInput() override;
    void setAvatar(const QString &marker, const std::optional<QByteArray> &picture) override;
    void setOwnMood(const MoodMark &mood) override;
    void setPeersMood(const MoodMark &mood) override;
    Colour windowTextColour() const override;
    bool isHidden() const override { return QWidget::isHidden(); }
    void showWindow(ShowMode mode) override;
    void hideWindow() override { hide(); }
    void letGo() override;
    bool isMinimisedOrInactive() const override;
    void flash() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QHBoxLayout *makeToolRow();
    QWidget *makeSidePanels();
    QWidget *makeMoodPanel(QWidget *parent);
    QWidget *makeStatusBar();
    void connectControls();

    void Form_Unload();
    void sendbtn_Click();
    void clearbtn_Click();
    void datetimebtn_Click();
    void Emoticbtn_Click(bool shown);
    void ListViewEmot_ItemClick(const QString &emoticon);
    void intext_Change();
    void futuretype_Change();
    void moodbtn_Click(bool shown);
    void AvatarBtn_Click(bool shown);
    bool Form_KeyDown(const QKeyEvent &event);
    void outtext_Change();
    /// True when the window is to be unloaded; otherwise it has been hidden.
    bool Form_QueryUnload(UnloadMode mode);

    PrivateChat *m_chat; ///< null once the window was let go
    RTFSubClass &m_links;

    QLineEdit *rIP = nullptr;
    RichTextLogEdit *m_outtext = nullptr;
    QPlainTextEdit *futuretype = nullptr;
    EmoticonPicker *ListViewEmot = nullptr;
    MessageInput *intext = nullptr;
    QPushButton *sendbtn = nullptr;
    QToolButton *clearbtn = nullptr;
    QToolButton *datetimebtn = nullptr;
    QToolButton *Emoticbtn = nullptr;
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
