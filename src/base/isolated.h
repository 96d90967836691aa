// Names inside sentences that are written the other way.
#pragma once

#include <QString>

namespace nimb
{

/// A name, or other words that are not the program's own, as a part of a sentence that is shown: neither turns the
/// other round (U+2068 in front of it and U+2069 behind it). What needs no such marks stays what it is: nothing of it
/// is written from right to left, and nor is the application laid out so. For no wire, store or caption.
QString isolated(const QString &text);

} // namespace nimb
