#include "private_chat/peer_features.h"

#include "base/isolated.h"
#include "base/remote_text.h"
#include "protocol/send_datagram.h"

namespace nimb
{

PrivateChat *PeerFeatures::windowOf(Ipv4Address ip)
{
    const int window = m_parts.contacts.find(ip)->privateWindow;
    return window > 0 ? m_parts.windows.at(window) : nullptr;
}

void PeerFeatures::buzz(Ipv4Address ip)
{
    if (m_parts.common.hearsReceivedBuzz())
        m_parts.sound.playAlarm();
    const QString text = tr("%1 is buzzing you...").arg(isolated(paintedName(m_parts.contacts.find(ip)->nickname)));
    m_parts.activity.show(text);
    PrivateChat *const window = windowOf(ip);
    if (window)
        window->buzzed(text);
    tellBuzz(ip, window);
}

void PeerFeatures::tellBuzz(Ipv4Address ip, PrivateChat *window) const
{
    const QString name = m_parts.contacts.find(ip)->nickname;
    if (!window || window->view().isHidden()) {
        m_parts.log.buzzed(name);
        m_parts.activity.flash(ip);
    }
    if (!window || window->view().conversation().isMinimisedOrInactive())
        m_parts.notices.buzz(ip, name);
}

void PeerFeatures::typing(Ipv4Address ip)
{
    const QString text
        = tr("%1 is typing a message...").arg(isolated(paintedName(m_parts.contacts.find(ip)->nickname)));
    if (PrivateChat *const window = windowOf(ip))
        window->typing(text);
    else
        m_parts.activity.show(text);
}

void PeerFeatures::liveType(Ipv4Address ip, const QString &text)
{
    if (PrivateChat *const window = windowOf(ip))
        window->liveTypeReceived(text);
    else
        m_parts.drops.count(Drop::noWindow);
}

void PeerFeatures::mood(Ipv4Address ip, const QString &value)
{
    PrivateChat *const window = windowOf(ip);
    if (!window)
        return m_parts.drops.count(Drop::noWindow);
    if (const std::optional<std::int16_t> mood = Mood::parse(value))
        window->setmood(*mood);
}

void PeerFeatures::avatarHeadQuestion(Ipv4Address ip)
{
    m_parts.ownAvatar.answerHead(ip);
}

void PeerFeatures::avatarBodyQuestion(Ipv4Address ip)
{
    m_parts.ownAvatar.answerBody(ip);
}

void PeerFeatures::avatarHead(Ipv4Address ip, const std::string &head)
{
    m_parts.avatars.setHead(ip, head);
    PrivateChat *const window = windowOf(ip);
    const bool wanted = window && window->takeAvatarWanted();
    if (wanted || !m_parts.common.isInvisible())
        sendDatagram(m_parts.socket, ip, wire::AvatarBodyQuestion{});
}

void PeerFeatures::avatarBody(Ipv4Address ip, const std::string &body)
{
    if (!m_parts.avatars.setBody(ip, body))
        return m_parts.drops.count(Drop::tooManyAvatars);
    avatarChanged(ip);
}

void PeerFeatures::avatarOff(Ipv4Address ip)
{
    m_parts.avatars.clear(ip);
    avatarChanged(ip);
}

void PeerFeatures::avatarChanged(Ipv4Address ip)
{
    if (PrivateChat *const window = windowOf(ip))
        window->AvatarCh_Change(m_parts.avatars.of(ip));
}

} // namespace nimb
