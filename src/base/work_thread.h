// A thread that does one thing after the other.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

namespace nimb
{

/// Work is done in the order in which it was put. At its end it waits for what it does just then; the rest is dropped.
class WorkThread
{
public:
    WorkThread() : m_thread([this] { run(); }) { }
    ~WorkThread()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_ends = true;
            m_wake.notify_one();
        }
        m_thread.join();
    }
    WorkThread(const WorkThread &) = delete;
    WorkThread &operator=(const WorkThread &) = delete;

    /// From any thread.
    void put(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(work));
        m_wake.notify_one();
    }

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_wake.wait(lock, [this] { return m_ends || !m_waiting.empty(); });
            if (m_ends)
                return;
            std::function<void()> work = std::move(m_waiting.front());
            m_waiting.pop_front();
            lock.unlock();
            work();
            work = nullptr; // with all that it holds
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_waiting;
    bool m_ends = false;
    std::thread m_thread; ///< last, for it uses the others
};

} // namespace nimb
