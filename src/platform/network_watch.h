// Hears from the system that its networks have changed.
#pragma once

#include "base/network_watch.h"
#include "base/timers.h"

#include <memory>

namespace nimb
{

/// Where the system has no way to say it, nothing is told: a rescan or the next start finds what has changed. timers:
/// outlives the result.
std::unique_ptr<NetworkWatch> watchNetworks(Timers &timers);

} // namespace nimb
