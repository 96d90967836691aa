// Gets the port, and keeps trying while another program holds it.
#pragma once

#include "base/main_log.h"
#include "base/main_window_view.h"
#include "base/timers.h"
#include "protocol/winsock.h"

#include <QCoreApplication>

#include <cstdint>

namespace nimb
{

class PortWatch
{
    Q_DECLARE_TR_FUNCTIONS(PortWatch)

public:
    /// gained: called each time that listening begins after a failure.
    PortWatch(Winsock &socket, const Common &common, Timers &timers, MainLog &log, MainWindowView &view,
              std::function<void()> gained);

    /// Sets both ports of the socket and listens.
    void open();
    /// Says what open() met, once the log is ready for it.
    void report();
    /// The networks of this machine have changed: listens anew where that has ended with them, or becomes possible with
    /// them. True when listening begins, which is not told as gained.
    bool networksChanged();

private:
    /// The sentence for the log; the place marker stands for the port.
    QString fault() const;
    void tryAgain();
    bool listensAgain();

    Winsock &m_socket;
    const Common &m_common;
    MainLog &m_log;
    MainWindowView &m_view;
    std::function<void()> m_gained;
    std::unique_ptr<Timer> m_retry;
    std::uint16_t m_port = 0; ///< of this run, whatever is chosen for the next one
};

} // namespace nimb
