#include "platform/own_identity.h"

#include "protocol/address_text.h"

#include "print_qt.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QSysInfo>

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
