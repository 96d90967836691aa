// What the rules of firewalls say about a UDP port. The texts are those of Debian 12 and 13, Ubuntu and Fedora.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace nimb
{

/// Whether /etc/ufw/ufw.conf turns ufw on.
[[nodiscard]] bool isUfwOn(const QByteArray &configuration);

/// defaults: /etc/default/ufw; rules: /etc/ufw/user.rules, of which the comments "### tuple ###" count, from which ufw
/// itself reads its rules. A rule for some senders only counts as none.
[[nodiscard]] bool doesUfwLet(const QByteArray &defaults, const QByteArray &rules, std::uint16_t udpPort);

/// What keeps a datagram out.
struct NftBlock {
    QString family, table, chain; ///< where a rule that lets it in would have to stand
    bool operator==(const NftBlock &) const = default;
};

struct NftAnswer {
    bool hasInput = false;         ///< something looks at what comes in
    std::optional<NftBlock> block; ///< nothing where the datagram is let in
};

/// json: what `nft -j list ruleset` prints; nothing when it is no such text. Asks what becomes of a first datagram that
/// comes from another machine. Of what rules can ask, protocol, port, connection state and the loopback card are
/// understood; a rule that asks anything else counts as none, for it is not about everybody.
[[nodiscard]] std::optional<NftAnswer> nftAnswer(const QByteArray &json, std::uint16_t udpPort);

} // namespace nimb
