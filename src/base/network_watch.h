// Tells when the networks of this machine change.
#pragma once

#include <functional>

namespace nimb
{

class NetworkWatch
{
public:
    virtual ~NetworkWatch() = default;
    /// changed: called from the event loop after a card, an address or a way has come, gone or become another one; what
    /// comes together is told once. It may have been something that does not matter, so whoever is told looks for
    /// himself. An empty function: nobody is told any more.
    virtual void listen(std::function<void()> changed) = 0;
};

} // namespace nimb
