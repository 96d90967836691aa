#include "private_chat/private_chat.h"

#include "base/buzz.h"
#include "base/isolated.h"
#include "base/limits.h"
#include "base/own_address.h"
#include "base/remote_text.h"
#include "conversation/message_text.h"
#include "files/file_link.h"
#include "private_chat/auto_reply.h"
#include "private_chat/live_type.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

#include <algorithm>
#include <iterator>

namespace nimb
{
namespace
{
constexpr std::chrono::milliseconds peerActivityShown{2500};
constexpr std::chrono::milliseconds pollingInterval{1100};
/// Every announcement makes a peer unknown until it has answered.
constexpr std::chrono::milliseconds unknownWithoutDoubt = limits::announcementTime + std::chrono::milliseconds(500);
} // namespace

PrivateChat::PrivateChat(const Services &services, std::function<void()> unloaded, std::function<void()> sought,
                         std::function<void(int unread)> read)
    : Conversation(services.conversation, std::move(unloaded)), m_services(services),
      m_autoReplyTimer(services.timers.oneShot(limits::autoReplyPause, [] {})),
      m_timer(services.timers.oneShot(peerActivityShown, [this] { endPeerActivity(); })),
      m_timerLiveType(services.timers.oneShot(liveTypeInterval, [this] { TimerLiveType_Timer(); })),
      m_liveTypeAge(services.timers.oneShot(liveTypeAge, [this] { m_view->setLiveType({}); })),
      m_doubt(services.timers.oneShot(unknownWithoutDoubt, [this] { doubtDelivery(); })),
      m_webCamTimer(services.timers.repeating(pollingInterval, [this] { askForAvatarUnlessInvisible(); })),
      m_sought(std::move(sought)), m_read(std::move(read)), m_view(services.forms.makePrivateForm(*this))
{
    conversationView().setLogFont(common().logFont);
    m_view->setLiveTypeOn(common().options.liveType);
}

void PrivateChat::setPeer(const ContactAddress &ip)
{
    m_rIP = ip;
    m_view->setPeerAddress(ip.text());
}

void PrivateChat::preparewindow(const std::optional<UnreadConversation> &unread)
{
    Clearbtn_Click();
    if (unread)
        leaveUnread(*unread);
    // Chosen in an earlier window, or before the program was started anew.
    m_sendsLater = m_peer.delivery != Delivery::arrives && !waitingMessages().empty();
    showWhetherMessagesCanWait();
    showEarlier();
}

void PrivateChat::show(ShowMode mode)
{
    if (m_view->isHidden())
        conversationView().setLogFont(common().logFont);
    m_view->showWindow(mode);
}

void PrivateChat::showPeer(PeerShown peer)
{
    peer.delivery = deliveryTo(peer);
    if (peer.delivery == Delivery::arrives)
        m_lost.clear();
    if (peer.delivery == Delivery::arrives || peer.delivery == Delivery::toNoContact)
        m_sendsLater = false;
    peer.canWait = !m_lost.empty();
    peer.sendsLater = m_sendsLater;
    if (m_peer == peer)
        return;
    const QString noFilesSoFar = whyNoFiles();
    m_peer = std::move(peer);
    if (!noFilesSoFar.isEmpty() && whyNoFiles() != noFilesSoFar)
        conversationView().withdrawFileTrouble(noFilesSoFar);
    m_view->setPeer(m_peer);
    if (m_peer.delivery == Delivery::lost || m_peer.delivery == Delivery::toNoContact)
        takeLiveTypeAway();
}

/// Whoever has gone sends no empty text any more.
void PrivateChat::takeLiveTypeAway()
{
    if (!m_liveTypeAge->isActive())
        return; // none is shown
    m_liveTypeAge->stop();
    m_view->setLiveType({});
}

Delivery PrivateChat::deliveryTo(const PeerShown &peer)
{
    const bool isUnknown = m_isContact && peer.presence == Presence::unknown;
    if (!isUnknown)
        m_doubt->stop();
    if (!m_isContact)
        return Delivery::toNoContact;
    if (!isUnknown)
        return isPresent(peer.presence) ? Delivery::arrives : Delivery::lost;
    if (m_peer.delivery != Delivery::arrives)
        return Delivery::doubtful;
    if (!m_doubt->isActive())
        m_doubt->start();
    return Delivery::arrives;
}

void PrivateChat::doubtDelivery()
{
    m_peer.delivery = Delivery::doubtful;
    m_view->setPeer(m_peer);
}

void PrivateChat::attend()
{
    m_attended = true;
    m_sought();
}

void PrivateChat::avatarWanted()
{
    attend();
    m_avatarWanted = true;
    sendDatagram(socket(), m_rIP.ipv4(), wire::AvatarHeadQuestion{});
}

void PrivateChat::askForAvatarUnlessInvisible()
{
    if (!common().isInvisible())
        sendDatagram(socket(), m_rIP.ipv4(), wire::AvatarHeadQuestion{});
}

QString PrivateChat::openingLine(const QString &date, const QString &time) const
{
    return tr("« NIMB-Chat [today:%1 - now:%2] Ready »").arg(date, time);
}

QString PrivateChat::textToSend(const QString &typed) const
{
    return trimmedMessage(typed);
}

void PrivateChat::deliver(const QString &text)
{
    sendDatagram(socket(), m_rIP.ipv4(), wire::PrivateMessage{toWire(text)});
}

MessageFate PrivateChat::fate() const
{
    return m_peer.delivery == Delivery::arrives ? MessageFate::sent : MessageFate::lost;
}

void PrivateChat::wasSent(const QString &text, const LogMessage &message)
{
    // What leads to a file leads nowhere when the offer has ended.
    if (message.fate != MessageFate::lost || !m_isContact || fileLinkIn(text))
        return;
    m_lost.push_back({text, message.time, message.number});
    if (m_sendsLater)
        putIntoOutbox();
    showWhetherMessagesCanWait();
}

void PrivateChat::showWhetherMessagesCanWait()
{
    PeerShown now = m_peer;
    now.canWait = !m_lost.empty();
    now.sendsLater = m_sendsLater;
    if (now == m_peer)
        return;
    m_peer = std::move(now);
    m_view->setPeer(m_peer);
}

void PrivateChat::sendLaterBtn_Click()
{
    if (m_sendsLater)
        takeOutOfOutbox();
    else
        putIntoOutbox();
    showWhetherMessagesCanWait();
    conversationView().focusInput();
}

void PrivateChat::putIntoOutbox()
{
    std::vector<Lost> lost = std::exchange(m_lost, {});
    auto next = lost.begin();
    for (; next != lost.end(); ++next) {
        const std::optional<std::int64_t> number = m_services.outbox.put(m_rIP, next->text, next->written);
        if (!number)
            break;
        m_waiting.emplace(*number, next->number);
        conversationView().outtext().setFate(next->number, MessageFate::waits);
    }
    m_lost.assign(next, lost.end());
    m_sendsLater = m_lost.empty();
}

/// As if it had not been chosen: what waits is among what did not arrive, and can wait again.
void PrivateChat::takeOutOfOutbox()
{
    m_sendsLater = false;
    std::vector<Lost> taken;
    for (const WaitingMessage &message : waitingMessages()) {
        const auto line = m_waiting.find(message.number);
        taken.push_back({message.text, message.written, line == m_waiting.end() ? 0 : line->second});
        m_services.outbox.forget(message.number); // says that it will not be sent
    }
    m_lost.insert(m_lost.begin(), taken.begin(), taken.end());
}

std::vector<WaitingMessage> PrivateChat::waitingMessages() const
{
    std::vector<WaitingMessage> waiting;
    std::ranges::copy_if(m_services.outbox.messages(), std::back_inserter(waiting),
                         [this](const WaitingMessage &message) { return message.ip == m_rIP && !message.isGivenUp; });
    return waiting;
}

int PrivateChat::takeWaiting(std::int64_t waiting)
{
    const auto taken = m_waiting.extract(waiting);
    return taken.empty() ? 0 : taken.mapped();
}

void PrivateChat::sendWaiting(const WaitingMessage &message)
{
    conversationView().outtext().setFate(takeWaiting(message.number), MessageFate::sent);
    sendText(message.text + writtenAt(message.written));
}

void PrivateChat::willNotBeSent(std::int64_t waiting)
{
    conversationView().outtext().setFate(takeWaiting(waiting), MessageFate::lost);
}

FileOffers::Recipients PrivateChat::fileRecipients() const
{
    const std::optional<Ipv4Address> ip = m_rIP.ipv4();
    if (!ip)
        return {};
    return {.to = {*ip}, .at = ownAddressTowards(common(), socket(), ip), .whom = m_peer.name};
}

/// The link would be lost, or be read when the offer has ended.
QString PrivateChat::whyNoFiles() const
{
    return m_peer.delivery == Delivery::lost
        ? tr("%1 is offline: files can be sent when %1 is back.").arg(isolated(paintedName(m_peer.name)))
        : QString();
}

KeptConversation PrivateChat::keptAs() const
{
    return {.kind = KeptConversation::Kind::contact, .address = m_rIP.text(), .name = m_peer.name};
}

Conversation::Writer PrivateChat::peer(const QString &nik) const
{
    return {nik, colours::receivedMessage, m_rIP.text(), m_peer.workstation};
}

void PrivateChat::waitingMessage(const QString &nik, const QString &msg)
{
    appendReceived(peer(nik), trimmedMessage(msg));
}

void PrivateChat::MessageReceived(const QString &nik, QString &msg)
{
    const bool mayBeAnswered = !isAutoReply(msg);
    msg = trimmedMessage(msg);
    appendReceived(peer(nik), msg);
    m_view->setLiveType({});
    if (m_isTyping) // no more: this is what was typed
        endPeerActivity();
    if (!mayBeAnswered)
        return;
    const AutoReply &reply = common().autoReply;
    replyAutomatically(BaseState::busy, reply.onBusy, reply.busyText);
    replyAutomatically(BaseState::away, reply.onAway, reply.awayText);
}

void PrivateChat::replyAutomatically(BaseState state, bool on, const QString &text)
{
    if (common().ownPresence.base != state || !on || m_autoReplyTimer->isActive())
        return;
    deliver(autoReplyMessage(text));
    m_autoReplyTimer->start();
}

void PrivateChat::showPeerActivity(const QString &text)
{
    m_isTyping = false;
    m_view->setPeerActivity(text);
    m_timer->start();
}

void PrivateChat::endPeerActivity()
{
    m_isTyping = false;
    m_timer->stop();
    m_view->setPeerActivity({});
}

void PrivateChat::typing(const QString &text)
{
    showPeerActivity(text);
    m_isTyping = true;
}

void PrivateChat::buzzed(const QString &text)
{
    appendBuzz();
    showPeerActivity(text);
}

void PrivateChat::BuzzBtn_Click()
{
    attend();
    sendBuzz(common(), socket(), m_services.sound, m_rIP.ipv4());
    appendBuzz();
    conversationView().focusInput();
}

void PrivateChat::appendBuzz()
{
    appendLine(QStringLiteral("BUZZ!"), colours::presence);
}

void PrivateChat::intext_Change(const QString &typed)
{
    attend();
    if (!m_typingNotice.textChanged(typed.size()))
        return;
    sendDatagram(socket(), m_rIP.ipv4(), wire::Typing{});
    if (!m_view->isLiveTypeOn())
        return;
    m_liveTypePending = true;
    if (!m_timerLiveType->isActive())
        m_timerLiveType->start();
}

void PrivateChat::livetypebtn_Click()
{
    // The timer rests while nothing may be sent.
    if (m_liveTypePending && m_view->isLiveTypeOn() && !m_timerLiveType->isActive())
        m_timerLiveType->start();
    conversationView().focusInput();
}

void PrivateChat::TimerLiveType_Timer()
{
    if (!m_liveTypePending || !m_view->isLiveTypeOn())
        return;
    sendDatagram(socket(), m_rIP.ipv4(), wire::LiveType{toWire(liveTypeToSend(conversationView().typedText()))});
    m_liveTypePending = false;
}

void PrivateChat::liveTypeReceived(const QString &text)
{
    const QString shown = liveTypeToShow(text);
    m_view->setLiveType(shown);
    if (shown.isEmpty())
        m_liveTypeAge->stop();
    else
        m_liveTypeAge->start();
}

void PrivateChat::AvatarCh_Change(const Avatar &avatar)
{
    if (!isPolledPicture(avatar.head))
        m_webCamTimer->stop();
    else if (!m_webCamTimer->isActive())
        m_webCamTimer->start();
    const bool shown = !avatar.head.empty() && avatar.body.size() == avatarBytes;
    m_view->setAvatar(remoteLine(fromWire(avatar.head)), shown ? std::optional(avatar.body) : std::nullopt);
}

void PrivateChat::setContact(bool isContact)
{
    m_isContact = isContact;
    if (isContact)
        return;
    AvatarCh_Change({});
    showPeer(m_peer);
}

void PrivateChat::mymoodpct_MouseDown(float value)
{
    const std::optional<MoodMark> mood = Mood::own(value);
    if (!mood)
        return;
    m_view->setOwnMood(*mood);
    sendDatagram(socket(), m_rIP.ipv4(), wire::Mood{Mood::toSend(value).toStdString()});
}

void PrivateChat::setmood(std::int16_t mood)
{
    if (const std::optional<MoodMark> mark = Mood::peers(mood))
        m_view->setPeersMood(*mark);
}

void PrivateChat::appendPresence(const QString &line)
{
    appendLine(line, colours::presence);
}

CloseDecision PrivateChat::Form_QueryUnload(UnloadMode mode)
{
    m_attended = true;
    const bool hides = mode == UnloadMode::closeBox && m_isContact && !common().options.closedWindowsGo;
    return hides ? CloseDecision::hide : CloseDecision::unload;
}

} // namespace nimb
