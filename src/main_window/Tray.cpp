#include "main_window/Tray.h"

#include "base/remote_text.h"

#include <QPainter>

#include <utility>

namespace nimb
{
namespace
{

/// What systems with a fixed field for it show, less the end mark.
constexpr qsizetype longestToolTip = 63;
constexpr int showDelay = 100; // milliseconds
constexpr int mostInBadge = 9;
constexpr int leastSideForNumber = 20; // pixels; below it a number could not be read
const QColor badgeGround(0xC6, 0x28, 0x28);

void paintBadge(QPixmap &picture, int number)
{
    const double side = picture.width() * (picture.width() < leastSideForNumber ? 0.5 : 0.64);
    const double ring = qMax(1.0, picture.width() / 24.0);
    const QRectF badge(picture.width() - side, picture.height() - side, side, side);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    // A ring without a picture keeps the two apart on every ground.
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(badge.adjusted(-ring, -ring, ring, ring));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setBrush(badgeGround);
    painter.drawEllipse(badge);
    if (picture.width() < leastSideForNumber)
        return;
    const QString text = number > mostInBadge ? QStringLiteral("%1+").arg(mostInBadge) : QString::number(number);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qRound(side * (text.size() > 1 ? 0.58 : 0.76)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, text);
}

} // namespace

QIcon badgedIcon(const QIcon &icon, int number)
{
    QIcon badged;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        QPixmap picture = icon.pixmap(QSize(side, side), 1.0);
        paintBadge(picture, number);
        badged.addPixmap(picture);
    }
    return badged;
}

Tray::Tray(const QIcon &icon, std::function<void()> restore)
    : m_plain(icon), m_icon(icon), m_restore(std::move(restore))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(showDelay);
    m_soon.callOnTimeout(this, &Tray::showUnread);
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

void Tray::setUnread(int unread, const QString &ToolTip)
{
    m_unread = unread;
    m_tip = cutText(ToolTip, longestToolTip);
    if (!m_soon.isActive())
        m_soon.start();
}

void Tray::showUnread()
{
    if (std::exchange(m_shownUnread, m_unread) != m_unread)
        m_icon.setIcon(m_unread > 0 ? badgedIcon(m_plain, m_unread) : m_plain);
    m_icon.setToolTip(m_tip);
}

void Tray::removeIcon()
{
    m_soon.stop();
    m_icon.hide();
}

bool Tray::isShown() const
{
    return m_icon.isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

} // namespace nimb
