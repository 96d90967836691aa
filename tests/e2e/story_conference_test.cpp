// Conferences: one copy hosts and relays, the others join, and everyone reads what the others write.
#include "chat_windows.h"
#include "conference_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace nimb::test
{
namespace
{

using testing::ContainsRegex;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using State = Window::State;

/// One copy, Bob's, whose contacts are other machines: Ann in row 0 and Ben in row 1.
class StoryConference : public testing::Test
{
protected:
    StoryConference()
    {
        bob.start({"Bob"});
        for (const auto &[peer, identity] :
             {std::pair(&ann, "127.0.38.2 ANN-PC Ann"), std::pair(&ben, "127.0.38.3 BEN-PC Ben")}) {
            peer->hearUntil("!STATUS Online");
            peer->send(bob.address(), std::string("!ONLINE ") + identity);
        }
        EXPECT_THAT(meanwhile(ann), IsEmpty());
        EXPECT_THAT(meanwhile(ben), IsEmpty());
        main().activate();
    }

    /// What the copy has sent to a peer by the time when it has dealt with everything that the peer sent to it.
    std::vector<std::string> meanwhile(WirePeer &peer) const
    {
        peer.send(bob.address(), "?ONLINE");
        std::vector<std::string> heard = peer.hearUntil("!STATUS Online");
        const std::vector<std::string> answer = {"!ONLINE 127.0.38.1 BOB-PC Bob", "!STATUS Online"};
        const bool answered = heard.size() >= 2 && std::equal(answer.begin(), answer.end(), heard.end() - 2);
        EXPECT_TRUE(answered) << "Bob does not answer";
        heard.resize(answered ? heard.size() - 2 : 0);
        return heard;
    }

    MainWindow main() const { return MainWindow::of("Bob"); }

    ConferenceWindow host() const
    {
        hostConference(main());
        return ConferenceWindow(opened(hostedFirst));
    }

    /// Invites the contact in this row, who agrees.
    void bringIn(WirePeer &peer, int row) const
    {
        invite(main(), row);
        EXPECT_EQ(peer.next(), "?CONF INVITE #1");
        peer.send(bob.address(), "!CONF INVITE #1 AGREE");
    }
    /// Into a new conference, so that Bob is the host and Ann and Ben are in.
    ConferenceWindow hostWithBoth()
    {
        const ConferenceWindow window = host();
        bringIn(ann, 0);
        EXPECT_EQ(ann.next(), "!CONF USERS #1 127.0.38.1 127.0.38.2");
        EXPECT_EQ(ann.next(), "?AVATARHEAD");
        bringIn(ben, 1);
        EXPECT_EQ(ben.next(), "!CONF USERS #1 127.0.38.1 127.0.38.2 127.0.38.3");
        EXPECT_EQ(ben.next(), "?AVATARHEAD");
        EXPECT_EQ(ann.next(), "!CONF USERS #1 127.0.38.1 127.0.38.2 127.0.38.3");
        return window;
    }

    /// Accepts Ann's invitation to her conference 3, which she and Ben are in.
    ConferenceWindow joinAnns()
    {
        ann.send(bob.address(), "?CONF INVITE #3");
        accept(shown(invitationsCaption));
        EXPECT_EQ(ann.next(), "!CONF INVITE #3 AGREE");
        ann.send(bob.address(), "!CONF USERS #3 127.0.38.2 127.0.38.3 127.0.38.1");
        EXPECT_THAT(meanwhile(ann), ElementsAre("?AVATARHEAD"));
        EXPECT_THAT(meanwhile(ben), ElementsAre("?AVATARHEAD"));
        return ConferenceWindow(opened(byAnnFirst));
    }

    /// What stands in the log: the user copies it into a private window with Ben.
    std::string logOf(const ConferenceWindow &window)
    {
        ben.send(bob.address(), "-show me");
        const PrivateWindow withBen = PrivateWindow::with("Ben");
        window.copyLog();
        withBen.sayClipboard();
        return ben.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.38.2", port};
    WirePeer ben{"127.0.38.3", port};
    RunningCopy bob{{"127.0.38.1", "BOB-PC"},
                    profile(port, {{"127.0.38.2", "Ann", "ANN-PC"}, {"127.0.38.3", "Ben", "BEN-PC"}},
                            {{{"Options", "NotifyWin"}, "0"}})};
};

TEST_F(StoryConference, TheHostRelaysWhatAGuestWritesToTheOtherAlone)
{
    const ConferenceWindow window = hostWithBoth();
    ann.send(bob.address(), "+127.0.38.2 #1 hello there");
    EXPECT_EQ(ben.next(), "+127.0.38.2 #1 hello there");
    EXPECT_THAT(meanwhile(ann), IsEmpty());

    window.say("Welcome, both");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #1 Welcome, both");
    EXPECT_EQ(ben.next(), "+127.0.38.1 #1 Welcome, both");
    EXPECT_THAT(logOf(window),
                ContainsRegex("^-\xAB NIMB-Chat \\[today:[^\n]+ - now:[^\n]+\\] Conference #1 Ready \xBB\r\n"
                              "--- Ann joined the conference\r\n"
                              "--- Ben joined the conference\r\n"
                              "Ann> hello there\r\n"
                              "Bob> Welcome, both$"));
}

TEST_F(StoryConference, AGuestThatLeavesIsOffTheListOfTheOthers)
{
    const ConferenceWindow window = hostWithBoth();
    ann.send(bob.address(), "!CONF LEAVE #1");
    EXPECT_EQ(ben.next(), "!CONF USERS #1 127.0.38.1 127.0.38.3");
    window.say("She is gone");
    EXPECT_EQ(ben.next(), "+127.0.38.1 #1 She is gone");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    ann.send(bob.address(), "+127.0.38.2 #1 still here");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());
    EXPECT_THAT(logOf(window), EndsWith("\r\n--- Ann left the conference.\r\nBob> She is gone"));
}

TEST_F(StoryConference, AGuestThatIsKickedIsToldAndHeardNoMore)
{
    const ConferenceWindow window = hostWithBoth();
    window.kick(1);
    EXPECT_EQ(ann.next(), "!CONF CLOSE #1");
    EXPECT_THAT(meanwhile(ben), IsEmpty()); // no list at that moment
    ann.send(bob.address(), "+127.0.38.2 #1 why?");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());

    ben.send(bob.address(), "?CONF USERS #1");
    EXPECT_EQ(ben.next(), "!CONF USERS #1 127.0.38.1 127.0.38.3");
    window.say("Order, please");
    EXPECT_EQ(ben.next(), "+127.0.38.1 #1 Order, please");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
}

TEST_F(StoryConference, TheHostCannotKickItself)
{
    const ConferenceWindow window = hostWithBoth();
    window.kick(0);
    window.say("I stay");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #1 I stay");
    EXPECT_EQ(ben.next(), "+127.0.38.1 #1 I stay");
}

TEST_F(StoryConference, AContactThatRefusesIsNotIn)
{
    const ConferenceWindow window = host();
    invite(main(), 0);
    EXPECT_EQ(ann.next(), "?CONF INVITE #1");
    ann.send(bob.address(), "!CONF INVITE #1 DENY");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    window.say("Anybody?");
    EXPECT_THAT(logOf(window), EndsWith("\r\n--- Ann refused to partecipate to conf\r\nBob> Anybody?"));
    EXPECT_THAT(meanwhile(ann), IsEmpty());

    window.close(); // alone again: no question
    EXPECT_TRUE(disappears(window));
    EXPECT_FALSE(Window::exists(boxCaption));
    EXPECT_THAT(meanwhile(ann), IsEmpty());
}

TEST_F(StoryConference, AHostAloneClosesWithoutAQuestion)
{
    const ConferenceWindow window = host();
    window.close();
    EXPECT_TRUE(disappears(window));
    EXPECT_FALSE(Window::exists(boxCaption));
}

TEST_F(StoryConference, TheHostIsAskedBeforeItClosesAndNoKeepsTheConference)
{
    const ConferenceWindow window = hostWithBoth();
    window.close();
    answerQuestion("alt+n");
    EXPECT_EQ(window.state(), State::shown);
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());
    window.close();
    const Window box = opened(boxCaption);
    press("Escape");
    EXPECT_TRUE(disappears(box));
    window.say("We go on");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #1 We go on");
    ben.send(bob.address(), "+127.0.38.3 #1 fine");
    EXPECT_EQ(ann.next(), "+127.0.38.3 #1 fine");
    EXPECT_EQ(ben.next(), "+127.0.38.1 #1 We go on");

    window.close();
    answerQuestion("alt+y");
    EXPECT_EQ(ann.next(), "!CONF CLOSE #1");
    EXPECT_EQ(ben.next(), "!CONF CLOSE #1");
    EXPECT_TRUE(disappears(window));
    ann.send(bob.address(), "+127.0.38.2 #1 hello?");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());
}

TEST_F(StoryConference, AnInvitationIsAnsweredWhenTheUserAccepts)
{
    ann.send(bob.address(), "?CONF INVITE #3");
    const Window invitations = shown(invitationsCaption);
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    accept(invitations);
    EXPECT_EQ(ann.next(), "!CONF INVITE #3 AGREE");
    const ConferenceWindow window(opened(byAnnFirst));
    EXPECT_TRUE(disappears(invitations)) << "an empty list";
}

TEST_F(StoryConference, AJoinedConferenceSpeaksToItsHostInTheHostsNumber)
{
    const ConferenceWindow window = joinAnns();
    window.say("Good morning");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #3 Good morning");
    ann.send(bob.address(), "+127.0.38.3 #3 hello Bob");
    ann.send(bob.address(), "+127.0.38.2 #3 welcome");
    ann.send(bob.address(), "+127.0.38.2 #1 somewhere else");
    ben.send(bob.address(), "+127.0.38.3 #3 not by way of the host");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());
    EXPECT_THAT(logOf(window),
                ContainsRegex("^-\xAB NIMB-Chat \\[today:[^\n]+ - now:[^\n]+\\] Conference #1 Ready \xBB\r\n"
                              "--- Ann joined the conference\r\n"
                              "--- Ben joined the conference\r\n"
                              "Bob> Good morning\r\n"
                              "Ben> hello Bob\r\n"
                              "Ann> welcome$"));

    ann.send(bob.address(), "!CONF USERS #3 127.0.38.2 127.0.38.1");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(logOf(window), EndsWith("\r\nAnn> welcome\r\n--- Ben left the conference."));
}

TEST_F(StoryConference, AGuestIsAskedBeforeItLeaves)
{
    const ConferenceWindow window = joinAnns();
    window.close();
    answerQuestion("alt+n");
    EXPECT_EQ(window.state(), State::shown);
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    window.say("I am still here");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #3 I am still here");

    window.close();
    answerQuestion("alt+y");
    EXPECT_EQ(ann.next(), "!CONF LEAVE #3");
    EXPECT_TRUE(disappears(window));
    ann.send(bob.address(), "+127.0.38.2 #3 come back");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_FALSE(Window::exists(byAnnFirst));
}

TEST_F(StoryConference, AConferenceThatItsHostClosedTakesNoInputAndIsLeftWithoutAQuestion)
{
    const ConferenceWindow window = joinAnns();
    ben.send(bob.address(), "!CONF CLOSE #3"); // not the host
    EXPECT_THAT(meanwhile(ben), IsEmpty());
    window.say("Open");
    EXPECT_EQ(ann.next(), "+127.0.38.1 #3 Open");
    ann.send(bob.address(), "!CONF CLOSE #3");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    window.say("Closed");
    EXPECT_THAT(logOf(window), EndsWith("\r\nBob> Open\r\n--- This conference is terminated."));
    EXPECT_THAT(meanwhile(ann), IsEmpty());

    window.close();
    EXPECT_TRUE(disappears(window));
    EXPECT_FALSE(Window::exists(boxCaption));
    EXPECT_THAT(meanwhile(ann), ElementsAre("!CONF LEAVE #3"));
}

TEST_F(StoryConference, WhatIsSaidInAConferenceThatIsOverDoesNotReachTheGuestsOfTheOwnOne)
{
    const ConferenceWindow hosted = hostWithBoth();
    ann.send(bob.address(), "?CONF INVITE #1");
    accept(shown(invitationsCaption));
    EXPECT_EQ(ann.next(), "!CONF INVITE #1 AGREE");
    const ConferenceWindow joined(opened("Conference #2 (Hosted by 'Ann') - NIMB-Chat"));
    ann.send(bob.address(), "!CONF CLOSE #1");
    ann.send(bob.address(), "+127.0.38.2 #1 Ben must not hear this");
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_THAT(meanwhile(ben), IsEmpty());

    joined.close();
    EXPECT_TRUE(disappears(joined));
    EXPECT_THAT(meanwhile(ann), ElementsAre("!CONF LEAVE #1"));
    ann.send(bob.address(), "+127.0.38.2 #1 but this");
    EXPECT_EQ(ben.next(), "+127.0.38.2 #1 but this");
}

TEST_F(StoryConference, AnInvitationIsRefusedByTheButton)
{
    ann.send(bob.address(), "?CONF INVITE #3");
    const Window invitations = shown(invitationsCaption);
    deny(invitations);
    EXPECT_EQ(ann.next(), "!CONF INVITE #3 DENY");
    EXPECT_TRUE(disappears(invitations));
    EXPECT_FALSE(Window::exists(byAnnFirst));
}

TEST_F(StoryConference, AnInvitationOutlivesTheClosedWindowAndIsFoundInTheMenu)
{
    ann.send(bob.address(), "?CONF INVITE #3");
    const Window invitations = shown(invitationsCaption);
    invitations.close();
    EXPECT_TRUE(disappears(invitations));
    EXPECT_THAT(meanwhile(ann), IsEmpty());

    main().activate();
    press("alt+c");
    press("i");
    const Window again = opened(invitationsCaption);
    accept(again);
    EXPECT_EQ(ann.next(), "!CONF INVITE #3 AGREE");
}

TEST_F(StoryConference, AnInvitationTakesNoFocusFromWhoIsTyping)
{
    ann.send(bob.address(), "-hello");
    const PrivateWindow withAnn = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    withAnn.activate();
    type("While I type, ");

    ben.send(bob.address(), "?CONF INVITE #2");
    shown(invitationsCaption);
    EXPECT_THAT(meanwhile(ben), IsEmpty());
    letWindowsSettle();
    EXPECT_TRUE(withAnn.isActive()) << Window::active().caption();
    type("Ben invites.");
    press("Return");
    EXPECT_EQ(ann.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes,
              "-While I type, Ben invites.");
}

TEST_F(StoryConference, TheWindowOfTheInvitationsComesBackWithoutTakingTheFocus)
{
    const MainWindow window = main();
    ann.send(bob.address(), "?CONF INVITE #2");
    const Window invitations = shown(invitationsCaption);
    for (const char *end : {"refused", "closed"}) {
        if (std::string(end) == "refused")
            deny(invitations);
        else
            invitations.close();
        EXPECT_TRUE(disappears(invitations));
        window.activate();
        ann.send(bob.address(), "?CONF INVITE #2");
        EXPECT_TRUE(waitUntil([&] { return invitations.state() == State::shown; }));
        letWindowsSettle();
        EXPECT_TRUE(window.isActive()) << end << ": " << Window::active().caption();
    }
}

TEST_F(StoryConference, ASixthConferenceIsOneTooManyAndAFreedNumberIsTakenAgain)
{
    const MainWindow window = main();
    for (const char *number : {"1", "2", "3", "4", "5"}) {
        hostConference(window);
        opened(std::string("Conference #") + number + " (Hosted here) - NIMB-Chat");
    }
    const std::size_t five = Window::numberOfVisible();
    hostConference(window);
    answerQuestion("Return");
    EXPECT_TRUE(waitUntil([&] { return Window::numberOfVisible() == five; }));

    const char second[] = "Conference #2 (Hosted here) - NIMB-Chat";
    const Window closed = shown(second);
    closed.close();
    EXPECT_TRUE(disappears(closed));
    hostConference(window);
    opened(second);
    invite(window, 0, "2");
    EXPECT_EQ(ann.next(), "?CONF INVITE #2");
    EXPECT_EQ(Window::numberOfVisible(), five);
}

TEST_F(StoryConference, AnInvitationWaitsWhileFiveConferencesAreOpen)
{
    const MainWindow window = main();
    for (const char *number : {"1", "2", "3", "4", "5"}) {
        hostConference(window);
        opened(std::string("Conference #") + number + " (Hosted here) - NIMB-Chat");
    }
    ann.send(bob.address(), "?CONF INVITE #7");
    const Window invitations = shown(invitationsCaption);
    acceptAtOnce(invitations);
    const Window third = shown("Conference #3 (Hosted here) - NIMB-Chat");
    third.close();
    EXPECT_TRUE(disappears(third));
    EXPECT_THAT(meanwhile(ann), IsEmpty());
    EXPECT_EQ(invitations.state(), State::shown);
    acceptAtOnce(invitations);
    EXPECT_EQ(ann.next(), "!CONF INVITE #7 AGREE");
    opened("Conference #3 (Hosted by 'Ann') - NIMB-Chat");
}

/// Three copies, and a machine to which each can show its logs. It stands last in every list, under another name in
/// each, so that the windows with it differ.
class StoryConferenceOfThree : public testing::Test
{
protected:
    struct Seat {
        RunningCopy copy;
        std::string nickname, ear;
    };

    Rows contacts(std::vector<StoredContact> others, const std::string &listener) const
    {
        others.push_back({"127.0.38.19", listener, "EAR-PC"});
        return profile(port, others, {{{"Options", "NotifyWin"}, "0"}});
    }

    void start(Seat &seat)
    {
        seat.copy.start({QString::fromStdString(seat.nickname)});
        ear.hearUntil("!STATUS Online");
    }

    std::string logOf(const Seat &seat, const ConferenceWindow &window)
    {
        ear.send(seat.copy.address(), "-show me");
        const PrivateWindow withEar = PrivateWindow::with(seat.ear);
        window.copyLog();
        withEar.sayClipboard();
        return ear.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
    }
    /// Waits until it does.
    testing::AssertionResult logEndsWith(const Seat &seat, const ConferenceWindow &window, const std::string &end)
    {
        std::string log;
        if (waitUntil([&] { return (log = logOf(seat, window)).ends_with(end); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << seat.nickname << " reads: " << log;
    }

    const std::uint16_t port = freePort();
    WirePeer ear{"127.0.38.19", port};
    Seat ann{{{"127.0.38.11", "ANN-PC"},
              contacts({{"127.0.38.12", "Ben", "BEN-PC"}, {"127.0.38.13", "Cleo", "CLEO-PC"}}, "Zoe of Ann")},
             "Ann",
             "Zoe of Ann"};
    Seat ben{{{"127.0.38.12", "BEN-PC"},
              contacts({{"127.0.38.11", "Ann", "ANN-PC"}, {"127.0.38.13", "Cleo", "CLEO-PC"}}, "Zoe of Ben")},
             "Ben",
             "Zoe of Ben"};
    Seat cleo{{{"127.0.38.13", "CLEO-PC"},
               contacts({{"127.0.38.11", "Ann", "ANN-PC"}, {"127.0.38.12", "Ben", "BEN-PC"}}, "Zoe of Cleo")},
              "Cleo",
              "Zoe of Cleo"};

    struct Three {
        ConferenceWindow atAnn, atBen, atCleo;
    };
    /// Ann hosts, and Ben and Cleo have joined one after the other.
    Three gather()
    {
        start(ben);
        start(cleo);
        start(ann);
        const MainWindow annsMain = MainWindow::of("Ann");
        annsMain.openWhenOnline(0, "Ben"); // from then on the rows stay where they are
        annsMain.openWhenOnline(1, "Cleo");
        hostConference(annsMain);
        const ConferenceWindow atAnn(opened(hostedFirst));
        invite(annsMain, 0);
        accept(shown(invitationsCaption));
        const ConferenceWindow atBen(opened(byAnnFirst));
        EXPECT_TRUE(logEndsWith(ann, atAnn, "\r\n--- Ben joined the conference"));
        invite(annsMain, 1);
        accept(shown(invitationsCaption));
        const ConferenceWindow atCleo(opened(byAnnFirst, atBen));
        EXPECT_TRUE(logEndsWith(ben, atBen, "\r\n--- Ann joined the conference\r\n--- Cleo joined the conference"));
        return {atAnn, atBen, atCleo};
    }
};

TEST_F(StoryConferenceOfThree, EveryoneReadsTheOthersUntilTheHostCloses)
{
    const auto &[atAnn, atBen, atCleo] = gather();

    atBen.say("Hello, this is Ben");
    EXPECT_TRUE(logEndsWith(ann, atAnn, "\r\n--- Cleo joined the conference\r\nBen> Hello, this is Ben"));
    EXPECT_TRUE(logEndsWith(cleo, atCleo, "\r\n--- Ben joined the conference\r\nBen> Hello, this is Ben"));
    atCleo.say("Cleo here");
    EXPECT_TRUE(logEndsWith(ann, atAnn, "\r\nBen> Hello, this is Ben\r\nCleo> Cleo here"));
    atAnn.say("So we are three");
    const std::string talk = "\r\nBen> Hello, this is Ben\r\nCleo> Cleo here\r\nAnn> So we are three";
    EXPECT_TRUE(logEndsWith(ann, atAnn, "\r\n--- Cleo joined the conference" + talk));
    EXPECT_TRUE(logEndsWith(ben, atBen, "\r\n--- Cleo joined the conference" + talk));
    EXPECT_TRUE(logEndsWith(cleo, atCleo, "\r\n--- Ben joined the conference" + talk));

    atAnn.close();
    answerQuestion("alt+y");
    EXPECT_TRUE(disappears(atAnn));
    for (const auto &[seat, window] : {std::pair(&ben, &atBen), std::pair(&cleo, &atCleo)}) {
        const std::string end = "\r\nAnn> So we are three\r\n--- This conference is terminated.";
        EXPECT_TRUE(logEndsWith(*seat, *window, end));
        EXPECT_EQ(window->state(), State::shown);
        window->say("Hello?");
        EXPECT_THAT(logOf(*seat, *window), EndsWith(end));
        window->close();
        EXPECT_TRUE(disappears(*window));
        EXPECT_FALSE(Window::exists(boxCaption));
    }
}

TEST_F(StoryConferenceOfThree, AGuestThatLeavesIsMissedByTheOthers)
{
    const auto &[atAnn, atBen, atCleo] = gather();

    atCleo.close();
    answerQuestion("alt+y");
    EXPECT_TRUE(logEndsWith(ann, atAnn, "\r\n--- Cleo left the conference."));
    EXPECT_TRUE(logEndsWith(ben, atBen, "\r\n--- Cleo left the conference."));
    EXPECT_FALSE(Window::exists(boxCaption));
}

} // namespace
} // namespace nimb::test
