// What of a name can be seen.
#pragma once

#include <QString>

namespace nimb
{

/// Whether this character by itself shows nothing: joiners, direction marks, fillers and the like. Blanks do not count.
[[nodiscard]] bool isInvisible(char32_t c);

/// Without the characters that show nothing, which would make one name look like another or like none. Those that do
/// something where they stand remain: joiners inside words of scripts that join letters, whatever makes one emoji of
/// several, and marks that only say which way a letter goes.
QString withoutInvisible(const QString &name);

/// Nothing of it can be seen.
[[nodiscard]] bool isBlank(const QString &name);

} // namespace nimb
