// Who this machine is on the network.
#pragma once

#include "base/own_addresses.h"

#include <QElapsedTimer>
#include <QString>

#include <optional>
#include <vector>

namespace nimb
{

/// The fixed address when there is one; otherwise the one that the default route uses, else the first one
/// of any interface that is not loopback, else 127.0.0.1.
Ipv4Address ownAddress(std::optional<Ipv4Address> fixed);

/// Where everybody on the network of an interface with this address hears what is sent; empty when it has no such
/// address. prefix: how many bits of the address name the network.
std::optional<Ipv4Address> broadcastAddress(Ipv4Address address, int prefix);

/// Whether an interface of this name joins the containers or virtual machines of this machine: nobody else is there.
bool isInsideMachine(const QString &interface);

/// The addresses of this machine's interfaces. Whoever asks may do so for every datagram of a flood, so they are read
/// at most once in two seconds, unless somebody knows that they have changed.
class MachineAddresses : public OwnAddresses
{
public:
    /// A copy that is told its address has that one alone: others on this machine may have the rest.
    explicit MachineAddresses(std::optional<Ipv4Address> fixed) : m_fixed(fixed) { }

    bool isOwn(Ipv4Address address) const override;
    bool isBroadcast(Ipv4Address address) const override;
    bool isFixed() const override { return m_fixed.has_value(); }
    std::optional<Ipv4Address> sourceTowards(Ipv4Address peer) const override;
    std::vector<NetworkCard> cards() const override;
    void readAnew() override { m_sinceRead.invalidate(); }

private:
    void read() const;

    const std::optional<Ipv4Address> m_fixed;
    mutable QElapsedTimer m_sinceRead;
    mutable std::vector<Ipv4Address> m_own, m_broadcast;
    mutable std::vector<NetworkCard> m_cards;
};

/// The fixed name unless it is empty; otherwise the system's. Never empty, and one word: blanks become hyphens.
QString ownHostName(const std::optional<QString> &fixed);

} // namespace nimb
