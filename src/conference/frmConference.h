// The conference window.
#pragma once

#include "base/unload_mode.h"
#include "conference/conference_view.h"

#include <QWidget>

class QAbstractItemModel;
class QGroupBox;
class QLabel;
class QPushButton;
class QToolButton;
class QTreeView;

namespace nimb
{

class AvatarPicture;
class EmoticonPicker;
class MessageInput;
class RTFSubClass;
class RichTextLogEdit;

class frmConference : public QWidget, public ConferenceView, public ConversationView
{
    Q_OBJECT

public:
    /// links: opens what is pressed in the log; outlives the window.
    frmConference(Conference &conference, RTFSubClass &links);

    ConversationView &conversation() override { return *this; }
    RichTextLog &outtext() override;
    void setCaption(const QString &caption) override;
    void setLogFont(const LogFont &font) override;
    void setLastMessage(const QString &text) override;
    QString typedText() const override;
    void setInputEnabled(bool enabled) override;
    void focusInput() override;
    void showAvatar(const QString &name, const std::optional<QByteArray> &picture) override;
    Colour windowTextColour() const override;
    void showWindow() override;
    void letGo() override;
    bool isMinimisedOrInactive() const override;
    void flash() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildControls();
    void buildParticipants();
    void buildAvatars();
    QWidget *makeInput();
    QWidget *makeStatusBar();
    void connectControls();

    void Form_Resize();
    void Form_Unload();
    void sendbtn_Click();
    void Clearbtn_Click();
    void datetimebtn_Click();
    void Emoticbtn_Click(bool shown);
    void ListViewEmot_ItemClick(const QString &emoticon);
    void kickuserbtn_Click();
    void refreshlistbtn_Click();
    void showlist_Click();
    void showavatars_Click();
    void partecipanti_ItemClick();
    void outtext_Change();
    QString selectedParticipant() const;

    Conference *m_conference; ///< null once the window was let go
    RTFSubClass &m_links;

    QTreeView *partecipanti = nullptr;
    QPushButton *refreshlistbtn = nullptr;
    QPushButton *kickuserbtn = nullptr;
    QToolButton *showlist = nullptr;
    QToolButton *showavatars = nullptr;
    QGroupBox *AvatarsFrame = nullptr;
    AvatarPicture *m_avatarPicture = nullptr;
    QLabel *AvatarLabel = nullptr;
    QLabel *NoAvatarImg = nullptr;
    RichTextLogEdit *m_outtext = nullptr;
    EmoticonPicker *ListViewEmot = nullptr;
    MessageInput *intext = nullptr;
    QPushButton *sendbtn = nullptr;
    QToolButton *clearbtn = nullptr;
    QToolButton *datetimebtn = nullptr;
    QToolButton *Emoticbtn = nullptr;
    QLabel *m_panel = nullptr;
    QWidget *m_listSide = nullptr;
};

} // namespace nimb
