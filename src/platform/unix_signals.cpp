#include "platform/unix_signals.h"

#include <atomic>
#include <utility>

namespace nimb
{
namespace
{

// A signal handler reaches nothing but what is global.
std::atomic<WakePipe::Handle> wakeDescriptor = WakePipe::none;
static_assert(std::atomic<WakePipe::Handle>::is_always_lock_free, "a signal handler must not wait for a lock");

void wakeEventLoop(int)
{
    WakePipe::wake(wakeDescriptor.load());
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> askedToEnd, QObject *parent)
    : QObject(parent), m_askedToEnd(std::move(askedToEnd))
{
    take(m_previous[3], SIGPIPE, SIG_IGN);
    if (!m_pipe.isOpen())
        return; // the signals then end the program at once, as they would without us
    m_notifier = std::make_unique<WakeNotifier>(m_pipe.readable(), [this] { wake(); });
    wakeDescriptor = m_pipe.writable();
    take(m_previous[0], SIGTERM, wakeEventLoop);
    take(m_previous[1], SIGINT, wakeEventLoop);
    take(m_previous[2], SIGHUP, wakeEventLoop);
}

UnixSignals::~UnixSignals()
{
    for (const Previous &previous : m_previous) {
        if (previous.signal != 0)
            ::sigaction(previous.signal, &previous.action, nullptr);
    }
    wakeDescriptor = WakePipe::none;
}

void UnixSignals::take(Previous &previous, int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    if (::sigaction(signal, &action, &previous.action) == 0)
        previous.signal = signal;
}

void UnixSignals::wake()
{
    m_pipe.calm();
    if (m_askedToEnd)
        m_askedToEnd();
}

} // namespace nimb
