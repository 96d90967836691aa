// Colours as the logs take them.
#pragma once

#include <QtGlobal>

namespace nimb
{

/// A 24-bit colour written 0x00BBGGRR: blue in the high byte.
using Colour = quint32;

namespace colours
{
constexpr Colour banner = 0xA0A0A0;
constexpr Colour presence = 0x808080;
constexpr Colour stateChange = 0xC08000;
constexpr Colour unknownDatagram = 0x0000C0;
constexpr Colour fault = 0x0000FF;
constexpr Colour receivedMessage = 0xC00000;
} // namespace colours

} // namespace nimb
