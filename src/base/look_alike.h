// Which names look alike.
#pragma once

#include <QString>

namespace nimb
{

/// Two names that a reader may take for each other have the same one: case and width do not count, characters that show
/// nothing are left out, and common letters of the Cyrillic and Greek alphabets, and digits, that look like Latin
/// letters are taken for them. To be compared, never to be shown.
QString lookOf(const QString &name);

} // namespace nimb
