// Makes the addresses in the lines of a log links.
#pragma once

class QTextBlock;
class QTextCharFormat;

namespace nimb
{

/// The web and mail addresses of this line become links that look so, and are underlined. Those that would lead
/// elsewhere than they seem to do not.
void markLinksOf(const QTextBlock &line, const QTextCharFormat &look);

} // namespace nimb
