// Text that matters less than what stands beside it.
#pragma once

class QWidget;

namespace nimb
{

/// Paints the widget's text in mutedTextColour(), also after the desktop has changed its colours.
void keepMuted(QWidget &text);

} // namespace nimb
