// Buzzes that are heard, at a sound server that plays to nobody but the test.
#include "chat_windows.h"
#include "running_copy.h"
#include "sound_server.h"
#include "wire_peer.h"

#include <gmock/gmock.h>

#include <optional>

namespace nimb::test
{
namespace
{

constexpr int aSecond = SoundServer::samplesPerSecond;

class Buzz : public testing::Test
{
protected:
    /// Started and heard by Ann.
    MainWindow start(const Rows &options)
    {
        bob.writeStore(profile(port, {{"127.0.36.2", "Ann", "ANN-PC"}}, options));
        bob.start({"Bob"});
        ann.hearUntil("!STATUS Online");
        return MainWindow::of("Bob");
    }

    /// Returns when the click has been dealt with: what the user does next comes after it.
    void mute(const MainWindow &main)
    {
        main.clickMute();
        main.rescanUntilHeard(ann);
    }

    /// Whether it hears and answers.
    bool answers()
    {
        ann.send(bob.address(), "?ONLINE");
        return ann.hearUntil("!STATUS Online").size() == 2;
    }

    const std::uint16_t port = freePort();
    WirePeer ann{"127.0.36.2", port};
    RunningCopy bob{{"127.0.36.1", "BOB-PC"}};
};

class HeardBuzz : public Buzz
{
protected:
    void SetUp() override
    {
        if (!SoundServer::isInstalled())
            GTEST_SKIP() << "needs pulseaudio, pactl and parec";
        m_server.emplace();
        bob.setVariable(QStringLiteral("PULSE_SERVER"), server().address());
    }

    SoundServer &server() { return *m_server; }

    /// Whether the alarm, or most of it, was heard; it is silent afterwards.
    bool heard()
    {
        const bool loud = server().hears(aSecond / 4);
        EXPECT_TRUE(server().isSilent());
        return loud;
    }
    /// Whether nothing was heard so far, and nothing is for a while.
    bool silent()
    {
        const int before = server().loudSamples();
        return answers() && server().isSilent() && server().loudSamples() == before;
    }

private:
    std::optional<SoundServer> m_server;
};

TEST_F(HeardBuzz, OfAPeerSounds)
{
    start({{{"Options", "BuzzRemote"}, "1"}});
    EXPECT_FALSE(server().serves(bob.processId()));
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(heard());
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(heard());
    EXPECT_EQ(bob.end(), 0);
}

TEST_F(HeardBuzz, OfAPeerIsSilentByOption)
{
    start({{{"Options", "BuzzRemote"}, "0"}, {{"Options", "BuzzLocal"}, "1"}});
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(silent());
}

TEST_F(HeardBuzz, IsSilentWhileMuted)
{
    const MainWindow main = start({{{"Options", "BuzzRemote"}, "1"}, {{"Options", "BuzzLocal"}, "1"}});
    mute(main);
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(silent());
    main.chooseBuzz(0);
    EXPECT_EQ(ann.next(), "!BUZZ");
    EXPECT_TRUE(silent());
    mute(main);
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(heard());
}

TEST_F(HeardBuzz, OfTheUserSoundsHereToo)
{
    const MainWindow main = start({{{"Options", "BuzzRemote"}, "0"}, {{"Options", "BuzzLocal"}, "1"}});
    main.chooseBuzz(0);
    EXPECT_EQ(ann.next(), "!BUZZ");
    EXPECT_TRUE(heard());
}

TEST_F(HeardBuzz, OfTheUserIsSilentHereByDefault)
{
    const MainWindow main = start({});
    main.chooseBuzz(0);
    EXPECT_EQ(ann.next(), "!BUZZ");
    EXPECT_TRUE(silent());
}

TEST_F(HeardBuzz, DoesNotHoldUpTheEnd)
{
    start({});
    ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(server().hears(1));
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.stored("Settings", "MainHeight"), "6200");
}

TEST_F(Buzz, WithoutASoundServerHarmsNothing)
{
    start({{{"Options", "BuzzLocal"}, "1"}});
    for (int i = 0; i < 1000; ++i)
        ann.send(bob.address(), "!BUZZ");
    EXPECT_TRUE(answers());
    MainWindow::of("Bob").chooseBuzz(0);
    EXPECT_EQ(ann.next(), "!BUZZ");
    EXPECT_TRUE(answers());
    EXPECT_EQ(bob.end(), 0);
    EXPECT_EQ(bob.printed(), "");
}

} // namespace
} // namespace nimb::test
