#include "copy.h"

namespace nimb::test
{
namespace
{

using testing::ElementsAre;

/// Whose datagrams the socket is told to let go first.
class AcquaintancesTest : public testing::Test
{
protected:
    AcquaintancesTest()
    {
        copy.settleStart();
        copy.arrive("10.0.0.9", "?ONLINE 10.0.0.9 PC Stranger");
    }

    static constexpr Ipv4Address ann{10, 0, 0, 2}, ben{10, 0, 0, 3}, stranger{10, 0, 0, 9};
    Copy copy{{.contacts = {{"10.0.0.2", "Ann"}, {"10.0.0.3", "Ben"}, {"A NAME", "No address"}}}};
};

TEST_F(AcquaintancesTest, StoredContactsGoFirstWhateverTheyDo)
{
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben));
    copy.arrive("10.0.0.2", "!OFFLINE");
    copy.arrive("10.0.0.3", "-hello");
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben));
}

TEST_F(AcquaintancesTest, AStrangerDoesNotGoFirstByWhatItDoesItself)
{
    ASSERT_TRUE(copy.knows("10.0.0.9"));
    for (const char *bytes : {"!STATUS AWAY", "Buzz", "-hello", "-hello?", "!TYPING"})
        copy.arrive("10.0.0.9", bytes);
    EXPECT_TRUE(copy.contact("10.0.0.9").spokenTo);
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben));
}

TEST_F(AcquaintancesTest, AStrangerGoesFirstOnceTheUserOpensItsWindow)
{
    copy.engine.contactCommands().mnuPrivateChat("10.0.0.9");
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben, stranger));
}

TEST_F(AcquaintancesTest, AStrangerGoesFirstOnceTheUserTypesInTheWindowThatItOpened)
{
    copy.arrive("10.0.0.9", "-hello");
    copy.window(1).chat.intext_Change("h");
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben, stranger));
}

TEST_F(AcquaintancesTest, AStrangerDoesNotGoFirstWhenTheUserClosesTheWindowThatItOpened)
{
    copy.arrive("10.0.0.9", "-hello");
    EXPECT_EQ(copy.window(1).chat.Form_QueryUnload(UnloadMode::closeBox), CloseDecision::hide);
    copy.window(1).hideWindow();
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben));
    copy.engine.contactCommands().mnuPrivateChat("10.0.0.9");
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben, stranger)) << "but when he opens it again";
}

TEST_F(AcquaintancesTest, AStrangerGoesFirstOnceTheUserBuzzesIt)
{
    copy.engine.contactCommands().mnuBuzzUser("10.0.0.9");
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann, ben, stranger));
}

TEST_F(AcquaintancesTest, WhoIsRemovedGoesFirstNoMore)
{
    copy.engine.contacts().remove(ContactAddress(ben));
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann));
    copy.arrive("10.0.0.3", "?ONLINE 10.0.0.3 PC Ben");
    ASSERT_TRUE(copy.knows("10.0.0.3"));
    EXPECT_THAT(copy.socket.acquaintances, ElementsAre(ann)) << "it came back as a stranger";
}

} // namespace
} // namespace nimb::test
