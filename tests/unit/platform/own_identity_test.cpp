#include "platform/own_identity.h"

#include "print_qt.h"

#include <QHostInfo>
#include <QSysInfo>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

TEST(OwnIdentity, ReadsDottedAddresses)
{
    EXPECT_EQ(dottedIpv4("0.0.0.0"), 0U);
    EXPECT_EQ(dottedIpv4("127.0.1.2"), 0x7F000102U);
    EXPECT_EQ(dottedIpv4("192.168.10.254"), 0xC0A80AFEU);
    EXPECT_EQ(dottedIpv4("255.255.255.255"), 0xFFFFFFFFU);
}

TEST(OwnIdentity, TakesNothingElseForAnAddress)
{
    for (const char16_t *text :
         {u"",           u".",        u"...",       u"1.2.3",      u"1.2.3.4.",     u".1.2.3.4",
          u"1.2.3.4.5",  u"1..3.4",   u"1.2.3.256", u"1.2.3.1000", u"1.2.3.4 ",     u" 1.2.3.4",
          u"1.2.3.+4",   u"1.2.3.-4", u"1.2.3.04",  u"1.2.3.00",   u"0x1.2.3.4",    u"1.2.3.4/8",
          u"1.2.3.4:80", u"16909060", u"host",      u"::1",        u"1.2.3.\u0664", u"1.2.3.4294967300"})
        EXPECT_EQ(dottedIpv4(QString::fromUtf16(text)), std::nullopt) << testing::PrintToString(text);
    EXPECT_EQ(dottedIpv4(QString("1.2.3.4") + QChar(0)), std::nullopt);
}

TEST(OwnIdentity, WritesAddressesAsItReadsThem)
{
    EXPECT_EQ(dottedText(0x7F000102U), "127.0.1.2");
    EXPECT_EQ(dottedText(0xFFFFFFFFU), "255.255.255.255");
}

TEST(OwnIdentity, KnowsTheLoopbackNetwork)
{
    EXPECT_TRUE(isLoopback(0x7F000001U));
    EXPECT_TRUE(isLoopback(0x7FFFFFFFU));
    EXPECT_FALSE(isLoopback(0x7EFFFFFFU));
    EXPECT_FALSE(isLoopback(0x80000000U));
}

TEST(OwnIdentity, TheFixedAddressWins)
{
    EXPECT_EQ(ownAddress("10.20.30.40"), "10.20.30.40");
}

TEST(OwnIdentity, WithoutAFixedAddressThereIsAlwaysADottedOne)
{
    const std::optional<std::uint32_t> found = dottedIpv4(ownAddress(std::nullopt));
    ASSERT_TRUE(found);
    EXPECT_NE(*found, 0U);
    EXPECT_TRUE(!isLoopback(*found) || *found == 0x7F000001U);
}

TEST(OwnIdentity, AMalformedFixedAddressIsNotTakenOver)
{
    EXPECT_EQ(ownAddress("10.20.30"), ownAddress(std::nullopt));
    EXPECT_EQ(ownAddress(""), ownAddress(std::nullopt));
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
