// The window of what was kept.
#pragma once

#include "base/history.h"
#include "base/prompts.h"
#include "base/waiting_messages.h"
#include "history/history_export.h"

#include <QDialog>
#include <QHash>
#include <QPointer>

#include <memory>

class QDateEdit;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QPushButton;
class QSaveFile;
class QTimer;

namespace nimb
{

class HistoryDelegate;
class HistoryModel;

/// Modeless, destroyed when it is closed. Conversations left, messages of the chosen one right; what is looked for is
/// looked for in it, or in all. A double click on a hit shows where it stands. What waits to be sent has a row of its
/// own as long as something does.
class frmHistory : public QDialog
{
    Q_OBJECT

public:
    frmHistory(History &history, WaitingMessages &waiting, Prompts &prompts, QWidget *parent);
    ~frmHistory() override;

    /// Chooses the conversation with this contact, if anything of it is kept, and looks for these words.
    void choose(const QString &address, const QString &words);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Export;

    void buildControls();
    QWidget *makeSearchRow();
    QWidget *makeButtonRow();
    void connectControls();

    void list();
    void listed(const std::vector<StoredConversation> &conversations);
    std::optional<std::int64_t> chosenConversation() const;
    /// What waits to be sent is chosen instead of a conversation.
    bool isWaitingChosen() const;
    void addWaiting();
    void showWaiting();
    bool isSearch() const;
    HistoryQuestion question() const;
    /// Asks for the newest messages that the controls say.
    void find();
    void found(const std::vector<StoredMessage> &messages);
    void findOlder();
    void findNewer();
    /// Shows the conversation of a message as it was around it.
    void showPlaceOf(const QModelIndex &hit);
    void showEmptiness();

    void exportBtn_Click();
    void startExport(const QString &path);
    void exportMore();
    void endExport(const QString &sentence);
    void erase(const HistorySelection &selection, const QString &sentence);
    void showEraseMenu();
    void forgetWaiting(std::int64_t number);

    History &m_history;
    WaitingMessages &m_waiting;
    Prompts &m_prompts;
    QListWidget *conversationList = nullptr;
    QLineEdit *searchText = nullptr;
    QDateEdit *fromDate = nullptr;
    QDateEdit *untilDate = nullptr;
    QListView *messagesView = nullptr;
    QLabel *m_nothing = nullptr;
    QLabel *m_progress = nullptr;
    QPushButton *exportBtn = nullptr;
    QPushButton *cancelExportBtn = nullptr;
    QPushButton *eraseBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QTimer *m_typed = nullptr; ///< a search begins when nobody types any more
    HistoryModel *m_model = nullptr;
    HistoryDelegate *m_delegate = nullptr;
    QString m_wantedAddress; ///< to be chosen when the list has come
    bool m_asksOlder = false;
    bool m_wasLeft = false;    ///< another window has been active since this one was
    bool m_hasNewer = false;   ///< behind what is shown
    bool m_staysAtEnd = false; ///< until the user scrolls up
    bool m_isAll = false;      ///< nothing older is left
    int m_question = 0;        ///< counts them; answers to earlier ones are of no use
    QHash<std::int64_t, QString> m_names;
    std::unique_ptr<Export> m_export;
};

} // namespace nimb
