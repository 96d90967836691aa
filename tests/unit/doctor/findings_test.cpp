#include "doctor/findings.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;

constexpr Ipv4Address here{192, 168, 1, 5};
const NetworkCard eth0{QStringLiteral("eth0"), here, Ipv4Address(192, 168, 1, 255)};
const NetworkCard wlan0{QStringLiteral("wlan0"), Ipv4Address(192, 168, 1, 6), Ipv4Address(192, 168, 1, 255)};
const NetworkCard wg0{QStringLiteral("wg0"), Ipv4Address(10, 8, 0, 2), std::nullopt};

std::string said(const Finding &finding)
{
    return std::string(nameOf(finding.verdict)) + ": " + finding.sentence.toStdString();
}

TEST(Findings, OfTheNetwork)
{
    EXPECT_EQ(said(findings::network({eth0, wg0}, {here})), "fine: Connected as 192.168.1.5 (eth0), 10.8.0.2 (wg0).");
    EXPECT_EQ(said(findings::network({}, {Ipv4Address(127, 0, 0, 1)})),
              "wrong: No network with an IPv4 address is connected.");
    NetworkCard docker{QStringLiteral("docker0"), Ipv4Address(172, 17, 0, 1)};
    docker.isInsideMachine = true;
    EXPECT_EQ(findings::network({docker}, {docker.address}).verdict, Verdict::wrong) << "nobody else is there";
    EXPECT_EQ(findings::network({}, {Ipv4Address(127, 0, 5, 1), true}).verdict, Verdict::fine)
        << "who keeps the program on this computer needs none";
}

TEST(Findings, OfTheOwnAddress)
{
    EXPECT_EQ(said(findings::ownAddress({wlan0, eth0}, {here})),
              "fine: Your address is 192.168.1.5, of the card eth0.");
    EXPECT_EQ(said(findings::ownAddress({eth0}, {Ipv4Address(10, 1, 1, 1)})),
              "wrong: Your address is 10.1.1.1, and no network card of this computer has it.");
    EXPECT_THAT(findings::ownAddress({eth0}, {Ipv4Address(10, 1, 1, 1), true}).advice.toStdString(),
                HasSubstr("NIMBCHAT_ADDRESS"));
    EXPECT_EQ(findings::ownAddress({wg0}, {wg0.address}).verdict, Verdict::doubtful);
    EXPECT_THAT(findings::ownAddress({wg0}, {wg0.address, true}).advice.toStdString(), HasSubstr("NIMBCHAT_ADDRESS"));
    EXPECT_EQ(said(findings::ownAddress({eth0}, {.address = here, .card = QStringLiteral("wlan0")})),
              "doubtful: The network card wlan0, whose address the options name as yours, is not connected; your "
              "address is 192.168.1.5 of the card eth0.");
    EXPECT_EQ(findings::ownAddress({eth0, wlan0}, {.address = here, .card = QStringLiteral("wlan0")}).verdict,
              Verdict::fine)
        << "that choice is for the next start";
    EXPECT_EQ(findings::ownAddress({eth0}, {Ipv4Address(127, 0, 5, 1), true}).verdict, Verdict::doubtful);
}

TEST(Findings, OfThePort)
{
    EXPECT_EQ(said(findings::port(5549, true, BindFailure::none, std::nullopt)),
              "fine: NIMB-Chat listens on UDP port 5549.");
    EXPECT_EQ(said(findings::port(5549, false, BindFailure::portTaken, PortHolder{QStringLiteral("otherd"), 4711})),
              "wrong: Port 5549 is used by the program otherd (process 4711).");
    const Finding unnamed = findings::port(5549, false, BindFailure::portTaken, PortHolder{});
    EXPECT_EQ(said(unnamed), "wrong: Port 5549 is used by another program.");
    EXPECT_THAT(unnamed.advice.toStdString(), HasSubstr("sudo ss -ulpn sport = :5549"));
    EXPECT_EQ(said(findings::port(80, false, BindFailure::notAllowed, std::nullopt)),
              "wrong: The system does not let NIMB-Chat use port 80.");
    EXPECT_EQ(said(findings::port(5549, false, BindFailure::addressNotHere, std::nullopt)),
              "wrong: Nothing listens: this machine does not have your address.");
    EXPECT_EQ(said(findings::port(5549, false, BindFailure::other, std::nullopt)),
              "wrong: NIMB-Chat does not listen on port 5549.");
}

TEST(Findings, OfTheRoomForDatagrams)
{
    EXPECT_EQ(said(findings::receiveBuffer(212992)), "fine: The system keeps 208 KiB of waiting datagrams.");
    const Finding small = findings::receiveBuffer(4096);
    EXPECT_EQ(said(small),
              "doubtful: The system keeps only 4 KiB of waiting datagrams: when many answer at once, some are lost.");
    EXPECT_THAT(small.advice.toStdString(), HasSubstr("sudo sysctl -w net.core.rmem_max=4194304"));
    EXPECT_EQ(findings::receiveBuffer(0).verdict, Verdict::doubtful);
}

TEST(Findings, OfQuestionsToEverybody)
{
    EXPECT_EQ(said(findings::broadcast({{eth0, true}, {wlan0, true}}, {here})),
              "fine: A question to everybody leaves: 192.168.1.255 (eth0), 192.168.1.255 (wlan0).");
    EXPECT_EQ(said(findings::broadcast({{eth0, false}}, {here})),
              "wrong: The system refuses to send to everybody: 192.168.1.255 (eth0).");
    EXPECT_EQ(findings::broadcast({{eth0, false}, {wlan0, true}}, {here}).verdict, Verdict::doubtful);
    EXPECT_EQ(said(findings::broadcast({}, {here})), "doubtful: There is no network on which everybody can be asked.");
    EXPECT_EQ(findings::broadcast({}, {Ipv4Address(127, 0, 0, 1)}).verdict, Verdict::doubtful)
        << "an address for want of a network";
    EXPECT_EQ(findings::broadcast({}, {Ipv4Address(127, 0, 5, 1), true}).verdict, Verdict::fine);
}

TEST(Findings, OfAFirewallWithTheCommandThatOpensIt)
{
    EXPECT_EQ(findings::firewall({}, 5549).verdict, Verdict::fine);
    EXPECT_EQ(said(findings::firewall({Firewall::Verdict::lets, QStringLiteral("ufw"), {}}, 5549)),
              "fine: The firewall ufw is on and lets UDP port 5549 in.");
    const QString opening = QStringLiteral("sudo ufw allow 5549/udp");
    const Finding blocks = findings::firewall({Firewall::Verdict::blocks, QStringLiteral("ufw"), opening}, 5549);
    EXPECT_EQ(said(blocks), "wrong: The firewall ufw is on and keeps UDP port 5549 out: nobody reaches you.");
    EXPECT_THAT(blocks.advice.toStdString(), HasSubstr("sudo ufw allow 5549/udp"));
    const Finding some = findings::firewall({Firewall::Verdict::forSome, QStringLiteral("ufw"), opening}, 5549);
    EXPECT_EQ(said(some),
              "doubtful: The firewall ufw is on and lets UDP port 5549 in for some and not for others, as it "
              "seems.");
    EXPECT_THAT(some.advice.toStdString(), HasSubstr("sudo ufw allow 5549/udp"));
    EXPECT_EQ(said(findings::firewall({Firewall::Verdict::unknown}, 5549)),
              "doubtful: Only the administrator may see whether a firewall keeps UDP port 5549 out.");
    const Finding noReader = findings::firewall({Firewall::Verdict::noReader}, 5549);
    EXPECT_EQ(noReader.verdict, Verdict::doubtful);
    EXPECT_THAT(noReader.advice.toStdString(), HasSubstr("sudo nft list ruleset"));
    const Finding unread = findings::firewall({Firewall::Verdict::unreadable, QStringLiteral("ufw"), opening}, 5549);
    EXPECT_EQ(said(unread),
              "doubtful: The firewall ufw is on; only the administrator may see whether it lets UDP port 5549 in.");
    EXPECT_THAT(unread.advice.toStdString(), HasSubstr("sudo ufw allow 5549/udp"));
}

TEST(Findings, OfTwoCardsOnOneNetworkAndOfAVpn)
{
    const std::vector<QString> tunnels{QStringLiteral("wg0")};
    EXPECT_EQ(said(findings::severalWays({eth0}, {}, {here})),
              "fine: There is no VPN, and no network has two cards of this computer.");
    EXPECT_EQ(said(findings::severalWays({eth0, wlan0}, {}, {here})),
              "doubtful: The cards eth0 and wlan0 are on the same network: others may see you under either address.");
    EXPECT_EQ(said(findings::severalWays({eth0, wlan0}, {}, {.address = here, .card = QStringLiteral("eth0")})),
              "fine: The cards eth0 and wlan0 are on the same network; your address is the one that was chosen.");
    EXPECT_EQ(findings::severalWays({eth0, wlan0}, {}, {here, true}).verdict, Verdict::fine);
    EXPECT_EQ(findings::severalWays({eth0, wg0}, tunnels, {wg0.address, true}).verdict, Verdict::fine);
    EXPECT_EQ(said(findings::severalWays({eth0, wg0}, tunnels, {wg0.address})),
              "doubtful: Your address is that of wg0, a VPN or another line to a single machine.");
    EXPECT_EQ(said(findings::severalWays({eth0, wg0}, tunnels, {here})),
              "fine: A VPN is up (wg0); your address is not on it.");
    const NetworkCard second{eth0.name, Ipv4Address(192, 168, 1, 7), eth0.broadcast};
    EXPECT_EQ(findings::severalWays({eth0, second}, {}, {here}).verdict, Verdict::fine)
        << "one card with two addresses";
    const NetworkCard wg1{QStringLiteral("wg1"), Ipv4Address(10, 9, 0, 2), std::nullopt};
    EXPECT_EQ(findings::severalWays({wg0, wg1}, {}, {here}).verdict, Verdict::fine) << "these two share nothing";
}

TEST(Findings, OfAContactThatIsSilent)
{
    const QString ann = QStringLiteral("Ann");
    const Ipv4Address there(192, 168, 1, 9);
    const Finding known = findings::contactSilent(ann, there, Neighbour::known);
    EXPECT_EQ(said(known), "wrong: Ann did not answer, but the computer at 192.168.1.9 is there, or was a moment ago.");
    EXPECT_THAT(known.advice.toStdString(), HasSubstr("A firewall there may keep UDP out"));
    const Finding unknown = findings::contactSilent(ann, there, Neighbour::unknown);
    EXPECT_EQ(said(unknown), "wrong: Ann did not answer, and no computer on your network has the address 192.168.1.9.");
    EXPECT_THAT(unknown.advice.toStdString(), HasSubstr("client isolation"));
    EXPECT_EQ(said(findings::contactSilent(ann, there, Neighbour::farAway)),
              "wrong: Ann did not answer. The address 192.168.1.9 is on another network, behind a router or at the "
              "other end of "
              "a tunnel.");
    EXPECT_EQ(said(findings::contactAnswered(ann, std::chrono::milliseconds(12))), "fine: Ann answered after 12 ms.");
}

} // namespace
} // namespace nimb::test
