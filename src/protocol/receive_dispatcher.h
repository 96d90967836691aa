// Turns each datagram into one call of the feature that it concerns.
#pragma once

#include "protocol/datagram.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"
#include "protocol/winsock.h"

#include <string_view>

namespace nimb
{

/// The features that take datagrams. A feature that is not there is null: its datagrams are dropped and counted.
struct Handlers {
    PresenceHandler *presence = nullptr;
    UnknownDatagramHandler *unknown = nullptr;
    PrivateMessageHandler *privateMessages = nullptr;
    PeerSignalHandler *peerSignals = nullptr;
    AvatarHandler *avatars = nullptr;
    SharedContactHandler *sharedContacts = nullptr;
    ConferenceHandler *conferences = nullptr;
};

/// Finds the sender, splits the datagram and hands it over. Keeps nothing between two datagrams.
class ReceiveDispatcher
{
public:
    ReceiveDispatcher(const Senders &senders, const Handlers &handlers, DropCounts &drops);

    /// Listens to the arrivals of this socket, which must outlive its last datagram.
    void listenTo(Winsock &socket);

    /// Handles one datagram completely. ip: its source address.
    void receive(Ipv4Address ip, std::string_view bytes);

private:
    void receiveFromStranger(Ipv4Address ip, const wire::Datagram &datagram);
    void receiveFromContact(Ipv4Address ip, const wire::Datagram &datagram);

    const Senders &m_senders;
    Handlers m_handlers;
    DropCounts &m_drops;
};

} // namespace nimb
