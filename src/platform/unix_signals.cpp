#include "platform/unix_signals.h"

#ifdef Q_OS_UNIX

#include <atomic>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb
{
namespace
{

// A signal handler reaches nothing but what is global.
std::atomic<int> wakeDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not wait for a lock");

void writeOneByte(int)
{
    const int kept = errno;
    const char byte = 0;
    // When the pair is full the event loop has been woken already.
    [[maybe_unused]] const auto written = ::write(wakeDescriptor.load(), &byte, 1);
    errno = kept;
}

void neverBlockNorInherit(int descriptor)
{
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> askedToEnd, QObject *parent)
    : QObject(parent), m_askedToEnd(std::move(askedToEnd))
{
    take(m_previous[3], SIGPIPE, SIG_IGN);
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, m_pair.data()) != 0)
        return; // no descriptors left: the signals then end the program at once, as they would without us
    for (const int descriptor : m_pair)
        neverBlockNorInherit(descriptor);
    m_notifier = std::make_unique<QSocketNotifier>(m_pair[1], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &UnixSignals::wake);
    wakeDescriptor = m_pair[0];
    take(m_previous[0], SIGTERM, writeOneByte);
    take(m_previous[1], SIGINT, writeOneByte);
    take(m_previous[2], SIGHUP, writeOneByte);
}

UnixSignals::~UnixSignals()
{
    for (const Previous &previous : m_previous) {
        if (previous.signal != 0)
            ::sigaction(previous.signal, &previous.action, nullptr);
    }
    wakeDescriptor = -1;
    m_notifier.reset();
    for (const int descriptor : m_pair) {
        if (descriptor != -1)
            ::close(descriptor);
    }
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
    std::array<char, 64> bytes;
    while (::read(m_pair[1], bytes.data(), bytes.size()) > 0) { }
    if (m_askedToEnd)
        m_askedToEnd();
}

} // namespace nimb

#endif
