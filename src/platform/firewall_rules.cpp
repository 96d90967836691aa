#include "platform/firewall_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <map>
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

/// How questions that are not understood turn out.
enum class Unknown { doesNotMatch, matches };

/// One walk of a datagram through the chains of a ruleset.
class NftWalk
{
public:
    NftWalk(const QJsonArray &ruleset, std::uint16_t port, Unknown unknown)
        : m_ruleset(ruleset), m_port(port), m_unknown(unknown)
    {
        for (const QJsonValue entry : ruleset) {
            const QJsonObject rule = entry[QLatin1String("rule")].toObject();
            if (!rule.isEmpty())
                m_rules[placeOf(rule, "chain")].push_back(rule.value(QLatin1String("expr")).toArray());
        }
    }

    bool hasInput() const { return !firstChains().empty(); }
    /// Rules beyond number were met.
    bool gaveUp() const { return m_steps >= mostSteps; }

    std::optional<NftBlock> block()
    {
        for (const QJsonObject &chain : firstChains()) {
            Outcome outcome = walk(chain, 0);
            if (outcome == Outcome::goesOn || outcome == Outcome::returned)
                outcome = text(chain, "policy") == QLatin1String("drop") ? Outcome::dropped : Outcome::accepted;
            if (outcome == Outcome::dropped) // what one chain accepts the next may still drop
                return NftBlock{text(chain, "family"), text(chain, "table"), text(chain, "name")};
        }
        return std::nullopt;
    }

private:
    /// Chains that lead into themselves are refused by the system; these are stops for texts that it did not write, and
    /// for rules that branch without end.
    static constexpr int deepest = 16;
    static constexpr int mostSteps = 200'000;

    static QString text(const QJsonObject &object, const char *key)
    {
        return object.value(QLatin1String(key)).toString();
    }

    static QString placeOf(const QJsonObject &object, const char *nameKey)
    {
        return text(object, "family") + u' ' + text(object, "table") + u' ' + text(object, nameKey);
    }

    /// In the order in which a datagram meets them.
    std::vector<QJsonObject> firstChains() const
    {
        std::vector<QJsonObject> chains;
        for (const QJsonValue entry : m_ruleset) {
            const QJsonObject chain = entry[QLatin1String("chain")].toObject();
            const QString family = text(chain, "family");
            const bool isOurs
                = family == QLatin1String("ip") || family == QLatin1String("inet") || family == QLatin1String("netdev");
            if (isOurs && placeOnTheWay(chain) && isMet(chain))
                chains.push_back(chain);
        }
        std::ranges::stable_sort(chains, {}, [](const QJsonObject &chain) {
            return std::pair(placeOnTheWay(chain), chain.value(QLatin1String("prio")).toInt());
        });
        return chains;
    }

    /// From 1 on, nothing where our datagram does not come by.
    static std::optional<int> placeOnTheWay(const QJsonObject &chain)
    {
        static const QStringList hooks{QStringLiteral("ingress"), QStringLiteral("prerouting"),
                                       QStringLiteral("input")};
        const qsizetype place = hooks.indexOf(text(chain, "hook"));
        return place < 0 ? std::nullopt : std::optional(static_cast<int>(place) + 1);
    }

    /// Those of one card are met by what comes through it, those of a table that sleeps by nothing. nft 1.0.6 writes
    /// something else where it should say that a table sleeps or has an owner.
    bool isMet(const QJsonObject &chain) const
    {
        const bool isOfOneCard = text(chain, "hook") == QLatin1String("ingress");
        const QJsonValue flags = flagsOfTable(chain);
        const auto has = [&flags](const char *name) {
            return flags == QJsonValue(QLatin1String(name)) || flags.toArray().contains(QLatin1String(name));
        };
        if (has("dormant"))
            return false;
        const bool isPlain = flags.isUndefined() || flags.isArray() || has("owner") || has("persist");
        return (isPlain && !isOfOneCard) || m_unknown == Unknown::matches;
    }

    QJsonValue flagsOfTable(const QJsonObject &chain) const
    {
        for (const QJsonValue entry : m_ruleset) {
            const QJsonObject table = entry[QLatin1String("table")].toObject();
            if (text(table, "name") == text(chain, "table") && text(table, "family") == text(chain, "family"))
                return table.value(QLatin1String("flags"));
        }
        return QJsonValue::Undefined;
    }

    Outcome walk(const QJsonObject &chain, int depth)
    {
        const auto rules = m_rules.find(placeOf(chain, "name"));
        if (depth == deepest || rules == m_rules.end())
            return Outcome::goesOn;
        for (const QJsonArray &rule : rules->second) {
            if (++m_steps >= mostSteps)
                return Outcome::goesOn;
            const Outcome outcome = apply(rule, chain, depth);
            if (outcome != Outcome::goesOn)
                return outcome;
        }
        return Outcome::goesOn;
    }

    Outcome apply(const QJsonArray &rule, const QJsonObject &chain, int depth)
    {
        for (const QJsonValue part : rule) {
            const QJsonObject statement = part.toObject();
            const QString kind = statement.isEmpty() ? QString() : statement.begin().key();
            const QJsonObject body = statement.value(kind).toObject();
            if (kind == QLatin1String("vmap")) {
                if (const Outcome outcome = chosen(body, chain, depth); outcome != Outcome::goesOn)
                    return outcome;
            } else if (!goesFurther(kind, body, chain)) {
                return Outcome::goesOn;
            } else if (const Outcome outcome = decided(statement, chain, depth); outcome != Outcome::goesOn) {
                return outcome;
            }
        }
        return Outcome::goesOn;
    }

    /// Whether the rule goes on behind this part of it.
    bool goesFurther(const QString &kind, const QJsonObject &body, const QJsonObject &chain) const
    {
        if (kind == QLatin1String("match"))
            return matches(body, chain);
        if (kind == QLatin1String("limit"))
            return !body.value(QLatin1String("inv")).toBool(); // a first datagram is below it
        const bool asks = kind == QLatin1String("ct count") || kind == QLatin1String("quota")
            || kind == QLatin1String("set")
            || (kind == QLatin1String("xt") && text(body, "type") != QLatin1String("target"));
        return !asks || m_unknown == Unknown::matches;
    }

    /// What a verdict says; statements that are none decide nothing.
    Outcome decided(const QJsonObject &statement, const QJsonObject &chain, int depth)
    {
        const QString kind = statement.isEmpty() ? QString() : statement.begin().key();
        const QJsonObject body = statement.value(kind).toObject();
        if (kind == QLatin1String("accept"))
            return Outcome::accepted;
        const bool rejects = kind == QLatin1String("xt") && text(body, "name") == QLatin1String("REJECT");
        if (kind == QLatin1String("drop") || kind == QLatin1String("reject") || rejects)
            return Outcome::dropped;
        if (kind == QLatin1String("return"))
            return Outcome::returned;
        const bool goesTo = kind == QLatin1String("goto");
        if (!goesTo && kind != QLatin1String("jump"))
            return Outcome::goesOn;
        const Outcome outcome = follow(text(body, "target"), chain, depth);
        return goesTo && outcome == Outcome::goesOn ? Outcome::returned : outcome;
    }

    Outcome follow(const QString &target, const QJsonObject &from, int depth)
    {
        QJsonObject chain = from;
        chain.insert(QLatin1String("name"), target);
        const Outcome outcome = walk(chain, depth + 1);
        return outcome == Outcome::returned ? Outcome::goesOn : outcome;
    }

    /// A map of values to verdicts.
    Outcome chosen(const QJsonObject &map, const QJsonObject &chain, int depth)
    {
        const QJsonValue data = map.value(QLatin1String("data"));
        const QJsonArray elements
            = data.isString() ? namedElements(data.toString(), "map", chain) : data[QLatin1String("set")].toArray();
        for (const QJsonValue element : elements) {
            const QJsonArray pair = element.toArray();
            const QJsonObject question{{QStringLiteral("op"), QStringLiteral("==")},
                                       {QStringLiteral("left"), map.value(QLatin1String("key"))},
                                       {QStringLiteral("right"), pair.at(0)}};
            if (pair.size() == 2 && matches(question, chain))
                return decided(pair.at(1).toObject(), chain, depth);
        }
        return Outcome::goesOn;
    }

    /// Those of the set or map of this name, "@allowed", in the table of the chain.
    QJsonArray namedElements(const QString &name, const char *kind, const QJsonObject &chain) const
    {
        for (const QJsonValue entry : m_ruleset) {
            const QJsonObject set = entry[QLatin1String(kind)].toObject();
            if (name == u'@' + text(set, "name") && text(set, "table") == text(chain, "table")
                && text(set, "family") == text(chain, "family"))
                return set.value(QLatin1String("elem")).toArray();
        }
        return {};
    }

    bool matches(const QJsonObject &match, const QJsonObject &chain) const
    {
        const bool differs = text(match, "op") == QLatin1String("!=");
        const QJsonObject left = match.value(QLatin1String("left")).toObject();
        const QJsonValue right = match.value(QLatin1String("right"));
        const QJsonObject payload = left.value(QLatin1String("payload")).toObject();
        const QString protocol = text(payload, "protocol"), field = text(payload, "field");
        const QString meta = text(left.value(QLatin1String("meta")).toObject(), "key");
        const auto has = [&](const QJsonValue &value) { return holds(right, value, chain); };
        if (field == QLatin1String("dport") && (protocol == QLatin1String("udp") || protocol == QLatin1String("th")))
            return has(QJsonValue(m_port)) != differs;
        if (field == QLatin1String("dport"))
            return false; // of another protocol
        if (meta == QLatin1String("l4proto") || field == QLatin1String("protocol"))
            return (has(QStringLiteral("udp")) || has(QJsonValue(17))) != differs;
        if (meta == QLatin1String("nfproto") || meta == QLatin1String("protocol"))
            return (has(QStringLiteral("ipv4")) || has(QStringLiteral("ip"))) != differs;
        if (text(left.value(QLatin1String("ct")).toObject(), "key") == QLatin1String("state"))
            return has(QStringLiteral("new")) != differs;
        const bool asksCard = meta == QLatin1String("iifname") || meta == QLatin1String("iif");
        if (asksCard && right == QJsonValue(QStringLiteral("lo")))
            return differs;
        return m_unknown == Unknown::matches;
    }

    /// right: the name of a set, or what contains() takes.
    bool holds(const QJsonValue &right, const QJsonValue &value, const QJsonObject &chain) const
    {
        const bool isName = right.toString().startsWith(u'@');
        return contains(isName ? QJsonValue(namedElements(right.toString(), "set", chain)) : right, value);
    }

    /// right: a value, a list of them, a set, an element with a counter, or a range.
    static bool contains(const QJsonValue &right, const QJsonValue &value)
    {
        if (right == value)
            return true;
        if (right.isArray())
            return std::ranges::any_of(right.toArray(), [&](const QJsonValue &one) { return contains(one, value); });
        const QJsonValue element = right[QLatin1String("elem")];
        if (element.isObject())
            return contains(element[QLatin1String("val")], value);
        const QJsonArray range = right[QLatin1String("range")].toArray();
        if (range.size() == 2)
            return value.isDouble() && range.first().toInt() <= value.toInt() && value.toInt() <= range.last().toInt();
        const QJsonValue set = right[QLatin1String("set")];
        return set.isArray() && contains(set, value);
    }

    const QJsonArray &m_ruleset;
    int m_port;
    Unknown m_unknown;
    std::map<QString, std::vector<QJsonArray>> m_rules; ///< by chain
    int m_steps = 0;
};

/// A rule of ufw that may be about us: ACTION PROTOCOL PORT DESTINATION SOURCEPORT SOURCE [APPLICATIONS] DIRECTION
struct UfwRule {
    QByteArray action, protocol, port, destination, sourcePort, source, direction;
};

std::optional<UfwRule> readUfwRule(const QByteArray &line)
{
    const QByteArray mark = "### tuple ### ";
    const QList<QByteArray> words = line.mid(mark.size()).simplified().split(' ');
    constexpr qsizetype fewest = 7;
    if (!line.startsWith(mark) || words.size() < fewest || words[0].startsWith("route:"))
        return std::nullopt;
    const auto direction
        = std::find_if(words.begin() + 6, words.end(), [](const QByteArray &word) { return word.startsWith("in"); });
    if (direction == words.end() || *direction == "in_lo")
        return std::nullopt;
    return UfwRule{words[0].split('_').first(), words[1], words[2], words[3], words[4], words[5], *direction};
}

/// A zone of firewalld: its lines "key: value", and whether it has rules of its own language.
struct FirewalldZone {
    QByteArray name;
    std::map<QByteArray, QList<QByteArray>> words{}; ///< of the value, by key
    bool hasRichRules = false;

    bool holds(const char *key, const QByteArray &word) const { return wordsOf(key).contains(word); }
    QList<QByteArray> wordsOf(const char *key) const
    {
        const auto found = words.find(key);
        return found == words.end() ? QList<QByteArray>() : found->second;
    }
    bool isInUse() const { return !wordsOf("interfaces").isEmpty() || !wordsOf("sources").isEmpty(); }
};

std::vector<FirewalldZone> readFirewalldZones(const QByteArray &text)
{
    std::vector<FirewalldZone> zones;
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray trimmed = line.simplified();
        if (trimmed.isEmpty())
            continue;
        if (line.front() != ' ' && line.front() != '\t') {
            zones.push_back({.name = trimmed.split(' ').first()});
            continue;
        }
        if (zones.empty())
            return {};
        FirewalldZone &zone = zones.back();
        zone.hasRichRules = zone.hasRichRules || trimmed.startsWith("rule ") || trimmed.startsWith("rich rules: rule");
        if (const qsizetype colon = trimmed.indexOf(':'); colon > 0 && !trimmed.mid(colon + 1).trimmed().isEmpty())
            zone.words[trimmed.left(colon)] = trimmed.mid(colon + 1).trimmed().split(' ');
    }
    return zones;
}

RuleAnswer answerOf(const FirewalldZone &zone, std::uint16_t port)
{
    const QList<QByteArray> ports = zone.wordsOf("ports");
    const bool hasPort = std::ranges::any_of(ports, [port](const QByteArray &word) {
        const QList<QByteArray> parts = word.split('/');
        return parts.size() == 2 && parts[1] == "udp" && holdsPort(QByteArray(parts[0]).replace('-', ':'), port);
    });
    const bool lets = hasPort || zone.holds("target", "ACCEPT") || zone.holds("services", "nimb-chat")
        || zone.holds("protocols", "udp");
    if (zone.hasRichRules)
        return RuleAnswer::unsure;
    return lets ? RuleAnswer::lets : RuleAnswer::blocks;
}

} // namespace

std::optional<FirewalldAnswer> firewalldAnswer(const QByteArray &zones, const QByteArray &defaultZone,
                                               std::uint16_t udpPort)
{
    std::vector<FirewalldZone> all = readFirewalldZones(zones);
    const bool anyInUse = std::ranges::any_of(all, &FirewalldZone::isInUse);
    std::erase_if(all, [&](const FirewalldZone &zone) {
        return anyInUse ? !zone.isInUse() : zone.name != defaultZone.trimmed();
    });
    if (all.empty())
        return std::nullopt;
    const auto letsIn = [udpPort](const FirewalldZone &zone) { return answerOf(zone, udpPort) == RuleAnswer::lets; };
    const auto keepsOut = std::ranges::find_if_not(all, letsIn);
    if (keepsOut == all.end())
        return FirewalldAnswer{RuleAnswer::lets, all.front().name};
    const bool allKeepOut = std::ranges::all_of(
        all, [udpPort](const FirewalldZone &zone) { return answerOf(zone, udpPort) == RuleAnswer::blocks; });
    return FirewalldAnswer{allKeepOut ? RuleAnswer::blocks : RuleAnswer::unsure, keepsOut->name};
}

bool isUfwOn(const QByteArray &configuration)
{
    return valueOf(configuration, "ENABLED").toLower() == "yes";
}

RuleAnswer ufwAnswer(const QByteArray &defaults, const QByteArray &rules, std::uint16_t udpPort)
{
    const QByteArray everybody = "0.0.0.0/0";
    const bool accepts = valueOf(defaults, "DEFAULT_INPUT_POLICY").toUpper() == "ACCEPT";
    const RuleAnswer policy = accepts ? RuleAnswer::lets : RuleAnswer::blocks;
    for (const QByteArray &line : rules.split('\n')) {
        const std::optional<UfwRule> rule = readUfwRule(line);
        if (!rule || (rule->protocol != "udp" && rule->protocol != "any") || !holdsPort(rule->port, udpPort))
            continue;
        const bool lets = rule->action == "allow" || rule->action == "limit";
        const RuleAnswer says = lets ? RuleAnswer::lets : RuleAnswer::blocks;
        const bool isForAll = rule->source == everybody && rule->destination == everybody && rule->sourcePort == "any"
            && rule->direction == "in";
        if (isForAll)
            return says;
        if (says != policy)
            return RuleAnswer::unsure;
    }
    return policy;
}

std::optional<NftAnswer> nftAnswer(const QByteArray &json, std::uint16_t udpPort)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (!object.contains(QLatin1String("nftables")))
        return std::nullopt;
    const QJsonArray ruleset = object.value(QLatin1String("nftables")).toArray();
    NftWalk strict(ruleset, udpPort, Unknown::doesNotMatch), lenient(ruleset, udpPort, Unknown::matches);
    const std::optional<NftBlock> one = strict.block(), other = lenient.block();
    const bool isSure = one.has_value() == other.has_value() && !strict.gaveUp() && !lenient.gaveUp();
    const RuleAnswer answer = one ? RuleAnswer::blocks : RuleAnswer::lets;
    return NftAnswer{
        .hasInput = lenient.hasInput(), .answer = isSure ? answer : RuleAnswer::unsure, .block = one ? one : other};
}

namespace
{

/// One rule of Windows: what stands behind a key, each as often as it is written.
class WindowsRule
{
public:
    explicit WindowsRule(const QString &text) : m_parts(text.split(u'|', Qt::SkipEmptyParts)) { }

    QStringList values(QLatin1String key) const
    {
        QStringList found;
        for (const QString &part : m_parts) {
            if (part.startsWith(key) && part.mid(key.size()).startsWith(u'='))
                found.append(part.mid(key.size() + 1));
        }
        return found;
    }
    /// Ranges are written in a field of their own.
    QStringList ports() const { return values(QLatin1String("LPort")) + values(QLatin1String("LPort2_10")); }
    bool isOneOf(QLatin1String key, const QString &value) const
    {
        const QStringList all = values(key);
        return all.isEmpty() || all.contains(value, Qt::CaseInsensitive);
    }

private:
    QStringList m_parts;
};

/// "5549" or "5000-6000"; words as "RPC" are no port of ours.
bool isInPorts(const QStringList &ports, std::uint16_t port)
{
    return ports.isEmpty() || std::ranges::any_of(ports, [port](const QString &text) {
               const QStringList ends = text.split(u'-');
               return ends.first().toUInt() <= port && port <= ends.last().toUInt();
           });
}

} // namespace

Firewall::Verdict verdictOf(RuleAnswer answer)
{
    switch (answer) {
    case RuleAnswer::lets:
        return Firewall::Verdict::lets;
    case RuleAnswer::blocks:
        return Firewall::Verdict::blocks;
    case RuleAnswer::unsure:
        break;
    }
    return Firewall::Verdict::forSome;
}

RuleAnswer windowsAnswer(const QStringList &rules, const QString &program, std::uint16_t udpPort)
{
    bool isLetIn = false, isForSome = false;
    for (const QString &text : rules) {
        const WindowsRule rule(text);
        const bool matters = rule.isOneOf(QLatin1String("Active"), QStringLiteral("TRUE"))
            && rule.isOneOf(QLatin1String("Dir"), QStringLiteral("In"))
            && rule.isOneOf(QLatin1String("Protocol"), QStringLiteral("17"))
            && rule.isOneOf(QLatin1String("App"), program) && isInPorts(rule.ports(), udpPort);
        if (!matters)
            continue;
        // What blocks goes before what lets in, whatever else it asks.
        const bool asksMore = !rule.values(QLatin1String("RA4")).isEmpty()
            || !rule.values(QLatin1String("Profile")).isEmpty() || !rule.values(QLatin1String("Svc")).isEmpty()
            || !rule.values(QLatin1String("AppPkgId")).isEmpty();
        if (rule.values(QLatin1String("Action")).contains(QLatin1String("Block")))
            return asksMore ? RuleAnswer::unsure : RuleAnswer::blocks;
        const bool lets = rule.values(QLatin1String("Action")).contains(QLatin1String("Allow"));
        isForSome = isForSome || (lets && asksMore && !rule.values(QLatin1String("App")).isEmpty());
        isLetIn = isLetIn || (lets && !asksMore);
    }
    if (isLetIn)
        return RuleAnswer::lets;
    return isForSome ? RuleAnswer::unsure : RuleAnswer::blocks;
}

} // namespace nimb
