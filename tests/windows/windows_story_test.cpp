// A copy for Windows among peers: what it says goes over the wire byte for byte as a copy for Linux says it, and what
// it is told is seen in its windows.
#include "chat_windows.h"
#include "clipboard.h"
#include "conference_windows.h"
#include "windows_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <QFile>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using Tool = PrivateWindow::Tool;

constexpr char fiveScripts[] = "Latin äß, Ελένη, Привет, 你好, مرحبا, שלום 😀";
constexpr char program[] = "NIMB-Chat/nimb-chat.exe";

class WindowsStory : public testing::Test
{
protected:
    /// Until Ann is seen to be there.
    void start()
    {
        win.start({"Win"});
        ann.hearUntil("!STATUS Online");
        ann.send(win.address(), "!ONLINE 127.0.0.2 ANN-PC Ann");
        EXPECT_TRUE(waitUntil([this] { return seesAnn("online"); }));
    }
    /// Started, with a window that Ann's message opened and that has the focus; she has heard everything so far.
    PrivateWindow startWithWindow()
    {
        start();
        ann.send(win.address(), "-hello");
        const PrivateWindow window = PrivateWindow::with("Ann");
        ann.hearUntil("?AVATARHEAD");
        window.activate();
        return window;
    }
    void TearDown() override
    {
        if (win.isRunning()) {
            EXPECT_EQ(win.end(), 0);
        }
    }

    bool seesAnn(const std::string &state) const
    {
        return win.ask({"contacts"}).printed.starts_with("Ann\t127.0.0.2\t" + state + '\t');
    }
    /// Read past SQLite: neither system sees the other's locks.
    bool isOnDisk(const QByteArray &text) const
    {
        QFile store(win.storeFile());
        return store.open(QFile::ReadOnly) && store.readAll().contains(text)
            && !QFile::exists(win.storeFile() + QStringLiteral("-journal"));
    }
    bool annHears(const std::string &datagram)
    {
        const std::vector<std::string> heard = ann.hearUntil(datagram);
        return !heard.empty() && heard.back() == datagram;
    }
    bool isDealtWith()
    {
        ann.send(win.address(), "?ONLINE");
        return annHears("!STATUS Online");
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.0.2", port};
    WindowsCopy win{profile(port, {{"127.0.0.2", "Ann", "ANN-PC"}, {"127.0.0.5", "Zeno", "ZENO-PC"}},
                            {{{"Options", "PrivateBehaviour"}, "1"}})};
};

TEST_F(WindowsStory, TellsItsStateAndSeesThatOfOthers)
{
    start();
    EXPECT_EQ(win.ask({"status", "busy", "in a meeting"}).status, 0);
    EXPECT_TRUE(annHears("!STATUS BUSY in a meeting"));
    ann.send(win.address(), "!STATUS AWAY Lunch");
    EXPECT_TRUE(waitUntil([this] { return seesAnn("away"); }));
    ann.send(win.address(), "!OFFLINE 127.0.0.2 ANN-PC Ann");
    EXPECT_TRUE(waitUntil([this] { return seesAnn("offline"); }));
}

TEST_F(WindowsStory, SpeaksFiveScriptsInBothDirections)
{
    start();
    ann.send(win.address(), std::string("-") + fiveScripts);
    const PrivateWindow window = PrivateWindow::with("Ann");
    EXPECT_EQ(win.ask({"send", "Ann", fiveScripts}).status, 0);
    EXPECT_TRUE(annHears(std::string("-") + fiveScripts));
    EXPECT_THAT(logHeardBy(ann, window, window),
                EndsWith(std::string("\r\nAnn> ") + fiveScripts + "\r\nWin> " + fiveScripts));
}

TEST_F(WindowsStory, WhatIsTypedIsToldBeforeItIsSent)
{
    startWithWindow();
    type("Hi Ann, how are you");
    EXPECT_EQ(ann.next(), "!TYPING");
    EXPECT_THAT(ann.next(), StartsWith("!LIVETYPE Hi Ann, how a"));
    type("?");
    press("Return");
    EXPECT_TRUE(annHears("-Hi Ann, how are you?"));
}

TEST_F(WindowsStory, WhatAPeerTypesIsSeenUntilItIsSent)
{
    const PrivateWindow window = startWithWindow();
    const auto preview = [&] { return window.picture(20, window.place().height - 230, 400, 30); };
    const auto without = preview();
    ann.send(win.address(), "!LIVETYPE I am just thinking");
    EXPECT_TRUE(waitUntil([&] { return preview() != without; }));
    ann.send(win.address(), "!LIVETYPE ");
    EXPECT_TRUE(waitUntil([&] { return preview() == without; }));
}

TEST_F(WindowsStory, BuzzesAndIsBuzzed)
{
    const PrivateWindow window = startWithWindow();
    press("ctrl+g");
    EXPECT_TRUE(annHears("!BUZZ"));
    ann.send(win.address(), "!BUZZ");
    ASSERT_TRUE(isDealtWith());
    EXPECT_THAT(logHeardBy(ann, window, window), HasSubstr("\r\nBUZZ!\r\n"));
}

TEST_F(WindowsStory, TheOwnAvatarTravelsByteForByte)
{
    const std::string picture(7500, 'x');
    win.writeStore({{{"Settings", "AvatarHead"}, "2026-07-21 12:00:00"}, {{"Settings", "AvatarBody"}, picture}});
    startWithWindow();
    ann.send(win.address(), "?AVATARHEAD");
    EXPECT_EQ(ann.next(), "!AVATARHEAD 2026-07-21 12:00:00");
    ann.send(win.address(), "?AVATARBODY");
    EXPECT_TRUE(ann.next() == "!AVATARBODY " + picture);
}

TEST_F(WindowsStory, TheAvatarOfAPeerIsSeen)
{
    const PrivateWindow window = startWithWindow();
    window.clickTool(Tool::avatar);
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    constexpr std::uint32_t seen = 0x7F7F7F;
    EXPECT_FALSE(window.shows(seen));
    ann.send(win.address(), "!AVATARHEAD 2026-07-21 12:00:00");
    EXPECT_EQ(ann.next(), "?AVATARBODY");
    ann.send(win.address(), "!AVATARBODY " + std::string(7500, '\x7F'));
    EXPECT_TRUE(waitUntil([&] { return window.shows(seen); }));
}

TEST_F(WindowsStory, AClickOnTheOwnGaugeSendsTheMoodAndThatOfAPeerIsSeen)
{
    const PrivateWindow window = startWithWindow();
    window.clickTool(Tool::avatar);
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    window.clickTool(Tool::mood);
    window.clickOwnGauge(0);
    EXPECT_THAT(ann.next(), StartsWith("!MOOD "));

    const auto gauges = [&] { return window.picture(window.place().width - 190, 230, 180, 160); };
    ann.send(win.address(), "!MOOD 1");
    ASSERT_TRUE(isDealtWith());
    const auto low = gauges();
    ann.send(win.address(), "!MOOD 60");
    EXPECT_TRUE(waitUntil([&] { return gauges() != low; }));
}

TEST_F(WindowsStory, RepliesAutomaticallyWhileBusy)
{
    win.writeStore(
        {{{"Settings", "AutoReplyonBusyActive"}, "-1"}, {{"Settings", "AutoReplyonBusyText"}, "Sp\xC3\xA4ter"}});
    start();
    EXPECT_EQ(win.ask({"status", "busy"}).status, 0);
    EXPECT_TRUE(annHears("!STATUS BUSY"));
    ann.send(win.address(), "-are you there?");
    EXPECT_TRUE(annHears("-[AutoReply] Sp\xE4ter"));
}

TEST_F(WindowsStory, AContactThatAPeerSendsIsKept)
{
    start();
    ann.send(win.address(), "!USER 127.0.0.77 DORA-PC Dora the Great");
    ASSERT_TRUE(isDealtWith());
    EXPECT_EQ(win.end(), 0);
    EXPECT_THAT(win.storedContacts(), testing::Contains(StoredContact{"127.0.0.77", "Dora the Great", "DORA-PC"}));
}

TEST_F(WindowsStory, ContactsAreSentToTheOneThatWasClicked)
{
    start();
    const std::string caption = "NIMB-Chat - Send Contacts to 'Ann'";
    MainWindow::of("Win").openContextMenu(0);
    press("c");
    Window::waitFor(caption).activate();
    press("Tab");
    press("Tab");
    press("space"); // all of them
    press("alt+s");
    EXPECT_TRUE(annHears("!USER 127.0.0.5 ZENO-PC Zeno"));
}

TEST_F(WindowsStory, HostsAConferenceAndRelaysWhatAGuestWrites)
{
    WirePeer zeno("127.0.0.5", port);
    start();
    zeno.send(win.address(), "!ONLINE 127.0.0.5 ZENO-PC Zeno");
    const MainWindow main = MainWindow::of("Win");
    hostConference(main);
    const ConferenceWindow window(opened(hostedFirst));
    for (WirePeer *const guest : {&ann, &zeno}) {
        invite(main, guest == &ann ? 0 : 1);
        guest->hearWhere([](const std::string &bytes) { return bytes == "?CONF INVITE #1"; });
        guest->send(win.address(), "!CONF INVITE #1 AGREE");
    }
    zeno.hearWhere([](const std::string &bytes) { return bytes == "!CONF USERS #1 127.0.0.1 127.0.0.2 127.0.0.5"; });
    ann.send(win.address(), "+127.0.0.2 #1 hello there");
    zeno.hearWhere([](const std::string &bytes) { return bytes == "+127.0.0.2 #1 hello there"; });
    window.say("Welcome, both");
    EXPECT_TRUE(annHears("+127.0.0.1 #1 Welcome, both"));
    window.close();
    answerQuestion("alt+y");
    EXPECT_TRUE(annHears("!CONF CLOSE #1"));
}

TEST_F(WindowsStory, JoinsTheConferenceOfAPeer)
{
    start();
    ann.send(win.address(), "?CONF INVITE #3");
    accept(shown(invitationsCaption));
    EXPECT_TRUE(annHears("!CONF INVITE #3 AGREE"));
    ann.send(win.address(), "!CONF USERS #3 127.0.0.2 127.0.0.1");
    const ConferenceWindow window(opened(byAnnFirst));
    window.say("Here I am");
    EXPECT_TRUE(annHears("+127.0.0.1 #3 Here I am"));
}

TEST_F(WindowsStory, ASecondStartHandsOverAndEnds)
{
    win.writeStore({{{"Settings", "MyNickName"}, "Win"}});
    start();
    const MainWindow main = MainWindow::of("Win");
    EXPECT_TRUE(main.becomes(Window::State::minimised));
    EXPECT_EQ(win.startAgain({builtForWindows(program)}), 0);
    EXPECT_TRUE(main.becomes(Window::State::shown));
    EXPECT_TRUE(seesAnn("online"));
}

TEST_F(WindowsStory, AskedToEndItSaysGoodbyeAndKeepsItsSettings)
{
    start();
    EXPECT_EQ(win.end(), 0);
    EXPECT_TRUE(annHears("!OFFLINE 127.0.0.1 WIN-PC Win"));
    EXPECT_EQ(win.stored("Settings", "UDPPort"), std::to_string(port));
    EXPECT_THAT(
        win.storedContacts(),
        ElementsAre(StoredContact{"127.0.0.2", "Ann", "ANN-PC"}, StoredContact{"127.0.0.5", "Zeno", "ZENO-PC"}));
}

TEST_F(WindowsStory, KilledItKeepsWhatItLearntAndStartsAgain)
{
    start();
    ann.send(win.address(), "!USER 127.0.0.77 DORA-PC Dora the Great");
    ASSERT_TRUE(isDealtWith());
    EXPECT_TRUE(waitUntil([this] { return isOnDisk("127.0.0.77"); }));
    win.kill();
    ann.waiting();
    start();
    EXPECT_THAT(win.ask({"contacts"}).printed, HasSubstr("127.0.0.77"));
}

TEST_F(WindowsStory, WithoutANicknameItAsksForOne)
{
    win.start({});
    EXPECT_TRUE(waitUntil([this] { return win.ask({"contacts"}).status == 1; }));
    EXPECT_EQ(win.ask({"quit"}).status, 0);
    EXPECT_EQ(win.exitStatus(), 0);
}

/// Two copies as they are built, one for each system.
class WindowsAndLinux : public testing::Test
{
protected:
    WindowsAndLinux()
    {
        linux.start({"Ann"});
        MainWindow::of("Ann");
        windows.start({"Win"});
        EXPECT_TRUE(waitUntil([&] { return seesLinux("online"); }));
    }
    void TearDown() override
    {
        EXPECT_EQ(linux.end(), 0);
        EXPECT_TRUE(waitUntil([&] { return seesLinux("offline"); }));
        EXPECT_EQ(windows.end(), 0);
    }
    bool seesLinux(const std::string &state) const
    {
        return windows.ask({"contacts"}).printed.starts_with("Ann\t127.0.0.2\t" + state + '\t');
    }

    const std::uint16_t port = freePort();
    WindowsCopy windows{profile(port, {{"127.0.0.2", "Ann", "LIN-PC"}})};
    RunningCopy linux{{"127.0.0.2", "LIN-PC"}, profile(port, {{"127.0.0.1", "Win", "WIN-PC"}})};
};

/// What the user of the window copies out of it.
bool logComesTo(const PrivateWindow &window, const std::string &end)
{
    return waitUntil([&] {
        window.copyLog();
        return clipboard().toStdString().ends_with(end);
    });
}

TEST_F(WindowsAndLinux, ExchangeWordsInFiveScripts)
{
    EXPECT_EQ(windows.ask({"send", "Ann", fiveScripts}).status, 0);
    const PrivateWindow atLinux = PrivateWindow::with("Win");
    EXPECT_TRUE(logComesTo(atLinux, std::string("\nWin> ") + fiveScripts));
    atLinux.sayClipboard();
    const PrivateWindow atWindows = PrivateWindow::with("Ann");
    EXPECT_TRUE(logComesTo(atWindows, std::string("\nWin> ") + fiveScripts));
}

/// Hosted by either, whose one contact is the other.
class ConferenceOfBothSystems : public WindowsAndLinux, public testing::WithParamInterface<const char *>
{
};

TEST_P(ConferenceOfBothSystems, EachReadsWhatTheOtherWrites)
{
    const std::string nickname = GetParam();
    const MainWindow main = MainWindow::of(nickname);
    hostConference(main);
    const ConferenceWindow hosted(opened(hostedFirst));
    invite(main, 0);
    accept(shown(invitationsCaption));
    const ConferenceWindow joined(opened("Conference #1 (Hosted by '" + nickname + "') - NIMB-Chat"));
    joined.say("From the guest");
    hosted.say("From the host");
    const QString guest = nickname == "Ann" ? QStringLiteral("Win> ") : QStringLiteral("Ann> ");
    for (const ConferenceWindow &window : {hosted, joined}) {
        EXPECT_TRUE(waitUntil([&] {
            window.copyLog();
            const QString log = clipboard();
            return log.contains(guest + QStringLiteral("From the guest"))
                && log.contains(QString::fromStdString(nickname) + QStringLiteral("> From the host"));
        })) << window.caption();
    }
}

INSTANTIATE_TEST_SUITE_P(HostedBy, ConferenceOfBothSystems, testing::Values("Ann", "Win"), [](const auto &parameter) {
    return std::string(parameter.param) == "Ann" ? "Linux" : "Windows";
});

} // namespace
} // namespace nimb::test
