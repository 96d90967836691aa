// What only the system knows of why somebody is not reached.
#pragma once

#include "base/own_addresses.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace nimb
{

/// Which process listens on a port.
struct PortHolder {
    QString program; ///< empty where the system does not tell: it is another user's
    qint64 process = 0;
    QString profile{}; ///< folder of the settings that NIMB-Chat would use there; empty where the system does not tell
    bool operator==(const PortHolder &) const = default;
};

struct Firewall {
    enum class Verdict {
        none,       ///< there is none, as far as one can see
        lets,       ///< it lets our datagrams in
        blocks,     ///< it keeps them out
        forSome,    ///< it has rules of which we cannot say whom they concern
        unknown,    ///< only the administrator may see whether there is one
        noReader,   ///< there may be one whose rules nothing here can read
        unreadable, ///< it is on, and only the administrator may read its rules
    };
    Verdict verdict = Verdict::none;
    QString name{};    ///< "ufw", "firewalld" or "nftables"
    QString opening{}; ///< the command that opens the port
    bool operator==(const Firewall &) const = default;
};

/// What the table of neighbours says of an address after something has been sent there.
enum class Neighbour {
    known,   ///< a machine with that address is on this network
    unknown, ///< nobody there has said that the address is his
    farAway, ///< the address is on another network: a router would know
};

class NetworkDiagnosis
{
public:
    virtual ~NetworkDiagnosis() = default;
    /// Who listens at this port of this address, or without one at that of any address of this machine. Nothing where
    /// nobody does, or the system does not tell.
    [[nodiscard]] virtual std::optional<PortHolder> holderOf(std::uint16_t port,
                                                             std::optional<Ipv4Address> address) const = 0;
    /// Bytes that the system grants for waiting datagrams; 0 where it grants none.
    [[nodiscard]] virtual int receiveBufferBytes() const = 0;
    /// Sends an empty datagram to everybody on the card's network, at the port where whatever comes is thrown away
    /// (RFC 863). False when the system refuses.
    [[nodiscard]] virtual bool canBroadcast(const NetworkCard &card) const = 0;
    /// Asks what firewall there is and calls read once, later, unless this object has gone by then.
    virtual void readFirewall(std::uint16_t port, std::function<void(const Firewall &)> read) = 0;
    [[nodiscard]] virtual Neighbour neighbour(Ipv4Address address) const = 0;
    /// A card that leads to a single machine, as a VPN does.
    [[nodiscard]] virtual bool isTunnel(const QString &card) const = 0;
};

} // namespace nimb
