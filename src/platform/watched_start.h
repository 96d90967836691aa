// Starts a program that goes on without this one, and hears when it fails.
#pragma once

#include <QString>

#include <functional>

namespace nimb
{

/// The program gets the one argument as it is, no shell, and stays when this program ends. False when it cannot be
/// started. failed: called from the event loop when it ends soon, and says that it has failed; what ends after
/// limits::handlerWatched has shown something before. Needs the application object.
[[nodiscard]] bool startWatched(const QString &program, const QString &argument, std::function<void()> failed);

} // namespace nimb
