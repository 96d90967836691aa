#include "platform/command_line.h"

#include <qt_windows.h>

// They build on what stands above.
#include <shellapi.h>

namespace nimb
{

QStringList commandLineWords(int, char *[])
{
    int count = 0;
    wchar_t **const typed = CommandLineToArgvW(GetCommandLineW(), &count);
    QStringList words;
    for (int i = 1; typed && i < count; ++i)
        words.append(QString::fromWCharArray(typed[i]));
    LocalFree(typed);
    return words;
}

} // namespace nimb
