// The polite ways in which the system asks a program to end, but for the end of a session.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace nimb
{

/// As long as the result lives, the function is called from the event loop, where everything may be done, whenever the
/// program is asked to end: by SIGTERM, SIGINT and SIGHUP, or as the task manager of Windows asks. Needs the
/// application object.
std::unique_ptr<QObject> listenForEndRequests(std::function<void()> askedToEnd);

} // namespace nimb
