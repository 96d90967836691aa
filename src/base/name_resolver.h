// Finds the address of a host by its name.
#pragma once

#include "protocol/ipv4_address.h"

#include <QString>

#include <functional>
#include <optional>

namespace nimb
{

class NameResolver
{
public:
    virtual ~NameResolver() = default;
    using Found = std::function<void(std::optional<Ipv4Address> address)>;
    /// Asks the system, which may take long, and returns at once; found is called later on the thread of the event
    /// loop with the host's first IPv4 address, or with nothing. It is not called any more once the resolver
    /// has been destroyed.
    virtual void resolve(const QString &name, Found found) = 0;
};

} // namespace nimb
