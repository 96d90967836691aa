// What conference datagrams do: invitations, answers, lists, leaving, closing, messages.
#pragma once

#include "conference/conference_table.h"
#include "conference/invitations.h"
#include "contacts/admission.h"
#include "contacts/announcement.h"
#include "contacts/answer_pause.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace nimb
{

/// Trusts nobody with more than is theirs: lists and closings are taken from the recorded host alone, answers and
/// farewells only of rows that exist, messages at the host only of those who are present. The rest is counted.
class ConferenceCommands : public ConferenceHandler
{
    Q_DECLARE_TR_FUNCTIONS(ConferenceCommands)

public:
    struct Parts {
        const Common &common;
        const Admission &admission;
        Winsock &socket;
        ContactList &contacts;
        const AvatarStore &avatars;
        PresenceSender &sender;
        ConferenceTable &conferences;
        Invitations &invitations;
        Timers &timers;
        const WallClock &clock;
        DropCounts &drops;
    };

    explicit ConferenceCommands(const Parts &parts) : m_parts(parts), m_listAnswers(parts.clock) { }

    void conferenceDatagram(Ipv4Address ip, const wire::Datagram &datagram) override;

    // One overload per kind.
    void operator()(const wire::ConferenceInvitation &invitation);
    void operator()(const wire::ConferenceAnswer &answer);
    void operator()(const wire::ConferenceListQuestion &question);
    void operator()(const wire::ConferenceList &list);
    void operator()(const wire::ConferenceLeave &leave);
    void operator()(const wire::ConferenceClose &close);
    void operator()(const wire::ConferenceMessage &message);
    template <class Other> void operator()(const Other &) { drop(); }

private:
    void drop() { m_parts.drops.count(Drop::noConference); }
    /// Display name of the sender.
    QString name() const;
    bool isWritersOwn(Ipv4Address origin, const Conference &conference) const;
    Conference *attended(std::int16_t number) const;
    void agreed(Conference &conference);
    void denied(Conference &conference);
    void listed(Conference &conference, Ipv4Address address);
    /// Rows and log follow those who come and go.
    void joined(Conference &conference, Ipv4Address address);
    void left(Conference &conference, const ContactAddress &address, const QString &nickname);
    void greet(Ipv4Address address);
    void askForAvatar(Ipv4Address address);

    /// What a host has sent while its last list was still fresh: only the newest counts, for a list is whole.
    struct Lists {
        std::unique_ptr<Timer> pause;
        std::optional<wire::ConferenceList> waiting;
    };
    void takeList(Conference &conference, const wire::ConferenceList &list);
    void takeWaitingList(Ipv4Address host, std::int16_t number);
    void sendListTo(Conference &conference, Ipv4Address ip);

    Parts m_parts;
    AnswerPause m_listAnswers;
    std::map<std::pair<Ipv4Address, std::int16_t>, Lists> m_lists; ///< of joined conferences, by host and its number
    Ipv4Address m_ip;                                              ///< the sender of the datagram at hand
};

} // namespace nimb
