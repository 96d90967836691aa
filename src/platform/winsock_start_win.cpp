#include "platform/winsock_start.h"

#include <winsock2.h>

namespace nimb
{

bool startWinsock()
{
    static const bool started = [] {
        constexpr WORD version = MAKEWORD(2, 2);
        WSADATA data = {};
        return WSAStartup(version, &data) == 0;
    }();
    return started;
}

} // namespace nimb
