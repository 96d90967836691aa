// Text between the engine and Qt's controls.
#pragma once

#include <QString>

class QComboBox;
class QPlainTextEdit;
class QWidget;

namespace nimb
{

/// What was typed, with CR LF as its line breaks.
QString typedText(const QPlainTextEdit &box);
/// Shows text whose line breaks are CR LF and places the caret at its end.
void setTypedText(QPlainTextEdit &box, const QString &text);

/// Names a combo box for screen readers, and the list that it drops down, which they meet by itself.
void nameCombo(QComboBox &combo, const QString &name);

/// Sets a window's title as plain text: "[*]" in a name is no place marker.
void setWindowCaption(QWidget &window, const QString &caption);

/// Cuts to what a label or tool tip shows plainly: markup in it is shown, not followed.
QString plainToolTip(const QString &text);

} // namespace nimb
