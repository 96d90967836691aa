#include "private_chat/private_chat.h"

#include "base/buzz.h"
#include "base/clock_text.h"
#include "base/limits.h"
#include "base/remote_text.h"
#include "conversation/message_text.h"
#include "log/emoticons.h"
#include "private_chat/auto_reply.h"
#include "private_chat/live_type.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{
namespace
{
constexpr std::chrono::milliseconds peerActivityShown{2500};
constexpr std::chrono::milliseconds pollingInterval{1100};
} // namespace

PrivateChat::PrivateChat(const Services &services, std::function<void()> unloaded)
    : m_services(services), m_unloaded(std::move(unloaded)),
      m_autoReplyTimer(services.timers.oneShot(limits::autoReplyPause, [] {})),
      m_timer(services.timers.oneShot(peerActivityShown, [this] { m_view->setPanel(2, {}); })),
      m_timerLiveType(services.timers.oneShot(liveTypeInterval, [this] { TimerLiveType_Timer(); })),
      m_webCamTimer(services.timers.repeating(pollingInterval, [this] { avatarWanted(); })),
      m_view(services.forms.makePrivateForm(*this))
{
    m_view->setLogFont(services.common.logFont);
    m_view->setLiveTypeOn(services.common.options.liveType);
}

void PrivateChat::setPeer(const QString &ip)
{
    m_rIP = ip;
    m_view->setPeerAddress(ip);
    avatarWanted();
}

void PrivateChat::avatarWanted()
{
    sendDatagram(m_services.socket, m_rIP, wire::AvatarHeadQuestion{});
}

void PrivateChat::preparewindow()
{
    const LogFont &font = m_services.common.logFont;
    m_view->setLogFont(font);
    RichTextLog &log = m_view->outtext();
    log.clear();
    log.setSelStart(0);
    log.setSelColor(colours::banner);
    log.setSelFont(font);
    const QDateTime now = m_services.clock.now();
    log.setSelText(tr("« NIMB-Chat [today:%1 - now:%2] Ready »").arg(shortDate(now), longTime(now))
                   + QLatin1String("\r\n"));
    log.setSelStart(log.textLength());
}

void PrivateChat::appendMessage(const QString &nick, const QString &body, Colour colour)
{
    RichTextLog &log = m_view->outtext();
    appendText(log, nick + QLatin1String("> "), colour);
    AddTextWithEmoticons(log, body, colour);
    appendText(log, QStringLiteral("\r\n"), colour);
    log.setSelStart(log.textLength());
}

void PrivateChat::MessageReceived(const QString &nik, QString &msg)
{
    const bool mayBeAnswered = !isAutoReply(msg);
    msg = TrimLeadingBreaks(TrimTrailingBreaks(msg));
    appendMessage(nik, msg, colours::receivedMessage);
    const QDateTime now = m_services.clock.now();
    m_view->setPanel(1, tr("Last message: %1 @ %2").arg(shortDate(now), longTime(now)));
    m_view->setLiveType({});
    if (!mayBeAnswered)
        return;
    const AutoReply &reply = m_services.common.autoReply;
    replyAutomatically(BaseState::busy, reply.onBusy, reply.busyText);
    replyAutomatically(BaseState::away, reply.onAway, reply.awayText);
}

void PrivateChat::replyAutomatically(BaseState state, bool on, const QString &text)
{
    if (m_services.common.ownPresence.base != state || !on || m_autoReplyTimer->isActive())
        return;
    sendDatagram(m_services.socket, m_rIP, wire::PrivateMessage{toWire(autoReplyMessage(text))});
    m_autoReplyTimer->start();
}

void PrivateChat::showPeerActivity(const QString &text)
{
    m_view->setPanel(2, text);
    m_timer->start();
}

void PrivateChat::buzzed(const QString &text)
{
    appendBuzz();
    showPeerActivity(text);
}

void PrivateChat::BuzzBtn_Click()
{
    sendBuzz(m_services.common, m_services.socket, m_services.sound, m_rIP);
    appendBuzz();
    m_view->focusInput();
}

void PrivateChat::appendBuzz()
{
    appendText(m_view->outtext(), QStringLiteral("BUZZ!\r\n"), colours::presence);
}

void PrivateChat::intext_Change(const QString &typed)
{
    if (!m_typingNotice.textChanged(typed.size()))
        return;
    sendDatagram(m_services.socket, m_rIP, wire::Typing{});
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
    m_view->focusInput();
}

void PrivateChat::TimerLiveType_Timer()
{
    if (!m_liveTypePending || !m_view->isLiveTypeOn())
        return;
    sendDatagram(m_services.socket, m_rIP, wire::LiveType{toWire(liveTypeToSend(m_view->typedText()))});
    m_liveTypePending = false;
}

void PrivateChat::liveTypeReceived(const QString &text)
{
    m_view->setLiveType(liveTypeToShow(text));
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
    if (!isContact)
        AvatarCh_Change({});
}

void PrivateChat::mymoodpct_MouseDown(float value)
{
    const std::optional<MoodMark> mood = Mood::own(value);
    if (!mood)
        return;
    m_view->setOwnMood(*mood);
    sendDatagram(m_services.socket, m_rIP, wire::Mood{Mood::toSend(value).toStdString()});
}

void PrivateChat::setmood(std::int16_t mood)
{
    if (const std::optional<MoodMark> mark = Mood::peers(mood))
        m_view->setPeersMood(*mark);
}

void PrivateChat::appendPresence(const QString &line)
{
    appendText(m_view->outtext(), line + QLatin1String("\r\n"), colours::presence);
}

bool PrivateChat::send(const QString &typed)
{
    if (typed.isEmpty())
        return false;
    const QString text = TrimLeadingBreaks(TrimTrailingBreaks(cutText(typed, limits::messageLength)));
    sendDatagram(m_services.socket, m_rIP, wire::PrivateMessage{toWire(text)});
    appendMessage(m_services.common.ownNickname, text, m_view->windowTextColour());
    return true;
}

QString PrivateChat::dateAndTime() const
{
    const QDateTime now = m_services.clock.now();
    return shortDate(now) + QLatin1Char(' ') + longTime(now);
}

void PrivateChat::outtext_Change()
{
    if (m_services.common.windowFlashingAvailable && m_view->isMinimisedOrInactive())
        m_view->flash();
}

CloseDecision PrivateChat::Form_QueryUnload(UnloadMode mode) const
{
    const bool hides = mode == UnloadMode::closeBox && m_isContact && !m_services.common.options.closedWindowsGo;
    return hides ? CloseDecision::hide : CloseDecision::unload;
}

void PrivateChat::Form_Unload()
{
    m_unloaded();
}

} // namespace nimb
