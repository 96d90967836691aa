// The dialog that invites somebody by a pop-up text on his computer.
#pragma once

#include "people/invite.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace nimb
{

/// Made with new and shown by its opener; dies when it is closed. It has a target, and so an engine half, of its own.
class frmInvite : public QDialog
{
    Q_OBJECT

public:
    /// selectedAddress: of the contact to invite, empty for none.
    frmInvite(Invite invite, const QString &selectedAddress, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    QWidget *buildFrame();
    void connectControls();
    void Form_Load(const QString &selectedAddress);
    void sendbtn_Click();

    Invite m_invite;
    QLabel *Label1 = nullptr;
    QLabel *stdtext = nullptr;
    QRadioButton *Option1 = nullptr; ///< the standard text
    QRadioButton *Option2 = nullptr; ///< the custom text
    QLineEdit *Text1 = nullptr;
    QPushButton *sendbtn = nullptr;
    QPushButton *Command1 = nullptr;
};

} // namespace nimb
