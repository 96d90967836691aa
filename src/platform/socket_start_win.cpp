#include "platform/socket_start.h"

#include <winsock2.h>

namespace nimb
{

bool startSockets()
{
    static const bool started = [] {
        constexpr WORD version = MAKEWORD(2, 2);
        WSADATA data = {};
        return WSAStartup(version, &data) == 0;
    }();
    return started;
}

} // namespace nimb
