// What the rules of firewalls say about a UDP port. The texts are those of Debian 12 and 13, Ubuntu and Fedora.
#pragma once

#include "base/network_diagnosis.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace nimb
{

/// Whether /etc/ufw/ufw.conf turns ufw on.
[[nodiscard]] bool isUfwOn(const QByteArray &configuration);

/// What rules do with a first datagram that another machine sends to the port.
enum class RuleAnswer {
    lets,
    blocks,
    unsure, ///< they let some in and not others, or ask what is not understood here
};

/// As the doctor says it.
[[nodiscard]] Firewall::Verdict verdictOf(RuleAnswer answer);

/// defaults: /etc/default/ufw; rules: /etc/ufw/user.rules, of which the comments "### tuple ###" count, from which ufw
/// itself reads its rules.
[[nodiscard]] RuleAnswer ufwAnswer(const QByteArray &defaults, const QByteArray &rules, std::uint16_t udpPort);

struct FirewalldAnswer {
    RuleAnswer answer = RuleAnswer::blocks;
    QByteArray zone{}; ///< in which the port would have to be opened
    bool operator==(const FirewalldAnswer &) const = default;
};

/// zones: what `firewall-cmd --list-all-zones` prints; defaultZone: the name that counts for cards in no zone. Cards
/// and sources decide which zones matter; services are known by their names, of which only ours opens the port. Nothing
/// when it is no such text.
[[nodiscard]] std::optional<FirewalldAnswer> firewalldAnswer(const QByteArray &zones, const QByteArray &defaultZone,
                                                             std::uint16_t udpPort);

/// What keeps a datagram out.
struct NftBlock {
    QString family, table, chain; ///< where a rule that lets it in would have to stand
    bool operator==(const NftBlock &) const = default;
};

struct NftAnswer {
    bool hasInput = false; ///< something looks at what comes in
    RuleAnswer answer = RuleAnswer::lets;
    std::optional<NftBlock> block{}; ///< where it is kept out, be it for some
};

/// json: what `nft -j list ruleset` prints; nothing when it is no such text. Of what rules can ask, protocol, port,
/// connection state and the loopback card are understood. Where it makes a difference how anything else turns out, the
/// answer is not sure.
[[nodiscard]] std::optional<NftAnswer> nftAnswer(const QByteArray &json, std::uint16_t udpPort);

/// rules: as Windows keeps those of its firewall in the registry ("v2.31|Action=Allow|Active=TRUE|Dir=In|Protocol=17|
/// App=C:\\...|"). What is not let in there is kept out. program: full path with backslashes; the case does not matter.
[[nodiscard]] RuleAnswer windowsAnswer(const QStringList &rules, const QString &program, std::uint16_t udpPort);

} // namespace nimb
