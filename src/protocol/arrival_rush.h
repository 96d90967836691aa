// When the one who handles datagrams leaves the processor to the one who reads them.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>

namespace nimb
{

/// Whether datagrams come faster than anybody writes them: a small receive buffer is full after two milliseconds then.
class ArrivalRush
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// After so long with fewer than `fewest` datagrams it is over.
    static constexpr std::chrono::milliseconds window{2};
    /// After so long with none it is over as well.
    static constexpr std::chrono::milliseconds silence{1};
    /// Within a window, 16,000 a second.
    static constexpr std::size_t fewest = 32;

    /// Nothing came for so long as `silence` says.
    void pause()
    {
        m_isOn = false;
        m_count = 0;
    }

    /// So many were read.
    void note(std::size_t datagrams, Time now)
    {
        if (now - m_start >= window) {
            m_isOn = m_count >= fewest && now - m_start < 2 * window;
            m_start = now;
            m_count = 0;
        }
        m_count += datagrams;
        m_isOn = m_isOn || m_count >= fewest;
    }

    bool isOn() const { return m_isOn; }

private:
    Time m_start;
    std::size_t m_count = 0;
    bool m_isOn = false;
};

/// How long the one who handles may still be kept waiting: a rush that does not end must not stop the program. What was
/// spent comes back at half the speed of the clock.
class ReadersLead
{
public:
    using Time = ArrivalRush::Time;
    using Duration = Time::duration;

    /// longest: at a time, between which something is handled. most: in all, of a rush that comes after a pause.
    ReadersLead(Duration longest, Duration most) : m_longest(longest), m_most(most), m_left(most) { }

    Duration allowed(Time now)
    {
        m_left = std::min(m_most, m_left + (now - m_last) / 2);
        m_last = now;
        return m_left < m_longest ? Duration::zero() : m_longest;
    }

    /// Since the last call of allowed().
    void spent(Time now)
    {
        m_left -= now - m_last;
        m_last = now;
    }

private:
    Duration m_longest;
    Duration m_most;
    Duration m_left;
    Time m_last;
};

} // namespace nimb
