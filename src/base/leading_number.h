// Numbers at the start of a text.
#pragma once

#include <QString>

#include <cstdint>

namespace nimb
{

/// The decimal number with which a text begins: blanks before it are ignored, it ends where a number ends, and a text
/// without one is 0. Infinite for a number that is too large.
double leadingNumber(const QString &text);

/// Rounded to the nearest whole number, halves to the even neighbour, and kept within 16 bits.
std::int16_t within16Bits(double number);

} // namespace nimb
