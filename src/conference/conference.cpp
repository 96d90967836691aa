#include "conference/conference.h"

#include "base/own_address.h"
#include "base/remote_text.h"
#include "conversation/message_text.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

#include <map>

namespace nimb
{
namespace
{

QString withoutOuterBlanks(const QString &text)
{
    qsizetype first = 0, end = text.size();
    while (first < end && text[first] == u' ')
        ++first;
    while (end > first && text[end - 1] == u' ')
        --end;
    return text.mid(first, end - first);
}

} // namespace

Conference::Conference(const Services &services, Identity identity, std::function<void()> unloaded)
    : Conversation(services.conversation, std::move(unloaded)), m_services(services), m_identity(identity),
      m_begun(services.conversation.clock.now())
{
    m_participants.add(
        {.ip = common().ownIP, .name = tr("%1 (you)").arg(common().ownNickname), .present = true, .own = true});
    m_view = services.forms.makeConferenceForm(*this);
    conversationView().setCaption(caption());
}

QString Conference::caption() const
{
    if (isHostedHere())
        return tr("Conference #%1 (Hosted here) - NIMB-Chat").arg(m_identity.fConfN);
    const Contact *const host = m_services.contacts.find(m_identity.ConfServerIP);
    return tr("Conference #%1 (Hosted by '%2') - NIMB-Chat")
        .arg(m_identity.fConfN)
        .arg(host ? host->nickname : addressText(m_identity.ConfServerIP));
}

// --- writing

QString Conference::openingLine(const QString &date, const QString &time) const
{
    return tr("« NIMB-Chat [today:%1 - now:%2] Conference #%3 Ready »").arg(date, time).arg(m_identity.fConfN);
}

/// Line breaks at the start go out, unlike those of private messages.
QString Conference::textToSend(const QString &typed) const
{
    return TrimTrailingBreaks(withoutOuterBlanks(typed));
}

void Conference::wasRead(int unread)
{
    if (unread == 0)
        m_services.notices.conferenceSeen(m_identity.fConfN);
}

void Conference::deliver(const QString &text)
{
    const auto sayTo = [&](std::optional<Ipv4Address> peer) {
        sendDatagram(socket(), peer,
                     wire::ConferenceMessage{ownAddress(peer).toText(), m_identity.ConfNum, toWire(text)});
    };
    if (!isHostedHere())
        sayTo(m_identity.ConfServerIP);
    for (const Participant &participant : m_participants.rows()) {
        if (isHostedHere() && participant.isPresentPeer())
            sayTo(participant.ip.ipv4());
    }
    showOwnAvatar();
}

/// What a guest has said, to all the others.
void Conference::relay(const QString &text, Ipv4Address origin)
{
    const std::string bytes
        = wire::serialise(wire::ConferenceMessage{origin.toText(), m_identity.ConfNum, toWire(text)});
    for (const Participant &participant : m_participants.rows()) {
        if (participant.isPresentPeer() && participant.ip != origin)
            sendBytes(socket(), participant.ip.ipv4(), bytes);
    }
}

Ipv4Address Conference::ownAddress(std::optional<Ipv4Address> peer) const
{
    return ownAddressTowards(common(), socket(), peer);
}

/// All who read the link, under the address that the host knows or, at the host, the first guest.
FileOffers::Recipients Conference::fileRecipients() const
{
    FileOffers::Recipients recipients{.to = {}, .at = {}, .whom = keptAs().name};
    if (!isHostedHere())
        recipients.to.push_back(m_identity.ConfServerIP);
    for (const Participant &participant : m_participants.rows()) {
        const std::optional<Ipv4Address> ip = participant.ip.ipv4();
        if (ip && participant.isPresentPeer() && *ip != m_identity.ConfServerIP)
            recipients.to.push_back(*ip);
    }
    if (!recipients.to.empty())
        recipients.at = ownAddress(recipients.to.front());
    return recipients;
}

// --- receiving

Conference::Writer Conference::writerOf(Ipv4Address ip) const
{
    const Participant *const row = m_participants.find(ip);
    const Contact *const contact = m_services.contacts.find(ip);
    const QString workstation = contact ? contact->workstation : QString();
    if (row)
        return {row->name, row->colour.value_or(colours::presence), addressText(ip), workstation};
    return {contact ? contact->nickname : addressText(ip), colours::presence, addressText(ip), workstation};
}

KeptConversation Conference::keptAs() const
{
    const Contact *const host = m_services.contacts.find(m_identity.ConfServerIP);
    const QString title = isHostedHere() ? tr("Conference #%1").arg(m_identity.fConfN)
                                         : tr("Conference #%1 of %2")
                                               .arg(m_identity.fConfN)
                                               .arg(host ? host->nickname : addressText(m_identity.ConfServerIP));
    return {.kind = KeptConversation::Kind::conference,
            .address = addressText(m_identity.ConfServerIP),
            .begun = m_begun,
            .name = title};
}

void Conference::ReceiveMessage(Ipv4Address IP, const QString &msg)
{
    const QString text = trimmedMessage(msg);
    const Writer writer = writerOf(IP);
    const QString body = remoteBody(text);
    appendReceived(writer, body);
    if (conversationView().isMinimisedOrInactive())
        m_services.notices.conferenceMessage(IP, m_identity.fConfN, writer.name, body);
    if (isHostedHere())
        relay(text, IP);
    showAvatarOf(IP);
}

void Conference::answer(const QString &text)
{
    // Without a text there is nothing to send, and nobody to tell.
    [[maybe_unused]] const bool isSent = send(remoteBody(text));
}

void Conference::ownAddressChanged()
{
    m_participants.setOwnAddress(common().ownIP);
    if (isHostedHere())
        m_identity.ConfServerIP = common().ownIP;
}

void Conference::terminate()
{
    ReceiveCommand(tr("--- This conference is terminated."), colours::banner);
    end();
}

// --- participants

void Conference::invite(const ContactAddress &ip)
{
    const Contact *const contact = m_services.contacts.find(ip);
    if (!contact || !isHostedHere())
        return;
    m_participants.add({.ip = ip, .name = contact->nickname});
    sendDatagram(socket(), ip.ipv4(), wire::ConferenceInvitation{m_identity.ConfNum});
}

std::vector<ContactAddress> Conference::invitable() const
{
    std::vector<ContactAddress> all;
    for (int row = 0; row < m_services.contacts.rowCount(); ++row) {
        const Contact &contact = m_services.contacts.at(row);
        if (isPresent(contact.presence) && !m_participants.find(contact.ip))
            all.push_back(contact.ip);
    }
    return all;
}

QString Conference::nameOf(const ContactAddress &ip) const
{
    const Contact *const contact = m_services.contacts.find(ip);
    return contact ? contact->nickname : ip.text();
}

void Conference::kickuserbtn_Click(const ContactAddress &ip)
{
    const Participant *const participant = m_participants.find(ip);
    if (!participant || participant->own || !isHostedHere())
        return;
    sendDatagram(socket(), ip.ipv4(), wire::ConferenceClose{m_identity.ConfNum});
    const QString name = participant->name;
    m_participants.remove(ip);
    ReceiveCommand(tr("--- You removed %1 from the conference.").arg(name), colours::banner);
}

void Conference::refreshlistbtn_Click()
{
    if (!isHostedHere())
        sendDatagram(socket(), m_identity.ConfServerIP, wire::ConferenceListQuestion{m_identity.ConfNum});
}

void Conference::Broadcastlist(std::optional<Ipv4Address> dest)
{
    if (!isHostedHere())
        return;
    // Each of the own addresses has one list, for there may be a thousand who get it.
    std::map<Ipv4Address, std::string> lists;
    const auto sendTo = [&](std::optional<Ipv4Address> peer) {
        const Ipv4Address own = ownAddress(peer);
        std::string &bytes = lists[own];
        if (bytes.empty())
            bytes = wire::serialise(listUnder(own));
        sendBytes(socket(), peer, bytes);
    };
    if (dest)
        return sendTo(dest);
    for (const Participant &participant : m_participants.rows()) {
        if (!participant.own)
            sendTo(participant.ip.ipv4());
    }
}

wire::ConferenceList Conference::listUnder(Ipv4Address own) const
{
    wire::ConferenceList list{m_identity.ConfNum, {own.toText()}};
    for (const Participant &participant : m_participants.rows()) {
        if (participant.isPresentPeer())
            list.addresses.push_back(participant.ip.text().toStdString());
    }
    return list;
}

void Conference::BroadcastClose()
{
    if (isHostedHere())
        sendToAll(wire::serialise(wire::ConferenceClose{m_identity.ConfNum}));
}

/// Invited ones included.
void Conference::sendToAll(const std::string &bytes)
{
    for (const Participant &participant : m_participants.rows()) {
        if (!participant.own)
            sendBytes(socket(), participant.ip.ipv4(), bytes);
    }
}

// --- the avatar frame

void Conference::showAvatar(const QString &name, const std::optional<QByteArray> &picture)
{
    m_avatarLabel = name;
    m_view->showAvatar(name, picture);
}

void Conference::showOwnAvatar()
{
    const QString &name = common().ownNickname;
    if (m_avatarLabel != name)
        showAvatar(name, m_services.ownAvatar.picture());
}

void Conference::showAvatarOf(Ipv4Address ip)
{
    const Contact *const contact = m_services.contacts.find(ip);
    if (!contact || contact->nickname == m_avatarLabel)
        return;
    const QByteArray &body = m_services.avatars.of(contact->ip).body;
    showAvatar(contact->nickname, body.size() == avatarBytes ? std::optional(body) : std::nullopt);
}

// --- the end

CloseDecision Conference::Form_QueryUnload(UnloadMode mode)
{
    const auto answer = [this](const QString &question) {
        return m_services.prompts.ask(question, programTitle) ? CloseDecision::unload : CloseDecision::stay;
    };
    if (mode != UnloadMode::closeBox)
        return CloseDecision::unload;
    if (isHostedHere() && m_participants.rowCount() >= 2)
        return answer(tr("Closing that window will terminate the conference. Proceed?"));
    if (!isHostedHere() && !isOver())
        return answer(tr("Leave the conference?"));
    return CloseDecision::unload;
}

void Conference::Form_Unload(bool sayGoodbye)
{
    if (isHostedHere())
        BroadcastClose();
    else if (sayGoodbye)
        sendDatagram(socket(), m_identity.ConfServerIP, wire::ConferenceLeave{m_identity.ConfNum});
}

} // namespace nimb
