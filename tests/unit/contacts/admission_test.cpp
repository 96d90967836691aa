#include "contacts/admission.h"

#include "base/limits.h"

#include "recorders.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::Eq;
using testing::Optional;

class AdmissionTest : public testing::Test
{
protected:
    AdmissionTest()
    {
        common.ownIP = Ipv4Address(10, 0, 0, 1);
        addContact(QStringLiteral("10.0.0.2"));
    }
    void addContact(const ContactAddress &ip)
    {
        Contact contact;
        contact.ip = ip;
        contacts.add(std::move(contact));
    }
    std::optional<Refusal> refusal(const char *ip) const
    {
        return admission.refusal(readAddress(QString::fromLatin1(ip)));
    }

    Common common;
    ContactList contacts;
    ToldAddresses ownAddresses;
    Admission admission{common, contacts, ownAddresses};
};

TEST_F(AdmissionTest, AnAddressOfOneHostIsWelcome)
{
    for (const char *const ip : {"10.0.0.3", "1.0.0.0", "192.168.0.255", "223.255.255.255"})
        EXPECT_THAT(refusal(ip), Eq(std::nullopt)) << ip;
}

TEST_F(AdmissionTest, TheOwnAddressIsRefused)
{
    EXPECT_THAT(refusal("10.0.0.1"), Optional(Refusal::ownAddress));
}

TEST_F(AdmissionTest, TheOwnAddressIsRefusedAsSuchEvenWhenItIsAContactOrLoopback)
{
    addContact(common.ownIP);
    EXPECT_THAT(refusal("10.0.0.1"), Optional(Refusal::ownAddress));
    common.ownIP = Ipv4Address(127, 0, 0, 1);
    EXPECT_THAT(refusal("127.0.0.1"), Optional(Refusal::ownAddress));
}

TEST_F(AdmissionTest, EveryAddressOfThisMachineIsRefused)
{
    ownAddresses.own = {Ipv4Address(172, 16, 0, 1)};
    EXPECT_THAT(refusal("172.16.0.1"), Optional(Refusal::ownAddress));
    EXPECT_THAT(refusal("172.16.0.2"), Eq(std::nullopt));
    ownAddresses.own.clear(); // a network that has gone
    EXPECT_THAT(refusal("172.16.0.1"), Eq(std::nullopt));
}

TEST_F(AdmissionTest, WhatEverybodyOnANetworkHearsIsRefused)
{
    ownAddresses.broadcast = {Ipv4Address(10, 0, 0, 255)};
    EXPECT_THAT(refusal("10.0.0.255"), Optional(Refusal::broadcast));
    EXPECT_THAT(refusal("10.0.1.255"), Eq(std::nullopt));
    addContact(QStringLiteral("10.0.0.255"));
    EXPECT_THAT(refusal("10.0.0.255"), Optional(Refusal::broadcast)) << "stored before the network was so";
}

TEST_F(AdmissionTest, OfTheLoopbackAddressesOnlyTheUsualOneIsRefused)
{
    EXPECT_THAT(refusal("127.0.0.1"), Optional(Refusal::thisMachine));
    EXPECT_THAT(refusal("127.0.1.1"), Eq(std::nullopt));
    common.ownIP = Ipv4Address(127, 0, 1, 1);
    EXPECT_THAT(refusal("127.0.0.1"), Optional(Refusal::thisMachine));
    EXPECT_THAT(refusal("127.0.1.2"), Eq(std::nullopt));
}

TEST_F(AdmissionTest, WhatIsNoAddressOfOneHostIsRefused)
{
    for (const char *const ip : {"", "fileserver", "10.0.0", "10.0.0.256", "010.0.0.3", "0.0.0.0", "224.0.0.1",
                                 "240.0.0.1", "255.255.255.255"})
        EXPECT_THAT(refusal(ip), Optional(Refusal::noUnicast)) << ip;
}

TEST_F(AdmissionTest, AContactIsNotAddedTwice)
{
    EXPECT_THAT(refusal("10.0.0.2"), Optional(Refusal::alreadyThere));
}

TEST_F(AdmissionTest, WhoWasAddedByHandIsAContactAtTheUsualLoopbackAddressToo)
{
    addContact(QStringLiteral("127.0.0.1"));
    EXPECT_THAT(refusal("127.0.0.1"), Optional(Refusal::alreadyThere));
}

TEST_F(AdmissionTest, AFullListTakesNobodyElse)
{
    for (int i = contacts.rowCount(); i < limits::contactsFromStrangers; ++i) {
        EXPECT_THAT(refusal("10.0.0.3"), Eq(std::nullopt));
        addContact(QStringLiteral("11.0.%1.%2").arg(i / 250).arg(i % 250));
    }
    EXPECT_THAT(refusal("10.0.0.3"), Optional(Refusal::listFull));
    EXPECT_THAT(refusal("10.0.0.2"), Optional(Refusal::alreadyThere)) << "who is there is not too many";
}

} // namespace
} // namespace nimb::test
