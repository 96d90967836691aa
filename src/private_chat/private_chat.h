// A conversation with one peer: what is written, sent and answered.
#pragma once

#include "base/avatar.h"
#include "base/contact_address.h"
#include "base/sound.h"
#include "conversation/conversation.h"
#include "private_chat/outbox.h"
#include "private_chat/private_chat_view.h"
#include "private_chat/typing_notice.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace nimb
{

/// The engine half of frmPrivate. Its form lives as long as it does.
class PrivateChat : public Conversation
{
    Q_DECLARE_TR_FUNCTIONS(PrivateChat)

public:
    /// What every private window shares.
    struct Services {
        Conversation::Services conversation;
        Sound &sound;
        Timers &timers;
        PrivateForms &forms;
        Outbox &outbox;
    };

    /// unloaded: called last of all when the user closes the window for good; it may destroy this chat. sought: called
    /// when the user turns to the peer; read: when he has seen all that was written, but for as many messages.
    PrivateChat(const Services &services, std::function<void()> unloaded, std::function<void()> sought,
                std::function<void(int unread)> read);

    /// Tells the window its peer.
    void setPeer(const ContactAddress &ip);
    /// What is known of the peer, now and whenever it changes; what becomes of what is written to it follows from that.
    void showPeer(PeerShown peer);
    const ContactAddress &rIP() const { return m_rIP; }
    /// The peer is, or is not, somebody whom the user knows.
    void setAcquainted(bool acquainted) { m_acquainted = acquainted; }
    bool isSpared() const override { return m_acquainted; }
    PrivateChatView &view() { return *m_view; }

    /// Sets fonts, empties the log, writes its opening line, and shows what was kept above it, of which something may
    /// be unread from an earlier run.
    void preparewindow(const std::optional<UnreadConversation> &unread = {});
    /// Brings the window into view; one that was closed opens in the font that is chosen now.
    void show(ShowMode mode);
    /// Appends a message that came when there was no window for it yet.
    void waitingMessage(const QString &nik, const QString &msg);
    /// Appends a received message and answers it automatically where that is switched on, unless it is an automatic
    /// reply itself. msg is trimmed in place.
    void MessageReceived(const QString &nik, QString &msg);
    /// Shows for a moment what the peer is doing.
    void showPeerActivity(const QString &text);
    /// The same while a message is typed, which is over when one arrives.
    void typing(const QString &text);
    /// The same for a buzz, which the log keeps.
    void buzzed(const QString &text);
    /// Shows what the peer is typing; empty: nothing.
    void liveTypeReceived(const QString &text);
    /// The peer's avatar changed: its head and its picture.
    void AvatarCh_Change(const Avatar &avatar);
    /// Shows the peer's mood; one outside the scale is ignored.
    void setmood(std::int16_t mood);
    /// The peer is, or is no longer, a contact. A window whose peer is none cannot be found again once it is hidden,
    /// and nothing of the peer is shown or asked for any more.
    void setContact(bool isContact);
    /// Appends a line about the peer's presence.
    void appendPresence(const QString &line);

    /// The input box changed to this text.
    void intext_Change(const QString &typed);
    void livetypebtn_Click();
    void BuzzBtn_Click();
    /// The user opens the window or its avatar panel: the peer is asked for its avatar.
    void avatarWanted();
    /// The same where nobody at this keyboard wants it, as when a message opens the window: whoever is invisible does
    /// not ask.
    void askForAvatarUnlessInvisible();
    /// Whether the head that has come is the one that avatarWanted() asked for; true once for each such question.
    [[nodiscard]] bool takeAvatarWanted() { return std::exchange(m_avatarWanted, false); }
    /// What was written while the peer was not there is to be sent when he is back, and so is what is written in the
    /// rest of this absence; or, after that, none of it.
    void sendLaterBtn_Click();
    /// He is, and this is sent now, with the time at which it was written.
    void sendWaiting(const WaitingMessage &message);
    /// This will not be sent.
    void willNotBeSent(std::int64_t waiting);
    /// The own gauge was clicked at this height, in units of the scale.
    void mymoodpct_MouseDown(float value);

    /// The user has turned to this window: opened it, had it active before him, typed or clicked in it, or closed it.
    bool isAttended() const { return m_attended || !conversationView().isMinimisedOrInactive(); }
    void attend();
    /// The window has become the active one. That alone, which a desktop may do by itself, makes nobody known.
    void Form_Activate() { m_attended = true; }
    /// A peer opens it anew.
    void leaveUnattended() { m_attended = false; }

    KeptConversation keptAs() const override;
    CloseDecision Form_QueryUnload(UnloadMode mode) override;

private:
    ConversationView &conversationView() const override { return m_view->conversation(); }
    QString openingLine(const QString &date, const QString &time) const override;
    QString textToSend(const QString &typed) const override;
    void deliver(const QString &text) override;
    FileOffers::Recipients fileRecipients() const override;
    QString whyNoFiles() const override;
    Writer peer(const QString &nik) const;
    void wasRead(int unread) override { m_read(unread); }
    MessageFate fate() const override;
    void wasSent(const QString &text, const LogMessage &message) override;
    void showWhetherMessagesCanWait();
    /// Until the outbox has no more room.
    void putIntoOutbox();
    void takeOutOfOutbox();
    /// What waits for this peer, also what was written in an earlier window.
    std::vector<WaitingMessage> waitingMessages() const;
    /// The number in the log of what waits no more; 0 where it has none there.
    int takeWaiting(std::int64_t waiting);
    Delivery deliveryTo(const PeerShown &peer);
    void doubtDelivery();

    void TimerLiveType_Timer();
    void takeLiveTypeAway();
    void appendBuzz();
    void endPeerActivity();
    void replyAutomatically(BaseState state, bool on, const QString &text);

    /// A message that was written while the peer was not there.
    struct Lost {
        QString text;
        QDateTime written;
        int number; ///< in the log
    };

    Services m_services;
    std::vector<Lost> m_lost;              ///< in this absence, and that wait for nothing
    std::map<std::int64_t, int> m_waiting; ///< numbers in the log, by those in the outbox
    bool m_sendsLater = false;             ///< the user has chosen so in this absence
    ContactAddress m_rIP;
    PeerShown m_peer;
    std::unique_ptr<Timer> m_autoReplyTimer;
    std::unique_ptr<Timer> m_timer; ///< clears the panel of the peer's activity
    std::unique_ptr<Timer> m_timerLiveType;
    std::unique_ptr<Timer> m_liveTypeAge; ///< clears what the peer has begun and left
    std::unique_ptr<Timer> m_doubt;
    std::unique_ptr<Timer> m_webCamTimer;
    std::function<void()> m_sought;
    std::function<void(int unread)> m_read;
    TypingNotice m_typingNotice;
    bool m_liveTypePending = false;
    bool m_isTyping = false; ///< the peer, as far as is shown
    bool m_isContact = true;
    bool m_acquainted = false;
    bool m_attended = false;
    bool m_avatarWanted = false; ///< by the user, and no head has come yet
    ViewPtr<PrivateChatView> m_view;
};

} // namespace nimb
