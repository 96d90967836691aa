// Feeds any bytes to the readers of what a system tells about its firewall and its neighbours. The first byte chooses
// the reader; a zero byte parts the two files of ufw.
#include "platform/firewall_rules.h"
#include "platform/network_diagnosis.h"
#include "require.h"

#include <cstddef>
#include <cstdint>

namespace
{

using namespace nimb;

constexpr std::uint16_t port = 5549;

void checkNftables(const QByteArray &json)
{
    const std::optional<NftAnswer> answer = nftAnswer(json, port);
    if (!answer)
        return;
    require(answer->answer != RuleAnswer::blocks || answer->block, "what keeps our datagrams out stands somewhere");
    require(answer->answer != RuleAnswer::lets || !answer->block, "nothing keeps out what is let in");
    require(answer->hasInput || (answer->answer == RuleAnswer::lets && !answer->block),
            "without a chain for what comes in everything does");
}

void checkUfw(const QByteArray &files)
{
    const qsizetype end = files.indexOf('\0');
    const QByteArray defaults = files.left(end), rules = end < 0 ? QByteArray() : files.mid(end + 1);
    require(!isUfwOn(defaults) || defaults.toLower().contains("yes"), "only a yes turns it on");
    require(ufwAnswer(defaults, {}, port) != RuleAnswer::unsure, "without rules the policy decides");
    const auto behind = [&](const QByteArray &action) {
        return ufwAnswer(defaults, "### tuple ### " + action + " udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n" + rules, port);
    };
    require(behind("allow") == RuleAnswer::lets, "the first rule for everybody lets in");
    require(behind("deny") == RuleAnswer::blocks, "the first rule for everybody keeps out");
}

void checkFirewalld(const QByteArray &zones)
{
    const std::optional<FirewalldAnswer> answer = firewalldAnswer(zones, "public", port);
    require(!answer || zones.contains(answer->zone), "a zone is one of the text");
}

void checkNeighbours(const QByteArray &table)
{
    const Ipv4Address ann(192, 168, 1, 9);
    const bool isThere = isInNeighbourTable(table, ann);
    require(!isThere || table.contains("192.168.1.9"), "who is not in the table is no neighbour");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size) - 1);
    switch (data[0] % 4) {
    case 0:
        checkNftables(bytes);
        break;
    case 1:
        checkUfw(bytes);
        break;
    case 2:
        checkFirewalld(bytes);
        break;
    default:
        checkNeighbours(bytes);
    }
    return 0;
}
