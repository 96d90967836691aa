// Who comes and goes, shown by the desktop where the program cannot place windows of its own.
#pragma once

#include "base/Common.h"
#include "base/notifications.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QObject>

#include <vector>

namespace nimb
{

/// Speaks to org.freedesktop.Notifications on the session bus. One notification at a time: while it stands, what is
/// new is added to it. Never waits. What the service was asked to show and could not is dropped; what came meanwhile
/// it is asked for anew.
class DesktopNotifications : public QObject
{
    Q_OBJECT

public:
    DesktopNotifications(const Common &common, QDBusConnection bus);
    /// True where windows stand where the desktop puts them. Needs the application object.
    static bool areNeeded();

    /// The list keeps limits::notifications rows.
    void add(const Notification &notification);
    /// Shows them.
    void startTimer();

Q_SIGNALS:
    /// The notification was clicked; ip: the contact that the newest row is about.
    void contactWanted(nimb::Ipv4Address ip);

private:
    Q_SLOT void actionInvoked(uint id, const QString &action);
    Q_SLOT void notificationClosed(uint id, uint reason);

    enum class Exchange { idle, pending, pendingAgain };

    void askForCapabilities();
    void show();
    void shown(bool accepted, uint id);
    QString body() const;
    void dropAskedRows();

    const Common &m_common;
    QDBusConnection m_bus;
    std::vector<Notification> m_rows; ///< of the notification, the oldest first
    std::size_t m_askedRows = 0;      ///< how many of them the service was asked to show last
    uint m_id = 0;                    ///< as the service numbers it; 0 when none stands
    Exchange m_exchange = Exchange::idle;
    bool m_knowsCapabilities = false;
    bool m_bodyIsMarkup = false;
};

} // namespace nimb
