// The notification window, as the engine uses it.
#pragma once

#include "base/presence.h"
#include "protocol/ipv4_address.h"

#include <QString>

namespace nimb
{

struct Notification {
    QString text;
    Presence presence = Presence::online; ///< what the contact has become
    Ipv4Address ip;                       ///< of the contact it is about
};

class Notifications
{
public:
    virtual ~Notifications() = default;
    /// Adds a row. The list keeps limits::notifications rows.
    virtual void add(const Notification &notification) = 0;
    /// Starts the timer that brings the window into view.
    virtual void startTimer() = 0;
};

} // namespace nimb
