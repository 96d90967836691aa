// What a peer has just done, as the main window shows it for a moment: the "activity" panel of its status bar, and a
// row of the contact list that flashes.
#pragma once

#include "base/main_window_view.h"
#include "base/timers.h"
#include "protocol/address_text.h"

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

    /// Turns the eye to the contact with this address.
    void flash(Ipv4Address ip) { m_view.flashContact(addressText(ip)); }

private:
    static constexpr std::chrono::milliseconds timeShown{2500};

    ActivityView &m_view;
    std::unique_ptr<Timer> m_timer2;
};

} // namespace nimb
