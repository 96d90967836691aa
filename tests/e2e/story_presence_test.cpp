// Who is there: what copies tell each other when they come, stay and go.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <utility>

namespace nimb::test
{
namespace
{

using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class StoryPresence : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.31.2", port};
};

TEST_F(StoryPresence, AStartingCopyAsksItsContactsAndTellsItsState)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.31.1 BOB-PC Bob");
    EXPECT_EQ(ann.next(), "!STATUS Online");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), ElementsAre("!OFFLINE 127.0.31.1 BOB-PC Bob"));
}

TEST_F(StoryPresence, AContactThatAsksIsToldIdentityAndState)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob", "the", "Builder"});
    ann.hearUntil("!STATUS Online");

    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 ANN-PC Ann");
    EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob the Builder");
    EXPECT_EQ(ann.next(), "!STATUS Online");

    // Without its three fields it counts as well, and takes nothing from the row.
    for (const char *bare : {"?ONLINE", "?ONLINE ", "?ONLINE 127.0.31.2", "?ONLINE 127.0.31.2 OTHER"}) {
        ann.send("127.0.31.1", bare);
        EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob the Builder") << bare;
        EXPECT_EQ(ann.next(), "!STATUS Online") << bare;
    }

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), ElementsAre("!OFFLINE 127.0.31.1 BOB-PC Bob the Builder"));
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.31.2", "Ann", "ANN-PC"}));
}

TEST_F(StoryPresence, AnAnswerGoesToTheCommonPortWhereverTheQuestionCameFrom)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    WirePeer annsOtherPort("127.0.31.2", freePort());
    annsOtherPort.send("127.0.31.1", port, "?ONLINE 127.0.31.2 ANN-PC Ann");
    EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob");
    EXPECT_EQ(ann.next(), "!STATUS Online");
    EXPECT_THAT(annsOtherPort.waiting(), IsEmpty());
}

TEST_F(StoryPresence, OnlyQuestionsOfContactsAreAnswered)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");

    for (const char *statement : {"!ONLINE 127.0.31.2 ANN-PC Ann", "!STATUS BUSY In a meeting",
                                  "!OFFLINE 127.0.31.2 ANN-PC Ann", "!TYPING", "!FOO", "?FOO", "hello", "", " ",
                                  "?online 127.0.31.2 ANN-PC Ann", "+127.0.31.2 #3 hi all", "?CONF INVITE #1"})
        ann.send("127.0.31.1", statement);
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 ANN-PC Ann");
    EXPECT_THAT(ann.hearUntil("!STATUS Online"), ElementsAre("!ONLINE 127.0.31.1 BOB-PC Bob", "!STATUS Online"));
}

TEST_F(StoryPresence, TheFirstQuestionOfAStrangerIsNotAnsweredTheSecondIs)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    WirePeer cleo("127.0.31.3", port);

    // None of these makes a contact.
    for (const char *dropped : {"?ONLINE", "?ONLINE 127.0.31.3 CLEO-PC", "!STATUS BUSY", "-hello", "garbage", ""})
        cleo.send("127.0.31.1", dropped);
    cleo.send("127.0.31.1", "?ONLINE 127.0.31.3 CLEO-PC Cleo of the Nile");
    cleo.send("127.0.31.1", "?ONLINE 127.0.31.3 CLEO-PC Cleo of the Nile");
    EXPECT_THAT(cleo.hearUntil("!STATUS Online"), ElementsAre("!ONLINE 127.0.31.1 BOB-PC Bob", "!STATUS Online"));
    cleo.send("127.0.31.1", "?ONLINE 127.0.31.3 CLEO-PC Cleo of the Nile");
    EXPECT_THAT(cleo.hearUntil("!STATUS Online"), ElementsAre("!ONLINE 127.0.31.1 BOB-PC Bob", "!STATUS Online"));

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(cleo.waiting(), ElementsAre("!OFFLINE 127.0.31.1 BOB-PC Bob"));
    EXPECT_THAT(bob.storedContacts(),
                ElementsAre(StoredContact{"127.0.31.3", "Cleo of the Nile", "CLEO-PC"},
                            StoredContact{"127.0.31.2", "Ann", "ANN-PC"}));
}

TEST_F(StoryPresence, AnswersAndFarewellsOfStrangersMakeContactsToo)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const WirePeer dave("127.0.31.4", port);
    const WirePeer eve("127.0.31.5", port);

    dave.send("127.0.31.1", "!OFFLINE 127.0.31.4 DAVE-PC Dave");
    eve.send("127.0.31.1", "!ONLINE 10.1.2.3 EVE-PC Eve"); // the address that she claims counts for nothing
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 ANN-PC Ann");
    ann.hearUntil("!STATUS Online");

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(),
                ElementsAre(StoredContact{"127.0.31.2", "Ann", "ANN-PC"}, StoredContact{"127.0.31.5", "Eve", "EVE-PC"},
                            StoredContact{"127.0.31.4", "Dave", "DAVE-PC"}));
}

TEST_F(StoryPresence, TheOwnAndTheLoopbackAddressNeverBecomeContacts)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const WirePeer self("127.0.31.1", freePort());
    const WirePeer loopback("127.0.0.1", freePort());

    for (const char *word : {"?ONLINE", "!ONLINE", "!OFFLINE"}) {
        self.send("127.0.31.1", port, std::string(word) + " 127.0.31.1 BOB-PC Bob");
        self.send("127.255.255.255", port, std::string(word) + " 127.0.31.1 BOB-PC Bob");
        loopback.send("127.0.31.1", port, std::string(word) + " 127.0.0.1 LOCAL-PC Local");
    }
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 ANN-PC Ann");
    ann.hearUntil("!STATUS Online");

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.31.2", "Ann", "ANN-PC"}));
}

TEST_F(StoryPresence, TwoCopiesThatKnowEachOtherSeeEachOtherComeAndGo)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"},
                    profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}, {"127.0.31.3", "[unknown]", "[unknown]"}}));
    RunningCopy cleo({"127.0.31.3", "CLEO-PC"},
                     profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}, {"127.0.31.1", "[unknown]", "[unknown]"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    cleo.start({"Cleo"});
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.31.3 CLEO-PC Cleo");
    EXPECT_EQ(ann.next(), "!STATUS Online");

    // A contact that is not known to be there does not open by double click; this one does, under its new name. It is
    // the first of the list now, for Ann is silent.
    const MainWindow bobsMain = MainWindow::of("Bob");
    bobsMain.openWhenOnline(0, "Cleo");
    MainWindow::of("Cleo").openWhenOnline(0, "Bob");

    ann.send("127.0.31.1", "-what do you see?");
    EXPECT_EQ(cleo.end(), 0);
    EXPECT_EQ(ann.hearUntil("!OFFLINE 127.0.31.3 CLEO-PC Cleo").back(), "!OFFLINE 127.0.31.3 CLEO-PC Cleo");
    EXPECT_THAT(logHeardBy(ann, bobsMain, PrivateWindow::with("Ann")),
                AllOf(ContainsRegex("--- [^\n]+ @ [0-9][0-9]:[0-9][0-9] - Cleo went online ---\r\n"),
                      ContainsRegex("--- [^\n]+ @ [0-9][0-9]:[0-9][0-9] - Cleo changed his state to 'Online'  ---\r\n"),
                      ContainsRegex("--- [^\n]+ @ [0-9][0-9]:[0-9][0-9] - Cleo has gone offline ---")));

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), testing::Contains(StoredContact{"127.0.31.3", "Cleo", "CLEO-PC"}));
    EXPECT_THAT(cleo.storedContacts(), testing::Contains(StoredContact{"127.0.31.1", "Bob", "BOB-PC"}));
}

TEST_F(StoryPresence, WhatIsNotUnderstoodStandsInTheLogAndIsNotAnswered)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "ANN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send("127.0.31.1", "!FOO 1 2");
    ann.send("127.0.31.1", "?bar");
    ann.send("127.0.31.1", "hello there");
    ann.send("127.0.31.1", "two\r\nlines");
    ann.send("127.0.31.1", "-write it down");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");

    const std::string log = logHeardBy(ann, MainWindow::of("Bob"), PrivateWindow::with("Ann"));
    EXPECT_THAT(log,
                HasSubstr("\r\n--- unsupported command received (!FOO 1 2) ---\r\n"
                          "--- unsupported command received (?bar) ---\r\n"
                          "--- garbage received  (hello there) ---\r\n"
                          "--- garbage received  (two lines) ---"));
}

TEST_F(StoryPresence, AContactThatChangesItsNameIsSaidAndNothingUnseenIsInIt)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "A"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send("127.0.31.1", "!ONLINE 127.0.31.2 A B\xE2\x80\x8Bo\xC2\xADs\xE3\x85\xA4s");
    ann.send("127.0.31.1", "-I am the boss");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    EXPECT_THAT(logHeardBy(ann, MainWindow::of("Bob"), PrivateWindow::with("Boss")),
                ContainsRegex("--- [^\n]+ @ [0-9][0-9]:[0-9][0-9] - Ann is now called Boss ---\r\n"
                              "--- [^\n]+ @ [0-9][0-9]:[0-9][0-9] - Boss went online ---"));
    ann.send("127.0.31.1", "!ONLINE 127.0.31.2 A \xE3\x85\xA4 \xE2\x80\x8B");
    ann.send("127.0.31.1", "?ONLINE");
    ann.hearUntil("!STATUS Online");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.31.2", "[unknown]", "A"}));
}

TEST_F(StoryPresence, AContactWhoTakesAnothersNameIsToldApartInTheList)
{
    WirePeer ben("127.0.31.3", port);
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "A"}, {"127.0.31.3", "Ben", "B"}}));
    const MainWindow main = MainWindow::startBob(bob, ann);
    ben.hearUntil("!STATUS Online");
    ann.send("127.0.31.1", "!ONLINE 127.0.31.2 A Ann");
    ben.send("127.0.31.1", "!ONLINE 127.0.31.3 B Ben");
    ben.send("127.0.31.1", "?ONLINE 127.0.31.3 B Ben");
    EXPECT_EQ(ben.next(), "!ONLINE 127.0.31.1 BOB-PC Bob"); // all of it has arrived
    std::vector<std::vector<std::uint32_t>> alone;
    EXPECT_TRUE(waitUntil([&] {
        const auto now = main.pictureOfRow(0);
        return now == std::exchange(alone, now);
    }));

    ben.send("127.0.31.1", "!ONLINE 127.0.31.3 B \xD0\x90nn"); // with a Cyrillic letter
    EXPECT_TRUE(waitUntil([&] { return main.pictureOfRow(0) != alone; }))
        << "Ann's row looks as if she was the only one";
    EXPECT_TRUE(waitUntil([&] { return main.pictureOfRow(1) != main.pictureOfRow(0); })) << "both look the same";
    ben.send("127.0.31.1", "!ONLINE 127.0.31.3 B Ben");
    EXPECT_TRUE(waitUntil([&] { return main.pictureOfRow(0) == alone; })) << "she is the only one again";
}

TEST_F(StoryPresence, AContactThatLeavesStandsBehindThoseWhoAreThere)
{
    WirePeer cleo("127.0.31.3", port);
    WirePeer dave("127.0.31.4", port);
    RunningCopy bob(
        {"127.0.31.1", "BOB-PC"},
        profile(port, {{"127.0.31.2", "Ann", "A"}, {"127.0.31.3", "Cleo", "C"}, {"127.0.31.4", "Dave", "D"}}));
    bob.start({"Bob"});
    for (WirePeer *peer : {&ann, &cleo, &dave})
        peer->hearUntil("!STATUS Online");
    cleo.send("127.0.31.1", "!ONLINE 127.0.31.3 C Cleo");
    dave.send("127.0.31.1", "!STATUS busy");
    ann.send("127.0.31.1", "!ONLINE 127.0.31.2 A Ann");
    ann.send("127.0.31.1", "!OFFLINE 127.0.31.2 A Ann");
    ann.send("127.0.31.1", "-can you still read me?");
    PrivateWindow::with("Ann"); // all of it has arrived

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(),
                ElementsAre(StoredContact{"127.0.31.3", "Cleo", "C"}, StoredContact{"127.0.31.4", "Dave", "D"},
                            StoredContact{"127.0.31.2", "Ann", "A"}));
}

TEST_F(StoryPresence, AChosenStateIsToldToThoseWhoAreThereOnly)
{
    WirePeer silent("127.0.31.3", port);
    RunningCopy bob({"127.0.31.1", "BOB-PC"},
                    profile(port, {{"127.0.31.2", "Ann", "A"}, {"127.0.31.3", "Sly", "S"}},
                            {{{"Settings", "PersonalizedState1"}, "5Gone fishing"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 A Ann");
    ann.hearUntil("!STATUS Online");

    const MainWindow main = MainWindow::of("Bob");
    main.chooseState(1);
    EXPECT_EQ(ann.next(), "!STATUS BUSY");
    main.chooseState(1);
    EXPECT_EQ(ann.next(), "!STATUS AWAY");
    main.chooseState(3);
    EXPECT_EQ(ann.next(), "!STATUS AWAY Gone fishing");
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 A Ann");
    EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob");
    EXPECT_EQ(ann.next(), "!STATUS AWAY Gone fishing");
    main.chooseState(-5);
    EXPECT_EQ(ann.next(), "!STATUS ONLINE");
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 A Ann");
    EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob");

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(ann.waiting(), ElementsAre("!OFFLINE 127.0.31.1 BOB-PC Bob"));
    EXPECT_THAT(silent.waiting(),
                ElementsAre("?ONLINE 127.0.31.1 BOB-PC Bob", "!STATUS Online", "!OFFLINE 127.0.31.1 BOB-PC Bob"));
    EXPECT_EQ(bob.stored("Settings", "PersonalizedState1"), "5Gone fishing");
}

TEST_F(StoryPresence, AnInvisibleUserSaysFarewellAndAnswersNobodyUntilHeComesBack)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "A"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send("127.0.31.1", "!ONLINE 127.0.31.2 A Ann");
    const MainWindow main = MainWindow::of("Bob");
    main.chooseState(3);
    EXPECT_EQ(ann.next(), "!OFFLINE 127.0.31.1 BOB-PC Bob");

    for (const char *lure : {"?ONLINE 127.0.31.2 A Ann", "?AVATARHEAD", "?AVATARBODY", "!AVATARHEAD 2026-11-21",
                             "!CONF INVITE #1 AGREE", "?CONF USERS #1", "-I know that you are there"})
        ann.send("127.0.31.1", lure);
    PrivateWindow::with("Ann"); // the last of them has been dealt with
    main.chooseState(-3);
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.31.1 BOB-PC Bob"); // nothing came before it
    ann.send("127.0.31.1", "?ONLINE 127.0.31.2 A Ann");
    EXPECT_EQ(ann.next(), "!ONLINE 127.0.31.1 BOB-PC Bob"); // and no state before it
}

TEST_F(StoryPresence, RescanAsksEveryContactAgain)
{
    RunningCopy bob({"127.0.31.1", "BOB-PC"}, profile(port, {{"127.0.31.2", "Ann", "A"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    const MainWindow main = MainWindow::of("Bob");
    // The button rests until the announcement at the start is over.
    std::optional<Heard> question;
    EXPECT_TRUE(waitUntil([&] {
        main.rescan();
        question = ann.hear(std::chrono::milliseconds(50));
        return question.has_value();
    }));
    EXPECT_EQ(question.value_or(Heard{}).bytes, "?ONLINE 127.0.31.1 BOB-PC Bob");
    EXPECT_EQ(ann.next(), "!STATUS Online");
}

} // namespace
} // namespace nimb::test
