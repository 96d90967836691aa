#include "protocol/arrival_queue.h"

#include <algorithm>
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
    sender->bytes += cost(sender->waiting.back());
    m_bytes += cost(sender->waiting.back());
    if (m_loudest != m_turns.end() && sender->bytes > m_loudest->bytes)
        m_loudest = sender;
    while (m_bytes > m_capacity)
        dropNewestOf(loudest());
}

std::vector<Arrival> ArrivalQueue::take(std::size_t most)
{
    std::vector<Arrival> taken;
    while (taken.size() < most && !isEmpty()) {
        const auto sender = m_turns.begin();
        if (sender == m_loudest)
            m_loudest = m_turns.end(); // another may have more now
        const std::size_t size = cost(sender->waiting.front());
        taken.push_back({sender->address, std::move(sender->waiting.front())});
        sender->waiting.pop_front();
        sender->bytes -= size;
        m_bytes -= size;
        if (sender->waiting.empty())
            forget(sender);
        else
            m_turns.splice(m_turns.end(), m_turns, sender);
    }
    return taken;
}

ArrivalQueue::Losses ArrivalQueue::takeLosses()
{
    return std::exchange(m_losses, {});
}

ArrivalQueue::Turns::iterator ArrivalQueue::turnOf(Ipv4Address source)
{
    const auto known = m_byAddress.find(source.number());
    if (known != m_byAddress.end())
        return known->second;
    const auto sender = m_turns.insert(m_turns.end(), Sender{.address = source, .waiting = {}});
    m_byAddress.emplace(source.number(), sender);
    m_bytes += overhead;
    return sender;
}

ArrivalQueue::Turns::iterator ArrivalQueue::loudest()
{
    if (m_loudest == m_turns.end())
        m_loudest = std::max_element(m_turns.begin(), m_turns.end(),
                                     [](const Sender &one, const Sender &other) { return one.bytes < other.bytes; });
    return m_loudest;
}

void ArrivalQueue::dropNewestOf(Turns::iterator sender)
{
    const bool told = m_losses.size() < sendersTold || m_losses.contains(sender->address);
    ++m_losses[told ? sender->address : Ipv4Address()];
    const std::size_t size = cost(sender->waiting.back());
    sender->waiting.pop_back();
    sender->bytes -= size;
    m_bytes -= size;
    if (sender->waiting.empty())
        forget(sender);
}

void ArrivalQueue::forget(Turns::iterator sender)
{
    if (sender == m_loudest)
        m_loudest = m_turns.end();
    m_bytes -= overhead;
    m_byAddress.erase(sender->address.number());
    m_turns.erase(sender);
}

} // namespace nimb
