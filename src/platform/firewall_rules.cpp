#include "platform/firewall_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include <algorithm>
#include <vector>

namespace nimb
{
namespace
{

/// The value of NAME=value or NAME="value"; the last one counts, as in a shell.
QByteArray valueOf(const QByteArray &configuration, const QByteArray &name)
{
    QByteArray value;
    for (const QByteArray &line : configuration.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith(name + '='))
            value = trimmed.mid(name.size() + 1).replace('"', "").trimmed();
    }
    return value;
}

/// ports: "any", "5549", "5500:5600" or several of these joined by commas.
bool holdsPort(const QByteArray &ports, std::uint16_t port)
{
    if (ports == "any")
        return true;
    return std::ranges::any_of(ports.split(','), [port](const QByteArray &part) {
        const QList<QByteArray> ends = part.split(':');
        return ends.first().toUInt() <= port && port <= ends.last().toUInt();
    });
}

/// What one rule does with our datagram.
enum class Outcome { goesOn, accepted, dropped, returned };

/// One walk of a datagram through the chains of a ruleset.
class NftWalk
{
public:
    NftWalk(const QJsonArray &ruleset, std::uint16_t port) : m_ruleset(ruleset), m_port(port) { }

    NftAnswer answer() const
    {
        NftAnswer answer;
        for (const QJsonObject &chain : inputChains()) {
            answer.hasInput = true;
            Outcome outcome = walk(chain, 0);
            if (outcome == Outcome::goesOn || outcome == Outcome::returned)
                outcome = text(chain, "policy") == QLatin1String("drop") ? Outcome::dropped : Outcome::accepted;
            if (outcome != Outcome::dropped)
                continue; // the next chain may still drop it
            answer.block = NftBlock{text(chain, "family"), text(chain, "table"), text(chain, "name")};
            break;
        }
        return answer;
    }

private:
    /// Chains that lead into themselves are refused by the system; this is a stop for texts that it did not write.
    static constexpr int deepest = 16;

    static QString text(const QJsonObject &object, const char *key)
    {
        return object.value(QLatin1String(key)).toString();
    }

    std::vector<QJsonObject> inputChains() const
    {
        std::vector<QJsonObject> chains;
        for (const QJsonValue &entry : m_ruleset) {
            const QJsonObject chain = entry[QLatin1String("chain")].toObject();
            const QString family = text(chain, "family");
            if (text(chain, "hook") == QLatin1String("input")
                && (family == QLatin1String("ip") || family == QLatin1String("inet")))
                chains.push_back(chain);
        }
        std::ranges::stable_sort(chains, {},
                                 [](const QJsonObject &chain) { return chain.value(QLatin1String("prio")).toInt(); });
        return chains;
    }

    std::vector<QJsonArray> rulesOf(const QJsonObject &chain) const
    {
        std::vector<QJsonArray> rules;
        for (const QJsonValue &entry : m_ruleset) {
            const QJsonObject rule = entry[QLatin1String("rule")].toObject();
            if (text(rule, "family") == text(chain, "family") && text(rule, "table") == text(chain, "table")
                && text(rule, "chain") == text(chain, "name"))
                rules.push_back(rule.value(QLatin1String("expr")).toArray());
        }
        return rules;
    }

    Outcome walk(const QJsonObject &chain, int depth) const
    {
        if (depth == deepest)
            return Outcome::goesOn;
        for (const QJsonArray &rule : rulesOf(chain)) {
            const Outcome outcome = apply(rule, chain, depth);
            if (outcome != Outcome::goesOn)
                return outcome;
        }
        return Outcome::goesOn;
    }

    Outcome apply(const QJsonArray &rule, const QJsonObject &chain, int depth) const
    {
        for (const QJsonValue &part : rule) {
            const QJsonObject statement = part.toObject();
            const QString kind = statement.isEmpty() ? QString() : statement.begin().key();
            if (kind == QLatin1String("match")) {
                if (!matches(statement.value(kind).toObject()))
                    return Outcome::goesOn;
            } else if (kind == QLatin1String("limit") || kind == QLatin1String("xt")) {
                return Outcome::goesOn; // concerns a flood, or asks what only the kernel understands
            } else if (const Outcome outcome = kind == QLatin1String("vmap")
                           ? chosen(statement.value(kind).toObject(), chain, depth)
                           : decided(statement, chain, depth);
                       outcome != Outcome::goesOn) {
                return outcome;
            }
        }
        return Outcome::goesOn;
    }

    /// What a verdict says; statements that are none decide nothing.
    Outcome decided(const QJsonObject &statement, const QJsonObject &chain, int depth) const
    {
        const QString kind = statement.isEmpty() ? QString() : statement.begin().key();
        if (kind == QLatin1String("accept"))
            return Outcome::accepted;
        if (kind == QLatin1String("drop") || kind == QLatin1String("reject"))
            return Outcome::dropped;
        if (kind == QLatin1String("return"))
            return Outcome::returned;
        if (kind == QLatin1String("jump") || kind == QLatin1String("goto"))
            return follow(text(statement.value(kind).toObject(), "target"), chain, depth);
        return Outcome::goesOn;
    }

    /// A map of values to verdicts.
    Outcome chosen(const QJsonObject &map, const QJsonObject &chain, int depth) const
    {
        const QJsonValue data = map.value(QLatin1String("data"));
        const QJsonArray elements
            = data.isString() ? namedElements(data.toString(), "map") : data[QLatin1String("set")].toArray();
        for (const QJsonValue &element : elements) {
            const QJsonArray pair = element.toArray();
            const QJsonObject question{{QStringLiteral("op"), QStringLiteral("==")},
                                       {QStringLiteral("left"), map.value(QLatin1String("key"))},
                                       {QStringLiteral("right"), pair.at(0)}};
            if (pair.size() == 2 && matches(question))
                return decided(pair.at(1).toObject(), chain, depth);
        }
        return Outcome::goesOn;
    }

    /// Those of the set or map of this name, "@allowed".
    QJsonArray namedElements(const QString &name, const char *kind) const
    {
        for (const QJsonValue &entry : m_ruleset) {
            const QJsonObject set = entry[QLatin1String(kind)].toObject();
            if (name == u'@' + text(set, "name"))
                return set.value(QLatin1String("elem")).toArray();
        }
        return {};
    }

    Outcome follow(const QString &target, const QJsonObject &from, int depth) const
    {
        QJsonObject chain = from;
        chain.insert(QLatin1String("name"), target);
        const Outcome outcome = walk(chain, depth + 1);
        return outcome == Outcome::returned ? Outcome::goesOn : outcome;
    }

    bool matches(const QJsonObject &match) const
    {
        const QString operation = text(match, "op");
        const bool differs = operation == QLatin1String("!=");
        const QJsonObject left = match.value(QLatin1String("left")).toObject();
        const QJsonValue right = match.value(QLatin1String("right"));
        const QJsonObject payload = left.value(QLatin1String("payload")).toObject();
        const QString protocol = text(payload, "protocol"), field = text(payload, "field");
        const QString meta = text(left.value(QLatin1String("meta")).toObject(), "key");
        const bool asksPort
            = field == QLatin1String("dport") && (protocol == QLatin1String("udp") || protocol == QLatin1String("th"));
        if (asksPort)
            return holds(right, QJsonValue(m_port)) != differs;
        if (meta == QLatin1String("l4proto") || field == QLatin1String("protocol"))
            return (holds(right, QStringLiteral("udp")) || holds(right, QJsonValue(17))) != differs;
        if (meta == QLatin1String("nfproto"))
            return (holds(right, QStringLiteral("ipv4"))) != differs;
        if (meta == QLatin1String("iifname") || meta == QLatin1String("iif"))
            return differs && holds(right, QStringLiteral("lo"));
        if (text(left.value(QLatin1String("ct")).toObject(), "key") == QLatin1String("state"))
            return holds(right, QStringLiteral("new")) != differs;
        return false;
    }

    /// right: a value, a list of them, a set, the name of one, or a range within one.
    bool holds(const QJsonValue &right, const QJsonValue &value) const
    {
        if (right == value)
            return true;
        if (right.toString().startsWith(u'@'))
            return holds(namedElements(right.toString(), "set"), value);
        if (right.isArray())
            return std::ranges::any_of(right.toArray(),
                                       [this, &value](const QJsonValue &one) { return holds(one, value); });
        const QJsonArray range = right[QLatin1String("range")].toArray();
        if (range.size() == 2)
            return value.isDouble() && range.first().toInt() <= value.toInt() && value.toInt() <= range.last().toInt();
        const QJsonValue set = right[QLatin1String("set")];
        return set.isArray() && holds(set, value);
    }

    const QJsonArray &m_ruleset;
    int m_port;
};

} // namespace

bool isUfwOn(const QByteArray &configuration)
{
    return valueOf(configuration, "ENABLED").toLower() == "yes";
}

bool doesUfwLet(const QByteArray &defaults, const QByteArray &rules, std::uint16_t udpPort)
{
    // ### tuple ### ACTION PROTOCOL PORT DESTINATION SOURCEPORT SOURCE DIRECTION
    constexpr int action = 0, protocol = 1, port = 2, source = 5, direction = 6, fields = 7;
    for (const QByteArray &line : rules.split('\n')) {
        if (!line.startsWith("### tuple ### "))
            continue;
        const QList<QByteArray> rule = line.mid(14).simplified().split(' ');
        const bool isOurs = rule.size() >= fields && (rule[protocol] == "udp" || rule[protocol] == "any")
            && holdsPort(rule[port], udpPort) && rule[source] == "0.0.0.0/0" && rule[direction].startsWith("in");
        if (isOurs)
            return rule[action] == "allow" || rule[action] == "limit";
    }
    const QByteArray policy = valueOf(defaults, "DEFAULT_INPUT_POLICY").toUpper();
    return policy == "ACCEPT";
}

std::optional<NftAnswer> nftAnswer(const QByteArray &json, std::uint16_t udpPort)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (!object.contains(QLatin1String("nftables")))
        return std::nullopt;
    const QJsonArray ruleset = object.value(QLatin1String("nftables")).toArray();
    return NftWalk(ruleset, udpPort).answer();
}

} // namespace nimb
