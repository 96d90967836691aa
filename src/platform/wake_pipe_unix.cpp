#include "platform/wake_pipe.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <iterator>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nimb
{
namespace
{

void neverBlockNorInherit(int descriptor)
{
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

} // namespace

WakePipe::WakePipe()
{
    std::array<int, 2> pair = {};
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) != 0)
        return;
    for (const int descriptor : pair)
        neverBlockNorInherit(descriptor);
    m_reading = pair[0];
    m_writing = pair[1];
}

WakePipe::~WakePipe()
{
    for (const Handle descriptor : {m_reading, m_writing}) {
        if (descriptor != none)
            ::close(static_cast<int>(descriptor));
    }
}

void WakePipe::wake(Handle writable)
{
    const int kept = errno;
    const char byte = 0;
    // When the pair is full its reader has been woken already.
    [[maybe_unused]] const auto written = ::write(static_cast<int>(writable), &byte, 1);
    errno = kept;
}

void WakePipe::calm() const
{
    std::array<char, 64> bytes;
    while (::read(static_cast<int>(m_reading), bytes.data(), bytes.size()) == std::ssize(bytes)) { }
}

class WakeNotifier::Watch : public QSocketNotifier
{
public:
    using QSocketNotifier::QSocketNotifier;
};

WakeNotifier::WakeNotifier(WakePipe::Handle readable, std::function<void()> woken)
    : m_watch(std::make_unique<Watch>(static_cast<qintptr>(readable), QSocketNotifier::Read))
{
    connect(m_watch.get(), &QSocketNotifier::activated, this, [woken = std::move(woken)] { woken(); });
}

WakeNotifier::~WakeNotifier() = default;

void WakeNotifier::setEnabled(bool enabled)
{
    m_watch->setEnabled(enabled);
}

} // namespace nimb
