#include "platform/desktop.h"
#include "platform/desktop_appearance.h"
#include "platform/notification_router.h"

namespace nimb
{

bool windowsStandWherePut()
{
    return !DesktopNotifications::areNeeded();
}

std::unique_ptr<Notifications> routeNotifications(const Common &common, Notifications &popUp, bool placed,
                                                  NoticeReactions reactions)
{
    return std::make_unique<NotificationRouter>(common, popUp, placed, std::move(reactions));
}

void followAppearance(QObject &application, std::function<void(const Appearance &)> changed)
{
    auto *const desktop = new DesktopAppearance(QDBusConnection::sessionBus());
    desktop->setParent(&application);
    QObject::connect(desktop, &DesktopAppearance::changed, &application, std::move(changed));
}

} // namespace nimb
