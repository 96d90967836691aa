// Waking another thread, or the event loop from inside a signal handler, by something that it can wait for.
#pragma once

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>

namespace nimb
{

/// On Unix a pair of descriptors that never block, on Windows an event; child processes inherit neither.
class WakePipe
{
public:
    /// What the system waits for: a descriptor, or a handle as wide as a pointer.
    using Handle = std::intptr_t;
    static constexpr Handle none = -1;

    /// Without descriptors when the system has none left.
    WakePipe();
    ~WakePipe();
    WakePipe(const WakePipe &) = delete;
    WakePipe &operator=(const WakePipe &) = delete;

    bool isOpen() const { return m_reading != none; }
    /// Readable, or set, from wake() on until calm(); none when there is none.
    Handle readable() const { return m_reading; }
    /// What wake(Handle) takes; none when there is none.
    Handle writable() const { return m_writing; }
    void wake() const { wake(m_writing); }
    /// May be called by a signal handler.
    static void wake(Handle writable);
    void calm() const;

private:
    Handle m_reading = none;
    Handle m_writing = none;
};

/// Calls a function from the event loop as long as what it watches is readable. Goes before what it watches; its end
/// may be left to the event loop with QObject::deleteLater().
class WakeNotifier : public QObject
{
public:
    WakeNotifier(WakePipe::Handle readable, std::function<void()> woken);
    ~WakeNotifier() override;
    void setEnabled(bool enabled);

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
};

} // namespace nimb
