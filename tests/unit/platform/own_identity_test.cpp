#include "platform/own_identity.h"

#include "protocol/address_text.h"

#include "print_qt.h"

#include <QHostInfo>
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
