// A copy for Windows among peers: what it says goes over the wire byte for byte as a copy for Linux says it.
#include "chat_windows.h"
#include "windows_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

const std::string fiveScripts = "Latin äß, Ελένη, Привет, 你好, مرحبا 😀";

class WindowsStory : public testing::Test
{
protected:
    /// Until Ann is seen to be there.
    void start()
    {
        win.start({"Win"});
        ann.hearUntil("!STATUS Online");
        ann.send("127.0.0.1", "!ONLINE 127.0.0.2 ANN-PC Ann");
        EXPECT_TRUE(
            waitUntil([this] { return win.ask({"contacts"}).printed.starts_with("Ann\t127.0.0.2\tonline\t"); }));
    }
    bool annHears(const std::string &datagram)
    {
        const std::vector<std::string> heard = ann.hearUntil(datagram);
        return !heard.empty() && heard.back() == datagram;
    }
    void TearDown() override
    {
        if (win.isRunning()) {
            EXPECT_EQ(win.end(), 0);
        }
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.0.2", port};
    WindowsCopy win{profile(port, {{"127.0.0.2", "Ann", "ANN-PC"}}, {{{"Options", "PrivateBehaviour"}, "1"}})};
};

TEST_F(WindowsStory, TellsItsStateAndSeesThatOfOthers)
{
    start();
    EXPECT_EQ(win.ask({"status", "busy", "in a meeting"}).status, 0);
    EXPECT_TRUE(annHears("!STATUS BUSY in a meeting"));
    ann.send("127.0.0.1", "!STATUS AWAY Lunch");
    EXPECT_TRUE(waitUntil([this] { return win.ask({"contacts"}).printed.starts_with("Ann\t127.0.0.2\taway\t"); }));
    ann.send("127.0.0.1", "!OFFLINE 127.0.0.2 ANN-PC Ann");
    EXPECT_TRUE(waitUntil([this] { return win.ask({"contacts"}).printed.starts_with("Ann\t127.0.0.2\toffline\t"); }));
}

TEST_F(WindowsStory, SpeaksFiveScriptsInBothDirections)
{
    start();
    for (int i = 0; i < 3; ++i) {
        ann.send("127.0.0.1", "-" + fiveScripts);
        EXPECT_EQ(win.ask({"send", "Ann", QString::fromStdString(fiveScripts)}).status, 0);
        EXPECT_TRUE(annHears("-" + fiveScripts));
    }
    PrivateWindow::with("Ann");
}

TEST_F(WindowsStory, TypingAndSendingInItsWindowReachesThePeer)
{
    start();
    ann.send("127.0.0.1", "-hello");
    const PrivateWindow window = PrivateWindow::with("Ann");
    window.activate();
    window.focusInput();
    type("Hi Ann, ");
    type("how are you?");
    press("Return");
    EXPECT_TRUE(annHears("-Hi Ann, how are you?"));
}

TEST_F(WindowsStory, ABuzzAvatarMoodAndLiveTypeOfAPeerLeaveItAnswering)
{
    start();
    for (const char *datagram : {"-hello", "!BUZZ", "!TYPING", "!LIVETYPE half a sen", "!MOOD 0.7", "!AVATAROFF"})
        ann.send("127.0.0.1", datagram);
    PrivateWindow::with("Ann");
    EXPECT_EQ(win.ask({"send", "Ann", "still here"}).status, 0);
    EXPECT_TRUE(annHears("-still here"));
}

TEST_F(WindowsStory, RepliesAutomaticallyWhileBusy)
{
    win.writeStore({{{"Settings", "AutoReplyonBusyActive"}, "-1"}, {{"Settings", "AutoReplyonBusyText"}, "Spaeter"}});
    start();
    EXPECT_EQ(win.ask({"status", "busy"}).status, 0);
    ann.hearUntil("!STATUS BUSY");
    ann.send("127.0.0.1", "-are you there?");
    EXPECT_TRUE(annHears("-[AutoReply] Spaeter"));
}

TEST_F(WindowsStory, ASecondStartHandsOverAndEnds)
{
    start();
    EXPECT_EQ(win.startAgain({builtForWindows("NIMB-Chat/nimb-chat.exe")}), 0);
    EXPECT_TRUE(win.isRunning());
    EXPECT_THAT(win.ask({"contacts"}).printed, StartsWith("Ann\t"));
}

TEST_F(WindowsStory, AskedToEndItSaysGoodbyeAndKeepsItsSettings)
{
    start();
    EXPECT_EQ(win.end(), 0);
    EXPECT_TRUE(annHears("!OFFLINE 127.0.0.1 WIN-PC Win"));
    EXPECT_EQ(win.stored("Settings", "UDPPort"), std::to_string(port));
    EXPECT_THAT(win.storedContacts(), testing::ElementsAre(StoredContact{"127.0.0.2", "Ann", "ANN-PC"}));
}

TEST_F(WindowsStory, KilledItFindsItsContactsAgain)
{
    start();
    win.kill();
    ann.waiting();
    start();
}

TEST_F(WindowsStory, ACopyForLinuxSeesItAndTheyExchangeWords)
{
    const std::uint16_t common = freePort();
    WindowsCopy windows(profile(common, {{"127.0.0.2", "Lin", "LIN-PC"}}));
    RunningCopy linux({"127.0.0.2", "LIN-PC"}, profile(common, {{"127.0.0.1", "Win", "WIN-PC"}}));
    linux.start({"Lin"});
    MainWindow::of("Lin");
    windows.start({"Win"});
    EXPECT_TRUE(waitUntil([&] { return windows.ask({"contacts"}).printed.starts_with("Lin\t127.0.0.2\tonline\t"); }));
    EXPECT_EQ(windows.ask({"send", "Lin", QString::fromStdString(fiveScripts)}).status, 0);
    const PrivateWindow atLinux = PrivateWindow::with("Win");
    atLinux.say("and back");
    PrivateWindow::with("Lin");
    EXPECT_EQ(linux.end(), 0);
    EXPECT_TRUE(waitUntil([&] { return windows.ask({"contacts"}).printed.starts_with("Lin\t127.0.0.2\toffline\t"); }));
    EXPECT_EQ(windows.end(), 0);
}

} // namespace
} // namespace nimb::test
