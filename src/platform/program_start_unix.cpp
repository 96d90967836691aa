#include "platform/net_send_runner.h"
#include "platform/program_start.h"

namespace nimb
{

void hideConsole(QProcess &) { }

MessageSystem ownMessageSystem()
{
    return MessageSystem::smbClient;
}

} // namespace nimb
