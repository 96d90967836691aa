// The "activity" panel of the main window's status bar: what a peer has just done.
#pragma once

#include "base/main_window_view.h"
#include "base/timers.h"

namespace nimb
{

class Activity
{
public:
    Activity(Timers &timers, ActivityView &view)
        : m_view(view), m_timer2(timers.oneShot(timeShown, [&view] { view.setActivityPanel({}); }))
    {
    }

    /// Shows the text until timeShown has gone by without another one.
    void show(const QString &text)
    {
        m_view.setActivityPanel(text);
        m_timer2->start();
    }

private:
    static constexpr std::chrono::milliseconds timeShown{2500};

    ActivityView &m_view;
    std::unique_ptr<Timer> m_timer2;
};

} // namespace nimb
