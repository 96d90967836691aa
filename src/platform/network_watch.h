// Hears from the system that its networks have changed.
#pragma once

#include "base/network_watch.h"
#include "base/timers.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <memory>
#endif

namespace nimb
{

#ifdef Q_OS_LINUX

/// The kernel itself tells each change; in between nothing wakes the program. Where the system gives no socket for it,
/// nothing is told.
class SystemNetworkWatch : public QObject, public NetworkWatch
{
public:
    /// A change is told this long after its first message, for a card that comes up sends a dozen of them.
    static constexpr std::chrono::milliseconds settlingTime{150};

    explicit SystemNetworkWatch(Timers &timers);
    ~SystemNetworkWatch() override;

    void listen(std::function<void()> changed) override { m_changed = std::move(changed); }

    /// For a test to give it less room for messages.
    int descriptor() const { return m_descriptor; }

private:
    void read();

    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier; ///< goes before its descriptor
    std::unique_ptr<Timer> m_settled;
    std::function<void()> m_changed;
};

#else

/// This system is not asked; a rescan or the next start finds what has changed.
class SystemNetworkWatch : public NetworkWatch
{
public:
    explicit SystemNetworkWatch(const Timers &) { }
    void listen(std::function<void()>) override { }
};

#endif

} // namespace nimb
