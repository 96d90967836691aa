// Large answers go to the same contact only now and then.
#pragma once

#include "base/timers.h"
#include "protocol/address_text.h"

#include <QSet>

#include <deque>

namespace nimb
{

/// Remembers who has had an answer within limits::answerPause.
class AnswerPause
{
public:
    explicit AnswerPause(const WallClock &clock) : m_clock(clock) { }

    /// Whether this contact may have an answer now. If so, it counts as given.
    [[nodiscard]] bool take(Ipv4Address ip);

private:
    struct Answer {
        Ipv4Address ip;
        qint64 given = 0; ///< milliseconds of the clock
    };

    const WallClock &m_clock;
    std::deque<Answer> m_answers; ///< the oldest first, no two for one contact
    QSet<Ipv4Address> m_answered;
};

} // namespace nimb
