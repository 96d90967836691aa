// The conference window.
#pragma once

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
class ConversationPane;
struct ConversationTools;

class frmConference : public QWidget, public ConferenceView
{
    Q_OBJECT

public:
    frmConference(Conference &conference, const ConversationTools &tools);

    ConversationView &conversation() override;
    void showAvatar(const QString &name, const std::optional<QByteArray> &picture) override;
    void showWindow() override;
    void letGo() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildControls();
    void buildParticipants();
    void buildAvatars();
    QWidget *makeInviteHint();
    QWidget *makeStatusBar();
    void connectControls();

    void Form_Resize();
    void kickuserbtn_Click();
    void refreshlistbtn_Click();
    void showInviteHint();
    void openInviteMenu();
    void showlist_Click();
    void showavatars_Click();
    void partecipanti_ItemClick();
    QString selectedParticipant() const;

    Conference *m_conference; ///< null once the window was let go

    ConversationPane *m_pane;
    QTreeView *partecipanti = nullptr;
    QPushButton *refreshlistbtn = nullptr;
    QPushButton *kickuserbtn = nullptr;
    QToolButton *showlist = nullptr;
    QToolButton *showavatars = nullptr;
    QGroupBox *AvatarsFrame = nullptr;
    AvatarPicture *m_avatarPicture = nullptr;
    QLabel *AvatarLabel = nullptr;
    QLabel *NoAvatarImg = nullptr;
    QLabel *m_inviteHint = nullptr; ///< only where the conference is hosted here
    QLabel *m_panel = nullptr;
    QWidget *m_listSide = nullptr;
};

} // namespace nimb
