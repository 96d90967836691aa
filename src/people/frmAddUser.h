// The dialog that adds a contact by hand.
#pragma once

#include "people/add_user.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace nimb
{

/// Made with new and shown by its opener; dies when it is closed. The rules must outlive it.
class frmAddUser : public QDialog
{
    Q_OBJECT

public:
    frmAddUser(const AddUser &rules, QWidget *parent);

private:
    void buildControls();
    void connectControls();
    void CmdOK_Click();

    AddUser m_rules;
    QLineEdit *nicktxt = nullptr;
    QLineEdit *hostname = nullptr;
    QLineEdit *ipaddress = nullptr;
    QPushButton *Resolvebtn = nullptr; ///< without a function: nothing is looked up here
    QPushButton *CmdOK = nullptr;
    QPushButton *Command1 = nullptr;
};

} // namespace nimb
