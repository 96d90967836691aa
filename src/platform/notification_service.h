// The desktop's service of notifications, as it is named on the session bus.
#pragma once

#include <QDBusMessage>
#include <QString>

namespace nimb::notification_service
{

/// Also the name of its interface.
inline const QString name = QStringLiteral("org.freedesktop.Notifications");
inline const QString path = QStringLiteral("/org/freedesktop/Notifications");

inline QDBusMessage call(const char *method, const QVariantList &arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(name, path, name, QLatin1String(method));
    message.setArguments(arguments);
    return message;
}

} // namespace nimb::notification_service
