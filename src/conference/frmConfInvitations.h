// The window of the invitations to conferences.
#pragma once

#include "conference/invitations.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace nimb
{

/// Never destroyed by its close box, so that the invitations and their ages live on.
class frmConfInvitations : public QWidget, public InvitationsView
{
    Q_OBJECT

public:
    explicit frmConfInvitations(Invitations &invitations);

    void showWithoutFocus() override;
    void showWindow() override;
    void hideWindow() override { hide(); }
    bool isActive() const override { return isActiveWindow() && !isMinimized(); }
    void setAutoRefusal(bool on, int minutes) override;

Q_SIGNALS:
    /// One of the user's own, in place of an invitation.
    void conferenceWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildControls();
    void connectControls();
    void selectTheOnlyOne();
    int selectedRow() const; ///< -1 when none is selected
    void ListView1_ItemClick();
    void offerWhatConcernsSeveral();
    void autorefusemins_Change();

    Invitations &m_invitations;
    QTreeView *ListView1 = nullptr;
    QPushButton *ConfAgreebtn = nullptr;
    QPushButton *ConfDenybtn = nullptr;
    QPushButton *ConfDenyAllbtn = nullptr;
    QPushButton *clearbtn = nullptr;
    QCheckBox *autorefuse = nullptr;
    QLineEdit *autorefusemins = nullptr;
};

} // namespace nimb
