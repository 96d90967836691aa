// What is stripped from a message's ends.
#pragma once

#include <QString>

namespace nimb
{

/// Removes spaces and CR LF pairs from the end, in any mixture; those inside the text stay.
QString TrimTrailingBreaks(QString text);
/// The mirror image at the start.
QString TrimLeadingBreaks(QString text);
/// Both.
QString trimmedMessage(const QString &text);

} // namespace nimb
