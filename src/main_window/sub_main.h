// The start of the program, in the prescribed order.
#pragma once

#include "base/Common.h"
#include "base/settings_store.h"
#include "base/window_openers.h"

namespace nimb
{

enum class Started {
    running,
    handedOver,      ///< another copy runs; this one has nothing more to do
    withoutNickname, ///< the login dialog was closed: no main window, nothing bound
};

/// commandLine: all arguments joined by single blanks; when not empty it is the nickname.
Started SubMain(const QString &commandLine, Common &common, const SettingsStore &store, StartUpSteps &steps);

} // namespace nimb
