#include "platform/notification_router.h"

#include <utility>

namespace nimb
{

NotificationRouter::NotificationRouter(const Common &common, Notifications &popUp, bool placed,
                                       NoticeReactions reactions)
    : m_popUp(popUp), m_reactions(std::move(reactions))
{
    if (placed)
        return;
    m_comings.emplace(common, QDBusConnection::sessionBus());
    QObject::connect(&*m_comings, &DesktopNotifications::contactWanted, &*m_comings,
                     [this](Ipv4Address ip) { m_reactions.open({.ip = ip}); });
}

void NotificationRouter::add(const Notification &notification)
{
    if (m_comings)
        m_comings->add(notification);
    else
        m_popUp.add(notification);
}

void NotificationRouter::startTimer()
{
    if (m_comings)
        m_comings->startTimer();
    else
        m_popUp.startTimer();
}

void NotificationRouter::reachDesktop()
{
    m_notices.emplace(QDBusConnection::sessionBus());
    QObject::connect(&*m_notices, &DesktopNotices::opened, &*m_notices,
                     [this](const NoticePlace &place) { m_reactions.open(place); });
    QObject::connect(&*m_notices, &DesktopNotices::answered, &*m_notices,
                     [this](const NoticePlace &place, const QString &text) { m_reactions.answer(place, text); });
    QObject::connect(&*m_notices, &DesktopNotices::refused, &*m_notices,
                     [this](const Notice &notice) { m_popUp.show(notice); });
}

void NotificationRouter::show(const Notice &notice)
{
    if (!m_notices)
        reachDesktop();
    m_notices->show(notice);
}

void NotificationRouter::withdraw(const NoticePlace &place)
{
    if (m_notices)
        m_notices->withdraw(place);
    m_popUp.withdraw(place);
}

} // namespace nimb
