#include "protocol/arrival_queue.h"

#include <iterator>
#include <utility>

namespace nimb
{
namespace
{

/// Addresses can be forged without end; the losses of those beyond this many are told as nobody's.
constexpr std::size_t sendersTold = 1000;

} // namespace

void ArrivalQueue::push(Ipv4Address source, std::string_view bytes)
{
    const auto sender = turnOf(source);
    sender->waiting.emplace_back(bytes);
    nowHas(sender, sender->bytes + cost(sender->waiting.back()));
    while (m_bytes > m_capacity) {
        rank();
        dropNewestOf(whoLoses(sender));
    }
}

ArrivalQueue::Turns::iterator ArrivalQueue::whoLoses(Turns::iterator arriving)
{
    const auto loudest = [this](const auto &loud) { return m_byAddress.at(loud.rbegin()->second); };
    const bool spareAcquaintances = m_acquaintancesBytes <= m_capacity / 2;
    if (!m_loud->acquaintances.empty() && !spareAcquaintances)
        return loudest(m_loud->acquaintances);
    if (!m_loud->others.empty())
        return loudest(m_loud->others);
    if (!arriving->isAcquainted || m_othersTurns.empty())
        return m_othersTurns.empty() && !m_loud->acquaintances.empty() ? loudest(m_loud->acquaintances) : arriving;
    return std::prev(m_othersTurns.end());
}

void ArrivalQueue::setAcquainted(Ipv4Address sender, bool acquainted)
{
    if (acquainted)
        m_acquaintances.insert(sender);
    else
        m_acquaintances.erase(sender);
    const auto waiting = m_byAddress.find(sender);
    if (waiting == m_byAddress.end() || waiting->second->isAcquainted == acquainted)
        return;
    // It is ranked anew among the others when the next datagram has no room.
    m_loud.reset();
    m_acquaintancesBytes += acquainted ? waiting->second->bytes : -waiting->second->bytes;
    Turns &former = turnsOf(*waiting->second);
    waiting->second->isAcquainted = acquainted;
    Turns &turns = turnsOf(*waiting->second);
    turns.splice(turns.end(), former, waiting->second);
}

std::vector<Arrival> ArrivalQueue::take(std::size_t most)
{
    std::vector<Arrival> taken;
    while (taken.size() < most && !isEmpty()) {
        const auto sender = nextTurn();
        const std::size_t size = cost(sender->waiting.front());
        taken.push_back({sender->address, std::move(sender->waiting.front())});
        sender->waiting.pop_front();
        Turns &turns = turnsOf(*sender);
        turns.splice(turns.end(), turns, sender);
        nowHas(sender, sender->bytes - size);
    }
    if (m_bytes < m_capacity / 2)
        m_loud.reset();
    return taken;
}

ArrivalQueue::Losses ArrivalQueue::takeLosses()
{
    return std::exchange(m_losses, {});
}

ArrivalQueue::Turns::iterator ArrivalQueue::turnOf(Ipv4Address source)
{
    const auto known = m_byAddress.find(source);
    if (known != m_byAddress.end())
        return known->second;
    Sender made{.address = source, .isAcquainted = m_acquaintances.contains(source), .waiting = {}};
    Turns &turns = turnsOf(made);
    const auto sender = turns.insert(turns.end(), std::move(made));
    m_byAddress.emplace(source, sender);
    m_bytes += overhead;
    m_acquaintancesBytes += sender->isAcquainted ? overhead : 0;
    return sender;
}

ArrivalQueue::Turns::iterator ArrivalQueue::nextTurn()
{
    const bool othersHaveWaited = m_sinceOthersTurn >= turnsOfAcquaintances && !m_othersTurns.empty();
    if (othersHaveWaited || m_acquaintancesTurns.empty()) {
        m_sinceOthersTurn = 0;
        return m_othersTurns.begin();
    }
    m_sinceOthersTurn += m_othersTurns.empty() ? 0 : 1;
    return m_acquaintancesTurns.begin();
}

void ArrivalQueue::rank()
{
    if (m_loud)
        return;
    m_loud.emplace();
    for (const auto &[address, sender] : m_byAddress) {
        if (sender->waiting.size() > 1)
            loudAmong(*sender).emplace(sender->bytes, address);
    }
}

void ArrivalQueue::dropNewestOf(Turns::iterator sender)
{
    const bool told = m_losses.size() < sendersTold || m_losses.contains(sender->address);
    ++m_losses[told ? sender->address : Ipv4Address()];
    const std::size_t size = cost(sender->waiting.back());
    sender->waiting.pop_back();
    nowHas(sender, sender->bytes - size);
}

/// After a datagram of that sender came or went.
void ArrivalQueue::nowHas(Turns::iterator sender, std::size_t bytes)
{
    if (m_loud)
        loudAmong(*sender).erase({sender->bytes, sender->address});
    m_bytes = m_bytes - sender->bytes + bytes;
    if (sender->isAcquainted)
        m_acquaintancesBytes = m_acquaintancesBytes - sender->bytes + bytes;
    sender->bytes = bytes;
    if (sender->waiting.empty())
        forget(sender);
    else if (m_loud && sender->waiting.size() > 1)
        loudAmong(*sender).emplace(bytes, sender->address);
}

void ArrivalQueue::forget(Turns::iterator sender)
{
    m_bytes -= overhead;
    m_acquaintancesBytes -= sender->isAcquainted ? overhead : 0;
    m_byAddress.erase(sender->address);
    turnsOf(*sender).erase(sender);
}

} // namespace nimb
