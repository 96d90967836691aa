#include "contacts/own_avatar.h"

#include "base/avatar.h"
#include "protocol/send_datagram.h"
#include "protocol/wire_text.h"

namespace nimb
{

OwnAvatar::OwnAvatar(const Common &common, Winsock &socket, MainLog &log, Timers &timers, const WallClock &clock,
                     DropCounts &drops)
    : m_common(common), m_socket(socket), m_log(log), m_clock(clock), m_drops(drops),
      m_bodies(timers, [this](Ipv4Address ip) { sendBody(ip); })
{
}

void OwnAvatar::setSource(std::unique_ptr<PictureSource> source)
{
    m_source = std::move(source);
    m_frameHead.clear();
    m_frame.clear();
}

std::optional<PolledPicture> OwnAvatar::source() const
{
    return m_source ? std::optional(m_source->origin()) : std::nullopt;
}

/// Keeps the newest frame together with its head, so that the body that is asked for next belongs to it.
void OwnAvatar::takeFrame()
{
    if (!m_source)
        return;
    if (const std::optional<QString> problem = m_source->problem()) {
        m_log.fault(*problem);
        return setSource(nullptr);
    }
    const std::optional<QByteArray> frame = m_source->frame();
    if (!frame || frame->size() != avatarBytes)
        return;
    m_frame = *frame;
    m_frameHead = "WEBCAM" + m_clock.now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
}

std::string OwnAvatar::head() const
{
    return m_frameHead.empty() ? toWire(m_common.avatarHead) : m_frameHead;
}

const QByteArray &OwnAvatar::body() const
{
    return m_frameHead.empty() ? m_common.avatarBody : m_frame;
}

std::optional<QByteArray> OwnAvatar::picture()
{
    takeFrame();
    const bool has = !head().empty() && body().size() == avatarBytes;
    return has ? std::optional(body()) : std::nullopt;
}

void OwnAvatar::answerHead(Ipv4Address ip)
{
    if (m_common.isInvisible())
        return;
    takeFrame();
    if (const std::string ownHead = head(); ownHead.empty())
        sendDatagram(m_socket, ip, wire::AvatarOff{});
    else
        sendDatagram(m_socket, ip, wire::AvatarHead{ownHead});
}

void OwnAvatar::answerBody(Ipv4Address ip)
{
    if (!m_common.isInvisible() && !m_bodies.ask(ip))
        m_drops.count(Drop::tooOften);
}

void OwnAvatar::sendBody(Ipv4Address ip)
{
    if (m_common.isInvisible())
        return;
    if (head().empty())
        sendDatagram(m_socket, ip, wire::AvatarOff{});
    else
        sendDatagram(m_socket, ip, wire::AvatarBody{body().toStdString()});
}

} // namespace nimb
