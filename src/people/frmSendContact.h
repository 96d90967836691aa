// The dialog in which the contacts for another contact are chosen.
#pragma once

#include "contacts/contact_transfer.h"

#include <QDialog>

class QLayout;
class QModelIndex;
class QPushButton;
class QTreeView;

namespace nimb
{

/// Modeless, destroyed when it is closed.
class frmSendContact : public QDialog
{
    Q_OBJECT

public:
    /// nickname: of the contact to whom they are sent.
    frmSendContact(std::unique_ptr<ContactTransfer> transfer, const QString &nickname, QWidget *parent);

private:
    void buildControls();
    QPushButton *moveButton(const char *name, const QString &arrow, const QString &hint, std::function<void()> move);
    QLayout *moveButtons();
    void connectControls();
    void sendbtn_Click();

    std::unique_ptr<ContactTransfer> m_transfer;
    QTreeView *ListView1 = nullptr;
    QTreeView *ListView2 = nullptr;
    QPushButton *sendbtn = nullptr;
    QPushButton *cancelbtn = nullptr;
};

} // namespace nimb
