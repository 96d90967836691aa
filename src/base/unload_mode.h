// Why a window is asked to close, and what becomes of it.
#pragma once

namespace nimb
{

enum class UnloadMode {
    closeBox,   ///< the window's own close box or system menu
    code,       ///< the program itself
    sessionEnd, ///< the desktop session ends
};

enum class CloseDecision {
    unload,
    stay,     ///< the window stays as it is
    hide,     ///< the window stays, out of sight
    minimise, ///< the window stays in the task bar, for nothing else could bring it back
};

} // namespace nimb
