// Many datagrams at once: every message is shown, windows and lines are bounded, and nobody is forgotten. What is sent
// without waiting for an answer fits into the receive buffer that every machine grants, so that the system drops none.
#include "chat_windows.h"
#include "child_process.h"
#include "clipboard.h"
#include "running_copy.h"
#include "wire_peer.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

namespace nimb::test
{
namespace
{

using testing::SizeIs;

constexpr char ownAddress[] = "127.0.48.1";

std::string addressOf(int number)
{
    return "127.0.49." + std::to_string(number + 1);
}

std::string nameOf(int number)
{
    return "Contact " + std::to_string(number);
}

/// The numbers behind this word in a log, in the order of its lines. It is copied again until the last one is there.
template <class LogWindow> std::vector<int> numbersIn(const LogWindow &log, const QString &word, int last)
{
    std::vector<int> numbers;
    const QRegularExpression expression(word + QStringLiteral(" (\\d+)"));
    EXPECT_TRUE(waitUntil([&] {
        log.copyLog();
        numbers.clear();
        for (auto match = expression.globalMatch(clipboard()); match.hasNext();)
            numbers.push_back(match.next().captured(1).toInt());
        return std::find(numbers.begin(), numbers.end(), last) != numbers.end();
    }));
    return numbers;
}

std::vector<int> numbersBelow(int count)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

class Flood : public testing::Test
{
protected:
    const std::uint16_t port = freePort();
    WirePeer guard{"127.0.48.250", port};
    RunningCopy bob{{ownAddress, "BOB-PC"}};

    /// The guard is in the list, and the first contacts of so many.
    void start(int contacts, const Rows &further = {})
    {
        std::vector<StoredContact> stored = {{guard.address(), "Guard", "GUARD-PC"}};
        for (int i = 0; i < contacts; ++i)
            stored.push_back({addressOf(i), nameOf(i), "PC"});
        bob.writeStore(profile(port, stored, further));
        bob.start({"Bob"});
        guard.hearUntil("!STATUS Online");
    }
    /// All that has been sent so far is dealt with.
    void waitUntilHandled()
    {
        guard.send(ownAddress, "?ONLINE");
        guard.hearUntil("!STATUS Online");
    }
    /// Opens the window by the first word.
    PrivateWindow windowOf(const WirePeer &peer, int number)
    {
        peer.send(ownAddress, "-hello");
        return PrivateWindow::with(nameOf(number));
    }
};

TEST_F(Flood, EveryMessageOfABurstIsShownInItsOrder)
{
    constexpr int count = 200;
    start(2);
    const WirePeer ann(addressOf(0), port), ben(addressOf(1), port);
    const PrivateWindow withAnn = windowOf(ann, 0), withBen = windowOf(ben, 1);
    for (int i = 0; i < count; ++i) {
        ann.send(ownAddress, "-flood " + std::to_string(i));
        ben.send(ownAddress, "-flood " + std::to_string(i));
    }
    EXPECT_EQ(numbersIn(withAnn, QStringLiteral("flood"), count - 1), numbersBelow(count));
    EXPECT_EQ(numbersIn(withBen, QStringLiteral("flood"), count - 1), numbersBelow(count));
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(Flood, JunkOfOneContactHidesNoMessageOfAnotherAndFillsNoLog)
{
    constexpr int count = 50, junkBetween = 200;
    start(2);
    const WirePeer ann(addressOf(0), port), loud(addressOf(1), port);
    const PrivateWindow withAnn = windowOf(ann, 0);
    for (int i = 0; i < count; ++i) {
        for (int junk = 0; junk < junkBetween; ++junk)
            loud.send(ownAddress, "nothing that any peer would send 7");
        ann.send(ownAddress, "-flood " + std::to_string(i));
        waitUntilHandled();
    }
    EXPECT_EQ(numbersIn(withAnn, QStringLiteral("flood"), count - 1), numbersBelow(count));
    // Twenty of a second have lines of their own; how many seconds it took is the machine's affair.
    EXPECT_LT(numbersIn(MainWindow::of("Bob"), QStringLiteral("nothing that any peer would send"), 7).size(),
              std::size_t(count * junkBetween / 2));
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(Flood, AllWhoAnswerTheAnnouncementAtOnceAreOnline)
{
    constexpr int count = 150;
    std::vector<WirePeer> peers;
    for (int i = 0; i < count; ++i)
        peers.emplace_back(addressOf(i), port);
    start(count);
    for (int i = 0; i < count; ++i) {
        peers[static_cast<std::size_t>(i)].hearUntil("?ONLINE 127.0.48.1 BOB-PC Bob");
        peers[static_cast<std::size_t>(i)].send(ownAddress, "!ONLINE " + addressOf(i) + " PC " + nameOf(i));
    }
    waitUntilHandled();
    std::vector<int> online = numbersIn(MainWindow::of("Bob"), QStringLiteral("Contact"), count - 1);
    std::sort(online.begin(), online.end());
    EXPECT_EQ(online, numbersBelow(count));
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(Flood, StrangersInCrowdsOpenFiftyWindowsAndAreAllKept)
{
    constexpr int count = 80;
    constexpr std::size_t windows = 50 + 1; // the main window is one of them
    std::vector<WirePeer> strangers;
    for (int i = 0; i < count; ++i)
        strangers.emplace_back(addressOf(i), port);
    start(0);
    for (int i = 0; i < count; ++i) {
        strangers[static_cast<std::size_t>(i)].send(ownAddress, "!ONLINE " + addressOf(i) + " PC " + nameOf(i));
        strangers[static_cast<std::size_t>(i)].send(ownAddress, "-hello");
    }
    waitUntilHandled();
    EXPECT_TRUE(waitUntil([] { return Window::numberOfManaged() >= windows; }));
    strangers.back().send(ownAddress, "-are you there?");
    waitUntilHandled();
    letWindowsSettle();
    EXPECT_EQ(Window::numberOfManaged(), windows);
    EXPECT_EQ(bob.end(), 0);
    EXPECT_THAT(bob.storedContacts(), SizeIs(count + 1));
}

} // namespace
} // namespace nimb::test
