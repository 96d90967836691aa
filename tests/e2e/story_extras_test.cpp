// What goes along with a conversation: typing notices, live text, buzzes, pictures, moods and contacts of peers.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace nimb::test
{
namespace
{

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using Tool = PrivateWindow::Tool;
using namespace std::chrono_literals;

// Where what is copied is put by the middle button, above the bottom of a private window.
constexpr int inputAboveBottom = 70;
constexpr int pixelsAMoodUnit = 2;

/// A timer may be early by this share of its time, and never earlier.
constexpr double earliest = 0.95;

class StoryExtras : public testing::Test
{
protected:
    Rows withAnn(const Rows &further = {}) const { return profile(port, {{"127.0.46.2", "Ann", "ANN-PC"}}, further); }

    /// Started, with a window that Ann's message opened and that has the focus; she has heard everything so far.
    PrivateWindow startWithWindow(RunningCopy &copy)
    {
        copy.start({"Bob"});
        ann.hearUntil("!STATUS Online");
        ann.send("127.0.46.1", "-hello");
        const PrivateWindow window = PrivateWindow::with("Ann");
        EXPECT_EQ(ann.next(), "?AVATARHEAD");
        window.activate();
        return window;
    }

    /// Everything that the user's doings so far made the copy send to Ann, and the buzz that tells that it is all.
    std::vector<std::string> heardUpToABuzz()
    {
        press("ctrl+g");
        return ann.hearUntil("!BUZZ");
    }

    bool isDealtWith(WirePeer &peer) const
    {
        peer.send("127.0.46.1", "?ONLINE");
        return peer.hearUntil("!STATUS Online").back() == "!STATUS Online";
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.46.2", port};
};

TEST_F(StoryExtras, TheThirteenthCharacterSendsOneNoticeAndThenTheText)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    startWithWindow(bob);
    type("Hello dear A");
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));

    type("n");
    const auto notice = ann.hear();
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->bytes, "!TYPING");
    const auto text = ann.hear();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->bytes, "!LIVETYPE Hello dear An");
    EXPECT_GE(text->moment - notice->moment, 750ms * earliest);

    type("n, how are y"); // twelve more
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));
    type("o");
    EXPECT_EQ(ann.next(), "!TYPING");
    EXPECT_EQ(ann.next(), "!LIVETYPE Hello dear Ann, how are yo");
}

TEST_F(StoryExtras, WithLiveTypeOffOnlyTheNoticeIsSent)
{
    WirePeer ben("127.0.46.3", port);
    RunningCopy bob({"127.0.46.1", "BOB-PC"},
                    profile(port, {{"127.0.46.2", "Ann", "ANN-PC"}, {"127.0.46.3", "Ben", "BEN-PC"}}));
    const PrivateWindow window = startWithWindow(bob);
    ben.send("127.0.46.1", "-hello");
    const PrivateWindow withBen = PrivateWindow::with("Ben");
    window.clickTool(Tool::liveType); // the caret is in the input box afterwards
    type("Nobody sees this yet");
    EXPECT_EQ(ann.next(), "!TYPING");

    // Ben has it on. When his text has come, Ann's would have come before.
    withBen.activate();
    type("What Ben may see");
    ben.hearWhere([](const std::string &bytes) { return bytes == "!LIVETYPE What Ben may see"; });
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

TEST_F(StoryExtras, OfThreeThousandPastedCharactersTwoThousandStayAndOneNoticeIsSent)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    const PrivateWindow window = startWithWindow(bob);
    std::string message;
    for (int i = 0; i < 300; ++i)
        message += "abcdefghij";
    ann.send("127.0.46.1", "-" + message);
    ASSERT_TRUE(isDealtWith(ann));

    window.click(200, 100, 3); // the whole line, which fills the log
    press("ctrl+c");
    window.click(100, window.place().height - inputAboveBottom);
    press("ctrl+v");
    EXPECT_EQ(ann.next(), "!TYPING");
    std::string end;
    for (int i = 0; i < 20; ++i)
        end += "fghijabcde";
    EXPECT_EQ(ann.next(), "!LIVETYPE " + end);
    press("Return");
    EXPECT_EQ(ann.next(), "-Ann> " + message.substr(0, 1995));
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));
}

TEST_F(StoryExtras, WhatOneTypesTheOtherReadsBeforeItIsSent)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"},
                    profile(port, {{"127.0.46.2", "Ann", "ANN-PC"}, {"127.0.46.4", "Cleo", "CLEO-PC"}}));
    RunningCopy cleo({"127.0.46.4", "CLEO-PC"}, profile(port, {{"127.0.46.1", "Bob", "BOB-PC"}}));
    const PrivateWindow bobsWindowWithAnn = startWithWindow(bob);
    cleo.start({"Cleo"});
    const PrivateWindow cleosWindow = MainWindow::of("Cleo").openWhenOnline(0, "Bob");
    cleosWindow.say("Wait");
    const PrivateWindow bobsWindow = PrivateWindow::with("Cleo");
    cleosWindow.activate();
    type("I am just thinking");

    // Bob marks the preview, which is where the end of the log else is, and gives the text to Ann.
    std::string heard;
    EXPECT_TRUE(waitUntil([&] {
        bobsWindow.activate();
        bobsWindow.markPreview();
        bobsWindowWithAnn.activate();
        bobsWindowWithAnn.click(100, bobsWindowWithAnn.place().height - inputAboveBottom, 1, 2);
        type(".");
        press("Return");
        heard = ann.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
        return heard == "-I am just thinking.";
    })) << heard;
}

TEST_F(StoryExtras, AMessageTakesThePlaceOfThePreview)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    const PrivateWindow window = startWithWindow(bob);
    ann.send("127.0.46.1", "!LIVETYPE one\r\ntwo\tthree");
    ASSERT_TRUE(isDealtWith(ann));
    const auto textAtThePreview = [&] {
        window.markPreview();
        window.click(100, window.place().height - inputAboveBottom, 1, 2);
        type(".");
        press("Return");
        return ann.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
    };
    EXPECT_EQ(textAtThePreview(), "-one two three.");

    ann.send("127.0.46.1", "-one");
    ASSERT_TRUE(isDealtWith(ann));
    window.clickIntoLog(1, 3); // a line with its end is marked, and stays so where there is nothing to mark
    EXPECT_EQ(textAtThePreview(), "-Ann> hello\r\n.");
}

TEST_F(StoryExtras, CtrlGBuzzesAndCtrlShiftGDoesNot)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    const PrivateWindow window = startWithWindow(bob);
    press("ctrl+shift+g");
    press("ctrl+alt+g");
    press("ctrl+g");
    window.say("end");
    EXPECT_THAT(ann.hearUntil("-end"), ElementsAre("!BUZZ", "-end"));
    EXPECT_THAT(logHeardBy(ann, window, window), testing::EndsWith("\r\nAnn> hello\r\nBUZZ!\r\nBob> end"));
}

TEST_F(StoryExtras, OpeningTheAvatarPanelAsksForTheAvatar)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    const PrivateWindow window = startWithWindow(bob);
    window.clickTool(Tool::avatar);
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    ann.send("127.0.46.1", "!AVATARHEAD 2026-07-21 12:00:00");
    EXPECT_EQ(ann.next(), "?AVATARBODY");
    ann.send("127.0.46.1", "!AVATARBODY " + std::string(7500, '\x7F'));
    window.clickTool(Tool::avatar); // closed: no question
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));
    window.clickTool(Tool::avatar);
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
}

/// A picture of every byte value, of what separates elsewhere, and of what is no UTF-8.
std::string difficultPicture()
{
    std::string body(" \r\n\0\0 \t\xC3\x28\xED\xA0\x80\xF5\x80\xC0\xAF\xC3\xA4\xF0\x9F\x98\x80\xEF\xBB\xBF", 25);
    while (body.size() < 7497)
        body += static_cast<char>(body.size() % 256);
    return body + std::string("\0\r\n", 3);
}

/// The same as the store has it, one character a byte.
std::string asCharacters(const std::string &bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size())).toStdString();
}

TEST_F(StoryExtras, TheOwnAvatarTravelsByteForByteAndStaysInTheProfile)
{
    const std::string picture = difficultPicture();
    ASSERT_EQ(picture.size(), 7500U);
    RunningCopy bob({"127.0.46.1", "BOB-PC"},
                    withAnn({{{"Settings", "AvatarHead"}, "2026-07-21 12:00:00"},
                             {{"Settings", "AvatarBody"}, asCharacters(picture)}}));
    startWithWindow(bob);
    for (int i = 0; i < 2; ++i) {
        ann.send("127.0.46.1", "?AVATARHEAD");
        EXPECT_EQ(ann.next(), "!AVATARHEAD 2026-07-21 12:00:00");
        ann.send("127.0.46.1", "?AVATARBODY");
        EXPECT_TRUE(ann.next() == "!AVATARBODY " + picture);
    }
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "AvatarHead"), "2026-07-21 12:00:00");
    EXPECT_TRUE(bob.stored("Settings", "AvatarBody") == asCharacters(picture));
}

TEST_F(StoryExtras, WithoutAHeadThereIsNoAvatarWhateverTheBody)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn({{{"Settings", "AvatarBody"}, std::string(7500, 'x')}}));
    startWithWindow(bob);
    ann.send("127.0.46.1", "?AVATARHEAD");
    EXPECT_EQ(ann.next(), "!AVATAROFF");
    ann.send("127.0.46.1", "?AVATARBODY");
    EXPECT_EQ(ann.next(), "!AVATAROFF");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "AvatarBody"), "");
}

/// Answers as a peer whose picture is polled, until so many more questions were asked. When the last of them came.
Heard answerPolls(WirePeer &peer, int questions)
{
    Heard last;
    while (questions > 0) {
        last = peer.hearWhere([](const std::string &bytes) { return bytes.starts_with("?AVATAR"); });
        if (last.bytes.empty())
            break;
        if (last.bytes == "?AVATARBODY") {
            peer.send("127.0.46.1", "!AVATARBODY " + std::string(7500, '\x20'));
            continue;
        }
        peer.send("127.0.46.1", "!AVATARHEAD WEBCAM");
        --questions;
    }
    return last;
}

TEST_F(StoryExtras, APictureThatMovesIsPolledUntilAStillOneComes)
{
    WirePeer ben("127.0.46.3", port);
    RunningCopy bob({"127.0.46.1", "BOB-PC"},
                    profile(port, {{"127.0.46.2", "Ann", "ANN-PC"}, {"127.0.46.3", "Ben", "BEN-PC"}}));
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ben.hearUntil("!STATUS Online");
    ann.send("127.0.46.1", "-hello");
    ben.send("127.0.46.1", "-hello");
    PrivateWindow::with("Ann");
    PrivateWindow::with("Ben");
    EXPECT_EQ(ben.next(), "?AVATARHEAD");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");

    ann.send("127.0.46.1", "!AVATARHEAD WEBCAM");
    const auto body = ann.hear();
    ASSERT_TRUE(body);
    EXPECT_EQ(body->bytes, "?AVATARBODY");
    ann.send("127.0.46.1", "!AVATARBODY " + std::string(7500, '\x20'));
    EXPECT_GE(answerPolls(ann, 3).moment - body->moment, 3 * 1100ms * earliest);

    ann.hearUntil("?AVATARBODY"); // for the third one
    ann.send("127.0.46.1", "!AVATARHEAD 2026-07-21 12:00:00");
    EXPECT_EQ(ann.hearUntil("?AVATARBODY").back(), "?AVATARBODY");
    ann.send("127.0.46.1", "!AVATARBODY " + std::string(7500, '\x20'));
    ASSERT_TRUE(isDealtWith(ann));

    // In the time in which Ben's picture is asked for three times, Ann's would be too.
    ben.send("127.0.46.1", "!AVATARHEAD WEBCAM");
    answerPolls(ben, 3);
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

TEST_F(StoryExtras, AWindowThatIsClosedForGoodPollsNoMore)
{
    WirePeer ben("127.0.46.3", port);
    RunningCopy bob({"127.0.46.1", "BOB-PC"},
                    profile(port, {{"127.0.46.2", "Ann", "ANN-PC"}, {"127.0.46.3", "Ben", "BEN-PC"}},
                            {{{"Options", "DontDestroyWindow"}, "1"}}));
    const PrivateWindow window = startWithWindow(bob);
    ben.send("127.0.46.1", "-hello");
    PrivateWindow::with("Ben");
    for (WirePeer *const peer : {&ann, &ben})
        peer->send("127.0.46.1", "!AVATARHEAD WEBCAM");
    answerPolls(ben, 1);
    answerPolls(ann, 1);
    window.close();
    ASSERT_TRUE(waitUntil([] { return !Window::exists(PrivateWindow::captionFor("Ann")); }));
    ann.waiting();
    answerPolls(ben, 3);
    EXPECT_THAT(ann.waiting(), IsEmpty());
}

/// The number in "!MOOD number"; a test failure when it is something else.
double moodIn(const std::string &datagram)
{
    EXPECT_THAT(datagram, MatchesRegex("!MOOD [0-9]+(\\.5)?"));
    return datagram.size() > 6 ? std::strtod(datagram.c_str() + 6, nullptr) : -1;
}

TEST_F(StoryExtras, AClickOnTheOwnGaugeSendsTheMood)
{
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    const PrivateWindow window = startWithWindow(bob);
    window.clickTool(Tool::avatar);
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    window.clickTool(Tool::mood);
    window.clickOwnGauge(0, 3);
    window.clickOwnGauge(0, 2);
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));

    window.clickOwnGauge(0);
    const double first = moodIn(ann.next());
    window.clickOwnGauge(41);
    const double second = moodIn(ann.next());
    EXPECT_EQ(second - first, 41.0 / pixelsAMoodUnit);
    EXPECT_THAT((std::vector{first, second}), Each(testing::AllOf(testing::Ge(0), testing::Lt(64))));
    window.clickTool(Tool::mood); // closed: it cannot be pressed any more
    window.clickOwnGauge(0);
    EXPECT_THAT(heardUpToABuzz(), ElementsAre("!BUZZ"));
}

TEST_F(StoryExtras, AContactThatAPeerSendsIsAddedAndSaved)
{
    WirePeer dora("127.0.46.77", port);
    RunningCopy bob({"127.0.46.1", "BOB-PC"}, withAnn());
    bob.start({"Bob"});
    ann.hearUntil("!STATUS Online");
    ann.send("127.0.46.1", "!USER 127.0.46.77 DORA-PC Dora the Great");
    for (const char *refused :
         {"!USER 127.0.46.1 BOB-PC Bob himself", "!USER 127.0.0.1 LOCALHOST Anybody", "!USER 127.0.46.2 OTHER Not Ann",
          "!USER 224.0.0.1 GROUP Everybody", "!USER 127.255.255.255 ALL Everybody here",
          "!USER 255.255.255.255 END The end", "!USER somewhere PC Else", "!USER 127.0.46.78 INCOMPLETE"})
        ann.send("127.0.46.1", refused);
    ASSERT_TRUE(isDealtWith(ann));
    EXPECT_THAT(dora.waiting(), IsEmpty());

    // She is asked by the next announcement; the button rests until the one at the start is over.
    const MainWindow main = MainWindow::of("Bob");
    std::optional<Heard> question;
    EXPECT_TRUE(waitUntil([&] {
        main.rescan();
        question = dora.hear(50ms);
        return question.has_value();
    }));
    EXPECT_EQ(question.value_or(Heard{}).bytes, "?ONLINE 127.0.46.1 BOB-PC Bob");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(),
                testing::UnorderedElementsAre(StoredContact{"127.0.46.2", "Ann", "ANN-PC"},
                                              StoredContact{"127.0.46.77", "Dora the Great", "DORA-PC"}));
}

} // namespace
} // namespace nimb::test
