// How other programs are started.
#pragma once

class QProcess;

namespace nimb
{

/// What the process starts opens no console of its own. To be called before it is started.
void hideConsole(QProcess &process);

} // namespace nimb
