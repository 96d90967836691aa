// Notices that the desktop's own service shows, one for each place.
#pragma once

#include "base/notifications.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

#include <map>
#include <optional>

namespace nimb
{

/// Speaks to org.freedesktop.Notifications on the session bus, and never waits for it. A notice takes the place of the
/// one of its place that stands. What the service cannot show, or not soon, is given back.
class DesktopNotices : public QObject
{
    Q_OBJECT

public:
    explicit DesktopNotices(QDBusConnection bus);

    void show(const Notice &notice);
    void withdraw(const NoticePlace &place);

Q_SIGNALS:
    void opened(const nimb::NoticePlace &place);
    void answered(const nimb::NoticePlace &place, const QString &text);
    /// The service is not there, or has not answered.
    void refused(const nimb::Notice &notice);

private:
    struct Standing {
        uint id = 0; ///< as the service numbers it; 0 when none stands
        bool isAsked = false;
        std::optional<Notice> next; ///< to be shown once the service has answered
        bool isOver = false;        ///< it is to go once the service has answered
    };

    Q_SLOT void actionInvoked(uint id, const QString &action);
    Q_SLOT void notificationReplied(uint id, const QString &text);
    Q_SLOT void notificationClosed(uint id, uint reason);

    void forgetService();
    void askForCapabilities();
    void notify(const Notice &notice);
    void shown(const Notice &notice, std::optional<uint> id);
    void close(uint id);
    QStringList actionsOf(const Notice &notice) const;
    std::map<NoticePlace, Standing>::iterator standing(uint id);

    QDBusConnection m_bus;
    std::optional<QStringList> m_capabilities; ///< of the service, once they are known
    bool m_asksForCapabilities = false;
    std::map<NoticePlace, Notice> m_early; ///< to be shown once they are known
    std::map<NoticePlace, Standing> m_standing;
};

} // namespace nimb
