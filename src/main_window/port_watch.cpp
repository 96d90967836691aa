#include "main_window/port_watch.h"

#include "base/limits.h"

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
    m_port = m_common.udpPort;
    m_socket.setLocalPort(m_port);
    m_socket.setRemotePort(m_port);
    if (!m_socket.bind())
        m_retry->start();
}

void PortWatch::report()
{
    if (m_socket.isBound())
        return;
    m_log.fault(fault().arg(m_port));
    const bool taken = m_socket.bindFailure() == BindFailure::portTaken;
    m_view.setTroublePanel((taken ? tr("Port %1 is taken") : tr("No port %1")).arg(m_port));
}

QString PortWatch::fault() const
{
    switch (m_socket.bindFailure()) {
    case BindFailure::addressNotHere:
        return tr("This machine does not have the address that NIMB-Chat was told to use, so nobody can reach you on "
                  "port %1. Correct NIMBCHAT_ADDRESS, or connect the network: NIMB-Chat tries again every 5 seconds.");
    case BindFailure::notAllowed:
        return tr("The system does not let NIMB-Chat use port %1, so nobody can reach you. Choose a port above 1023.");
    case BindFailure::other:
        return tr("The network cannot be used on port %1, so nobody can reach you. NIMB-Chat tries again every 5 "
                  "seconds.");
    case BindFailure::portTaken:
    case BindFailure::none:
        break;
    }
    return tr("Port %1 is used by another program, so nobody can reach you. Close that program: NIMB-Chat tries again "
              "every 5 seconds.");
}

void PortWatch::tryAgain()
{
    if (listensAgain())
        m_gained();
}

bool PortWatch::listensAgain()
{
    const bool wasTaken = m_socket.bindFailure() == BindFailure::portTaken;
    if (!m_socket.bind())
        return false;
    m_retry->stop();
    m_view.setTroublePanel({});
    m_log.remark(
        (wasTaken ? tr("Port %1 is free now: you can be reached.") : tr("You can be reached on port %1 again."))
            .arg(m_port));
    return true;
}

bool PortWatch::networksChanged()
{
    const bool listened = m_socket.isBound();
    m_socket.networksChanged();
    if (m_socket.isBound())
        return false;
    if (!listened)
        return listensAgain();
    if (m_socket.bind())
        return true;
    m_retry->start();
    report();
    return false;
}

} // namespace nimb
