#include "platform/own_identity.h"

#include "on_own_network.h"
#include "print_qt.h"
#include "protocol/address_text.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QSysInfo>
#include <QTest>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

TEST(OwnIdentity, TheFixedAddressWins)
{
    EXPECT_EQ(ownAddress(Ipv4Address(10, 20, 30, 40)), Ipv4Address(10, 20, 30, 40));
}

TEST(OwnIdentity, WithoutAFixedAddressThereIsAlwaysOne)
{
    const Ipv4Address found = ownAddress(std::nullopt);
    EXPECT_FALSE(found.isUnspecified());
    EXPECT_TRUE(!found.isLoopback() || found == Ipv4Address(127, 0, 0, 1));
}

TEST(OwnIdentity, AMalformedFixedAddressIsNotTakenOver)
{
    EXPECT_EQ(ownAddress(readAddress(u"10.20.30")), ownAddress(std::nullopt));
    EXPECT_EQ(ownAddress(readAddress(u"")), ownAddress(std::nullopt));
}

TEST(OwnIdentity, EverybodyHearsTheLastAddressOfANetwork)
{
    EXPECT_EQ(broadcastAddress(Ipv4Address(192, 168, 0, 5), 24), Ipv4Address(192, 168, 0, 255));
    EXPECT_EQ(broadcastAddress(Ipv4Address(10, 1, 2, 3), 22), Ipv4Address(10, 1, 3, 255));
    EXPECT_EQ(broadcastAddress(Ipv4Address(10, 1, 2, 1), 30), Ipv4Address(10, 1, 2, 3));
    EXPECT_EQ(broadcastAddress(Ipv4Address(127, 0, 0, 1), 8), Ipv4Address(127, 255, 255, 255));
    for (const int none : {31, 32, 0, -1})
        EXPECT_EQ(broadcastAddress(Ipv4Address(10, 1, 2, 3), none), std::nullopt) << none;
}

std::vector<Ipv4Address> addressesOfThisMachine()
{
    std::vector<Ipv4Address> found;
    for (const QHostAddress &any : QNetworkInterface::allAddresses()) {
        if (any.protocol() == QAbstractSocket::IPv4Protocol)
            found.push_back(Ipv4Address::of(any.toIPv4Address()));
    }
    return found;
}

TEST(OwnIdentity, EveryAddressOfThisMachineButLoopbackIsItsOwn)
{
    const MachineAddresses machine(std::nullopt);
    for (const Ipv4Address address : addressesOfThisMachine())
        EXPECT_EQ(machine.isOwn(address), !address.isLoopback()) << address.toText();
    EXPECT_FALSE(machine.isOwn(Ipv4Address(8, 8, 8, 8)));
}

TEST(OwnIdentity, ACopyThatIsToldItsAddressLeavesTheOthersToOthers)
{
    const MachineAddresses machine(Ipv4Address(127, 0, 3, 1));
    EXPECT_TRUE(machine.isOwn(Ipv4Address(127, 0, 3, 1)));
    for (const Ipv4Address address : addressesOfThisMachine())
        EXPECT_FALSE(machine.isOwn(address)) << address.toText();
}

TEST(OwnIdentity, WhatEverybodyOnThisMachineHearsIsNobodysAddress)
{
    const MachineAddresses machine(std::nullopt);
    EXPECT_TRUE(machine.isBroadcast(Ipv4Address(127, 255, 255, 255)));
    for (const Ipv4Address address : addressesOfThisMachine())
        EXPECT_FALSE(machine.isBroadcast(address)) << address.toText();
}

TEST(OwnIdentity, EveryCardHasAnAddressOfThisMachineAndNoneIsLoopback)
{
    const MachineAddresses machine(std::nullopt);
    for (const NetworkCard &card : machine.cards()) {
        EXPECT_TRUE(machine.isOwn(card.address)) << qPrintable(card.name);
        EXPECT_TRUE(!card.broadcast || machine.isBroadcast(*card.broadcast)) << qPrintable(card.name);
        EXPECT_FALSE(card.address.isLoopback()) << qPrintable(card.name);
    }
    EXPECT_FALSE(machine.isFixed());
    EXPECT_TRUE(MachineAddresses(Ipv4Address(127, 0, 3, 1)).isFixed());
}

TEST(OwnIdentity, ThereIsAWayToThisMachineItselfAndToItsBroadcasts)
{
    EXPECT_TRUE(MachineAddresses(std::nullopt).hasWayTo(Ipv4Address(127, 0, 3, 1)));
    EXPECT_TRUE(MachineAddresses(Ipv4Address(127, 0, 3, 1)).hasWayTo(Ipv4Address(127, 0, 3, 2)));
    EXPECT_TRUE(MachineAddresses(Ipv4Address(127, 0, 3, 1)).hasWayTo(Ipv4Address(127, 255, 255, 255)));
    EXPECT_FALSE(MachineAddresses(Ipv4Address(127, 0, 3, 1)).hasWayTo(Ipv4Address(192, 0, 2, 1)))
        << "nothing leaves the loopback network";
}

TEST(OwnIdentity, NetworksOfContainersAndVirtualMachinesAreKnownByTheirNames)
{
    for (const char *const name : {"docker0", "br-1a2b3c4d5e6f", "virbr0", "vmnet8", "vboxnet0", "lxcbr0", "podman1"})
        EXPECT_TRUE(isInsideMachine(QLatin1String(name))) << name;
    for (const char *const name : {"eth0", "enp3s0", "wlan0", "br0", "br-lan", "bond0", "veth1", "usb0"})
        EXPECT_FALSE(isInsideMachine(QLatin1String(name))) << name;
}

/// On a machine of the test's own, whose cards are bridges without anything behind them.
class OwnIdentityOfAMachine : public OnOwnNetwork
{
protected:
    void arrange() override { ASSERT_TRUE(runIp({"link", "set", "lo", "up"})); }
    static void addCard(const QString &name, const QString &address)
    {
        ASSERT_TRUE(runIp({"link", "add", name, "type", "bridge"}));
        ASSERT_TRUE(runIp({"address", "add", address, "dev", name}));
        ASSERT_TRUE(runIp({"link", "set", name, "up"}));
    }
};

TEST_F(OwnIdentityOfAMachine, WithoutANetworkItIsThatOfTheMachineItself)
{
    EXPECT_EQ(ownAddress(std::nullopt), Ipv4Address(127, 0, 0, 1));
    EXPECT_TRUE(MachineAddresses(std::nullopt).cards().empty());
}

TEST_F(OwnIdentityOfAMachine, WhoKnowsThatTheNetworksHaveChangedSeesThemAnewAtOnce)
{
    MachineAddresses machine(std::nullopt);
    ASSERT_TRUE(machine.cards().empty());
    addCard("eth0", "10.1.0.1/24");
    EXPECT_TRUE(machine.cards().empty()) << "they were read a moment ago";
    EXPECT_FALSE(machine.isOwn(Ipv4Address(10, 1, 0, 1)));
    machine.readAnew();
    EXPECT_TRUE(machine.isOwn(Ipv4Address(10, 1, 0, 1)));
    EXPECT_EQ(ownAddress(std::nullopt), Ipv4Address(10, 1, 0, 1));
}

TEST_F(OwnIdentityOfAMachine, ABridgeOfContainersIsMarked)
{
    addCard("docker0", "172.17.0.1/16");
    ASSERT_TRUE(runIp({"link", "add", "port", "type", "veth", "peer", "name", "container"}));
    ASSERT_TRUE(runIp({"link", "set", "port", "master", "docker0", "up"}));
    ASSERT_TRUE(runIp({"link", "set", "container", "up"}));
    MachineAddresses machine(std::nullopt);
    const auto isThere = [&machine] {
        machine.readAnew();
        return !machine.cards().empty();
    };
    ASSERT_TRUE(QTest::qWaitFor(isThere, 20000)) << "it has a cable now";
    const NetworkCard expected{QStringLiteral("docker0"), Ipv4Address(172, 17, 0, 1), std::nullopt, true};
    EXPECT_EQ(machine.cards(), std::vector{expected});
}

TEST(OwnIdentity, TheFixedHostNameWins)
{
    EXPECT_EQ(ownHostName("PC-ANN"), "PC-ANN");
    EXPECT_EQ(ownHostName(" Ann's  PC "), "Ann's-PC");
}

TEST(OwnIdentity, WithoutAFixedHostNameItIsTheSystems)
{
    const QString systems = QSysInfo::machineHostName();
    ASSERT_FALSE(systems.isEmpty());
    EXPECT_EQ(ownHostName(std::nullopt), systems);
    EXPECT_EQ(ownHostName(""), systems);
}

} // namespace
} // namespace nimb::test
