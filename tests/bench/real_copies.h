// Real copies under measurement: what the system tells of their processes, and how such a program begins.
#pragma once

#include <QJsonObject>

#include <functional>
#include <string>

namespace nimb::bench
{

/// A field of /proc/PID/status in KiB, as in "VmRSS".
double kibibytes(qint64 process, const std::string &field);
/// From now on the peak in "VmHWM" is a new one.
void forgetPeak(qint64 process);
int openDescriptors(qint64 process);
/// Returns when the process has had nearly nothing to do for half a second (a tenth of a processor: a heartbeat goes
/// on), so that nothing is left of what it put off until there is time. A failure after a minute.
void waitUntilIdle(qint64 process);

/// main() of a program that drives windows: makes the application, sends failures to the standard error, runs, and
/// prints the result as JSON. Returns the exit status, which is 1 after any failure. Needs a display.
int runOnScreen(int argumentCount, char **arguments, const std::function<QJsonObject()> &run);

} // namespace nimb::bench
