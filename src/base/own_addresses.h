// Which addresses this machine has, as the rules for contacts ask for them.
#pragma once

#include "protocol/ipv4_address.h"

#include <QString>

#include <optional>
#include <vector>

namespace nimb
{

/// One of this machine's cards, and how everybody on its network is reached.
struct NetworkCard {
    QString name;        ///< the system's
    Ipv4Address address; ///< of this machine there
    /// Of everybody there. Nothing where nobody else would hear it: a line to a single machine, or a network of
    /// containers and virtual machines.
    std::optional<Ipv4Address> broadcast{};
    bool isInsideMachine{}; ///< it joins nobody but containers and virtual machines of this one
    bool operator==(const NetworkCard &) const = default;
};

/// They change while the program runs, with every network that comes and goes.
class OwnAddresses
{
public:
    virtual ~OwnAddresses() = default;
    /// Whatever is sent there comes back to this copy. Loopback addresses do not count: other copies on this machine
    /// may have them.
    [[nodiscard]] virtual bool isOwn(Ipv4Address address) const = 0;
    /// Everybody on one of this machine's networks hears what is sent there.
    [[nodiscard]] virtual bool isBroadcast(Ipv4Address address) const = 0;
    /// Whoever started the program has fixed the own one, and nothing leaves from another.
    [[nodiscard]] virtual bool isFixed() const = 0;
    /// The one from which the system would send what is meant for that peer; nothing where it knows no way there.
    [[nodiscard]] virtual std::optional<Ipv4Address> sourceTowards(Ipv4Address peer) const = 0;
    [[nodiscard]] bool hasWayTo(Ipv4Address peer) const { return sourceTowards(peer).has_value(); }
    /// Those that run, without loopback. One with several addresses is there with each of them.
    [[nodiscard]] virtual std::vector<NetworkCard> cards() const = 0;
    /// The networks have changed: what is remembered of them is out of date.
    virtual void readAnew() = 0;
};

/// The address of the card with that name; nothing where it does not run.
inline std::optional<Ipv4Address> addressOfCard(const OwnAddresses &own, const QString &name)
{
    for (const NetworkCard &card : own.cards()) {
        if (card.name == name)
            return card.address;
    }
    return std::nullopt;
}

} // namespace nimb
