// The dialog that adds a contact by hand.
#pragma once

#include "people/add_user.h"

#include <QDialog>

class QAction;
class QLabel;
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
    void ipaddress_Change();

    AddUser m_rules;
    QLineEdit *nicktxt = nullptr;
    QLineEdit *hostname = nullptr;
    QLineEdit *ipaddress = nullptr;
    QAction *m_wrongAddress = nullptr; ///< the mark in its box
    QLabel *addressRemark = nullptr;   ///< what is wrong with it
    QPushButton *Resolvebtn = nullptr; ///< without a function: nothing is looked up here
    QPushButton *CmdOK = nullptr;
    QPushButton *Command1 = nullptr;
};

} // namespace nimb
