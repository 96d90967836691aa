#include "platform/qt_timers.h"

#include <QTimer>

#include <utility>

namespace nimb
{
namespace
{

class QtTimer : public Timer
{
public:
    QtTimer(std::chrono::milliseconds interval, bool singleShot, std::function<void()> fired)
    {
        m_timer.setInterval(interval);
        m_timer.setSingleShot(singleShot);
        // Otherwise it may come a twentieth of its time too early.
        m_timer.setTimerType(Qt::PreciseTimer);
        // The function may destroy this timer, and with it the place where the function was kept.
        m_timer.callOnTimeout([kept = std::move(fired)] {
            const auto running = kept;
            running();
        });
    }

    void start() override { m_timer.start(); }
    void stop() override { m_timer.stop(); }
    bool isActive() const override { return m_timer.isActive(); }

private:
    QTimer m_timer;
};

} // namespace

std::unique_ptr<Timer> QtTimers::oneShot(std::chrono::milliseconds interval, std::function<void()> fired)
{
    return std::make_unique<QtTimer>(interval, true, std::move(fired));
}

std::unique_ptr<Timer> QtTimers::repeating(std::chrono::milliseconds interval, std::function<void()> fired)
{
    return std::make_unique<QtTimer>(interval, false, std::move(fired));
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

} // namespace nimb
