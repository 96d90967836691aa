// Who this machine is on the network.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace nimb
{

/// The address in host byte order when the text is four decimal numbers of 0 to 255, without leading zeros, joined
/// by dots; empty for everything else.
std::optional<std::uint32_t> dottedIpv4(const QString &text);
QString dottedText(std::uint32_t address);

/// 127.0.0.0/8: everything there is this very machine.
bool isLoopback(std::uint32_t address);

/// The fixed address when it is a dotted IPv4 one; otherwise the one that the default route uses, else the first one
/// of any interface that is not loopback, else 127.0.0.1.
QString ownAddress(const std::optional<QString> &fixed);

/// The fixed name unless it is empty; otherwise the system's. Never empty, and one word: blanks become hyphens.
QString ownHostName(const std::optional<QString> &fixed);

} // namespace nimb
