#include "base/contact_address.h"

#include <gtest/gtest.h>

namespace nimb
{
namespace
{

TEST(ContactAddress, IsTheSameWhetherReadOrGiven)
{
    const ContactAddress read(QStringLiteral("192.168.0.5"));
    EXPECT_EQ(read.ipv4(), Ipv4Address(192, 168, 0, 5));
    EXPECT_TRUE(read == ContactAddress(Ipv4Address(192, 168, 0, 5)));
    EXPECT_EQ(qHash(read, 7), qHash(ContactAddress(Ipv4Address(192, 168, 0, 5)), 7));
    EXPECT_EQ(read.text(), QStringLiteral("192.168.0.5"));
}

TEST(ContactAddress, KeepsATextThatIsNoAddressAsItIs)
{
    for (const char16_t *const text : {u"somewhere", u"300.1.2.3", u"192.168.000.005", u" 10.0.0.2", u"1.2.3.\u0664"}) {
        const ContactAddress address(QString::fromUtf16(text));
        EXPECT_FALSE(address.ipv4()) << address.text().toStdString();
        EXPECT_EQ(address.text(), QString::fromUtf16(text));
        EXPECT_FALSE(address.isEmpty());
    }
}

TEST(ContactAddress, TakesNoTextForAnother)
{
    const ContactAddress plain(QStringLiteral("192.168.0.5"));
    EXPECT_FALSE(plain == ContactAddress(QStringLiteral("192.168.000.005")));
    EXPECT_FALSE(plain == ContactAddress(QStringLiteral("192.168.0.6")));
    EXPECT_FALSE(ContactAddress(QStringLiteral("somewhere")) == ContactAddress(QStringLiteral("Somewhere")));
    EXPECT_TRUE(ContactAddress(QStringLiteral("somewhere")) == ContactAddress(QStringLiteral("somewhere")));
}

TEST(ContactAddress, IsEmptyOnlyWithoutAnyText)
{
    EXPECT_TRUE(ContactAddress().isEmpty());
    EXPECT_TRUE(ContactAddress(QString()).isEmpty());
    EXPECT_FALSE(ContactAddress(Ipv4Address()).isEmpty());
}

} // namespace
} // namespace nimb
