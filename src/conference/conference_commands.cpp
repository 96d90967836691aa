#include "conference/conference_commands.h"

#include "protocol/address_text.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{
namespace
{

/// Whether it cannot be a peer's address, neither a contact's nor one that is to become a contact.
bool isNobodys(std::optional<Refusal> refusal)
{
    return refusal == Refusal::thisMachine || refusal == Refusal::noUnicast || refusal == Refusal::broadcast;
}

/// The numbers that a host may give its conferences. Nobody joins one under another.
bool isHostsNumber(std::int16_t number)
{
    return number >= 1;
}

} // namespace

ConferenceCommands::ConferenceCommands(const Parts &parts)
    : m_parts(parts), m_listAnswers(parts.timers, [this](const Seat &guest) {
          if (Conference *const conference = attended(guest))
              conference->Broadcastlist(guest.ip);
      })
{
}

void ConferenceCommands::conferenceDatagram(Ipv4Address ip, const wire::Datagram &datagram)
{
    m_ip = ip;
    std::visit(*this, datagram);
}

QString ConferenceCommands::name() const
{
    return m_parts.contacts.find(m_ip)->nickname;
}

Conference *ConferenceCommands::attended(const Seat &seat) const
{
    Conference *const conference = m_parts.conferences.hosted(seat.number);
    const Participant *const sender = conference ? conference->partecipanti().find(seat.ip) : nullptr;
    return sender && sender->present ? conference : nullptr;
}

void ConferenceCommands::operator()(const wire::ConferenceInvitation &invitation)
{
    if (!isHostsNumber(invitation.id))
        return drop();
    if (!m_parts.invitations.arrived(m_ip, invitation.id))
        m_parts.drops.count(Drop::tooManyInvitations);
}

void ConferenceCommands::operator()(const wire::ConferenceAnswer &answer)
{
    Conference *const conference = m_parts.conferences.hosted(answer.id);
    if (!conference || !conference->partecipanti().find(m_ip)) {
        drop();
        // Who takes an old invitation has opened a window that nobody would ever write to. But anybody can say that he
        // agrees, and hear from whoever is invisible.
        if (answer.agreed && isHostsNumber(answer.id) && !m_parts.common.isInvisible())
            sendDatagram(m_parts.socket, m_ip, wire::ConferenceClose{answer.id});
        return;
    }
    if (answer.agreed)
        agreed(*conference);
    else
        denied(*conference);
}

void ConferenceCommands::agreed(Conference &conference)
{
    // Who is in already and has only opened the window again needs the list, the others need nothing.
    if (conference.partecipanti().find(m_ip)->present)
        return askForList(conference.identity().ConfNum);
    joined(conference, m_ip);
    conference.Broadcastlist({});
    askForAvatar(m_ip);
}

void ConferenceCommands::joined(Conference &conference, Ipv4Address address)
{
    conference.partecipanti().setPresent(address);
    const QString &nickname = m_parts.contacts.find(address)->nickname;
    conference.ReceiveCommand(tr("--- %1 joined the conference").arg(nickname), colours::banner);
}

void ConferenceCommands::left(Conference &conference, const ContactAddress &address, const QString &nickname)
{
    conference.ReceiveCommand(tr("--- %1 left the conference.").arg(nickname), colours::banner);
    conference.partecipanti().remove(address);
}

void ConferenceCommands::denied(Conference &conference)
{
    const bool wasPresent = conference.partecipanti().find(m_ip)->present;
    conference.partecipanti().remove(m_ip);
    conference.ReceiveCommand(tr("--- %1 refused to partecipate to conf").arg(name()), colours::banner);
    // Whoever is invited once more while in the window, and refuses, would be left with one that nobody writes to.
    if (wasPresent)
        sendDatagram(m_parts.socket, m_ip, wire::ConferenceClose{conference.identity().ConfNum});
}

void ConferenceCommands::operator()(const wire::ConferenceListQuestion &question)
{
    if (attended(question.id))
        askForList(question.id);
    else
        drop();
}

void ConferenceCommands::askForList(std::int16_t number)
{
    if (!m_listAnswers.ask({m_ip, number}))
        m_parts.drops.count(Drop::tooOften);
}

void ConferenceCommands::operator()(const wire::ConferenceList &list)
{
    Conference *const conference = m_parts.conferences.joined(m_ip, list.id);
    if (!conference)
        return drop();
    const Seat host{m_ip, list.id};
    Lists &lists = m_lists[host];
    if (!lists.oneMore)
        lists.oneMore = m_parts.timers.oneShot(limits::answerPause, [this, host] { mayTakeOneMore(host); });
    if (!lists.oneMore->isActive())
        lists.oneMore->start();
    if (lists.left > 0) {
        --lists.left;
        return takeList(*conference, list);
    }
    if (std::exchange(lists.waiting, list))
        m_parts.drops.count(Drop::tooOften);
}

void ConferenceCommands::mayTakeOneMore(const Seat &host)
{
    Lists &lists = m_lists.at(host);
    const std::optional<wire::ConferenceList> list = std::exchange(lists.waiting, std::nullopt);
    if (!list)
        ++lists.left;
    if (lists.left < limits::listsAtOnce)
        lists.oneMore->start();
    else
        m_lists.erase(host);
    Conference *const conference = list ? m_parts.conferences.joined(host.ip, host.number) : nullptr;
    // The window may have been closed and the host removed meanwhile.
    if (conference && m_parts.contacts.isContact(host.ip))
        takeList(*conference, *list);
}

void ConferenceCommands::takeList(Conference &conference, const wire::ConferenceList &list)
{
    Participants &participants = conference.partecipanti();
    participants.setAllAbsent();
    std::size_t taken = 0;
    for (const std::string &address : list.addresses) {
        const std::optional<Ipv4Address> ip = Ipv4Address::parse(address);
        const std::optional<Refusal> refusal = m_parts.admission.refusal(ip);
        if (refusal == Refusal::ownAddress)
            continue;
        if (isNobodys(refusal) || ++taken > limits::participants)
            drop();
        else if (refusal == Refusal::listFull)
            m_parts.drops.count(Drop::tooManyContacts);
        else
            listed(conference, *ip);
    }
    std::vector<ContactAddress> gone;
    for (const Participant &participant : participants.rows()) {
        if (!participant.present)
            gone.push_back(participant.ip);
    }
    for (const ContactAddress &ip : gone)
        left(conference, ip, participants.find(ip)->name);
}

void ConferenceCommands::listed(Conference &conference, Ipv4Address address)
{
    if (!m_parts.contacts.isContact(address))
        greet(address);
    Participants &participants = conference.partecipanti();
    if (participants.find(address))
        return participants.setPresent(address);
    participants.add({.ip = address, .name = m_parts.contacts.find(address)->nickname});
    joined(conference, address);
    askForAvatar(address);
}

/// A participant whom this copy does not know becomes a contact, and is asked for its name unless that would tell of
/// somebody who is invisible.
void ConferenceCommands::greet(Ipv4Address address)
{
    Contact contact;
    contact.ip = address;
    contact.nickname = unheardName;
    contact.workstation = unknownName;
    contact.setPresence(Presence::online);
    m_parts.admission.admit(std::move(contact));
    if (m_parts.common.isInvisible())
        return;
    m_parts.sender.question(address);
    m_parts.sender.statusUnlessOnline(address);
}

void ConferenceCommands::askForAvatar(Ipv4Address address)
{
    if (m_parts.avatars.of(address).head.empty() && !m_parts.common.isInvisible())
        sendDatagram(m_parts.socket, address, wire::AvatarHeadQuestion{});
}

void ConferenceCommands::operator()(const wire::ConferenceLeave &leave)
{
    // Who has been removed, is invited anew and then closes the old window has not refused.
    Conference *const conference = attended(leave.id);
    if (!conference)
        return drop();
    left(*conference, m_ip, name());
    conference->Broadcastlist({});
}

void ConferenceCommands::operator()(const wire::ConferenceClose &close)
{
    m_parts.conferences.forgetGuestship(m_ip, close.id);
    const bool invited = m_parts.invitations.list().rowOf(m_ip, close.id) >= 0;
    Conference *const conference = m_parts.conferences.joined(m_ip, close.id);
    if (!invited && !conference)
        return drop();
    m_parts.invitations.closed(m_ip, close.id);
    if (conference)
        conference->terminate();
}

/// Whether what a participant sends to its host under this origin are its own words. It may know itself by an address
/// that nobody else sees. Anything else was relayed by a host who takes this copy for a guest: two more such hosts, and
/// it would go round for ever.
bool ConferenceCommands::isWritersOwn(Ipv4Address origin, const Conference &conference) const
{
    if (origin == m_ip || origin == m_parts.common.ownIP)
        return true;
    const bool isSomebodyElses = m_parts.contacts.isContact(origin) || conference.partecipanti().find(origin);
    return !isSomebodyElses && !m_parts.conferences.mayBeListedBy(m_ip, conference.identity().ConfNum);
}

/// Whose message it is. A guest sends its own address as the origin, so at the host the writer is who sent it.
void ConferenceCommands::operator()(const wire::ConferenceMessage &message)
{
    const std::optional<Ipv4Address> origin = Ipv4Address::parse(message.origin);
    const QString text = fromWire(message.text);
    // Hosts name writers by their addresses; anything else would stand in the log as if it were somebody's name.
    if (!origin || !origin->isUnicast())
        return drop();
    if (origin != m_parts.common.ownIP) {
        if (Conference *const conference = m_parts.conferences.joined(m_ip, message.id))
            return conference->ReceiveMessage(*origin, text);
        // Said in a conference that is over here, it is not for the guests of one that only bears the same number.
        if (m_parts.conferences.hasWindowOf(m_ip, message.id))
            return drop();
    }
    Conference *const conference = attended(message.id);
    if (!conference || conference->partecipanti().find(m_ip)->own || !isWritersOwn(*origin, *conference))
        return drop();
    conference->ReceiveMessage(m_ip, text);
}

} // namespace nimb
