// The polite ways in which the system asks a program to end.
#pragma once

#include <QtGlobal>

#include <functional>

#ifdef Q_OS_UNIX
#include "platform/wake_pipe.h"

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <memory>
#endif

namespace nimb
{

#ifdef Q_OS_UNIX

/// While it lives, SIGTERM, SIGINT and SIGHUP call a function from the event loop, where everything may be done, and
/// SIGPIPE is ignored. Signals that come together call it once. One object at a time; what was set before comes back
/// with its end.
class UnixSignals : public QObject
{
public:
    explicit UnixSignals(std::function<void()> askedToEnd, QObject *parent = nullptr);
    ~UnixSignals() override;

private:
    struct Previous {
        int signal = 0;
        struct sigaction action = {};
    };

    void take(Previous &previous, int signal, void (*handler)(int));
    void wake();

    std::function<void()> m_askedToEnd;
    WakePipe m_pipe;
    std::unique_ptr<QSocketNotifier> m_notifier; // goes before its descriptor
    std::array<Previous, 4> m_previous;
};

#else

class UnixSignals
{
public:
    explicit UnixSignals(const std::function<void()> &) { }
};

#endif

} // namespace nimb
