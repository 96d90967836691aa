#include "copy.h"

#include "base/limits.h"

namespace nimb
{
namespace
{

using test::Copy;
using test::CopySetup;
using testing::ElementsAre;
using testing::IsEmpty;

class SharedContactsTest : public testing::Test
{
protected:
    SharedContactsTest() { copy.settleStart({"10.0.0.2"}); }

    Copy copy{CopySetup{.contacts = {{"10.0.0.2", "Ann"}}}};
};

TEST_F(SharedContactsTest, BecomesARowThatIsNotYetKnown)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.7 PC-CLEO Cleo the Great");
    ASSERT_TRUE(copy.knows("10.0.0.7"));
    const Contact &contact = copy.contact("10.0.0.7");
    EXPECT_EQ(contact.nickname, QStringLiteral("Cleo the Great"));
    EXPECT_EQ(contact.workstation, QStringLiteral("PC-CLEO"));
    EXPECT_EQ(contact.presence, Presence::unknown);
    EXPECT_EQ(contact.sortKey, QStringLiteral("B_Cleo the Great"));
    EXPECT_THAT(copy.sent(), IsEmpty()) << "its presence is learnt at the next announcement";
    EXPECT_THAT(copy.names(), ElementsAre("Ann", "Cleo the Great"));
}

TEST_F(SharedContactsTest, TheLogSaysWhoSentIt)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.7 PC-CLEO Cleo the Great");
    copy.arrive("10.0.0.2", "!USER 10.0.0.7 PC-CLEO Cleo the Great");
    EXPECT_THAT(copy.view.log.lines(),
                ElementsAre("--- 21/11/2026 @ 14:05 - Ann sent you the contact 'Cleo the Great' (10.0.0.7) ---"));
    EXPECT_EQ(copy.view.log.colourOfLastPiece(), 0x808080u);
}

TEST_F(SharedContactsTest, ARowThatIsThereStaysAsItIs)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.2 PC-OTHER Somebody else");
    EXPECT_EQ(copy.contact("10.0.0.2").nickname, QStringLiteral("Ann"));
    EXPECT_EQ(copy.contact("10.0.0.2").presence, Presence::online);
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
}

TEST_F(SharedContactsTest, TheOwnAddressIsNotAdded)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.1 HERE Me");
    copy.arrive("10.0.0.2", "!USER 127.0.0.1 HERE Me");
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
}

TEST_F(SharedContactsTest, OnlyADottedAddressOfOneHostIsAdded)
{
    for (const char *address : {"255.255.255.255", "224.0.0.1", "0.0.0.0", "10.0.0", "10.0.0.256", "fileserver",
                                "010.0.0.7", "10.0.0.7x", "::1"})
        copy.arrive("10.0.0.2", std::string("!USER ") + address + " PC Cleo");
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
    EXPECT_EQ(copy.drops.of(Drop::badAddress), 9u);
}

TEST_F(SharedContactsTest, MissingFieldsAreNoContact)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.7");
    copy.arrive("10.0.0.2", "!USER");
    EXPECT_THAT(copy.names(), ElementsAre("Ann"));
}

TEST_F(SharedContactsTest, EmptyNamesAreUnknown)
{
    copy.arrive("10.0.0.2", "!USER 10.0.0.7  ");
    EXPECT_EQ(copy.contact("10.0.0.7").nickname, QStringLiteral("[unknown]"));
    EXPECT_EQ(copy.contact("10.0.0.7").workstation, QStringLiteral("[unknown]"));
}

TEST_F(SharedContactsTest, StrangersShareNothing)
{
    copy.arrive("10.0.0.9", "!USER 10.0.0.7 PC Cleo");
    EXPECT_FALSE(copy.knows("10.0.0.7"));
}

TEST_F(SharedContactsTest, TheListHasItsLimit)
{
    for (int i = 0; i < limits::contactsFromStrangers + 10; ++i)
        copy.engine.dispatcher().receive(Ipv4Address(10, 0, 0, 2),
                                         "!USER 11." + std::to_string(i / 62500) + "." + std::to_string(i / 250 % 250)
                                             + "." + std::to_string(i % 250 + 1) + " PC X");
    EXPECT_EQ(copy.engine.contacts().rowCount(), limits::contactsFromStrangers);
    EXPECT_EQ(copy.drops.of(Drop::madeRoom), 11u) << "of those who have never answered, the first ones";
    EXPECT_EQ(copy.drops.of(Drop::tooManyContacts), 0u);
    EXPECT_TRUE(copy.knows("10.0.0.2")) << "whom the user has added";
    EXPECT_FALSE(copy.knows("11.0.0.1"));
    EXPECT_TRUE(copy.knows("11.0.40.10"));
}

} // namespace
} // namespace nimb
