// The colours of the whole program, where the desktop asks for some that its own style does not bring.
#pragma once

#include "base/appearance.h"

#include <QPalette>

#include <optional>

namespace nimb
{

/// Nothing where the desktop's own colours are what it asks for.
std::optional<QPalette> paletteFor(const Appearance &appearance, const QPalette &desktops);

} // namespace nimb
