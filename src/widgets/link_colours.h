// Links in labels, after the desktop has changed its colours.
#pragma once

class QLabel;

namespace nimb
{

/// A label gives its links the colour that they have when its text is set; with this it takes the new one each time.
void keepLinkColours(QLabel &label);

} // namespace nimb
