// The icon in the notification area.
#pragma once

#include "base/window_openers.h"

#include <QIcon>
#include <QSystemTrayIcon>
#include <QTimer>

#include <functional>

namespace nimb
{

/// The icon with a badge that says how many there are; from ten on "9+".
QIcon badgedIcon(const QIcon &icon, int number);

class Tray : public QObject, public TrayIcon
{
    Q_OBJECT

public:
    /// restore: called when the icon is clicked with the left or the right button.
    Tray(const QIcon &icon, std::function<void()> restore);

    void AddIcon(const QString &ToolTip) override;
    void setUnread(int unread, const QString &ToolTip) override;
    void removeIcon() override;
    bool isShown() const override;

private:
    void showUnread();

    QIcon m_plain;
    QSystemTrayIcon m_icon;
    QTimer m_soon; ///< a flood of messages is no flood of icons
    int m_unread = 0, m_shownUnread = 0;
    QString m_tip;
    std::function<void()> m_restore;
};

} // namespace nimb
