// The start of the program. Its order is fixed: a later copy hands over before it asks for anything, and the main
// window needs the nickname that the login dialog asks for.
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
