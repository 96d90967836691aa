// Winsock, the sockets of Windows, wants to be started before its first use; elsewhere there is nothing to do.
#pragma once

namespace nimb
{

/// From the first call on to the end of the process. False when the system has no sockets.
bool startSockets();

} // namespace nimb
