// From what is known of the network to what is said of it.
#pragma once

#include "base/network_diagnosis.h"
#include "doctor/finding.h"
#include "protocol/winsock.h"

#include <chrono>
#include <vector>

namespace nimb::findings
{

/// How the own address came about.
struct OwnAddress {
    Ipv4Address address;
    bool isFixed = false; ///< by whoever started the program
    QString card{};       ///< the one that the options name; empty: the system's choice
};

Finding network(const std::vector<NetworkCard> &cards, const OwnAddress &own);
Finding ownAddress(const std::vector<NetworkCard> &cards, const OwnAddress &own);
/// holder: whoever listens there when it is not we.
Finding port(std::uint16_t port, bool isBound, BindFailure failure, const std::optional<PortHolder> &holder);
/// No copy runs, and nothing keeps one from listening.
Finding portIsFree(std::uint16_t port);
Finding runningCopy(std::uint16_t port, const PortHolder &copy);
/// bytes: 0 where the system grants no room.
Finding receiveBuffer(int bytes);
Finding ownDatagram(Ipv4Address own, bool cameBack);
/// Without a port of our own there is nothing to send from.
Finding ownDatagramNotTried();
Finding ownDatagramLeftToTheCopy();

struct BroadcastTrial {
    NetworkCard card;
    bool left = false;
};
Finding broadcast(const std::vector<BroadcastTrial> &trials, const OwnAddress &own);
Finding firewall(const Firewall &firewall, std::uint16_t port);
/// tunnels: names of the cards that lead to a single machine.
Finding severalWays(const std::vector<NetworkCard> &cards, const std::vector<QString> &tunnels, const OwnAddress &own);

Finding contactAnswered(const QString &nickname, std::chrono::milliseconds after);
Finding contactSilent(const QString &nickname, Ipv4Address address, Neighbour neighbour);
/// The chosen own address is that of a card that does not lead to the contact; what is sent there leaves from another.
Finding contactOnOtherCard(const QString &nickname, Ipv4Address contact, const OwnAddress &own, Ipv4Address source);
Finding contactNotAsked(const QString &reason, const QString &advice);

} // namespace nimb::findings
