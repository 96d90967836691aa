// Notes with a file where it came from, where the system has a place for it.
#pragma once

#include <QString>

namespace nimb
{

/// Not every file system keeps it, and nobody is told: the file is whole all the same.
void markOrigin(const QString &path, const QString &address);

} // namespace nimb
