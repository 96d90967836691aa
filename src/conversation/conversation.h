// What is written, sent and shown alike in every conversation, be it with one contact or with many.
#pragma once

#include "base/Common.h"
#include "base/history.h"
#include "base/timers.h"
#include "base/unload_mode.h"
#include "conversation/conversation_view.h"
#include "files/file_offers.h"
#include "protocol/winsock.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

namespace nimb
{

class HistoryChoice;
struct FileTransfers;

/// The engine half of a ConversationPane. What only one kind of conversation has is the business of its class.
class Conversation
{
    Q_DECLARE_TR_FUNCTIONS(Conversation)

public:
    /// What every conversation shares.
    struct Services {
        const Common &common;
        Winsock &socket;
        const WallClock &clock;
        HistoryChoice &history;
        FileTransfers &transfers;
    };

    virtual ~Conversation() = default;
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// Empties the log and writes its opening line.
    void Clearbtn_Click();
    /// Sends what was typed; false when there was nothing, or nobody to send it to. Line breaks are CR LF.
    [[nodiscard]] bool send(const QString &typed);
    /// Date and time for the input box.
    QString dateAndTime() const;
    /// Something was added to the log.
    void outtext_Change();
    /// The window has become the active one, or its reader has come to the end of the log: all has been seen.
    void endSeen() { seen(0); }
    /// The same where this many of the others' messages are still out of sight.
    void seen(int unread);
    /// The user has turned to something else: where he stopped reading is kept.
    void turnedAway();
    /// Something was written that nobody has seen.
    bool hasUnread() const { return m_unread.has_value(); }

    /// Offers files and folders to whoever takes part; each has a message of its own. What goes wrong is shown.
    void sendFiles(const QStringList &paths);
    /// What becomes of one that is offered for somebody who does not see the window.
    struct OfferReports {
        std::function<void()> written;                          ///< its message has gone out
        std::function<void(const QString &sentence)> refused;   ///< or, later, cannot be sent any more
        std::function<void(const QString &sentence)> explained; ///< before: what is to be known, and what is left out
    };
    void offerFile(const QString &path, const OfferReports &reports);
    /// Says so where nobody would get a file now; to be asked before the user chooses one.
    [[nodiscard]] bool mayFilesBeSent();
    FileTransfers &transfers() const { return m_services.transfers; }

    HistoryChoice &history() const { return m_services.history; }
    /// What it is kept as.
    virtual KeptConversation keptAs() const = 0;
    /// What was kept of it before is shown above the log, at first the newest. False when nothing of it is left, or
    /// kept at all.
    bool showEarlier();

    /// Its log keeps its lines as long as there is anything else to drop: it is somebody's whom the user knows.
    virtual bool isSpared() const { return true; }
    /// Nobody can be written to any more; the log stays to be read.
    bool isOver() const { return m_over; }
    /// What becomes of the window; the user may be asked.
    [[nodiscard]] virtual CloseDecision Form_QueryUnload(UnloadMode mode) = 0;
    /// The form has been closed for good. What the user closes he has read.
    void closed(UnloadMode mode = UnloadMode::closeBox);

protected:
    struct Writer {
        QString name;
        Colour colour;
        QString address{};
        QString workstation{};
    };

    /// unloaded: called last of all when the user closes the window for good; it may destroy this conversation.
    Conversation(const Services &services, std::function<void()> unloaded);

    const Common &common() const { return m_services.common; }
    Winsock &socket() const { return m_services.socket; }

    /// Of what was kept, in an earlier run, this is unread; it is marked when it is shown.
    void leaveUnread(const UnreadConversation &unread);
    void appendReceived(const Writer &writer, const QString &text);
    void appendLine(const QString &line, Colour colour);
    /// A message of one's own goes out and is shown.
    void sendText(const QString &text);
    void end();

private:
    virtual ConversationView &conversationView() const = 0;
    virtual QString openingLine(const QString &date, const QString &time) const = 0;
    /// What of a typed text goes out.
    virtual QString textToSend(const QString &typed) const = 0;
    /// Sends to whoever else takes part.
    virtual void deliver(const QString &text) = 0;
    /// To whom files go that are sent here.
    virtual FileOffers::Recipients fileRecipients() const = 0;
    /// Why none would get there now, a sentence; empty: nothing is known against it.
    virtual QString whyNoFiles() const { return {}; }
    /// No more than this many messages are unread now.
    virtual void wasRead(int) { }
    /// Of what is sent now.
    virtual MessageFate fate() const { return MessageFate::sent; }
    /// It stands in the log.
    virtual void wasSent(const QString &, const LogMessage &) { }

    FileOffers::Answers offerAnswers();
    void offerReceived(const Writer &writer, const QString &text);
    void appendMessage(const Writer &writer, const QString &text, const LogMessage &message);

    Services m_services;
    std::function<void()> m_unloaded;
    bool m_over = false;
    std::optional<int> m_unread;                 ///< messages, when some of them were read last; 0: none was yet
    int m_unreadKept = 0;                        ///< the same, as it is kept
    std::optional<UnreadConversation> m_keptNew; ///< until it is shown
    int m_lastNumber = 0;                        ///< of a message that was not just sent
    std::optional<std::int64_t> m_earliest;      ///< number of the first kept message that is shown
    bool m_waitsForEarlier = false;
    bool m_hasAllEarlier = false;
    int m_cleared = 0;                      ///< how often
    std::shared_ptr<Conversation *> m_self; ///< for answers that may come when this is gone
};

} // namespace nimb
