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
    DropCounts drops;
    Admission admission{common, contacts, ownAddresses, drops};
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

class FullListTest : public AdmissionTest
{
protected:
    static Contact stranger(int number)
    {
        Contact contact;
        contact.ip = Ipv4Address::of(Ipv4Address(10, 1, 0, 0).number() + std::uint32_t(number));
        contact.setPresence(Presence::online);
        contact.hasAnswered = true;
        return contact;
    }
    /// By strangers, who are all there and have answered; Ann was there before.
    FullListTest()
    {
        for (int i = 1; contacts.rowCount() < limits::contactsFromStrangers; ++i)
            admission.admit(stranger(i));
    }
    void goesOffline(const char *ip)
    {
        contacts.change(QString::fromLatin1(ip), [](Contact &contact) { contact.setPresence(Presence::offline); });
    }
    void neverAnswered(const char *ip)
    {
        contacts.change(QString::fromLatin1(ip), [](Contact &contact) { contact.hasAnswered = false; });
    }
    bool isThere(const char *ip) const { return contacts.find(QString::fromLatin1(ip)); }
};

TEST_F(FullListTest, ANewcomerIsRefusedWhileAllStrangersAreThere)
{
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
    goesOffline("10.0.0.2"); // whom the user has added
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
}

TEST_F(FullListTest, TheOldestStrangerThatIsOfflineMakesRoom)
{
    goesOffline("10.1.0.7");
    goesOffline("10.1.0.5");
    EXPECT_THAT(refusal("10.9.9.9"), Eq(std::nullopt));
    admission.admit(stranger(20000));
    EXPECT_EQ(contacts.rowCount(), limits::contactsFromStrangers);
    EXPECT_FALSE(isThere("10.1.0.5"));
    EXPECT_TRUE(isThere("10.1.0.7"));
    EXPECT_EQ(drops.of(Drop::madeRoom), 1u);
    admission.admit(stranger(20001));
    EXPECT_FALSE(isThere("10.1.0.7"));
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
}

TEST_F(FullListTest, WhoNeverAnsweredMakesRoomAfterAllWhoAreOffline)
{
    neverAnswered("10.1.0.4");
    neverAnswered("10.1.0.3");
    goesOffline("10.1.0.7");
    for (const char *leaves : {"10.1.0.7", "10.1.0.3", "10.1.0.4"}) {
        EXPECT_THAT(refusal("10.9.9.9"), Eq(std::nullopt));
        EXPECT_TRUE(isThere(leaves));
        admission.admit(stranger(20000 + contacts.rowCount() + int(drops.of(Drop::madeRoom))));
        EXPECT_FALSE(isThere(leaves)) << leaves;
    }
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
    EXPECT_EQ(contacts.rowCount(), limits::contactsFromStrangers);
}

TEST_F(FullListTest, WhoNeverAnsweredStaysWhenItIsTheUsersOrWasSpokenTo)
{
    neverAnswered("10.0.0.2"); // whom the user has added
    neverAnswered("10.1.0.5");
    contacts.change(QStringLiteral("10.1.0.5"), [](Contact &contact) { contact.spokenTo = true; });
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
}

TEST_F(FullListTest, WhoComesBackOrWasSpokenToStays)
{
    goesOffline("10.1.0.5");
    contacts.change(QStringLiteral("10.1.0.5"), [](Contact &contact) { contact.setPresence(Presence::online); });
    goesOffline("10.1.0.6");
    contacts.change(QStringLiteral("10.1.0.6"), [](Contact &contact) { contact.spokenTo = true; });
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull));
    goesOffline("10.1.0.7");
    contacts.remove(QStringLiteral("10.1.0.7"));
    admission.admit(stranger(20000));
    EXPECT_THAT(refusal("10.9.9.9"), Optional(Refusal::listFull)) << "who was removed makes no room again";
}

} // namespace
} // namespace nimb::test
