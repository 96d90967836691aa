// Hears from the system that its networks have changed.
#pragma once

#include "base/network_watch.h"
#include "base/timers.h"
#include "platform/settled_change.h"

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <memory>

namespace nimb
{

/// The kernel itself tells each change, and that the machine has slept; in between nothing wakes the program. Where the
/// system gives no descriptor for it, nothing is told.
class SystemNetworkWatch : public QObject, public NetworkWatch
{
public:
    /// How long the machine has slept since it was switched on.
    using Slept = std::function<std::chrono::nanoseconds()>;

    explicit SystemNetworkWatch(Timers &timers, Slept slept = sleptOfMachine);
    ~SystemNetworkWatch() override;

    void listen(std::function<void(NetworkChange)> changed) override { m_settled.listen(std::move(changed)); }

    /// For a test to give it less room for messages.
    int descriptor() const { return m_descriptor; }

    static std::chrono::nanoseconds sleptOfMachine();

private:
    /// Calls the procedure when the descriptor has something to say; empty where there is no descriptor.
    std::unique_ptr<QSocketNotifier> notifier(int descriptor, void (SystemNetworkWatch::*procedure)());
    void read();
    void readClock();

    int m_descriptor; ///< of netlink
    int m_clock;      ///< a timer that never ends, and tells when the clock makes a leap, as it does after a sleep
    Slept m_slept;
    std::chrono::nanoseconds m_sleptBefore;
    std::unique_ptr<QSocketNotifier> m_notifier, m_clockNotifier; ///< they go before their descriptors
    SettledChange m_settled;
};

} // namespace nimb
