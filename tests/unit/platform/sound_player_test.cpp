#include "platform/sound_player.h"

#include "child_process.h"
#include "sound_server.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <gmock/gmock.h>

#include <initializer_list>

namespace nimb::test
{
namespace
{

constexpr int patienceMs = 20000;
constexpr int aSecond = SoundServer::samplesPerSecond;
constexpr int halfASecond = aSecond / 2;

QByteArray bytesOf(quint32 value)
{
    return {reinterpret_cast<const char *>(&(value = qToLittleEndian(value))), 4};
}

/// A hum of constant loudness.
QByteArray wave(int samples)
{
    QByteArray data;
    for (int i = 0; i < samples; ++i)
        data += i / 50 % 2 == 0 ? QByteArray("\x00\x20", 2) : QByteArray("\x00\xE0", 2);
    const QByteArray format
        = QByteArray("\x01\x00\x01\x00", 4) + bytesOf(44100) + bytesOf(88200) + QByteArray("\x02\x00\x10\x00", 4);
    return "RIFF" + bytesOf(quint32(36 + data.size())) + "WAVEfmt " + bytesOf(16) + format + "data"
        + bytesOf(quint32(data.size())) + data;
}

class SoundPlayerTest : public testing::Test
{
protected:
    QString file(const char *name, const QByteArray &content) const
    {
        QFile written(m_folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(written.open(QFile::WriteOnly));
        EXPECT_EQ(written.write(content), content.size());
        return written.fileName();
    }

    const QTemporaryDir m_folder;
};

/// Another process with a player in it.
class Player
{
public:
    Player(const QString &soundServer, const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PULSE_SERVER"), soundServer);
        m_process.setProcessEnvironment(environment);
        endWithParent(m_process);
        m_process.start(QStringLiteral(SOUND_HELPER), arguments);
        EXPECT_TRUE(m_process.waitForStarted(patienceMs)) << m_process.errorString().toStdString();
    }
    ~Player() { endProcess(m_process); }
    Q_DISABLE_COPY_MOVE(Player)

    /// Returns when the calls have returned.
    void play(int times = 1) { command("play " + QByteArray::number(times)); }
    /// From now on it handles no event, until it goes on.
    void stall() { command("stall 0", "stalled\n"); }
    void goOn() { command("on", "done\n"); }

    void command(const QByteArray &line, const QByteArray &answer = "done\n")
    {
        m_process.write(line + '\n');
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_process.canReadLine(); }, patienceMs)) << "no answer";
        EXPECT_EQ(m_process.readLine(), answer);
    }

    /// The exit status; -1 when it crashes or does not end.
    int end()
    {
        m_process.closeWriteChannel();
        const bool ended = m_process.waitForFinished(patienceMs) && m_process.exitStatus() == QProcess::NormalExit;
        return ended ? m_process.exitCode() : -1;
    }

    qint64 processId() const { return m_process.processId(); }
    std::string printed() { return m_process.readAllStandardError().toStdString(); }

private:
    QProcess m_process;
};

// --- no sound

TEST_F(SoundPlayerTest, WithoutASoundServerStaysQuietInEveryWay)
{
    Player player("unix:" + m_folder.filePath("nobody"), {file("sound.wav", wave(halfASecond))});
    player.play();
    player.play(10000);
    player.play();
    EXPECT_EQ(player.end(), 0);
    EXPECT_EQ(player.printed(), "");
}

// --- sound

class SoundPlayerOnAServer : public SoundPlayerTest
{
protected:
    void SetUp() override
    {
        if (!SoundServer::isInstalled())
            GTEST_SKIP() << "needs pulseaudio, pactl and parec";
        m_server.emplace();
    }

    SoundServer &server() { return *m_server; }
    QString longSound() const { return file("long.wav", wave(60 * aSecond)); }

private:
    std::optional<SoundServer> m_server;
};

TEST_F(SoundPlayerOnAServer, PlaysTheWholeFileOnce)
{
    Player player(server().address(), {file("sound.wav", wave(aSecond))});
    player.play();
    EXPECT_TRUE(server().hears(aSecond * 9 / 10)) << server().loudSamples();
    EXPECT_TRUE(server().isSilent());
    EXPECT_LE(server().loudSamples(), aSecond * 11 / 10);
    EXPECT_TRUE(QTest::qWaitFor([&] { return server().playing() == -1; }, patienceMs)) << "still plays silence";
    EXPECT_EQ(player.end(), 0);
    EXPECT_EQ(player.printed(), "");
}

TEST_F(SoundPlayerOnAServer, LooksForTheServerAtItsFirstUse)
{
    Player player(server().address(), {file("sound.wav", wave(halfASecond))});
    player.play(0);
    EXPECT_FALSE(server().serves(player.processId()));
    player.play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return server().serves(player.processId()); }, patienceMs));
}

TEST_F(SoundPlayerOnAServer, PlaysTheAlarmThatShips)
{
    Player player(server().address(), {});
    player.play();
    EXPECT_TRUE(server().hears(aSecond / 4));
    EXPECT_TRUE(server().isSilent());
}

TEST_F(SoundPlayerOnAServer, PlaysAgainAfterTheEnd)
{
    Player player(server().address(), {file("sound.wav", wave(halfASecond))});
    for (int round = 1; round <= 3; ++round) {
        player.play();
        EXPECT_TRUE(server().hears(halfASecond / 2)) << round;
        EXPECT_TRUE(server().isSilent()) << round;
    }
}

TEST_F(SoundPlayerOnAServer, StartsAnewWhatStillSounds)
{
    Player player(server().address(), {file("sound.wav", wave(aSecond))});
    player.play();
    EXPECT_TRUE(server().hears(aSecond * 3 / 4));
    player.play();
    EXPECT_TRUE(server().hears(aSecond * 8 / 10)) << "only a quarter of the first start was left";
    EXPECT_TRUE(server().isSilent());
    EXPECT_LE(server().loudSamples(), aSecond * 22 / 10);
}

TEST_F(SoundPlayerOnAServer, PlaysAgainAtWhateverMomentOfTheEnd)
{
    Player player(server().address(), {file("sound.wav", wave(halfASecond))});
    for (int hundredths = 0; hundredths <= 48; hundredths += 6) {
        player.play();
        EXPECT_TRUE(server().hears(halfASecond * 8 / 10)) << hundredths;
        EXPECT_TRUE(server().isSilent(aSecond * hundredths / 100));
        player.play();
        EXPECT_TRUE(server().hears(halfASecond * 8 / 10)) << hundredths;
        EXPECT_TRUE(server().isSilent());
    }
}

TEST_F(SoundPlayerOnAServer, GoesOnWhereTheProgramWasTooBusyToFeedIt)
{
    Player player(server().address(), {file("sound.wav", wave(4 * aSecond))});
    player.play();
    EXPECT_TRUE(server().hears(halfASecond));
    player.stall();
    EXPECT_TRUE(server().isSilent()) << "it has not run dry";
    player.goOn();
    EXPECT_TRUE(server().hears(3 * aSecond)) << server().loudSamples();
    EXPECT_TRUE(server().isSilent());
}

TEST_F(SoundPlayerOnAServer, AnswersAFloodOfCallsWithOneStart)
{
    Player player(server().address(), {file("sound.wav", wave(aSecond))});
    player.play(10000);
    EXPECT_TRUE(server().hears(aSecond * 9 / 10));
    EXPECT_TRUE(server().isSilent());
    EXPECT_LE(server().loudSamples(), aSecond * 12 / 10);
}

TEST_F(SoundPlayerOnAServer, FallsSilentWithItsEnd)
{
    Player player(server().address(), {longSound()});
    player.play();
    EXPECT_TRUE(server().hears(halfASecond));
    EXPECT_EQ(player.end(), 0);
    EXPECT_TRUE(server().isSilent());
    EXPECT_EQ(player.printed(), "");
}

TEST_F(SoundPlayerOnAServer, MayEndBeforeTheFirstSoundComesOut)
{
    for (int round = 0; round < 10; ++round) {
        Player player(server().address(), {longSound()});
        player.play();
        EXPECT_EQ(player.end(), 0);
    }
    EXPECT_TRUE(server().isSilent());
}

TEST_F(SoundPlayerOnAServer, IsSilentWithoutAFile)
{
    const QString removed = file("removed.wav", wave(halfASecond));
    Player player(server().address(), {removed});
    Player other(server().address(), {file("nonsense.wav", "RIFFRAFF")});
    Player folder(server().address(), {m_folder.path()});
    QFile::remove(removed);
    for (Player *const each : {&player, &other, &folder}) {
        each->play();
        each->play();
        EXPECT_EQ(each->end(), 0);
    }
    EXPECT_TRUE(server().isSilent());
    EXPECT_EQ(server().loudSamples(), 0);
}

TEST_F(SoundPlayerOnAServer, FindsTheServerThatTakesThePlaceOfADeadOne)
{
    SoundServer second;
    Player player(server().address() + u' ' + second.address(), {file("sound.wav", wave(halfASecond))});
    player.play();
    EXPECT_TRUE(server().hears(1));
    server().stop();
    // The connection is made anew after a while.
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            player.play();
            return second.loudSamples() > 0;
        },
        patienceMs));
    EXPECT_EQ(player.end(), 0);
}

} // namespace
} // namespace nimb::test
