// The window of all files that go out and come in.
#pragma once

#include "base/link_opener.h"
#include "base/prompts.h"
#include "files/file_transfers.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QGroupBox;
class QPoint;
class QPushButton;
class QTreeView;

namespace nimb
{

/// Modeless, destroyed when it is closed; what is under way goes on then.
class frmTransfers : public QDialog
{
    Q_OBJECT

public:
    /// folders: opens a folder of this machine.
    frmTransfers(FileTransfers &transfers, LinkOpener &folders, Prompts &prompts, QWidget *parent);

private:
    void buildControls();
    QGroupBox *offeredPart();
    QGroupBox *receivedPart();
    void connectControls();

    int chosenOffer() const; ///< -1: none
    const ReceivedFile *chosenFile() const;
    void showWhatCanBeDone();
    void lifeBox_Click(int life);
    void saveReceivedBtn_Click();
    void saveAllReceivedBtn_Click();
    void askWhereToSave(std::function<void(const QString &folder)> chosen);
    void openReceivedBtn_Click();
    void discardReceivedBtn_Click();
    void showMenu(const QTreeView &list, const QPoint &place);

    FileTransfers &m_transfers;
    LinkOpener &m_folders;
    Prompts &m_prompts;
    QTreeView *offerList = nullptr;
    QTreeView *receivedList = nullptr;
    QComboBox *lifeBox = nullptr;
    QPushButton *stopOfferBtn = nullptr;
    QPushButton *saveReceivedBtn = nullptr;
    QPushButton *saveAllReceivedBtn = nullptr;
    QPushButton *pauseReceivedBtn = nullptr;
    QPushButton *resumeReceivedBtn = nullptr;
    QPushButton *openReceivedBtn = nullptr;
    QPushButton *discardReceivedBtn = nullptr;
    QPushButton *closeBtn = nullptr;
};

} // namespace nimb
