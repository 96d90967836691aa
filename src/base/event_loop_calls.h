// Calls from threads that come to the thread of the event loop.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace nimb
{

/// Calls are made on the thread that has made this, in the order in which they were put; those that are left when it
/// ends are dropped. They go through a lock of their own: what Qt's queue of events hands over, checkers of races do
/// not see.
class EventLoopCalls : public QObject
{
public:
    using Call = std::function<void()>;

    /// From any thread.
    void put(Call call)
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        // One for each event: a call may run an event loop of its own.
        if (const Call call = takeFirst())
            call();
        return true;
    }

private:
    Call takeFirst()
    {
        const std::lock_guard lock(m_mutex);
        if (m_calls.empty())
            return {};
        Call first = std::move(m_calls.front());
        m_calls.pop_front();
        return first;
    }

    std::mutex m_mutex;
    std::deque<Call> m_calls;
};

} // namespace nimb
