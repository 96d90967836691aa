// Tells when the networks of this machine change.
#pragma once

#include <functional>

namespace nimb
{

enum class NetworkChange {
    networks, ///< a card, an address or a way has come, gone or become another one
    wokeUp,   ///< the machine has slept, and nothing need be different
};

class NetworkWatch
{
public:
    virtual ~NetworkWatch() = default;
    /// changed: called from the event loop after a change; what comes together is told once. It may have been something
    /// that does not matter, so whoever is told looks for himself. An empty function: nobody is told any more.
    virtual void listen(std::function<void(NetworkChange)> changed) = 0;
};

} // namespace nimb
