#include "platform/wake_pipe.h"

#include <QWinEventNotifier>

#include <utility>

#include <qt_windows.h>

namespace nimb
{
namespace
{

HANDLE handleOf(WakePipe::Handle handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

} // namespace

WakePipe::WakePipe()
{
    constexpr BOOL byHand = TRUE, unset = FALSE;
    if (HANDLE const event = CreateEventW(nullptr, byHand, unset, nullptr)) {
        m_reading = reinterpret_cast<Handle>(event);
        m_writing = m_reading;
    }
}

WakePipe::~WakePipe()
{
    if (m_reading != none)
        CloseHandle(handleOf(m_reading));
}

void WakePipe::wake(Handle writable)
{
    SetEvent(handleOf(writable));
}

void WakePipe::calm() const
{
    ResetEvent(handleOf(m_reading));
}

class WakeNotifier::Watch : public QWinEventNotifier
{
public:
    using QWinEventNotifier::QWinEventNotifier;
};

WakeNotifier::WakeNotifier(WakePipe::Handle readable, std::function<void()> woken)
    : m_watch(std::make_unique<Watch>(handleOf(readable)))
{
    connect(m_watch.get(), &QWinEventNotifier::activated, this, [woken = std::move(woken)] { woken(); });
}

WakeNotifier::~WakeNotifier() = default;

void WakeNotifier::setEnabled(bool enabled)
{
    m_watch->setEnabled(enabled);
}

} // namespace nimb
