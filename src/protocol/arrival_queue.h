// What the socket's reader took from the system and the engine has not seen yet.
#pragma once

#include "protocol/ipv4_address.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nimb
{

struct Arrival {
    Ipv4Address source;
    std::string bytes;
};

/// Datagrams in the order in which the engine gets them: in turn by sender, so that one who sends without pause keeps
/// nobody else waiting, and those of one sender as they came. While both wait, acquaintances have several turns for one
/// of the others: however many strangers there are, they keep no acquaintance waiting, and none of them waits for ever.
/// What all datagrams take has a bound; beyond it strangers lose before acquaintances, as long as those do not fill
/// half of the room: whoever has the most bytes of those with two datagrams or more loses the newest; when no stranger
/// has two, the one that arrives is lost, or, when it is an acquaintance's, that of the stranger whose turn would come
/// last. However many strangers send, the only datagram of one stays unless an acquaintance needs its room. No step
/// takes longer than the logarithm of the number of senders, whom others can forge, but for one each time that the room
/// runs out. Belongs to one thread at a time.
class ArrivalQueue
{
public:
    /// Datagrams of one sender that had no room.
    using Losses = std::map<Ipv4Address, std::uint64_t>;

    /// Bytes that each datagram, and each sender with one, counts beside the text: what its nodes take.
    static constexpr std::size_t overhead = 128;

    /// Turns of acquaintances for each one of the others, while both wait.
    static constexpr int turnsOfAcquaintances = 7;

    /// capacity: bytes of all that waits, overhead included.
    explicit ArrivalQueue(std::size_t capacity, std::set<Ipv4Address> acquaintances = {})
        : m_capacity(capacity), m_acquaintances(std::move(acquaintances))
    {
    }

    /// Whether the sender is one of those who go first, from now on. What has arrived stays in its order.
    void setAcquainted(Ipv4Address sender, bool acquainted);

    bool isEmpty() const { return m_byAddress.empty(); }
    std::size_t bytes() const { return m_bytes; }

    void push(Ipv4Address source, std::string_view bytes);
    /// The next ones, at most so many.
    std::vector<Arrival> take(std::size_t most);
    /// Who lost how many since the last call.
    Losses takeLosses();

private:
    struct Sender {
        Ipv4Address address;
        bool isAcquainted = false;
        std::size_t bytes = overhead;
        std::list<std::string> waiting;
    };
    using Turns = std::list<Sender>;

    std::set<std::pair<std::size_t, Ipv4Address>> &loudAmong(const Sender &sender)
    {
        return sender.isAcquainted ? m_loud->acquaintances : m_loud->others;
    }
    static std::size_t cost(const std::string &datagram) { return datagram.size() + overhead; }
    Turns &turnsOf(const Sender &sender) { return sender.isAcquainted ? m_acquaintancesTurns : m_othersTurns; }
    Turns::iterator turnOf(Ipv4Address source);
    Turns::iterator nextTurn();
    void rank();
    Turns::iterator whoLoses(Turns::iterator arriving);
    void dropNewestOf(Turns::iterator sender);
    void nowHas(Turns::iterator sender, std::size_t bytes);
    void forget(Turns::iterator sender);

    std::size_t m_capacity;
    std::size_t m_bytes = 0;
    std::size_t m_acquaintancesBytes = 0;
    std::set<Ipv4Address> m_acquaintances;
    Turns m_acquaintancesTurns, m_othersTurns;          ///< each with something waiting, the next one first
    int m_sinceOthersTurn = 0;                          ///< turns of acquaintances for which somebody else had to wait
    std::map<Ipv4Address, Turns::iterator> m_byAddress; ///< no hash table: addresses can be forged to share a place
    /// Bytes of each with two or more waiting. Kept from a lack of room on until half of it is free, for while there is
    /// room it would only make the reader slower.
    struct Loud {
        std::set<std::pair<std::size_t, Ipv4Address>> acquaintances, others;
    };
    std::optional<Loud> m_loud;
    Losses m_losses;
};

} // namespace nimb
