// What presence datagrams do: contacts come online, change state and go offline.
#pragma once

#include "base/main_log.h"
#include "base/notifications.h"
#include "contacts/admission.h"
#include "contacts/announcement.h"
#include "contacts/contact_list.h"
#include "protocol/drop_counts.h"

namespace nimb
{

/// The logs of open private windows, for lines about a peer's presence.
class PrivateLogs
{
public:
    virtual ~PrivateLogs() = default;
    /// window: its number in the table of private windows; a number without a window is ignored.
    virtual void appendPresence(int window, const QString &line) = 0;
};

/// Hears of everybody who says that he is there.
class PresenceWitness
{
public:
    virtual ~PresenceWitness() = default;
    /// isNew: he has just become a contact.
    virtual void seenOnline(Ipv4Address ip, bool isNew) = 0;
};

class PresenceReceiver : public PresenceHandler
{
    Q_DECLARE_TR_FUNCTIONS(PresenceReceiver)

public:
    PresenceReceiver(const Common &common, const Admission &admission, ContactList &contacts, PresenceSender &sender,
                     MainLog &log, PrivateLogs &privateLogs, Notifications &notifications, const WallClock &clock,
                     std::vector<PresenceWitness *> witnesses, DropCounts &drops);

    void strangerSeen(Ipv4Address ip, const PeerIdentity &peer, bool online) override;
    void cameOnline(Ipv4Address ip, const std::optional<PeerIdentity> &peer, bool asks) override;
    void wentOffline(Ipv4Address ip) override;
    void changedState(Ipv4Address ip, const QString &state, const QString &text) override;

private:
    void notify(const Notification &notification);
    void tellPrivateWindow(const Contact &contact, const QString &sentence);
    void answer(Ipv4Address ip);
    void tellWitnesses(Ipv4Address ip, bool isNew);

    const Common &m_common;
    const Admission &m_admission;
    ContactList &m_contacts;
    PresenceSender &m_sender;
    MainLog &m_log;
    PrivateLogs &m_privateLogs;
    Notifications &m_notifications;
    const WallClock &m_clock;
    std::vector<PresenceWitness *> m_witnesses; ///< who outlive it
    DropCounts &m_drops;
};

} // namespace nimb
