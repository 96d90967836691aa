#include "platform/socket_start.h"

namespace nimb
{

bool startSockets()
{
    return true;
}

} // namespace nimb
