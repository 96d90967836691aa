// Large answers go to the same contact only now and then.
#pragma once

#include "base/limits.h"
#include "base/timers.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace nimb
{

/// Answers whoever asks, and the same one about once in limits::answerPause: a further question waits until then, and
/// all that come while it waits are answered with it. Key tells who asks, and for what.
template <class Key> class PacedAnswers
{
public:
    PacedAnswers(Timers &timers, std::function<void(const Key &)> answer)
        : m_answer(std::move(answer)), m_timer(timers.repeating(limits::answerPause / ticksOfPause, [this] { tick(); }))
    {
    }

    /// False when the question adds nothing to one that waits.
    bool ask(const Key &key)
    {
        if (const auto recent = m_recent.find(key); recent != m_recent.end())
            return !std::exchange(recent->second, true);
        give(key);
        return true;
    }

private:
    static constexpr int ticksOfPause = 10;

    struct Given {
        Key key;
        std::uint64_t tick = 0;
    };

    void give(const Key &key)
    {
        m_given.push_back({key, m_tick});
        m_recent[key] = false;
        if (!m_timer->isActive())
            m_timer->start();
        m_answer(key);
    }

    void tick()
    {
        ++m_tick;
        while (!m_given.empty() && m_tick - m_given.front().tick >= ticksOfPause) {
            const Key key = m_given.front().key;
            m_given.pop_front();
            if (m_recent.extract(key).mapped())
                give(key);
        }
        if (m_given.empty())
            m_timer->stop();
    }

    std::function<void(const Key &)> m_answer;
    std::unique_ptr<Timer> m_timer;
    std::uint64_t m_tick = 0;
    std::deque<Given> m_given;    ///< the oldest first, no two with one key
    std::map<Key, bool> m_recent; ///< the keys of those, and whether a further question waits
};

} // namespace nimb
