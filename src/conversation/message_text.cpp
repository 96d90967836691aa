#include "conversation/message_text.h"

#include "base/line_break.h"

namespace nimb
{

QString TrimTrailingBreaks(QString text)
{
    qsizetype end = text.size();
    for (;;) {
        if (end > 0 && text[end - 1] == u' ')
            end -= 1;
        else if (QStringView(text).left(end).endsWith(lineBreak))
            end -= lineBreak.size();
        else
            break;
    }
    text.truncate(end);
    return text;
}

QString TrimLeadingBreaks(QString text)
{
    qsizetype start = 0;
    for (;;) {
        if (start < text.size() && text[start] == u' ')
            start += 1;
        else if (QStringView(text).mid(start).startsWith(lineBreak))
            start += lineBreak.size();
        else
            break;
    }
    return text.mid(start);
}

QString trimmedMessage(const QString &text)
{
    return TrimLeadingBreaks(TrimTrailingBreaks(text));
}

} // namespace nimb
