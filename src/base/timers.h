// Timers and the wall clock, as the engine uses them.
#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace nimb
{

/// A timer that can be started again while it runs: the interval then counts from the new start.
class Timer
{
public:
    virtual ~Timer() = default;
    virtual void start() = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;
};

/// Makes timers. They are stopped when made, fire on the thread of the event loop, and die with the pointer.
class Timers
{
public:
    virtual ~Timers() = default;
    virtual std::unique_ptr<Timer> oneShot(std::chrono::milliseconds interval, std::function<void()> fired) = 0;
    virtual std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval, std::function<void()> fired) = 0;
};

class WallClock
{
public:
    virtual ~WallClock() = default;
    /// Local date and time.
    virtual QDateTime now() const = 0;
};

} // namespace nimb
