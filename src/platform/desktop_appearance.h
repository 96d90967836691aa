// What the desktop says of its appearance, now and whenever it changes.
#pragma once

#include "base/appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace nimb
{

/// Asks the settings portal of the desktop on the session bus and never waits for it. Where there is none, nothing is
/// ever said.
class DesktopAppearance : public QObject
{
    Q_OBJECT

public:
    explicit DesktopAppearance(QDBusConnection bus);

Q_SIGNALS:
    /// Differs from what was said before; at first that is nothing.
    void changed(const nimb::Appearance &appearance);

private:
    Q_SLOT void settingChanged(const QDBusMessage &message);

    void ask();
    void take(const QString &key, const QVariant &value);

    QDBusConnection m_bus;
    Appearance m_appearance;
};

} // namespace nimb
