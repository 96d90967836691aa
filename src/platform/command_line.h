// The words with which the program was started.
#pragma once

#include <QStringList>

namespace nimb
{

/// Without the name of the program. On Windows as they were typed: what main() is given there has lost each letter
/// that the machine's old code page lacks.
QStringList commandLineWords(int argc, char *argv[]);

} // namespace nimb
