// Automatic replies on the wire: ordinary messages with a mark in front.
#pragma once

#include <QString>

namespace nimb
{

/// The message that goes out for the user's reply text.
QString autoReplyMessage(const QString &text);

/// True for a message, as it was received, that is an automatic reply. Nobody answers those automatically, or two busy
/// copies would answer each other for ever.
bool isAutoReply(const QString &message);

} // namespace nimb
