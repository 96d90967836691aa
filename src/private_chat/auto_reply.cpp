#include "private_chat/auto_reply.h"

namespace nimb
{
namespace
{

/// Peers know it by these very characters, so it is never translated.
const QLatin1String mark("[AutoReply] ");

} // namespace

QString autoReplyMessage(const QString &text)
{
    return mark + text;
}

bool isAutoReply(const QString &message)
{
    return message.startsWith(mark);
}

} // namespace nimb
