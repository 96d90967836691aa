#include "platform/end_requests.h"
#include "platform/unix_signals.h"

#include <utility>

namespace nimb
{

std::unique_ptr<QObject> listenForEndRequests(std::function<void()> askedToEnd)
{
    return std::make_unique<UnixSignals>(std::move(askedToEnd));
}

} // namespace nimb
