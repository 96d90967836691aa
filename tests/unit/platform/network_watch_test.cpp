#include "platform/network_watch_linux.h"

#include "on_own_network.h"
#include "platform/qt_timers.h"
#include "virtual_time.h"

#include <QTest>

#include <gmock/gmock.h>

#include <poll.h>
#include <sys/socket.h>
#include <sys/timex.h>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

/// A watch in a network of its own, whose time passes when a test says so. Messages of the system come as they come.
class NetworkWatchTest : public OnOwnNetwork
{
protected:
    void arrange() override
    {
        watch.emplace(time, [this] { return slept; });
        watch->listen([this](NetworkChange change) {
            ++told;
            lastChange = change;
        });
    }

    /// True once the system's messages have arrived.
    bool hears()
    {
        return QTest::qWaitFor([this] { return time.nextDue().has_value(); }, 20000);
    }
    /// All that the system had to say so far has been read, for it tells everything before it answers.
    static void readAll()
    {
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
    }

    VirtualTime time;
    std::optional<SystemNetworkWatch> watch;
    std::chrono::nanoseconds slept{0};
    int told = 0;
    std::optional<NetworkChange> lastChange;
};

TEST_F(NetworkWatchTest, TellsOfACardThatComesAndGoes)
{
    ASSERT_TRUE(runIp({"link", "add", "one", "type", "bridge"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, 1);
    readAll();
    time.advance(200ms);
    const int before = told;
    ASSERT_TRUE(runIp({"link", "del", "one"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, before + 1);
}

TEST_F(NetworkWatchTest, TellsOfAnAddressAndOfAWay)
{
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    ASSERT_TRUE(hears());
    readAll();
    time.advance(200ms);
    ASSERT_EQ(told, 1);
    ASSERT_TRUE(runIp({"address", "add", "10.1.2.3/32", "dev", "lo"}));
    ASSERT_TRUE(hears());
    readAll();
    time.advance(200ms);
    ASSERT_EQ(told, 2);
    ASSERT_TRUE(runIp({"route", "add", "10.9.0.0/16", "dev", "lo"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, 3);
}

TEST_F(NetworkWatchTest, ManyMessagesAreOneChangeThatIsToldSoonAfterTheFirst)
{
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    ASSERT_TRUE(hears());
    time.advance(149ms);
    for (int last = 1; last <= 20; ++last)
        ASSERT_TRUE(runIp({"address", "add", QStringLiteral("10.1.2.%1/32").arg(last), "dev", "lo"}));
    readAll();
    EXPECT_EQ(told, 0);
    time.advance(1ms);
    EXPECT_EQ(told, 1);
    time.advance(10s);
    EXPECT_EQ(told, 1);
}

TEST_F(NetworkWatchTest, MessagesThatHadNoRoomAreAChangeToo)
{
    // The kernel grants no less than this leaves, which holds a few of them.
    const int small = 1;
    ASSERT_EQ(setsockopt(watch->descriptor(), SOL_SOCKET, SO_RCVBUF, &small, sizeof small), 0);
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    for (int last = 1; last <= 100; ++last)
        ASSERT_TRUE(runIp({"address", "add", QStringLiteral("10.1.2.%1/32").arg(last), "dev", "lo"}));
    // Reading the error would take it away.
    pollfd looked = {.fd = watch->descriptor(), .events = POLLIN, .revents = 0};
    ASSERT_EQ(poll(&looked, 1, 0), 1);
    ASSERT_TRUE(looked.revents & POLLERR) << "there was room for all of them";
    ASSERT_TRUE(hears());
    readAll();
    time.advance(200ms);
    EXPECT_EQ(told, 1);
    // And it goes on.
    ASSERT_TRUE(runIp({"link", "set", "lo", "down"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, 2);
}

/// Moves the clock by a millionth of a second, and back. False where that is not allowed.
bool leap(long microseconds)
{
    timex change = {};
    change.modes = ADJ_SETOFFSET;
    change.time.tv_sec = microseconds < 0 ? -1 : 0;
    change.time.tv_usec = microseconds < 0 ? 1'000'000 + microseconds : microseconds;
    return ::adjtimex(&change) >= 0;
}

TEST_F(NetworkWatchTest, TellsThatTheMachineHasSleptButNotThatTheClockWasSet)
{
    if (!leap(1))
        GTEST_SKIP() << "only who may set the clock can make it leap";
    readAll();
    EXPECT_FALSE(time.nextDue().has_value());
    slept = 2s;
    ASSERT_TRUE(leap(-1));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(lastChange, NetworkChange::wokeUp);
    ASSERT_TRUE(runIp({"link", "add", "one", "type", "bridge"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(lastChange, NetworkChange::networks);
}

TEST_F(NetworkWatchTest, NothingWakesItWhileNothingChanges)
{
    EXPECT_FALSE(time.nextDue());
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    ASSERT_TRUE(hears());
    readAll();
    time.advance(200ms);
    EXPECT_FALSE(time.nextDue()) << "it still waits for something";
}

TEST_F(NetworkWatchTest, WhoeverListensNoMoreIsToldNoMore)
{
    watch->listen({});
    ASSERT_TRUE(runIp({"link", "set", "lo", "up"}));
    ASSERT_TRUE(hears());
    time.advance(200ms);
    EXPECT_EQ(told, 0);
}

} // namespace
} // namespace nimb::test
