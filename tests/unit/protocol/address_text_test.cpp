#include "protocol/address_text.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

using testing::Eq;
using testing::Optional;

TEST(AddressText, IsReadAndWritten)
{
    EXPECT_THAT(readAddress(u"10.0.0.2"), Optional(Ipv4Address(10, 0, 0, 2)));
    EXPECT_THAT(readAddress(u"255.255.255.255"), Optional(Ipv4Address(255, 255, 255, 255)));
    EXPECT_EQ(addressText(Ipv4Address(192, 168, 0, 5)), QStringLiteral("192.168.0.5"));
}

TEST(AddressText, WhatIsNoAddressIsNotRead)
{
    for (const char16_t *const text : {u"", u"somewhere", u"1.2.3.\u0664", u"\uFF11.2.3.4", u"1.2.3.\u0134",
                                       u"255.255.255.2555", u"1.2.3.4              ", u"192.168.000.005"})
        EXPECT_THAT(readAddress(text), Eq(std::nullopt)) << QString::fromUtf16(text).toStdString();
    EXPECT_THAT(readAddress(QStringLiteral("1.2.3.4") + QChar(u'\0')), Eq(std::nullopt));
    EXPECT_THAT(readAddress(QStringLiteral("1.2.3.4") + QChar(u'\0') + QStringLiteral(".5")), Eq(std::nullopt));
}

TEST(AddressText, ZerosMayBeSkippedWhereOnlyTheAddressCounts)
{
    EXPECT_THAT(readAddress(u"192.168.000.005", Ipv4Address::LeadingZeros::skipped),
                Optional(Ipv4Address(192, 168, 0, 5)));
}

TEST(AddressText, AddressesAreKeysOfTables)
{
    QHash<Ipv4Address, int> table;
    for (int i = 0; i < 1000; ++i)
        table.insert(Ipv4Address(10, 0, static_cast<std::uint8_t>(i / 256), static_cast<std::uint8_t>(i % 256)), i);
    EXPECT_EQ(table.size(), 1000);
    EXPECT_EQ(table.value(Ipv4Address(10, 0, 3, 7)), 775);
    EXPECT_FALSE(table.contains(Ipv4Address(10, 0, 7, 3)));
}

} // namespace
} // namespace nimb
