#include "core/port_watch.h"

#include "core/limits.h"

namespace nimb
{

PortWatch::PortWatch(Winsock &socket, const Common &common, Timers &timers, MainLog &log, MainWindowView &view,
                     std::function<void()> gained)
    : m_socket(socket), m_common(common), m_log(log), m_view(view), m_gained(std::move(gained)),
      m_retry(timers.repeating(limits::bindRetry, [this] { tryAgain(); }))
{
}

void PortWatch::open()
{
    m_socket.setLocalPort(m_common.udpPort);
    m_socket.setRemotePort(m_common.udpPort);
    if (!m_socket.bind())
        m_retry->start();
}

void PortWatch::report()
{
    if (m_socket.isBound())
        return;
    m_log.fault(tr("Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries "
                   "again every 5 seconds.")
                    .arg(m_common.udpPort));
    m_view.setTroublePanel(tr("Port %1 is taken").arg(m_common.udpPort));
}

void PortWatch::tryAgain()
{
    if (!m_socket.bind())
        return;
    m_retry->stop();
    m_view.setTroublePanel({});
    m_log.remark(tr("Port %1 is free now: you can be reached.").arg(m_common.udpPort));
    m_gained();
}

} // namespace nimb
