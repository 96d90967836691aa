#include "protocol/receive_dispatcher.h"

#include "protocol/wire_text.h"

namespace nimb
{
namespace
{

std::optional<PeerIdentity> textOf(const std::optional<wire::Identity> &identity)
{
    if (!identity)
        return std::nullopt;
    return PeerIdentity{fromWire(identity->ip), fromWire(identity->host), fromWire(identity->nick)};
}

/// Hands a contact's datagram to its feature: one overload per kind.
class HandOver
{
public:
    HandOver(Ipv4Address ip, const wire::Datagram &datagram, const Handlers &handlers, DropCounts &drops)
        : m_ip(ip), m_datagram(datagram), m_handlers(handlers), m_drops(drops)
    {
    }

    void operator()(const wire::OnlineQuestion &d) const
    {
        to(m_handlers.presence, &PresenceHandler::cameOnline, textOf(d.from), true);
    }
    void operator()(const wire::OnlineAnswer &d) const
    {
        to(m_handlers.presence, &PresenceHandler::cameOnline, textOf(d.from), false);
    }
    void operator()(const wire::Offline &) const { to(m_handlers.presence, &PresenceHandler::wentOffline); }
    void operator()(const wire::Status &d) const
    {
        to(m_handlers.presence, &PresenceHandler::changedState, fromWire(d.state), fromWire(d.text));
    }
    void operator()(const wire::Buzz &) const { to(m_handlers.peerSignals, &PeerSignalHandler::buzz); }
    void operator()(const wire::SharedContact &d) const
    {
        if (!d.contact)
            m_drops.count(Drop::incomplete);
        else
            to(m_handlers.sharedContacts, &SharedContactHandler::sharedContact, *textOf(d.contact));
    }
    void operator()(const wire::Typing &) const { to(m_handlers.peerSignals, &PeerSignalHandler::typing); }
    void operator()(const wire::AvatarHeadQuestion &) const
    {
        to(m_handlers.avatars, &AvatarHandler::avatarHeadQuestion);
    }
    void operator()(const wire::AvatarHead &d) const { to(m_handlers.avatars, &AvatarHandler::avatarHead, d.data); }
    void operator()(const wire::AvatarBodyQuestion &) const
    {
        to(m_handlers.avatars, &AvatarHandler::avatarBodyQuestion);
    }
    void operator()(const wire::AvatarOff &) const { to(m_handlers.avatars, &AvatarHandler::avatarOff); }
    void operator()(const wire::AvatarBody &d) const { to(m_handlers.avatars, &AvatarHandler::avatarBody, d.data); }
    void operator()(const wire::Mood &d) const
    {
        to(m_handlers.peerSignals, &PeerSignalHandler::mood, fromWire(d.value));
    }
    void operator()(const wire::LiveType &d) const
    {
        to(m_handlers.peerSignals, &PeerSignalHandler::liveType, fromWire(d.text));
    }
    void operator()(const wire::ConferenceInvitation &) const { toConference(); }
    void operator()(const wire::ConferenceListQuestion &) const { toConference(); }
    void operator()(const wire::ConferenceAnswer &) const { toConference(); }
    void operator()(const wire::ConferenceList &) const { toConference(); }
    void operator()(const wire::ConferenceLeave &) const { toConference(); }
    void operator()(const wire::ConferenceClose &) const { toConference(); }
    void operator()(const wire::ConferenceMessage &) const { toConference(); }
    void operator()(const wire::PrivateMessage &d) const
    {
        to(m_handlers.privateMessages, &PrivateMessageHandler::privateMessage, fromWire(d.text));
    }
    void operator()(const wire::Incomplete &) const { m_drops.count(Drop::incomplete); }
    void operator()(const wire::Unsupported &d) const
    {
        to(m_handlers.unknown, &UnknownDatagramHandler::unsupportedCommand, fromWire(d.bytes));
    }
    void operator()(const wire::Garbage &d) const
    {
        to(m_handlers.unknown, &UnknownDatagramHandler::garbage, fromWire(d.bytes));
    }

private:
    template <class Handler, class... Parameters, class... Arguments>
    void to(Handler *handler, void (Handler::*procedure)(Ipv4Address, Parameters...),
            const Arguments &...arguments) const
    {
        if (handler)
            (handler->*procedure)(m_ip, arguments...);
        else
            m_drops.count(Drop::noFeature);
    }

    void toConference() const { to(m_handlers.conferences, &ConferenceHandler::conferenceDatagram, m_datagram); }

    Ipv4Address m_ip;
    const wire::Datagram &m_datagram;
    const Handlers &m_handlers;
    DropCounts &m_drops;
};

} // namespace

ReceiveDispatcher::ReceiveDispatcher(const Senders &senders, const Handlers &handlers, DropCounts &drops)
    : m_senders(senders), m_handlers(handlers), m_drops(drops)
{
}

void ReceiveDispatcher::listenTo(Winsock &socket)
{
    socket.DataArrival = [this, &socket](std::size_t byteCount) {
        const std::string bytes = socket.GetData(byteCount);
        receive(socket.RemoteHostIP(), bytes);
    };
}

void ReceiveDispatcher::receive(Ipv4Address ip, std::string_view bytes)
{
    const wire::Datagram datagram = wire::parse(bytes);
    if (m_senders.isContact(ip))
        receiveFromContact(ip, datagram);
    else
        receiveFromStranger(ip, datagram);
}

void ReceiveDispatcher::receiveFromStranger(Ipv4Address ip, const wire::Datagram &datagram)
{
    std::optional<wire::Identity> identity;
    bool online = true;
    if (const auto *question = std::get_if<wire::OnlineQuestion>(&datagram)) {
        identity = question->from;
    } else if (const auto *answer = std::get_if<wire::OnlineAnswer>(&datagram)) {
        identity = answer->from;
    } else if (const auto *farewell = std::get_if<wire::Offline>(&datagram)) {
        identity = farewell->from;
        online = false;
    }
    if (identity && m_handlers.presence)
        m_handlers.presence->strangerSeen(ip, *textOf(identity), online);
    else
        m_drops.count(Drop::stranger);
}

void ReceiveDispatcher::receiveFromContact(Ipv4Address ip, const wire::Datagram &datagram)
{
    std::visit(HandOver(ip, datagram, m_handlers, m_drops), datagram);
}

} // namespace nimb
