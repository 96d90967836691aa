#include "platform/qt_timers.h"

#include <QTest>

#include <gmock/gmock.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace nimb::test
{
namespace
{

using namespace std::chrono_literals;

TEST(QtTimers, AreStoppedWhenMade)
{
    QtTimers timers;
    int fired = 0;
    const auto once = timers.oneShot(0ms, [&] { ++fired; });
    const auto often = timers.repeating(0ms, [&] { ++fired; });
    EXPECT_FALSE(once->isActive());
    EXPECT_FALSE(often->isActive());

    bool later = false;
    const auto marker = timers.oneShot(20ms, [&] { later = true; });
    marker->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return later; }));
    EXPECT_EQ(fired, 0);
}

TEST(QtTimers, AOneShotFiresOnceForEachStart)
{
    QtTimers timers;
    int fired = 0;
    bool activeWhileFiring = true;
    std::unique_ptr<Timer> once;
    once = timers.oneShot(1ms, [&] {
        ++fired;
        activeWhileFiring = once->isActive();
    });
    int rounds = 0;
    const auto often = timers.repeating(1ms, [&] { ++rounds; });

    once->start();
    EXPECT_TRUE(once->isActive());
    often->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return rounds >= 20; }));
    EXPECT_EQ(fired, 1);
    EXPECT_FALSE(activeWhileFiring);

    once->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return fired == 2; }));
}

TEST(QtTimers, AOneShotMayStartItselfAgain)
{
    QtTimers timers;
    int fired = 0;
    std::unique_ptr<Timer> once;
    once = timers.oneShot(0ms, [&] {
        if (++fired < 3)
            once->start();
    });
    once->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return fired == 3; }));
    EXPECT_FALSE(once->isActive());
}

TEST(QtTimers, ARepeatingOneFiresUntilItIsStopped)
{
    QtTimers timers;
    int fired = 0;
    std::unique_ptr<Timer> often;
    often = timers.repeating(1ms, [&] {
        if (++fired == 3)
            often->stop();
    });
    often->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return fired == 3; }));
    EXPECT_FALSE(often->isActive());

    bool later = false;
    const auto marker = timers.oneShot(20ms, [&] { later = true; });
    marker->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return later; }));
    EXPECT_EQ(fired, 3);
}

TEST(QtTimers, StartingAgainCountsTheIntervalFromThere)
{
    QtTimers timers;
    std::string order;
    const auto restarted = timers.oneShot(30ms, [&] { order += "restarted "; });
    const auto other = timers.oneShot(40ms, [&] { order += "other "; });
    restarted->start();
    other->start();
    bool half = false;
    const auto halfWay = timers.oneShot(20ms, [&] {
        half = true;
        restarted->start(); // due at 50 ms now
    });
    halfWay->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() == 16; }));
    EXPECT_TRUE(half);
    EXPECT_EQ(order, "other restarted ");
}

TEST(QtTimers, AStoppedOneShotDoesNotFire)
{
    QtTimers timers;
    bool fired = false;
    const auto stopped = timers.oneShot(1ms, [&] { fired = true; });
    stopped->start();
    stopped->stop();
    EXPECT_FALSE(stopped->isActive());

    bool later = false;
    const auto marker = timers.oneShot(20ms, [&] { later = true; });
    marker->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return later; }));
    EXPECT_FALSE(fired);
}

TEST(QtTimers, ATimerDiesWithItsPointer)
{
    QtTimers timers;
    bool fired = false;
    auto gone = timers.repeating(0ms, [&] { fired = true; });
    gone->start();
    gone.reset();

    bool later = false;
    const auto marker = timers.oneShot(20ms, [&] { later = true; });
    marker->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return later; }));
    EXPECT_FALSE(fired);
}

TEST(QtTimers, ATimerMayBeDestroyedFromWithinItsOwnCall)
{
    QtTimers timers;
    std::string said;
    std::unique_ptr<Timer> timer;
    timer = timers.repeating(0ms, [&said, &timer, text = std::string("a text too long to be kept in place")] {
        timer.reset();
        said += text; // what the function holds must still be there
    });
    timer->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !said.empty(); }));
    EXPECT_EQ(said, "a text too long to be kept in place");
}

TEST(SystemClock, TellsLocalTime)
{
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = SystemClock().now();
    EXPECT_EQ(now.timeSpec(), Qt::LocalTime);
    EXPECT_LE(before, now);
}

TEST(QtTimers, NeverFireBeforeTheirTime)
{
    QtTimers timers;
    constexpr std::chrono::milliseconds interval = 400ms;
    std::vector<std::unique_ptr<Timer>> all;
    std::vector<std::chrono::nanoseconds> waited;
    // Timers that start at different moments of a second: those that are rounded would not all be late.
    for (int i = 0; i < 8; ++i) {
        const auto start = std::make_shared<std::chrono::steady_clock::time_point>();
        all.push_back(timers.oneShot(
            interval, [&waited, start] { waited.push_back(std::chrono::steady_clock::now() - *start); }));
        *start = std::chrono::steady_clock::now();
        all.back()->start();
        ASSERT_TRUE(QTest::qWaitFor([&] { return waited.size() == std::size_t(i) + 1; }));
        EXPECT_GE(waited.back(), interval - 1ms); // Qt counts whole milliseconds
    }
}

} // namespace
} // namespace nimb::test
