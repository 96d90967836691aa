// Waiting for what another thread hands over to the event loop.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

#include <functional>

namespace nimb::test
{

/// Runs the event loop until the condition holds; after a minute it gives up and says false.
inline bool waitUntil(const std::function<bool()> &condition)
{
    constexpr int patience = 60000; // ms
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < patience)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

} // namespace nimb::test
