#include "platform/desktop_appearance.h"

#include <QDBusMetaType>
#include <QDBusPendingReply>

#include <utility>

namespace nimb
{
namespace
{

// Names and numbers of the settings portal, org.freedesktop.portal.Settings.
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
constexpr uint wantsDark = 1, wantsLight = 2, wantsContrast = 1;

using Groups = QMap<QString, QVariantMap>;

Appearance::Scheme schemeOf(uint number)
{
    if (number == wantsDark)
        return Appearance::Scheme::dark;
    return number == wantsLight ? Appearance::Scheme::light : Appearance::Scheme::unsaid;
}

} // namespace

DesktopAppearance::DesktopAppearance(QDBusConnection bus) : m_bus(std::move(bus))
{
    if (!m_bus.isConnected())
        return;
    qDBusRegisterMetaType<Groups>();
    m_bus.connect(portalService, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QDBusMessage)));
    ask();
}

void DesktopAppearance::ask()
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, QStringLiteral("ReadAll"));
    question.setArguments({QStringList{appearanceGroup}});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<Groups> reply = *watcher;
        if (reply.isError())
            return;
        const QVariantMap settings = reply.value().value(appearanceGroup);
        for (auto setting = settings.begin(); setting != settings.end(); ++setting)
            take(setting.key(), setting.value());
    });
}

/// The group, the key, and the value in a variant.
void DesktopAppearance::settingChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() == 3 && arguments[0] == QVariant(appearanceGroup))
        take(arguments[1].toString(), arguments[2].value<QDBusVariant>().variant());
}

void DesktopAppearance::take(const QString &key, const QVariant &value)
{
    Appearance now = m_appearance;
    if (key == QLatin1String("color-scheme"))
        now.scheme = schemeOf(value.toUInt());
    else if (key == QLatin1String("contrast"))
        now.highContrast = value.toUInt() == wantsContrast;
    if (std::exchange(m_appearance, now) != now)
        Q_EMIT changed(now);
}

} // namespace nimb
