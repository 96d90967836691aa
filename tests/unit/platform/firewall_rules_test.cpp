#include "platform/firewall_rules.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

constexpr std::uint16_t ourPort = 5549;

TEST(Ufw, IsOnWhereItsConfigurationSaysSo)
{
    EXPECT_TRUE(isUfwOn("# /etc/ufw/ufw.conf\n#\n\nENABLED=yes\nLOGLEVEL=low\n"));
    EXPECT_FALSE(isUfwOn("# /etc/ufw/ufw.conf\nENABLED=no\nLOGLEVEL=low\n"));
    EXPECT_FALSE(isUfwOn("#ENABLED=yes\n"));
    EXPECT_FALSE(isUfwOn({}));
}

RuleAnswer ufwSays(const QByteArray &rules, const QByteArray &policy = "DROP")
{
    return ufwAnswer("IPV6=yes\nDEFAULT_INPUT_POLICY=\"" + policy + "\"\n", "*filter\n### RULES ###\n" + rules,
                     ourPort);
}

bool ufwLets(const QByteArray &rules, const QByteArray &policy = "DROP")
{
    return ufwSays(rules, policy) == RuleAnswer::lets;
}

TEST(Ufw, GoesByItsFirstRuleForThePortAndElseByItsPolicy)
{
    EXPECT_FALSE(ufwLets({}));
    EXPECT_TRUE(ufwLets({}, "ACCEPT"));
    EXPECT_TRUE(ufwLets("### tuple ### allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n"
                        "-A ufw-user-input -p udp --dport 5549 -j ACCEPT\n"));
    EXPECT_TRUE(ufwLets("### tuple ### allow any 5500:5600 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_TRUE(ufwLets("### tuple ### limit udp 22,5549 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_TRUE(ufwLets("### tuple ### allow_log udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_TRUE(ufwLets("### tuple ### allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 NIMB-Chat - in\n"));
    EXPECT_FALSE(ufwLets("### tuple ### route:allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_FALSE(ufwLets("### tuple ### allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 in_lo\n"));
    EXPECT_FALSE(ufwLets("### tuple ### allow tcp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_FALSE(ufwLets("### tuple ### allow udp 5550 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_FALSE(ufwLets("### tuple ### allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 out\n"));
    EXPECT_FALSE(ufwLets("### tuple ### deny udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n", "ACCEPT"));
    EXPECT_FALSE(ufwLets("### tuple ### reject any any 0.0.0.0/0 any 0.0.0.0/0 in\n"
                         "### tuple ### allow udp 5549 0.0.0.0/0 any 0.0.0.0/0 in\n"));
    EXPECT_FALSE(ufwLets("### tuple ###\n### tuple ### allow\n"));
}

TEST(Ufw, OfARuleForSomeItIsNotSureUnlessThePolicySaysTheSame)
{
    for (const char *const some : {"any 192.168.0.0/16 in", "53 0.0.0.0/0 in", "any 0.0.0.0/0 in_eth0"}) {
        const QByteArray rule = QByteArray("### tuple ### allow udp 5549 0.0.0.0/0 ") + some + "\n";
        EXPECT_EQ(ufwSays(rule), RuleAnswer::unsure) << some;
        EXPECT_EQ(ufwSays(rule, "ACCEPT"), RuleAnswer::lets) << some;
    }
    EXPECT_EQ(ufwSays("### tuple ### allow udp 5549 10.1.1.1 any 0.0.0.0/0 in\n"), RuleAnswer::unsure);
}

/// What firewalld 1.3 prints of a zone.
QByteArray zone(const QByteArray &name, const QByteArray &cards, const QByteArray &services, const QByteArray &ports,
                const QByteArray &rich = {}, const QByteArray &target = "default")
{
    return name + "\n  target: " + target + "\n  icmp-block-inversion: no\n  interfaces: " + cards
        + "\n  sources: \n  services: " + services + "\n  ports: " + ports
        + "\n  protocols: \n  forward: yes\n  masquerade: no\n  forward-ports: \n  source-ports: \n  icmp-blocks: \n"
          "  rich rules: \n"
        + rich + "\n";
}

FirewalldAnswer firewalldSays(const QByteArray &zones)
{
    return firewalldAnswer(zones, "public\n", ourPort).value_or(FirewalldAnswer{RuleAnswer::unsure, "nothing"});
}

TEST(Firewalld, TheZoneOfTheCardDecides)
{
    const QByteArray home = zone("home", "", "ssh", "5549/udp"), ssh = "ssh dhcpv6-client";
    const auto answers = [](RuleAnswer answer, const char *name) { return FirewalldAnswer{answer, name}; };
    EXPECT_EQ(firewalldSays(home + zone("public (active)", "eth0", ssh, "")), answers(RuleAnswer::blocks, "public"));
    EXPECT_EQ(firewalldSays(home + zone("public (active)", "eth0", ssh, "80/tcp 5549/udp")),
              answers(RuleAnswer::lets, "public"));
    EXPECT_EQ(firewalldSays(home + zone("public (active)", "eth0", ssh, "5500-5600/udp")),
              answers(RuleAnswer::lets, "public"));
    EXPECT_EQ(firewalldSays(zone("public (active)", "eth0", ssh, "5549/tcp 5500-5548/udp")),
              answers(RuleAnswer::blocks, "public"));
    EXPECT_EQ(firewalldSays(zone("work (active)", "eth0", "nimb-chat ssh", "")), answers(RuleAnswer::lets, "work"));
    EXPECT_EQ(firewalldSays(zone("trusted (active)", "eth0", "", "", "", "ACCEPT")),
              answers(RuleAnswer::lets, "trusted"));
    EXPECT_EQ(firewalldSays(zone("work (active)", "wlan0", ssh, "") + zone("home (active)", "eth0", ssh, "5549/udp")),
              answers(RuleAnswer::unsure, "work"));
    EXPECT_EQ(firewalldSays(home + zone("public", "", ssh, "")), answers(RuleAnswer::blocks, "public"))
        << "cards in no zone are in this one";
    EXPECT_EQ(firewalldSays(zone("public (active)", "eth0", ssh, "",
                                 "\trule family=\"ipv4\" source address=\"10.0.0.0/8\" accept\n")),
              answers(RuleAnswer::unsure, "public"));
}

TEST(Firewalld, WhatIsNoListOfZonesSaysNothing)
{
    EXPECT_EQ(firewalldAnswer({}, "public", ourPort), std::nullopt);
    EXPECT_EQ(firewalldAnswer("  target: default\n", "public", ourPort), std::nullopt);
    EXPECT_EQ(firewalldAnswer(zone("home", "", "", ""), "public", ourPort), std::nullopt);
}

/// A ruleset with one chain for what comes in.
QByteArray ruleset(const QByteArray &rules, const QByteArray &policy = "drop", const QByteArray &more = {})
{
    return R"({"nftables": [{"metainfo": {"version": "1.0.6", "json_schema_version": 1}},
        {"table": {"family": "inet", "name": "filter", "handle": 1}},
        {"chain": {"family": "inet", "table": "filter", "name": "input", "handle": 1, "type": "filter",
                   "hook": "input", "prio": 0, "policy": ")"
        + policy + "\"}}" + more + (rules.isEmpty() ? QByteArray() : "," + rules) + "]}";
}

QByteArray rule(const QByteArray &expressions, const QByteArray &chain = "input")
{
    return R"({"rule": {"family": "inet", "table": "filter", "chain": ")" + chain + R"(", "handle": 2, "expr": [)"
        + expressions + "]}}";
}

const QByteArray toOurPort = R"({"match": {"op": "==", "left": {"payload": {"protocol": "udp", "field": "dport"}},
    "right": 5549}})";

std::optional<RuleAnswer> nftSays(const QByteArray &json)
{
    const std::optional<NftAnswer> answer = nftAnswer(json, ourPort);
    return answer ? std::optional(answer->answer) : std::nullopt;
}

bool nftLets(const QByteArray &json)
{
    return nftSays(json) == RuleAnswer::lets;
}

TEST(Nftables, WithoutAChainForWhatComesInThereIsNoFirewall)
{
    const std::optional<NftAnswer> empty = nftAnswer(R"({"nftables": [{"metainfo": {"version": "1.0.6"}}]})", ourPort);
    ASSERT_TRUE(empty);
    EXPECT_FALSE(empty->hasInput);
    EXPECT_FALSE(empty->block);
    EXPECT_TRUE(nftAnswer(ruleset({}), ourPort)->hasInput);
}

TEST(Nftables, WhatIsNoRulesetSaysNothing)
{
    EXPECT_FALSE(nftAnswer({}, ourPort));
    EXPECT_FALSE(nftAnswer("Operation not permitted", ourPort));
    EXPECT_FALSE(nftAnswer("[]", ourPort));
}

TEST(Nftables, TheChainsPolicyDecidesWhereNoRuleDoes)
{
    EXPECT_FALSE(nftLets(ruleset({})));
    EXPECT_TRUE(nftLets(ruleset({}, "accept")));
    EXPECT_EQ(nftAnswer(ruleset({}), ourPort)->block,
              (NftBlock{QStringLiteral("inet"), QStringLiteral("filter"), QStringLiteral("input")}));
}

TEST(Nftables, ARuleForThePortDecides)
{
    EXPECT_TRUE(nftLets(ruleset(rule(toOurPort + R"(, {"accept": null})"))));
    EXPECT_FALSE(nftLets(ruleset(rule(toOurPort + R"(, {"drop": null})"), "accept")));
    EXPECT_FALSE(
        nftLets(ruleset(rule(toOurPort + R"(, {"counter": {"packets": 0, "bytes": 0}}, {"reject": null})"), "accept")));
    EXPECT_TRUE(nftLets(ruleset(rule(
        R"({"match": {"op": "==", "left": {"payload": {"protocol": "udp", "field": "dport"}},
            "right": {"set": [53, {"range": [5000, 6000]}]}}}, {"accept": null})"))));
    EXPECT_FALSE(nftLets(ruleset(rule(
        R"({"match": {"op": "==", "left": {"payload": {"protocol": "udp", "field": "dport"}}, "right": 53}},
           {"accept": null})"))));
    EXPECT_FALSE(nftLets(ruleset(rule(
        R"({"match": {"op": "==", "left": {"payload": {"protocol": "tcp", "field": "dport"}}, "right": 5549}},
           {"accept": null})"))))
        << "another protocol";
}

TEST(Nftables, WhatConcernsAnswersOrLoopbackDoesNotConcernOthers)
{
    const QByteArray established = R"({"match": {"op": "in", "left": {"ct": {"key": "state"}},
        "right": ["established", "related"]}}, {"accept": null})";
    const QByteArray loopback = R"({"match": {"op": "==", "left": {"meta": {"key": "iifname"}}, "right": "lo"}},
        {"accept": null})";
    for (const QByteArray &exception : {established, loopback})
        EXPECT_EQ(nftSays(ruleset(rule(exception))), RuleAnswer::blocks) << exception.toStdString();
    const QByteArray fresh = R"({"match": {"op": "==", "left": {"ct": {"key": "state"}}, "right": "new"}},)";
    EXPECT_TRUE(nftLets(ruleset(rule(fresh + toOurPort + R"(, {"accept": null})"))));
    const QByteArray notLoopback = R"({"match": {"op": "!=", "left": {"meta": {"key": "iifname"}}, "right": "lo"}},)";
    EXPECT_FALSE(nftLets(ruleset(rule(notLoopback + R"({"drop": null})"), "accept")));
}

TEST(Nftables, AProtocolAloneDecides)
{
    const QByteArray udp = R"({"match": {"op": "==", "left": {"meta": {"key": "l4proto"}}, "right": "udp"}},)";
    EXPECT_TRUE(nftLets(ruleset(rule(udp + R"({"accept": null})"))));
    const QByteArray tcp = R"({"match": {"op": "==", "left": {"meta": {"key": "l4proto"}}, "right": "tcp"}},)";
    EXPECT_FALSE(nftLets(ruleset(rule(tcp + R"({"accept": null})"))));
}

TEST(Nftables, MapsOfVerdictsAreRead)
{
    const QByteArray states = R"({"vmap": {"key": {"ct": {"key": "state"}}, "data": {"set": [
        ["established", {"accept": null}], ["invalid", {"drop": null}]]}}})";
    EXPECT_FALSE(nftLets(ruleset(rule(states)))) << "concerns answers alone";
    EXPECT_TRUE(nftLets(ruleset(rule(states), "accept")));
    const QByteArray ports = R"({"vmap": {"key": {"payload": {"protocol": "udp", "field": "dport"}}, "data": {"set": [
        [53, {"drop": null}], [5549, {"accept": null}]]}}})";
    EXPECT_TRUE(nftLets(ruleset(rule(ports))));
    const QByteArray named
        = R"({"vmap": {"key": {"payload": {"protocol": "udp", "field": "dport"}}, "data": "@doors"}})";
    const QByteArray doors = R"(, {"map": {"family": "inet", "table": "filter", "name": "doors", "type": "inet_service",
        "map": "verdict", "elem": [[5549, {"drop": null}]]}})";
    EXPECT_FALSE(nftLets(ruleset(rule(named), "accept", doors)));
}

TEST(Nftables, NamedSetsAreLookedUp)
{
    const QByteArray toOpen = R"({"match": {"op": "==", "left": {"payload": {"protocol": "th", "field": "dport"}},
        "right": "@open"}}, {"accept": null})";
    const auto open = [](const QByteArray &elements) {
        return QByteArray(
                   R"(, {"set": {"family": "inet", "table": "filter", "name": "open", "type": "inet_service", "elem": [)")
            + elements + "]}}";
    };
    EXPECT_TRUE(nftLets(ruleset(rule(toOpen), "drop", open(R"(22, {"range": [5500, 5600]})"))));
    EXPECT_FALSE(nftLets(ruleset(rule(toOpen), "drop", open("22"))));
    EXPECT_FALSE(nftLets(ruleset(rule(toOpen)))) << "a set that is not there";
    EXPECT_FALSE(nftLets(ruleset(rule(toOpen), "drop", open("5549").replace("filter", "other")))) << "another table's";
}

TEST(Nftables, ASetThatNamesItselfComesToAnEnd)
{
    const QByteArray set = R"(, {"set": {"family": "inet", "table": "filter", "name": "s", "elem": [53, "@s"]}})";
    const QByteArray match = R"({"match": {"op": "==", "left": {"payload": {"protocol": "udp", "field": "dport"}},
        "right": "@s"}}, {"accept": null})";
    EXPECT_EQ(nftSays(ruleset(rule(match), "drop", set)), RuleAnswer::blocks);
}

TEST(Nftables, IsNotSureWhereItMattersHowSomethingElseTurnsOut)
{
    const QByteArray questions[] = {
        R"({"match": {"op": "==", "left": {"payload": {"protocol": "ip", "field": "saddr"}}, "right": "10.0.0.9"}})",
        R"({"match": {"op": "==", "left": {"meta": {"key": "iifname"}}, "right": "eth0"}})",
        R"({"match": {"op": "==", "left": {"concat": [{"meta": {"key": "l4proto"}}]}, "right": "@some"}})",
        R"({"xt": {"type": "match", "name": "conntrack"}})",
        R"({"ct count": {"val": 20}})",
        R"({"quota": {"val": 100, "val_unit": "mbytes"}})",
    };
    for (const QByteArray &question : questions) {
        EXPECT_EQ(nftSays(ruleset(rule(question + R"(, {"accept": null})"))), RuleAnswer::unsure)
            << question.toStdString();
        EXPECT_EQ(nftSays(ruleset(rule(question + R"(, {"drop": null})"), "accept")), RuleAnswer::unsure)
            << question.toStdString();
        EXPECT_EQ(nftSays(ruleset(rule(question + R"(, {"accept": null})"), "accept")), RuleAnswer::lets)
            << "either way";
    }
    EXPECT_TRUE(nftAnswer(ruleset(rule(questions[0] + R"(, {"accept": null})")), ourPort)->block)
        << "the place is known";
}

TEST(Nftables, ALimitConcernsOnlyWhatIsAboveIt)
{
    EXPECT_TRUE(nftLets(ruleset(rule(R"({"limit": {"rate": 10, "per": "second"}}, {"accept": null})"))));
    EXPECT_TRUE(
        nftLets(ruleset(rule(R"({"limit": {"rate": 10, "per": "second", "inv": true}}, {"drop": null})"), "accept")));
}

TEST(Nftables, ATargetOfIptablesThatRejectsDrops)
{
    EXPECT_EQ(nftSays(ruleset(rule(R"({"xt": {"type": "target", "name": "REJECT"}})"), "accept")), RuleAnswer::blocks);
    EXPECT_EQ(nftSays(ruleset(rule(R"({"xt": {"type": "target", "name": "LOG"}})"), "accept")), RuleAnswer::lets);
}

TEST(Nftables, ElementsMayHaveCounters)
{
    EXPECT_TRUE(nftLets(ruleset(rule(
        R"({"match": {"op": "==", "left": {"payload": {"protocol": "udp", "field": "dport"}},
            "right": {"set": [{"elem": {"val": 5549, "counter": {"packets": 0, "bytes": 0}}}]}}}, {"accept": null})"))));
}

TEST(Nftables, WhatIsDroppedBeforeItComesInIsDropped)
{
    const QByteArray early = R"(, {"chain": {"family": "inet", "table": "filter", "name": "early", "handle": 7,
        "type": "filter", "hook": "prerouting", "prio": -300, "policy": "drop"}})";
    EXPECT_EQ(nftAnswer(ruleset({}, "accept", early), ourPort)->block,
              (NftBlock{QStringLiteral("inet"), QStringLiteral("filter"), QStringLiteral("early")}));
}

TEST(Nftables, ATableThatSleepsKeepsNothingOut)
{
    const auto sleeping = [](const QByteArray &flags) {
        return R"({"nftables": [{"table": {"family": "inet", "name": "x", "handle": 1, "flags": )" + flags + R"(}},
            {"chain": {"family": "inet", "table": "x", "name": "in", "handle": 1, "type": "filter", "hook": "input",
                       "prio": 0, "policy": "drop"}}]})";
    };
    EXPECT_TRUE(nftLets(sleeping(R"("dormant")")));
    EXPECT_TRUE(nftLets(sleeping(R"(["owner", "dormant"])")));
    EXPECT_FALSE(nftAnswer(sleeping(R"("dormant")"), ourPort)->hasInput);
    EXPECT_EQ(nftSays(sleeping(R"("owner")")), RuleAnswer::blocks);
    EXPECT_EQ(nftSays(sleeping(R"(["owner"])")), RuleAnswer::blocks);
    EXPECT_EQ(nftSays(sleeping(R"("x")")), RuleAnswer::unsure) << "as nft 1.0.6 writes both";
}

TEST(Nftables, WhatOneCardKeepsOutIsKeptOutForSome)
{
    const auto card = [](const QByteArray &rules) {
        return R"({"nftables": [{"table": {"family": "netdev", "name": "y", "handle": 2}},
            {"chain": {"family": "netdev", "table": "y", "name": "in", "handle": 1, "type": "filter",
                       "hook": "ingress", "prio": 0, "policy": "accept"}},
            {"rule": {"family": "netdev", "table": "y", "chain": "in", "handle": 2, "expr": [)"
            + rules + "]}}]}";
    };
    EXPECT_EQ(nftSays(card(toOurPort + R"(, {"drop": null})")), RuleAnswer::unsure);
    EXPECT_EQ(nftAnswer(card(toOurPort + R"(, {"drop": null})"), ourPort)->block,
              (NftBlock{QStringLiteral("netdev"), QStringLiteral("y"), QStringLiteral("in")}));
    EXPECT_TRUE(nftLets(card(R"({"counter": {"packets": 0, "bytes": 0}})")));
}

TEST(Nftables, WhoGoesToAChainDoesNotComeBack)
{
    const QByteArray chain = R"(, {"chain": {"family": "inet", "table": "filter", "name": "lan", "handle": 5}})";
    const QByteArray rest = "," + rule(R"({"accept": null})");
    EXPECT_EQ(nftSays(ruleset(rule(R"({"goto": {"target": "lan"}})") + rest, "drop", chain)), RuleAnswer::blocks);
    EXPECT_EQ(nftSays(ruleset(rule(R"({"jump": {"target": "lan"}})") + rest, "drop", chain)), RuleAnswer::lets);
}

TEST(Nftables, ChainsThatBranchWithoutEndAreGivenUp)
{
    QByteArray chains, rules;
    for (int i = 0; i < 16; ++i) {
        const QByteArray name = "c" + QByteArray::number(i), next = "c" + QByteArray::number(i + 1);
        chains += R"(, {"chain": {"family": "inet", "table": "filter", "name": ")" + name + R"(", "handle": 5}})";
        for (int k = 0; k < 4; ++k)
            rules += "," + rule(R"({"jump": {"target": ")" + next + R"("}})", name);
    }
    EXPECT_EQ(nftSays(ruleset(rule(R"({"jump": {"target": "c0"}})") + rules, "drop", chains)), RuleAnswer::unsure);
}

TEST(Nftables, ChainsThatAreJumpedToAreFollowed)
{
    const QByteArray chain = R"(, {"chain": {"family": "inet", "table": "filter", "name": "lan", "handle": 5}})";
    const QByteArray jump = rule(R"({"jump": {"target": "lan"}})") + ",";
    EXPECT_TRUE(nftLets(ruleset(jump + rule(toOurPort + R"(, {"accept": null})", "lan"), "drop", chain)));
    EXPECT_FALSE(nftLets(ruleset(jump + rule(toOurPort + R"(, {"drop": null})", "lan"), "accept", chain)));
    EXPECT_TRUE(
        nftLets(ruleset(jump + rule(R"({"return": null})", "lan") + "," + rule(R"({"accept": null})"), "drop", chain)));
    const QByteArray circle = rule(R"({"jump": {"target": "lan"}})", "lan");
    EXPECT_FALSE(nftLets(ruleset(jump + circle, "drop", chain))) << "and comes to an end";
}

TEST(Nftables, EveryChainMayKeepItOut)
{
    const QByteArray second = R"(, {"chain": {"family": "ip", "table": "mine", "name": "late", "handle": 1,
        "type": "filter", "hook": "input", "prio": 10, "policy": "drop"}})";
    const std::optional<NftAnswer> answer
        = nftAnswer(ruleset(rule(toOurPort + R"(, {"accept": null})"), "drop", second), ourPort);
    EXPECT_EQ(answer->block, (NftBlock{QStringLiteral("ip"), QStringLiteral("mine"), QStringLiteral("late")}));
}

// --- Windows

const QString ours = QStringLiteral("C:\\Users\\Ann\\NIMB-Chat\\nimb-chat.exe");

RuleAnswer windowsSays(const QStringList &rules)
{
    return windowsAnswer(rules, ours, 5549);
}

/// As Windows writes them, head: the fields that say whether it is on, which way and for what.
QString windowsRule(const char *action, const QString &app = ours, const char *more = "",
                    const char *head = "TRUE|Dir=In|Protocol=17")
{
    return QStringLiteral("v2.31|Action=%1|Active=%2|%3App=%4|Name=Chat|")
        .arg(QLatin1String(action), QLatin1String(head), QLatin1String(more), app);
}

TEST(WindowsFirewall, WithoutARuleNothingComesIn)
{
    EXPECT_EQ(windowsSays({}), RuleAnswer::blocks);
    EXPECT_EQ(windowsSays({QString(), QStringLiteral("v2.31"), QStringLiteral("|=|")}), RuleAnswer::blocks);
}

TEST(WindowsFirewall, ARuleForTheProgramLetsItInWhateverTheCaseOfItsName)
{
    EXPECT_EQ(windowsSays({windowsRule("Allow")}), RuleAnswer::lets);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours.toUpper())}), RuleAnswer::lets);
    EXPECT_EQ(windowsSays({windowsRule("Allow", QStringLiteral("C:\\other.exe"))}), RuleAnswer::blocks);
}

TEST(WindowsFirewall, RulesThatAreOffOrForAnotherWayDoNotCount)
{
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "", "FALSE|Dir=In|Protocol=17")}), RuleAnswer::blocks);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "", "TRUE|Dir=Out|Protocol=17")}), RuleAnswer::blocks);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "", "TRUE|Dir=In|Protocol=6")}), RuleAnswer::blocks);
}

TEST(WindowsFirewall, APortOrARangeOfThemLetsIn)
{
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "LPort=5549|")}), RuleAnswer::lets);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "LPort=5550|")}), RuleAnswer::blocks);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "LPort2_10=5500-5600|")}), RuleAnswer::lets);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "LPort2_10=5600-5700|")}), RuleAnswer::blocks);
}

TEST(WindowsFirewall, WhatBlocksGoesBeforeWhatLetsIn)
{
    EXPECT_EQ(windowsSays({windowsRule("Allow"), windowsRule("Block")}), RuleAnswer::blocks);
    EXPECT_EQ(windowsSays({windowsRule("Allow"), windowsRule("Block", ours, "Profile=Public|")}), RuleAnswer::unsure);
}

TEST(WindowsFirewall, ARuleForSomeNetworksOrNeighboursIsNotSure)
{
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "Profile=Private|")}), RuleAnswer::unsure);
    EXPECT_EQ(windowsSays({windowsRule("Allow", ours, "RA4=LocalSubnet|")}), RuleAnswer::unsure);
}

} // namespace
} // namespace nimb::test
