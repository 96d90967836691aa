// Tells a change of the networks once, however many messages the system has for it.
#pragma once

#include "base/network_watch.h"
#include "base/timers.h"

#include <chrono>
#include <functional>
#include <memory>

namespace nimb
{

class SettledChange
{
public:
    /// A change is told this long after its first message, for a card that comes up sends a dozen of them.
    static constexpr std::chrono::milliseconds settlingTime{150};

    explicit SettledChange(Timers &timers);

    void listen(std::function<void(NetworkChange)> changed);
    void note(NetworkChange change);

private:
    std::unique_ptr<Timer> m_settled;
    NetworkChange m_noted = NetworkChange::networks; ///< since the timer was started
    std::function<void(NetworkChange)> m_changed;
};

} // namespace nimb
