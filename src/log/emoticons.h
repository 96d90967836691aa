// The one routine that appends a message body to a log.
#pragma once

#include "base/rich_text.h"

#include <QString>

#include <functional>

namespace nimb
{

/// Appends the body at the end of the log in this colour. The caller writes what stands before it and the line break
/// behind it. The body is shown as far as limits::shownTextLength and limits::shownLines go; its lines behind the first
/// continue the one that the caller has begun.
void AddTextWithEmoticons(RichTextLog &log, const QString &text, Colour colour);

/// Hands over the body piece by piece: text, for which the picture is 0, or what stands for that emoticon's picture.
void splitAtEmoticons(QStringView body, const std::function<void(QStringView text, std::size_t picture)> &take);

} // namespace nimb
