// The login dialog.
#pragma once

#include "welcome/login.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace nimb
{

/// Ends accepted when a nickname was chosen, rejected when it was closed without one.
class frmLogin : public QDialog
{
    Q_OBJECT

public:
    frmLogin(Login &login, Prompts &prompts);

private:
    void buildControls();
    void connectControls();
    void Form_Load();
    void CmdOK_Click();

    Login &m_login;
    Prompts &m_prompts;
    QLineEdit *txtUserName = nullptr;
    QPushButton *CmdOK = nullptr;
};

} // namespace nimb
