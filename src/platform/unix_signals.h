// The signals by which a Unix asks a program to end.
#pragma once

#include "platform/wake_pipe.h"

#include <QObject>

#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace nimb
{

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
    std::unique_ptr<WakeNotifier> m_notifier; // goes before its descriptor
    std::array<Previous, 4> m_previous;
};

} // namespace nimb
