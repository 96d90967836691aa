// What is written to somebody who is away is kept, and leaves when he is back.
#include "chat_windows.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

using testing::HasSubstr;
using testing::MatchesRegex;

class OutboxOfACopy : public testing::Test
{
protected:
    MainWindow start() { return MainWindow::startBob(bob, ann); }
    void annComes(const std::string &nickname = "Ann")
    {
        ann.send(bob.address(), "!ONLINE 127.0.53.12 ANN-PC " + nickname);
    }
    void annGoes() { ann.send(bob.address(), "!OFFLINE 127.0.53.12 ANN-PC Ann"); }
    std::string kept() { return bob.stored("Outbox", "WaitingMessages").value_or(""); }
    std::string heardMessage()
    {
        return ann.hearWhere([](const std::string &bytes) { return bytes.starts_with('-'); }).bytes;
    }
    /// Writes to Ann while she is away, and presses the button in the band.
    void writeForLater(const std::string &text)
    {
        annComes();
        ann.send(bob.address(), "-bye");
        const PrivateWindow window = PrivateWindow::with("Ann");
        annGoes();
        window.say(text);
        ann.hearUntil("-" + text);
        window.clickSendLater();
        ASSERT_TRUE(waitUntil([&] { return kept().find(text) != std::string::npos; }));
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.53.12", port};
    RunningCopy bob{{"127.0.53.11", "BOB-PC"}, profile(port, {{"127.0.53.12", "Ann", "ANN-PC"}})};
};

TEST_F(OutboxOfACopy, KeepsAMessageOverAKillAndSendsItWithItsTime)
{
    start();
    writeForLater("call me");
    bob.kill();
    start();
    annComes();
    EXPECT_THAT(heardMessage(),
                MatchesRegex("-call me \\(written (Mon|Tue|Wed|Thu|Fri|Sat|Sun) [0-9][0-9]:[0-9][0-9]\\)"));
    EXPECT_TRUE(waitUntil([&] { return kept().empty(); }));
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(OutboxOfACopy, KeepsItOverAnOrderlyEndAndAsksWhenSomebodyElseTurnsUp)
{
    start();
    writeForLater("call me");
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(kept(), HasSubstr("call me"));
    start();
    annComes("Zoe");
    const Window box = Window::waitFor("NIMB-Chat");
    box.activate();
    press("alt+n");
    annComes();
    EXPECT_THAT(heardMessage(), HasSubstr(" (written "));
    EXPECT_EQ(bob.end(), 0);
}

} // namespace
} // namespace nimb::test
