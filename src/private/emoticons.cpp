#include "private/emoticons.h"

#include "core/remote_text.h"

namespace nimb
{

void AddTextWithEmoticons(RichTextLog &log, const QString &text, Colour colour)
{
    appendText(log, shownText(text), colour);
}

} // namespace nimb
