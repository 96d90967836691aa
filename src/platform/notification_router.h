// Who shows what: the program's own pop-up, or the desktop.
#pragma once

#include "platform/desktop.h"
#include "platform/desktop_notices.h"
#include "platform/desktop_notifications.h"

#include <optional>

namespace nimb
{

/// What somebody has sent is the desktop's where it has a service for that, and the pop-up's elsewhere. Who comes and
/// goes is the pop-up's, or the desktop's where windows cannot be placed.
class NotificationRouter : public Notifications
{
public:
    /// placed: windows stand where they are put, so that the pop-up can slide in.
    NotificationRouter(const Common &common, Notifications &popUp, bool placed, NoticeReactions reactions);

    void add(const Notification &notification) override;
    void startTimer() override;
    void show(const Notice &notice) override;
    void withdraw(const NoticePlace &place) override;

private:
    void reachDesktop();

    Notifications &m_popUp;
    NoticeReactions m_reactions;
    std::optional<DesktopNotifications> m_comings;
    std::optional<DesktopNotices> m_notices; ///< from the first notice on: until then nothing needs the bus
};

} // namespace nimb
