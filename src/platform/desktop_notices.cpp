#include "platform/desktop_notices.h"

#include "platform/notification_service.h"

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace nimb
{
namespace
{

constexpr int answerTime = 3000; // ms; a service that takes longer has something else to do
constexpr int asLongAsTheDesktopLikes = -1;

} // namespace

DesktopNotices::DesktopNotices(QDBusConnection bus) : m_bus(std::move(bus))
{
    const auto on = [this](const char *signal, const char *slot) {
        m_bus.connect(notification_service::name, notification_service::path, notification_service::name,
                      QLatin1String(signal), this, slot);
    };
    on("ActionInvoked", SLOT(actionInvoked(uint, QString)));
    on("NotificationReplied", SLOT(notificationReplied(uint, QString)));
    on("NotificationClosed", SLOT(notificationClosed(uint, uint)));
    auto *const watcher
        = new QDBusServiceWatcher(notification_service::name, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopNotices::forgetService);
}

/// Another one can do other things, and its numbers mean other notices.
void DesktopNotices::forgetService()
{
    m_capabilities.reset();
    std::erase_if(m_standing, [](const auto &one) { return !one.second.isAsked; });
    for (auto &[place, standing] : m_standing)
        standing.id = 0;
}

void DesktopNotices::show(const Notice &notice)
{
    if (!m_bus.isConnected())
        return Q_EMIT refused(notice); // a question would never be answered
    if (!m_capabilities) {
        m_early.insert_or_assign(notice.place, notice);
        return askForCapabilities();
    }
    Standing &standing = m_standing[notice.place];
    standing.isOver = false;
    if (standing.isAsked)
        standing.next = notice;
    else
        notify(notice);
}

void DesktopNotices::askForCapabilities()
{
    if (std::exchange(m_asksForCapabilities, true))
        return;
    auto *const watcher
        = new QDBusPendingCallWatcher(m_bus.asyncCall(notification_service::call("GetCapabilities"), answerTime), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        m_asksForCapabilities = false;
        const QDBusPendingReply<QStringList> reply = *watcher;
        if (!reply.isError())
            m_capabilities = reply.value();
        for (const auto &[place, notice] : std::exchange(m_early, {})) {
            if (m_capabilities)
                show(notice);
            else
                Q_EMIT refused(notice);
        }
    });
}

void DesktopNotices::notify(const Notice &notice)
{
    Standing &standing = m_standing[notice.place];
    standing.isAsked = true;
    const QVariantMap hints{{QStringLiteral("category"), QStringLiteral("im.received")},
                            {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    const bool isMarkup = m_capabilities->contains(QLatin1String("body-markup"));
    const QDBusMessage message = notification_service::call(
        "Notify",
        {QStringLiteral("NIMB-Chat"), standing.id, QGuiApplication::desktopFileName(), notice.title,
         isMarkup ? notice.text.toHtmlEscaped() : notice.text, actionsOf(notice), hints, asLongAsTheDesktopLikes});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, answerTime), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, notice] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        shown(notice, reply.isError() ? std::nullopt : std::optional(reply.value()));
    });
}

/// The action "default" is a click on the notification itself, which not every desktop offers.
QStringList DesktopNotices::actionsOf(const Notice &notice) const
{
    QStringList actions{QStringLiteral("default"), tr("Open")};
    if (notice.mayBeAnswered && m_capabilities->contains(QLatin1String("inline-reply")))
        actions << QStringLiteral("inline-reply") << tr("Reply");
    else
        actions << QStringLiteral("open") << tr("Open");
    return actions;
}

void DesktopNotices::shown(const Notice &notice, std::optional<uint> id)
{
    Standing now = std::exchange(m_standing[notice.place], {});
    if (!id)
        m_capabilities.reset(); // whoever takes the service's place may have others
    if (now.isOver || !id)
        m_standing.erase(notice.place);
    else
        m_standing[notice.place].id = *id;
    if (now.isOver && id)
        close(*id);
    if (!now.isOver && !id)
        Q_EMIT refused(now.next.value_or(notice));
    else if (!now.isOver && now.next)
        show(*now.next);
}

void DesktopNotices::withdraw(const NoticePlace &place)
{
    m_early.erase(place);
    const auto found = m_standing.find(place);
    if (found == m_standing.end())
        return;
    Standing &standing = found->second;
    standing.next.reset();
    standing.isOver = true;
    if (standing.isAsked)
        return;
    close(standing.id);
    m_standing.erase(found);
}

void DesktopNotices::close(uint id)
{
    m_bus.send(notification_service::call("CloseNotification", {id}));
}

std::map<NoticePlace, DesktopNotices::Standing>::iterator DesktopNotices::standing(uint id)
{
    return std::ranges::find_if(m_standing, [id](const auto &one) { return id != 0 && one.second.id == id; });
}

void DesktopNotices::actionInvoked(uint id, const QString &action)
{
    const auto found = standing(id);
    const bool isOurs = action == QLatin1String("default") || action == QLatin1String("open");
    if (found != m_standing.end() && isOurs)
        Q_EMIT opened(NoticePlace(found->first));
}

void DesktopNotices::notificationReplied(uint id, const QString &text)
{
    if (const auto found = standing(id); found != m_standing.end())
        Q_EMIT answered(NoticePlace(found->first), text);
}

void DesktopNotices::notificationClosed(uint id, uint)
{
    const auto found = standing(id);
    if (found == m_standing.end())
        return;
    // What has come meanwhile is shown anew.
    if (found->second.isAsked)
        found->second.id = 0;
    else
        m_standing.erase(found);
}

} // namespace nimb
