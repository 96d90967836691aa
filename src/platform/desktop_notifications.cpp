#include "platform/desktop_notifications.h"

#include "base/limits.h"
#include "platform/notification_service.h"

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

#include <utility>

namespace nimb
{
namespace
{

const QString defaultAction = QStringLiteral("default");
constexpr int displayTime = 5000; // ms
/// Desktops show a few lines and cut the rest.
constexpr std::size_t shownRows = 5;

} // namespace

DesktopNotifications::DesktopNotifications(const Common &common, QDBusConnection bus)
    : m_common(common), m_bus(std::move(bus))
{
    m_bus.connect(notification_service::name, notification_service::path, notification_service::name,
                  QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
    m_bus.connect(notification_service::name, notification_service::path, notification_service::name,
                  QStringLiteral("NotificationClosed"), this, SLOT(notificationClosed(uint, uint)));
    auto *const watcher
        = new QDBusServiceWatcher(notification_service::name, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    // Another service can do other things, and its numbers mean other notifications.
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        m_knowsCapabilities = false;
        m_id = 0;
    });
}

bool DesktopNotifications::areNeeded()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void DesktopNotifications::add(const Notification &notification)
{
    m_rows.push_back(notification);
    if (m_rows.size() <= static_cast<std::size_t>(limits::notifications))
        return;
    m_rows.erase(m_rows.begin());
    if (m_askedRows > 0)
        --m_askedRows;
}

void DesktopNotifications::startTimer()
{
    if (!m_common.options.notifyWindow) {
        m_rows.clear();
        m_askedRows = 0;
        return;
    }
    if (m_exchange != Exchange::idle) {
        m_exchange = Exchange::pendingAgain;
        return;
    }
    m_exchange = Exchange::pending;
    m_askedRows = m_rows.size();
    if (m_knowsCapabilities)
        show();
    else
        askForCapabilities();
}

void DesktopNotifications::askForCapabilities()
{
    auto *const watcher
        = new QDBusPendingCallWatcher(m_bus.asyncCall(notification_service::call("GetCapabilities")), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (reply.isError())
            return shown(false, 0);
        m_knowsCapabilities = true;
        m_bodyIsMarkup = reply.value().contains(QLatin1String("body-markup"));
        show();
    });
}

void DesktopNotifications::show()
{
    m_askedRows = m_rows.size();
    QDBusMessage notify = notification_service::call("Notify");
    notify.setArguments({QStringLiteral("NIMB-Chat"), m_id, QGuiApplication::desktopFileName(), tr("NIMBChat Notify!"),
                         body(), QStringList{defaultAction, tr("Show")}, QVariantMap(), displayTime});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(notify), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        shown(!reply.isError(), reply.isError() ? 0 : reply.value());
    });
}

void DesktopNotifications::shown(bool accepted, uint id)
{
    const bool again = m_exchange == Exchange::pendingAgain;
    m_exchange = Exchange::idle;
    m_id = id;
    if (!accepted)
        dropAskedRows();
    if (again && !m_rows.empty())
        startTimer();
}

void DesktopNotifications::dropAskedRows()
{
    m_rows.erase(m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(std::exchange(m_askedRows, 0)));
}

QString DesktopNotifications::body() const
{
    QStringList lines;
    const std::size_t first = m_rows.size() > shownRows ? m_rows.size() - shownRows : 0;
    if (first > 0)
        lines.append(tr("(%1 more)").arg(first));
    for (std::size_t row = first; row < m_rows.size(); ++row)
        lines.append(m_bodyIsMarkup ? m_rows[row].text.toHtmlEscaped() : m_rows[row].text);
    return lines.join(QLatin1Char('\n'));
}

void DesktopNotifications::actionInvoked(uint id, const QString &action)
{
    if (id == m_id && m_id != 0 && action == defaultAction && !m_rows.empty())
        Q_EMIT contactWanted(m_rows.back().ip);
}

void DesktopNotifications::notificationClosed(uint id, uint)
{
    if (id != m_id || m_id == 0)
        return;
    m_id = 0;
    // What has come meanwhile is shown as soon as the answer to the last call is there.
    if (m_exchange == Exchange::idle)
        m_rows.clear();
}

} // namespace nimb
