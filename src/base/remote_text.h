// Text that came from a peer, made fit to be shown.
#pragma once

#include "base/limits.h"

#include <QString>

namespace nimb
{

/// At most the first `length` characters (UTF-16 units, CR LF counts two); a surrogate pair or a CR LF on the edge is
/// left out whole.
QString cutText(const QString &text, qsizetype length);

/// One line: line breaks, tabs and other control characters become blanks, so that nobody forges a line of a log;
/// direction overrides are dropped.
QString remoteLine(const QString &text);

/// A nickname, workstation name or state: one line of at most limits::nameLength characters, without those that show
/// nothing (base/shown_name.h).
QString remoteName(const QString &text);

/// A message body: every kind of line break becomes CR LF, tabs stay, other control characters become blanks.
QString remoteBody(const QString &text);

/// What a log shows of a text: at most limits::shownLines lines and limits::shownTextLength characters, then a remark
/// that says how many more there are. Direction overrides are closed at the end of their line.
QString shownText(const QString &text);

/// A name for a menu or a pop-up: at most so many characters, then an ellipsis.
QString paintedName(const QString &name, qsizetype length = limits::paintedNameLength);

/// A name as part of a menu caption: painted, and with "&" doubled, for a single one marks an access key.
QString menuName(const QString &name);

} // namespace nimb
