// Time that passes only when a test says so.
#pragma once

#include "base/timers.h"

#include <set>

namespace nimb::test
{

class VirtualTime : public Timers, public WallClock
{
public:
    /// 21 November 2026, 14:05:09: an hour and a day that look different in every form of date.
    VirtualTime() : m_start(QDate(2026, 11, 21), QTime(14, 5, 9)) { }

    std::unique_ptr<Timer> oneShot(std::chrono::milliseconds interval, std::function<void()> fired) override
    {
        return std::make_unique<VirtualTimer>(*this, interval, std::move(fired), false);
    }
    std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval, std::function<void()> fired) override
    {
        return std::make_unique<VirtualTimer>(*this, interval, std::move(fired), true);
    }
    QDateTime now() const override { return m_start.addMSecs(m_now.count()); }
    std::chrono::milliseconds elapsed() const { return m_now; }

    /// Lets this much time pass; timers fire in the order of their times.
    void advance(std::chrono::milliseconds time)
    {
        const std::chrono::milliseconds end = m_now + time;
        while (!m_running.empty() && (*m_running.begin())->m_due <= end) {
            VirtualTimer *const next = *m_running.begin();
            m_now = next->m_due;
            next->fire();
        }
        m_now = end;
    }

    /// How many timers exist, running or not.
    int timers() const { return m_timers; }

    /// When the next timer fires, counted from the start; empty when none runs.
    std::optional<std::chrono::milliseconds> nextDue() const
    {
        return m_running.empty() ? std::nullopt : std::optional((*m_running.begin())->m_due);
    }

private:
    class VirtualTimer : public Timer
    {
    public:
        VirtualTimer(VirtualTime &time, std::chrono::milliseconds interval, std::function<void()> fired, bool repeats)
            : m_time(time), m_interval(interval), m_fired(std::move(fired)), m_repeats(repeats)
        {
            ++m_time.m_timers;
        }
        ~VirtualTimer() override
        {
            stop();
            --m_time.m_timers;
        }

        void start() override
        {
            stop();
            m_due = m_time.m_now + m_interval;
            m_order = ++m_time.m_starts;
            m_active = m_time.m_running.insert(this).second;
        }
        void stop() override
        {
            if (m_active)
                m_time.m_running.erase(this);
            m_active = false;
        }
        bool isActive() const override { return m_active; }
        void fire()
        {
            stop();
            if (m_repeats)
                start();
            // The function may destroy this timer, and with it the place where the function was kept.
            const auto running = m_fired;
            running();
        }

        VirtualTime &m_time;
        std::chrono::milliseconds m_interval;
        std::function<void()> m_fired;
        bool m_repeats;
        bool m_active = false;
        std::chrono::milliseconds m_due{0};
        std::uint64_t m_order = 0;
    };

    struct Sooner {
        bool operator()(const VirtualTimer *left, const VirtualTimer *right) const
        {
            return std::pair(left->m_due, left->m_order) < std::pair(right->m_due, right->m_order);
        }
    };

    QDateTime m_start;
    std::chrono::milliseconds m_now{0};
    std::uint64_t m_starts = 0;
    int m_timers = 0;
    std::set<VirtualTimer *, Sooner> m_running;
};

} // namespace nimb::test
