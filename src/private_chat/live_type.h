// Live type: the peer sees what is being typed.
#pragma once

#include <QString>

#include <chrono>

namespace nimb
{

/// How far what the peer sees may lag behind the typing.
constexpr std::chrono::milliseconds liveTypeInterval{750};

/// How long a preview stays that does not change: whoever wrote it has left it.
constexpr std::chrono::seconds liveTypeAge{30};

/// What is sent of a typed text, whose line breaks are CR LF: the end of it, as one line.
QString liveTypeToSend(const QString &typed);

/// What is shown of a received one: one line without control characters. Empty: the preview is hidden.
QString liveTypeToShow(const QString &received);

/// Height in twips of the preview for a text of this many characters.
double liveTypeHeight(qsizetype length);

} // namespace nimb
