#include "main_window/Tray.h"

#include "base/remote_text.h"

namespace nimb
{
namespace
{
/// What systems with a fixed field for it show, less the end mark.
constexpr qsizetype longestToolTip = 63;
} // namespace

Tray::Tray(const QIcon &icon, std::function<void()> restore) : m_icon(icon), m_restore(std::move(restore))
{
    connect(&m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
            m_restore();
    });
}

void Tray::AddIcon(const QString &ToolTip)
{
    m_icon.setToolTip(cutText(ToolTip, longestToolTip));
    m_icon.show();
}

void Tray::removeIcon()
{
    m_icon.hide();
}

bool Tray::isShown() const
{
    return m_icon.isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

} // namespace nimb
