#include "platform/network_watch.h"

namespace nimb
{
namespace
{

class SilentWatch : public NetworkWatch
{
public:
    void listen(std::function<void(NetworkChange)>) override { }
};

} // namespace

std::unique_ptr<NetworkWatch> watchNetworks(Timers &)
{
    return std::make_unique<SilentWatch>();
}

} // namespace nimb
