#include "platform/command_line.h"

namespace nimb
{

QStringList commandLineWords(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

} // namespace nimb
