#include "contacts/presence_receiver.h"

#include "base/clock_text.h"
#include "base/isolated.h"
#include "base/remote_text.h"

namespace nimb
{
namespace
{

Drop reasonOf(Refusal refusal)
{
    switch (refusal) {
    case Refusal::noUnicast:
    case Refusal::broadcast:
        return Drop::badAddress;
    case Refusal::listFull:
        return Drop::tooManyContacts;
    default:
        return Drop::stranger;
    }
}

} // namespace

PresenceReceiver::PresenceReceiver(const Common &common, const Admission &admission, ContactList &contacts,
                                   PresenceSender &sender, MainLog &log, PrivateLogs &privateLogs,
                                   Notifications &notifications, const WallClock &clock,
                                   std::vector<PresenceWitness *> witnesses, DropCounts &drops)
    : m_common(common), m_admission(admission), m_contacts(contacts), m_sender(sender), m_log(log),
      m_privateLogs(privateLogs), m_notifications(notifications), m_clock(clock), m_witnesses(std::move(witnesses)),
      m_drops(drops)
{
}

void PresenceReceiver::strangerSeen(Ipv4Address ip, const PeerIdentity &peer, bool online)
{
    if (const std::optional<Refusal> refusal = m_admission.refusal(ip)) {
        if (refusal != Refusal::ownAddress) // an own question that comes back is no loss
            m_drops.count(reasonOf(*refusal));
        return;
    }
    Contact contact;
    contact.ip = ip;
    contact.nickname = nameOrUnknown(peer.nick);
    contact.workstation = nameOrUnknown(peer.host);
    contact.setPresence(online ? Presence::online : Presence::offline);
    if (online)
        contact.seenAt = m_clock.now().toMSecsSinceEpoch();
    m_admission.admit(std::move(contact));
    if (online)
        tellWitnesses(ip, true);
}

void PresenceReceiver::tellWitnesses(Ipv4Address ip, bool isNew)
{
    for (PresenceWitness *const witness : m_witnesses)
        witness->seenOnline(ip, isNew);
}

void PresenceReceiver::cameOnline(Ipv4Address ip, const std::optional<PeerIdentity> &peer, bool asks)
{
    const bool wasPresent = isPresent(m_contacts.find(ip)->presence);
    const QString shownName = m_contacts.find(ip)->nickname;
    const qint64 now = m_clock.now().toMSecsSinceEpoch();
    m_contacts.change(ip, [&peer, asks, now](Contact &contact) {
        contact.seenAt = now;
        if (!asks && contact.presence == Presence::unknown)
            contact.hasAnswered = true;
        if (peer) {
            contact.rename(peer->nick);
            contact.workstation = nameOrUnknown(peer->host);
        }
        contact.setPresence(Presence::online);
        contact.state.clear();
    });
    const Contact &contact = *m_contacts.find(ip);
    if (!wasPresent)
        notify({tr("%1 is online").arg(isolated(paintedName(contact.nickname))), Presence::online, ip});
    if (contact.nickname != shownName && !contact.formerNickname.isEmpty()) {
        // Who takes the name back that was blank for a while has changed it from what was shown last.
        const bool tookItBack = contact.nickname == contact.formerNickname;
        m_log.changedName(tookItBack ? shownName : contact.formerNickname, contact.nickname);
    }
    m_log.wentOnline(contact.nickname);
    tellPrivateWindow(contact, tr("%1 is online").arg(contact.nickname));
    tellWitnesses(ip, false);
    if (asks)
        answer(ip);
}

void PresenceReceiver::wentOffline(Ipv4Address ip)
{
    m_contacts.change(ip, [](Contact &contact) {
        contact.setPresence(Presence::offline);
        contact.state.clear();
    });
    const Contact &contact = *m_contacts.find(ip);
    notify({tr("%1 is offline").arg(isolated(paintedName(contact.nickname))), Presence::offline, ip});
    m_log.wentOffline(contact.nickname);
    tellPrivateWindow(contact, tr("%1 has gone offline").arg(contact.nickname));
}

void PresenceReceiver::changedState(Ipv4Address ip, const QString &state, const QString &text)
{
    const QString shownState = remoteName(state);
    const QString personalized = remoteName(text);
    const QString whole = personalized.isEmpty() ? shownState : withOwnWords(shownState, personalized);
    m_contacts.change(ip, [&](Contact &contact) {
        contact.setPresence(presenceOfStateWord(state));
        contact.state = whole;
    });
    const Contact &contact = *m_contacts.find(ip);
    m_log.changedState(contact.nickname, shownState);
    tellPrivateWindow(contact, tr("%1 changed his state to '%2'").arg(contact.nickname, whole));
}

void PresenceReceiver::notify(const Notification &notification)
{
    if (m_common.announcing)
        return;
    m_notifications.add(notification);
    m_notifications.startTimer();
}

void PresenceReceiver::tellPrivateWindow(const Contact &contact, const QString &sentence)
{
    if (contact.privateWindow <= 0 || !m_common.options.presenceLines || m_common.announcing)
        return;
    const QDateTime now = m_clock.now();
    const QString opening = QStringLiteral("[%1 @ %2] ").arg(shortDate(now), shortTime(now));
    m_privateLogs.appendPresence(contact.privateWindow, opening + sentence);
}

void PresenceReceiver::answer(Ipv4Address ip)
{
    if (m_common.isInvisible())
        return;
    m_sender.answer(ip);
    m_sender.statusUnlessOnline(ip);
}

} // namespace nimb
