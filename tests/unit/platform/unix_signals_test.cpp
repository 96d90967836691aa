#include "platform/unix_signals.h"

#include <QProcess>
#include <QTest>

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <optional>

#include <unistd.h>

namespace nimb::test
{
namespace
{

void handlerFromBefore(int) { }

void (*handlerOf(int signal))(int)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

class EndingSignal : public testing::TestWithParam<int>
{
};

TEST_P(EndingSignal, CallsTheFunctionFromTheEventLoop)
{
    int asked = 0;
    const UnixSignals signals([&] { ++asked; });

    kill(getpid(), GetParam());
    EXPECT_EQ(asked, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
    EXPECT_EQ(asked, 1);

    kill(getpid(), GetParam());
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked == 2; }));
}

TEST_P(EndingSignal, GetsItsFormerHandlerBack)
{
    const auto before = std::signal(GetParam(), handlerFromBefore);
    std::optional<UnixSignals> signals(std::in_place, [] {});
    EXPECT_NE(handlerOf(GetParam()), &handlerFromBefore);
    signals.reset();
    EXPECT_EQ(handlerOf(GetParam()), &handlerFromBefore);
    std::signal(GetParam(), before);
}

TEST_P(EndingSignal, EndsAProcessInItsOwnWay)
{
    QProcess helper;
    helper.start(PLATFORM_HELPER, {"end-politely"});
    ASSERT_TRUE(helper.waitForReadyRead(20000));
    ASSERT_EQ(helper.readLine(), "waiting\n");
    kill(static_cast<pid_t>(helper.processId()), GetParam());
    ASSERT_TRUE(helper.waitForFinished(20000));
    EXPECT_EQ(helper.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(helper.exitCode(), 7);
}

INSTANTIATE_TEST_SUITE_P(UnixSignals, EndingSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto &tested) { return std::string("SIG") + sigabbrev_np(tested.param); });

TEST(UnixSignals, SignalsThatComeTogetherCallItOnce)
{
    int asked = 0;
    const UnixSignals signals([&] { ++asked; });
    for (int i = 0; i < 10000; ++i) // far more than the socket pair has room for
        raise(SIGTERM);
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
}

TEST(UnixSignals, AnInterruptedCallerFindsItsErrorNumberUnchanged)
{
    const UnixSignals signals([] {});
    for (int i = 0; i < 10000; ++i)
        raise(SIGTERM); // the pair is full: writing fails within the handler
    errno = ENOENT;
    raise(SIGTERM);
    EXPECT_EQ(errno, ENOENT);
}

TEST(UnixSignals, WritingToAClosedPipeOnlyFails)
{
    const UnixSignals signals([] {});
    std::array<int, 2> ends = {};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    EXPECT_EQ(write(ends[1], "x", 1), -1); // without the protection the test ends here
    EXPECT_EQ(errno, EPIPE);
    close(ends[1]);
}

TEST(UnixSignals, SigpipeGetsItsFormerHandlerBack)
{
    const auto before = std::signal(SIGPIPE, handlerFromBefore);
    {
        const UnixSignals signals([] {});
        EXPECT_EQ(handlerOf(SIGPIPE), SIG_IGN);
    }
    EXPECT_EQ(handlerOf(SIGPIPE), &handlerFromBefore);
    std::signal(SIGPIPE, before);
}

TEST(UnixSignals, CanBeMadeAgainAfterItsEnd)
{
    {
        const UnixSignals first([] { ADD_FAILURE(); });
    }
    int asked = 0;
    const UnixSignals second([&] { ++asked; });
    raise(SIGHUP);
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
}

} // namespace
} // namespace nimb::test
