// The icon in the notification area.
#pragma once

#include "base/window_openers.h"

#include <QIcon>
#include <QSystemTrayIcon>

#include <functional>

namespace nimb
{

class Tray : public QObject, public TrayIcon
{
    Q_OBJECT

public:
    /// restore: called when the icon is clicked with the left or the right button.
    Tray(const QIcon &icon, std::function<void()> restore);

    void AddIcon(const QString &ToolTip) override;
    void removeIcon() override;
    bool isShown() const override;

private:
    QSystemTrayIcon m_icon;
    std::function<void()> m_restore;
};

} // namespace nimb
