// The only door between bytes on the wire and text in the program.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace nimb
{

/// Text as it travels: windows-1252 where that page holds every character and the result could not be mistaken for
/// UTF-8, otherwise UTF-8. So copies that know only the western code page read what they always read.
std::string toWire(const QString &text);

/// Bytes that are valid UTF-8 with at least one multi-byte sequence are UTF-8; all others are windows-1252, whose
/// five undefined bytes are the control characters of the same value. fromWire(toWire(text)) == text for every
/// well-formed text. To be used field by field, never on a whole datagram with fields of several peers.
QString fromWire(std::string_view bytes);

/// A name as a field that is not the last one of a datagram, where a blank would begin the next field: blanks become
/// hyphens, those at the ends go.
QString oneWord(const QString &name);

} // namespace nimb
