// Captions of buttons that have little room.
#pragma once

class QPushButton;
class QString;

namespace nimb
{

/// Gives a button its caption: on one line where that fits into so many pixels, else on two of about the same length.
void showCaption(QPushButton &button, const QString &caption, int room);

} // namespace nimb
