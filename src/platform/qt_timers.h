// Timers and the clock of the real world.
#pragma once

#include "base/timers.h"

namespace nimb
{

/// A timer may be destroyed from within its own call. Intervals below 100 ms are kept exactly, longer ones to 5 %.
class QtTimers : public Timers
{
public:
    std::unique_ptr<Timer> oneShot(std::chrono::milliseconds interval, std::function<void()> fired) override;
    std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval, std::function<void()> fired) override;
};

class SystemClock : public WallClock
{
public:
    QDateTime now() const override;
};

} // namespace nimb
