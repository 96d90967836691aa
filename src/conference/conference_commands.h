// What conference datagrams do: invitations, answers, lists, leaving, closing, messages.
#pragma once

#include "base/limits.h"
#include "conference/conference_table.h"
#include "conference/invitations.h"
#include "contacts/admission.h"
#include "contacts/announcement.h"
#include "contacts/paced_answers.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"

#include <map>
#include <memory>
#include <optional>
#include <tuple>
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
        DropCounts &drops;
    };

    explicit ConferenceCommands(const Parts &parts);

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
    /// Somebody at this address, and the number that the host has given a conference.
    struct Seat {
        Ipv4Address ip;
        std::int16_t number = 0;
        friend bool operator<(const Seat &left, const Seat &right)
        {
            return std::tie(left.ip, left.number) < std::tie(right.ip, right.number);
        }
    };
    /// The conference that is hosted here, if that somebody is in it.
    Conference *attended(const Seat &seat) const;
    Conference *attended(std::int16_t number) const { return attended(Seat{m_ip, number}); }
    void agreed(Conference &conference);
    void denied(Conference &conference);
    void listed(Conference &conference, Ipv4Address address);
    /// Rows and log follow those who come and go.
    void joined(Conference &conference, Ipv4Address address);
    void left(Conference &conference, const ContactAddress &address, const QString &nickname);
    void greet(Ipv4Address address);
    void askForAvatar(Ipv4Address address);

    /// How many lists of a host are taken at once. Of those beyond, only the newest waits, for a list is whole.
    struct Lists {
        int left = limits::listsAtOnce;
        std::unique_ptr<Timer> oneMore;
        std::optional<wire::ConferenceList> waiting;
    };
    void takeList(Conference &conference, const wire::ConferenceList &list);
    void mayTakeOneMore(const Seat &host);
    void askForList(std::int16_t number);

    Parts m_parts;
    PacedAnswers<Seat> m_listAnswers;
    std::map<Seat, Lists> m_lists; ///< of those whose hosts may not send as many at once as any other
    Ipv4Address m_ip;              ///< the sender of the datagram at hand
};

} // namespace nimb
