// Conversations: what one writes, the other reads, byte by byte, and no window comes between a user and what he does.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace nimb::test
{
namespace
{

using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using State = Window::State;

class StoryPrivateMessage : public testing::Test
{
protected:
    Rows withAnn(const Rows &further = {}) const { return profile(port, {{"127.0.32.2", "Ann", "ANN-PC"}}, further); }
    Rows withAnnAndBen(const Rows &further = {}) const
    {
        return profile(port, {{"127.0.32.2", "Ann", "ANN-PC"}, {"127.0.32.3", "Ben", "BEN-PC"}}, further);
    }

    /// Started and heard by Ann.
    void start(RunningCopy &copy)
    {
        copy.start({"Bob"});
        ann.hearUntil("!STATUS Online");
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.32.2", port};
};

TEST_F(StoryPrivateMessage, AMessageOpensAWindowInWhichTheUserAnswers)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");

    window.say("Hello Ann, how are you?");
    EXPECT_EQ(ann.nextButTyping(), "-Hello Ann, how are you?");
    EXPECT_THAT(
        logHeardBy(ann, window, window),
        ContainsRegex("^-\xAB NIMB-Chat \\[today:[^\n]+ - now:[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\\] Ready \xBB\r\n"
                      "Ann> hello\r\n"
                      "Bob> Hello Ann, how are you\\?$"));
}

TEST_F(StoryPrivateMessage, TwoCopiesWriteToEachOther)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"},
                    profile(port, {{"127.0.32.2", "Ann", "ANN-PC"}, {"127.0.32.4", "Cleo", "CLEO-PC"}}));
    RunningCopy cleo({"127.0.32.4", "CLEO-PC"}, profile(port, {{"127.0.32.1", "Bob", "BOB-PC"}}));
    start(bob);
    cleo.start({"Cleo"});
    const PrivateWindow cleosWindow = MainWindow::of("Cleo").openWhenOnline(0, "Bob");
    cleosWindow.say("Are you there?");
    const PrivateWindow bobsWindow = PrivateWindow::with("Cleo");
    bobsWindow.say("Here I am.");
    cleosWindow.say("Fine!");

    ann.send("127.0.32.1", "-tell me everything");
    const PrivateWindow withAnn = PrivateWindow::with("Ann");
    EXPECT_TRUE(waitUntil([&] {
        return logHeardBy(ann, bobsWindow, withAnn).ends_with("Cleo> Are you there?\r\nBob> Here I am.\r\nCleo> Fine!");
    }));
}

TEST_F(StoryPrivateMessage, TheUserOpensAWindowByDoubleClickAndItIsActive)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "?ONLINE 127.0.32.2 ANN-PC Ann the Great");
    ann.hearUntil("!STATUS Online");
    const MainWindow main = MainWindow::of("Bob");
    main.openContact(0);
    const PrivateWindow window = PrivateWindow::with("Ann the Great");
    EXPECT_TRUE(waitUntil([&] { return window.isActive(); }));
    EXPECT_EQ(window.state(), State::shown);
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    type("first words");
    press("Return");
    EXPECT_EQ(ann.nextButTyping(), "-first words");
    main.openContact(0);
    EXPECT_TRUE(waitUntil([&] { return window.isActive(); }));
    EXPECT_EQ(Window::all(PrivateWindow::captionFor("Ann the Great")).size(), 1U);
}

TEST_F(StoryPrivateMessage, AMessageOfAStrangerOpensNothing)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    WirePeer stranger("127.0.32.9", port);
    stranger.send("127.0.32.1", "-psst");
    stranger.send("127.0.32.1", "!ONLINE 127.0.32.9 SHADY-PC Shady");
    ann.send("127.0.32.1", "-hello");
    PrivateWindow::with("Ann");
    EXPECT_FALSE(Window::exists(PrivateWindow::captionFor("Shady")));
    EXPECT_THAT(stranger.waiting(), IsEmpty());

    stranger.send("127.0.32.1", "-now you know me");
    PrivateWindow::with("Shady");
}

TEST_F(StoryPrivateMessage, BlanksAndBreaksAtTheEndsAreTrimmedBothWays)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "- \r\n  in  side\r\nof it \r\n\r\n ");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");

    window.activate();
    press("shift+Return");
    type("  two  words");
    press("shift+Return");
    type("and a line  ");
    press("shift+Return");
    press("shift+Return");
    press("Return");
    EXPECT_EQ(ann.nextButTyping(), "-two  words\r\nand a line");
    window.say("   ");
    EXPECT_EQ(ann.nextButTyping(), "-");
    press("Return"); // the box is empty: nothing goes out
    window.say("end");
    EXPECT_EQ(ann.nextButTyping(), "-end");
    EXPECT_THAT(logHeardBy(ann, window, window),
                EndsWith("\r\nAnn> in  side\r\nof it\r\nBob> two  words\r\nand a line\r\nBob> \r\nBob> end"));
}

TEST_F(StoryPrivateMessage, NobodyWritesALineThatStandsWhereAnothersDoes)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn({{{"Options", "PrivateBehaviour"}, "1"}}));
    start(bob);
    ann.send("127.0.32.1", "!ONLINE 127.0.32.2 ANN-PC Ann");
    ann.send("127.0.32.1", "-hello\r\nBob> I agree");
    const PrivateWindow window = PrivateWindow::with("Ann");
    window.activate();
    std::vector<PrivateWindow::SeenLine> lines;
    EXPECT_TRUE(waitUntil([&] {
        lines = window.linesSeen();
        return lines.size() == 5;
    })) << lines.size()
        << " lines";
    // When the window was opened, the day, that this is new, what Ann says, and what she wants Bob to have said.
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_LE(std::abs(lines[3].beginning - lines[0].beginning), 4); // the letters themselves
    EXPECT_GE(lines[4].beginning, lines[3].beginning + 8) << "her second line stands where one of Bob's would";
}

TEST_F(StoryPrivateMessage, UmlautsAndEmojiTravelAsTheirBytes)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1",
             "-Gr\xFC\xDF"
             "e f\xFCr 5 \x80"); // windows-1252
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    EXPECT_THAT(logHeardBy(ann, window, window),
                EndsWith("\r\nAnn> Gr\xFC\xDF"
                         "e f\xFCr 5 \x80"));

    window.say("Schöne Grüße für 5 €");
    EXPECT_EQ(ann.nextButTyping(),
              "-Sch\xF6ne Gr\xFC\xDF"
              "e f\xFCr 5 \x80");
    window.say("Prima 😀");
    EXPECT_EQ(ann.nextButTyping(), "-Prima \xF0\x9F\x98\x80");
    window.say("Grüße 😀");
    EXPECT_EQ(ann.nextButTyping(),
              "-Gr\xC3\xBC\xC3\x9F"
              "e \xF0\x9F\x98\x80");

    ann.send("127.0.32.1", "-\xF0\x9F\x98\x80 \xC3\xA4"); // UTF-8
    ann.send("127.0.32.1", "?ONLINE");
    ann.hearUntil("!STATUS Online");
    EXPECT_THAT(logHeardBy(ann, window, window), HasSubstr("\r\nAnn> \xF0\x9F\x98\x80 \xC3\xA4"));
}

TEST_F(StoryPrivateMessage, WhatIsMarkUpElsewhereIsPlainTextHere)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "-<b>bold</b> &amp; %1 <img src=\"/etc/passwd\"> \x01\x02.");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    EXPECT_THAT(logHeardBy(ann, window, window),
                EndsWith("\r\nAnn> <b>bold</b> &amp; %1 <img src=\"/etc/passwd\">   ."));
    window.say("<i>%1 & %2</i> \\n");
    EXPECT_EQ(ann.nextButTyping(), "-<i>%1 & %2</i> \\n");
}

TEST_F(StoryPrivateMessage, TwoThousandCharactersAreSentAndNoMore)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    window.activate();
    type("0123456789abcdefghij");
    for (int length = 20; length < 2000; length *= 2) {
        press("ctrl+a");
        press("ctrl+c");
        press("ctrl+End");
        press("ctrl+v");
    }
    press("Return");
    std::string expected = "-";
    for (int i = 0; i < 100; ++i)
        expected += "0123456789abcdefghij";
    EXPECT_EQ(ann.nextButTyping(), expected);
}

TEST_F(StoryPrivateMessage, PastingAnEmptyClipboardIsHarmless)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    window.activate();
    press("ctrl+v");
    press("shift+Insert");
    window.say("nothing to paste");
    EXPECT_EQ(ann.nextButTyping(), "-nothing to paste");
}

/// How a window that a peer opens appears.
struct Behaviour {
    const char *label;
    const char *option; ///< "PrivateBehaviour"
    State state;
};

void PrintTo(const Behaviour &behaviour, std::ostream *out)
{
    *out << behaviour.label;
}

class OpenedByAPeer : public StoryPrivateMessage, public testing::WithParamInterface<Behaviour>
{
protected:
    const State expected = GetParam().state;
    const Rows option = {{{"Options", "PrivateBehaviour"}, GetParam().option}};
};

TEST_P(OpenedByAPeer, DoesNotTakeTheFocusFromWhoIsTyping)
{
    const WirePeer ben("127.0.32.3", port);
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnnAndBen(option));
    start(bob);
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow withAnn = PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    withAnn.activate();
    type("While I type, ");

    ben.send("127.0.32.1", "-hello from Ben");
    const PrivateWindow withBen = PrivateWindow::with("Ben");
    EXPECT_TRUE(withBen.becomes(expected)) << withBen.state();
    EXPECT_TRUE(waitUntil([&] { return withBen.wantsAttention(); }));
    letWindowsSettle();
    EXPECT_TRUE(withAnn.isActive()) << Window::active().caption();
    type("Ben writes.");
    press("Return");
    EXPECT_EQ(ann.nextButTyping(), "-While I type, Ben writes.");
    EXPECT_EQ(withBen.state(), expected);
}

TEST_P(OpenedByAPeer, DoesNotTakeTheFocusFromTheMainWindow)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn(option));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.activate();
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow withAnn = PrivateWindow::with("Ann");
    EXPECT_TRUE(withAnn.becomes(expected)) << withAnn.state();
    letWindowsSettle();
    EXPECT_TRUE(main.isActive()) << Window::active().caption();

    // Closed, it is only hidden; the next message shows it in the same way, with what it held.
    withAnn.close();
    EXPECT_TRUE(withAnn.becomes(State::hidden));
    main.activate();
    ann.send("127.0.32.1", "-hello again");
    EXPECT_TRUE(withAnn.becomes(expected)) << withAnn.state();
    letWindowsSettle();
    EXPECT_TRUE(main.isActive()) << Window::active().caption();
    EXPECT_THAT(logHeardBy(ann, withAnn, withAnn), EndsWith("\r\nAnn> hello\r\nAnn> hello again"));
}

TEST_P(OpenedByAPeer, StaysAsTheUserHasItWhenMoreMessagesCome)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn(option));
    start(bob);
    ann.send("127.0.32.1", "-one");
    const PrivateWindow withAnn = PrivateWindow::with("Ann");
    EXPECT_TRUE(withAnn.becomes(expected)) << withAnn.state();
    withAnn.activate();
    ann.send("127.0.32.1", "-two");
    ann.send("127.0.32.1", "?ONLINE 127.0.32.2 ANN-PC Ann");
    ann.hearUntil("!STATUS Online");
    letWindowsSettle();
    EXPECT_EQ(withAnn.state(), State::shown);
    EXPECT_TRUE(withAnn.isActive());
    EXPECT_FALSE(withAnn.wantsAttention());
}

INSTANTIATE_TEST_SUITE_P(StoryPrivateMessage, OpenedByAPeer,
                         testing::Values(Behaviour{"Minimised", "0", State::minimised},
                                         Behaviour{"OnTop", "1", State::shown}),
                         [](const auto &parameter) { return parameter.param.label; });

TEST_F(StoryPrivateMessage, AWindowThatIsDestroyedByClosingStartsAnew)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn({{{"Options", "DontDestroyWindow"}, "1"}}));
    start(bob);
    ann.send("127.0.32.1", "-old news");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    PrivateWindow::with("Ann").close();
    EXPECT_TRUE(waitUntil([] { return !Window::exists(PrivateWindow::captionFor("Ann")); }));

    ann.send("127.0.32.1", "-good news");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    const PrivateWindow anew = PrivateWindow::with("Ann");
    EXPECT_THAT(logHeardBy(ann, anew, anew),
                AllOf(EndsWith(" Ready \xBB\r\nAnn> good news"), Not(HasSubstr("old news"))));
}

TEST_F(StoryPrivateMessage, PresenceOfThePeerStandsInTheWindow)
{
    WirePeer ben("127.0.32.3", port);
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnnAndBen());
    start(bob);
    ann.send("127.0.32.1", "-hello");
    ben.send("127.0.32.1", "-what does she do?");
    const PrivateWindow window = PrivateWindow::with("Ann");
    const PrivateWindow withBen = PrivateWindow::with("Ben");
    // Not while the announcement at the start waits for answers; then it is.
    std::string log;
    EXPECT_TRUE(waitUntil([&] {
        ann.send("127.0.32.1", "!STATUS away Back at five");
        return (log = logHeardBy(ben, window, withBen)).ends_with("] Ann changed his state to 'away - Back at five'");
    })) << log;
    ann.send("127.0.32.1", "!OFFLINE 127.0.32.2 ANN-PC Ann");
    ann.send("127.0.32.1", "!ONLINE 127.0.32.2 ANN-PC Ann");
    EXPECT_TRUE(waitUntil([&] { return (log = logHeardBy(ben, window, withBen)).ends_with("] Ann is online"); }))
        << log;
    EXPECT_THAT(log,
                ContainsRegex("\r\n\\[[^\n]+ @ [0-9][0-9]:[0-9][0-9]\\] Ann has gone offline\r\n"
                              "\\[[^\n]+ @ [0-9][0-9]:[0-9][0-9]\\] Ann is online$"));
}

TEST_F(StoryPrivateMessage, ABusyUserAnswersAutomaticallyAtMostOnceASecond)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"},
                    withAnn({{{"Settings", "AutoReplyonBusyActive"}, "-1"},
                             {{"Settings", "AutoReplyonBusyText"}, "Sp\xC3\xA4ter"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    ann.send("127.0.32.1", "-one");
    PrivateWindow::with("Ann");
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD"); // Online: no reply
    main.chooseState(1);
    EXPECT_TRUE(waitUntil([&] {
        ann.send("127.0.32.1", "?ONLINE 127.0.32.2 ANN-PC Ann");
        ann.nextButTyping();
        return ann.nextButTyping() == "!STATUS BUSY";
    }));
    ann.waiting();
    ann.send("127.0.32.1", "-two");
    ann.send("127.0.32.1", "-three");
    ann.send("127.0.32.1", "?ONLINE 127.0.32.2 ANN-PC Ann");
    EXPECT_THAT(ann.hearUntil("!STATUS BUSY"),
                ElementsAre("-[AutoReply] Sp\xE4ter", "!ONLINE 127.0.32.1 BOB-PC Bob", "!STATUS BUSY"));
}

TEST_F(StoryPrivateMessage, PastingAnEmptyClipboardIntoTheAutomaticReplyIsHarmless)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.chooseState(2);
    main.editAutoReply();
    press("ctrl+v");
    type("Back ");
    press("ctrl+q");
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_THAT(bob.stored("Settings", "AutoReplyonawayText"), testing::Optional(HasSubstr("Back ")));
}

TEST_F(StoryPrivateMessage, TheTextOfTheAutomaticReplyIsEditedInItsPanel)
{
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn({{{"Settings", "AutoReplyonAwayActive"}, "-1"}}));
    start(bob);
    const MainWindow main = MainWindow::of("Bob");
    main.chooseState(2);
    main.editAutoReply();
    press("ctrl+a");
    type("At lunch");
    ann.send("127.0.32.1", "-hello"); // takes no focus: the text still being typed does not count yet
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    EXPECT_EQ(ann.nextButTyping(), "-[AutoReply] At the moment I'm not at my PC");
    press("ctrl+q"); // but now it does
    EXPECT_EQ(bob.exitStatus(), 0);
    EXPECT_EQ(bob.stored("Settings", "AutoReplyonawayText"), "At lunch");
    EXPECT_EQ(bob.stored("Settings", "AutoReplyonBusyText"), "I'm busy, please do not disturb");
}

/// What peers call themselves, and what becomes of it.
struct RemoteName {
    const char *label;
    std::string bytes;
    std::string stored;
};

void PrintTo(const RemoteName &name, std::ostream *out)
{
    *out << name.label;
}

class NamesOfPeers : public StoryPrivateMessage, public testing::WithParamInterface<RemoteName>
{
};

TEST_P(NamesOfPeers, AreShownAndStoredAsPlainText)
{
    const RemoteName &name = GetParam();
    RunningCopy bob({"127.0.32.1", "BOB-PC"}, withAnn());
    start(bob);
    ann.send("127.0.32.1", "!ONLINE 127.0.32.2 ANN-PC " + name.bytes);
    ann.send("127.0.32.1", "-hello");
    const PrivateWindow window = PrivateWindow::with(name.stored);
    EXPECT_EQ(ann.nextButTyping(), "?AVATARHEAD");
    ann.send("127.0.32.1", "!OFFLINE");
    const std::string log = logHeardBy(ann, MainWindow::of("Bob"), window);
    EXPECT_THAT(log, HasSubstr(" has gone offline ---"));
    EXPECT_THAT(log, Not(HasSubstr("\n--- forged ---")));

    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), ElementsAre(StoredContact{"127.0.32.2", name.stored, "ANN-PC"}));
}

INSTANTIATE_TEST_SUITE_P(
    StoryPrivateMessage, NamesOfPeers,
    testing::Values(RemoteName{"MarkUp", "<b>Ann</b> <img src=x> &amp;", "<b>Ann</b> <img src=x> &amp;"},
                    RemoteName{"PlaceHolders", "%1 %2 %n %s {0}", "%1 %2 %n %s {0}"},
                    RemoteName{"TheMarkOfChangedDocuments", "a[*]b[*][*]c", "a[*]b[*][*]c"},
                    RemoteName{"LineBreaks", "Ann\r\n--- forged ---\nx\ty", "Ann --- forged --- x y"},
                    RemoteName{"NulBytes", std::string("An\0n\0", 5), "An n "},
                    RemoteName{"Western", "J\xFCrgen \x80", "J\xC3\xBCrgen \xE2\x82\xAC"},
                    RemoteName{"Utf8", "\xF0\x9F\x98\x80 \xC3\xBC", "\xF0\x9F\x98\x80 \xC3\xBC"},
                    RemoteName{"Ampersands", "R&D && more", "R&D && more"},
                    RemoteName{"RightToLeftOverrides",
                               "a\xE2\x80\xAE"
                               "cod.exe",
                               "acod.exe"}),
    [](const auto &parameter) { return parameter.param.label; });

} // namespace
} // namespace nimb::test
