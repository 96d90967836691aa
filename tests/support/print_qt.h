// Makes a failed comparison of texts readable.
#pragma once

#include <QString>

#include <ostream>

// Where the test framework looks for it: beside QString, in the global namespace.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
