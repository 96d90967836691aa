#include "private/peer_features.h"

#include "core/remote_text.h"

namespace nimb
{

PeerFeatures::PeerFeatures(const Common &common, const ContactList &contacts, PrivateWindows &windows,
                           Activity &activity, Sound &sound, DropCounts &drops)
    : m_common(common), m_contacts(contacts), m_windows(windows), m_activity(activity), m_sound(sound), m_drops(drops)
{
}

PrivateChat *PeerFeatures::windowOf(const Contact &contact)
{
    return contact.privateWindow > 0 ? m_windows.at(contact.privateWindow) : nullptr;
}

void PeerFeatures::buzz(const QString &ip)
{
    if (m_common.options.BuzzRemote == 1 && !m_common.buzzmute)
        m_sound.playAlarm();
    const Contact &contact = *m_contacts.find(ip);
    const QString text = tr("%1 is buzzing you...").arg(paintedName(contact.nickname));
    m_activity.show(text);
    if (PrivateChat *const window = windowOf(contact))
        window->buzzed(text);
}

void PeerFeatures::typing(const QString &ip)
{
    const Contact &contact = *m_contacts.find(ip);
    const QString text = tr("%1 is typing a message...").arg(paintedName(contact.nickname));
    if (PrivateChat *const window = windowOf(contact))
        window->showPeerActivity(text);
    else
        m_activity.show(text);
}

void PeerFeatures::liveType(const QString &, const QString &)
{
    m_drops.count(Drop::noFeature);
}

void PeerFeatures::mood(const QString &, const QString &)
{
    m_drops.count(Drop::noFeature);
}

} // namespace nimb
