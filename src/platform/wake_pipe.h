// Waking another thread, or the event loop from inside a signal handler, by a descriptor that becomes readable.
#pragma once

namespace nimb
{

/// A pair of descriptors that never block and are not inherited by child processes.
class WakePipe
{
public:
    /// Without descriptors when the system has none left.
    WakePipe();
    ~WakePipe();
    WakePipe(const WakePipe &) = delete;
    WakePipe &operator=(const WakePipe &) = delete;

    bool isOpen() const { return m_reading != none; }
    /// Readable from wake() on until calm(); -1 when there is none.
    int readable() const { return m_reading; }
    /// What wake(int) takes; -1 when there is none.
    int writable() const { return m_writing; }
    void wake() const { wake(m_writing); }
    /// May be called by a signal handler.
    static void wake(int writable);
    void calm() const;

private:
    static constexpr int none = -1;

    int m_reading = none;
    int m_writing = none;
};

} // namespace nimb
