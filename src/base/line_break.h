#pragma once

#include <QLatin1String>

namespace nimb
{

/// How lines of one text are parted wherever it is stored, sent or kept: fixed, for peers rely on it. Controls of Qt
/// know
/// "\n" alone (widgets/form_text.h).
inline constexpr QLatin1String lineBreak("\r\n");

} // namespace nimb
