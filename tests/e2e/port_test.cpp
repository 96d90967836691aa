// The one socket: what happens when its port is taken, and whom it hears.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <optional>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Port : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.35.2", port};
};

TEST_F(Port, ThatIsTakenIsTriedAgainUntilItIsFree)
{
    std::optional<WirePeer> holder(std::in_place, "127.0.35.1", port);
    RunningCopy bob({"127.0.35.1", "BOB-PC"}, profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    const MainWindow main = MainWindow::of("Bob");
    ann.send("127.0.35.1", "?ONLINE 127.0.35.2 ANN-PC Ann");
    EXPECT_EQ(holder->next(), "?ONLINE 127.0.35.2 ANN-PC Ann"); // the holder loses nothing
    EXPECT_THAT(ann.waiting(), IsEmpty());

    holder.reset();
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.35.1 BOB-PC Bob");
    EXPECT_EQ(ann.next(), "!STATUS Online");
    ann.send("127.0.35.1", "-hello");
    EXPECT_EQ(ann.next(), "?AVATARHEAD"); // one announcement, not two
    const std::string log = logHeardBy(ann, main, PrivateWindow::with("Ann"));
    EXPECT_THAT(log, HasSubstr("\r\nPort " + std::to_string(port) + " is used by another program"));
    EXPECT_THAT(log, HasSubstr("\r\nPort " + std::to_string(port) + " is free now"));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.35.1 BOB-PC Bob");
}

TEST_F(Port, ThatStaysTakenHindersNeitherTheStartNorTheEnd)
{
    const WirePeer holder("127.0.35.1", port);
    RunningCopy bob({"127.0.35.1", "BOB-PC"}, profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    MainWindow::of("Bob").activate();
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), IsEmpty());
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.35.2", "Ann", "ANN-PC"}));
}

TEST_F(Port, IsFreeAgainAfterTheEnd)
{
    RunningCopy bob({"127.0.35.1", "BOB-PC"}, profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    EXPECT_FALSE(WirePeer::couldBind("127.0.35.1", port)) << "nobody else gets the port while the copy runs";
    EXPECT_EQ(bob.end(), 0);
    EXPECT_TRUE(WirePeer::couldBind("127.0.35.1", port));
}

TEST_F(Port, OfAnotherNumberIsAnotherNetwork)
{
    const std::uint16_t otherPort = freePort(); // Ann holds the first one
    WirePeer annElsewhere("127.0.35.2", otherPort);
    WirePeer inBensPlace("127.0.35.3", port);
    RunningCopy bob({"127.0.35.1", "BOB-PC"},
                    profile(port, {{"127.0.35.2", "Ann", "A"}, {"127.0.35.3", "[unknown]", "[unknown]"}}));
    RunningCopy ben({"127.0.35.3", "BEN-PC"},
                    profile(otherPort, {{"127.0.35.2", "Ann", "A"}, {"127.0.35.1", "[unknown]", "[unknown]"}}));
    ben.start({"Ben"});
    annElsewhere.hearUntil("!STATUS Online");
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    // What Bob says to Ben's address reaches nobody but whoever has Bob's own port there.
    EXPECT_EQ(inBensPlace.next(), "?ONLINE 127.0.35.1 BOB-PC Bob");
    for (WirePeer *peer : {&ann, &annElsewhere}) {
        const bool isBobs = peer == &ann;
        peer->send(isBobs ? "127.0.35.1" : "127.0.35.3", "?ONLINE");
        peer->hearUntil("!STATUS Online");
    }
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(ben.end(), 0);
    EXPECT_THAT(bob.storedContacts(), testing::Contains(StoredContact{"127.0.35.3", "[unknown]", "[unknown]"}));
    EXPECT_THAT(ben.storedContacts(), testing::Contains(StoredContact{"127.0.35.1", "[unknown]", "[unknown]"}));
}

TEST_F(Port, HearsWhatIsSentToEverybody)
{
    RunningCopy bob({"127.0.35.1", "BOB-PC"}, profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}));
    RunningCopy ben({"127.0.35.3", "BEN-PC"}, profile(port, {{"127.0.35.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ben.start({"Ben"});
    ann.hearUntil("!STATUS Online");
    ann.hearUntil("!STATUS Online");
    ann.send("127.255.255.255", "?ONLINE 127.0.35.2 ANN-PC Ann");
    std::vector<std::string> answers = ann.hearUntil("!STATUS Online");
    for (const std::string &more : ann.hearUntil("!STATUS Online"))
        answers.push_back(more);
    EXPECT_THAT(answers,
                testing::UnorderedElementsAre("!ONLINE 127.0.35.1 BOB-PC Bob", "!STATUS Online",
                                              "!ONLINE 127.0.35.3 BEN-PC Ben", "!STATUS Online"));
    // Once each, though a copy listens in two places.
    ann.send("127.0.35.1", "?ONLINE");
    EXPECT_THAT(ann.hearUntil("!STATUS Online"), ElementsAre("!ONLINE 127.0.35.1 BOB-PC Bob", "!STATUS Online"));
}

} // namespace
} // namespace nimb::test
