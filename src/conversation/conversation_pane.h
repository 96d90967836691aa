// The part of a window in which a conversation is read and written: log, emoticons, tools, input box.
#pragma once

#include "conversation/conversation_view.h"
#include "log/rich_text_log.h"

#include <QWidget>

#include <functional>
#include <initializer_list>
#include <optional>

class QCloseEvent;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace nimb
{

class ClearedBand;
class Conversation;
class EmojiPicker;
class EmojiStock;
class EmoticonPicker;
class FileDrops;
class FilePanel;
class FormerSize;
class LinkOpener;
class LogRoom;
class MessageInput;
class RTFSubClass;
class ScratchFolder;
class SmallPictures;
class Spelling;
class ToolRow;

/// What all conversations share; outlives each of their windows.
struct ConversationTools {
    RTFSubClass &links; ///< opens what is pressed in a log
    EmojiStock &emoji;  ///< those to choose from
    Spelling &spelling; ///< checks what is typed
    LogRoom &logRoom;   ///< what the logs may hold
    /// Opens what was kept of the conversation with a contact; of none: of all. With words they are looked for.
    std::function<void(const QString &address, const QString &words)> openHistory;
    std::function<void()> openTransfers; ///< the window of all files
    LinkOpener &folders;                 ///< opens a folder of this machine
    ScratchFolder &scratch;              ///< for pictures that are shown or sent and not kept
    SmallPictures &pictures;             ///< reads those of others
};

/// What a window has beside it, it makes itself and puts between the parts of the pane or around it.
class ConversationPane : public QWidget, public ConversationView
{
    Q_OBJECT

public:
    /// The tools behind which a window may have its own.
    enum class Tool { emoticons, dateAndTime };

    ConversationPane(Conversation &conversation, const ConversationTools &tools, QWidget *parent);

    RichTextLogEdit &log() const { return *m_outtext; }
    MessageInput &input() const { return *intext; }
    QPushButton &sendButton() const { return *sendbtn; }

    void putBesideLog(QWidget *panel);
    /// A panel beside the log needs its height: questions wait until it is gone.
    void setNeedsRoom(bool needsRoom);
    void insertTools(Tool behind, std::initializer_list<QWidget *> tools);
    /// The Tab key goes from the log to these controls before it goes on to the tools.
    void setTabStopsBehindLog(std::initializer_list<QWidget *> controls);

    /// For the window's close event: closes it for good, hides it, or leaves it as it is.
    void Form_QueryUnload(QCloseEvent &event);
    /// Lets the window go, as LetGo has it.
    void letGo();

    RichTextLog &outtext() override;
    void setCaption(const QString &caption) override;
    void setLogFont(const LogFont &font) override;
    void addEarlier(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo) override
    {
        m_outtext->addEarlier(messages, readTo);
    }
    void addReceivedFile(int number) override;
    void showFileTrouble(const QString &sentence) override;
    void withdrawFileTrouble(const QString &sentence) override;
    void setLastMessage(const QString &text) override { Q_EMIT lastMessageChanged(text); }
    QString typedText() const override;
    void setDraft(const QString &text) override;
    void setInputEnabled(bool enabled) override;
    void focusInput() override;
    Colour windowTextColour() const override;
    bool isMinimisedOrInactive() const override;
    bool isEndSeen() const override;
    void flash() override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

Q_SIGNALS:
    /// When the last message came, for the window's status bar.
    void lastMessageChanged(const QString &text);
    void emoticonsToggled();
    /// Not any more once the conversation is over.
    void inputEnabled(bool enabled);

private:
    void buildControls();
    QWidget *makeToolRow();
    QWidget *makeCutBand();
    QWidget *makeHistoryBand();
    QHBoxLayout *makeInput();
    void connectControls();
    void connectFiles();

    void sendbtn_Click();
    void Clearbtn_Click();
    void datetimebtn_Click();
    void Emoticbtn_Click(bool shown);
    void ListViewEmot_ItemClick(const QString &emoticon);
    void showEmoji(bool shown);
    void keepLogBesideEmoji();
    bool hasAllRowsOfEmoji();
    void makeEmojiPicker();
    void findEmoji();
    void insertEmoji(const QString &emoji);
    void outtext_Change();
    void comeIntoSight();
    void noteWhatIsSeen();
    void showRoomLeft();
    void showHistoryBand();
    void openHistory(const QString &words) const;
    void historyBand_Click(const QString &answer);
    void offerRest(const QString &rest);
    void sendFiles(const QStringList &paths);
    void askForSentFiles();
    void askForFolderToSend();
    void offerPicture(const QImage &picture);
    void showFileBand();
    void fileBand_Click(const QString &answer);
    void Form_Unload();

    Conversation *m_conversation; ///< null once the window was let go
    bool m_needsRoom = false;
    QString m_lastSent;
    QString m_rest; ///< of what was pasted
    RTFSubClass &m_links;
    std::function<void(const QString &address, const QString &words)> m_openHistory;
    std::function<void()> m_openTransfers;
    EmojiStock &m_emoji;
    LinkOpener &m_folders;
    ScratchFolder &m_scratch;
    SmallPictures &m_pictures;
    QString m_pastedPicture;         ///< path of what may be sent
    QString m_pastedQuestion;        ///< about it, while it is asked
    QStringList m_fileTroubles;      ///< those that the band shows
    qsizetype m_earlierTroubles = 0; ///< which it shows no more
    int m_pastedPictures = 0;

    RichTextLogEdit *m_outtext = nullptr;
    EmoticonPicker *ListViewEmot = nullptr;
    EmojiPicker *m_emojiPicker = nullptr; ///< once somebody has opened it
    MessageInput *intext = nullptr;
    QPushButton *sendbtn = nullptr;
    QLabel *messageCounter = nullptr;
    QLabel *cutBand = nullptr;
    QLabel *historyBand = nullptr;
    QLabel *fileBand = nullptr;
    FilePanel *m_files = nullptr; ///< once the other side has offered one
    FileDrops *m_drops = nullptr;
    QToolButton *sendFileBtn = nullptr;
    ClearedBand *m_cleared = nullptr;
    QToolButton *clearbtn = nullptr;
    QToolButton *datetimebtn = nullptr;
    QToolButton *Emoticbtn = nullptr;
    QVBoxLayout *m_column = nullptr;
    QHBoxLayout *m_logRow = nullptr;
    ToolRow *m_toolRow = nullptr;
    FormerSize *m_formerSize = nullptr;
};

} // namespace nimb
