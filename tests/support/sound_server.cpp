#include "sound_server.h"

#include "child_process.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace nimb::test
{
namespace
{

constexpr int serverPatienceMs = 20000;

// A wave passes through zero all the time: loud is a stretch of this length, as a whole.
constexpr int stretch = SoundServer::samplesPerSecond / 200;
constexpr int loudFrom = 300; // of 32767

bool isLoud(const QByteArray &samples)
{
    for (qsizetype i = 0; i + 2 <= samples.size(); i += 2) {
        std::int16_t value = 0;
        std::memcpy(&value, samples.constData() + i, sizeof value);
        if (std::abs(int(value)) >= loudFrom)
            return true;
    }
    return false;
}

} // namespace

bool SoundServer::isInstalled()
{
    const QStringList programs = {QStringLiteral("pulseaudio"), QStringLiteral("pactl"), QStringLiteral("parec")};
    return std::all_of(programs.begin(), programs.end(),
                       [](const QString &program) { return !QStandardPaths::findExecutable(program).isEmpty(); });
}

SoundServer::SoundServer() : m_environment(QProcessEnvironment::systemEnvironment())
{
    // Nothing of the sound system of whoever runs the test, neither its settings nor its server.
    for (const char *const foreign : {"PULSE_RUNTIME_PATH", "PULSE_SINK", "PULSE_SOURCE", "PULSE_COOKIE", "DISPLAY"})
        m_environment.remove(QLatin1String(foreign));
    for (const char *const folder : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
        m_environment.insert(QLatin1String(folder), m_folder.path());
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    m_environment.insert(QStringLiteral("PULSE_SERVER"), address());

    for (QProcess *const process : {&m_server, &m_ear}) {
        process->setProcessEnvironment(m_environment);
        process->setStandardErrorFile(m_folder.filePath(QStringLiteral("printed")), QIODevice::Append);
        endWithParent(*process);
    }
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.start(
        QStringLiteral("pulseaudio"),
        {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--disable-shm=yes", "--realtime=no",
         "--high-priority=no", "--log-target=stderr", "--load",
         "module-native-protocol-unix auth-anonymous=1 socket=" + m_folder.filePath(QStringLiteral("socket")), "--load",
         "module-null-sink sink_name=nobody rate=44100 channels=1"});
    listen();
}

SoundServer::~SoundServer()
{
    endProcess(m_ear);
    endProcess(m_server);
    QFile printed(m_folder.filePath(QStringLiteral("printed")));
    if (testing::Test::HasFailure() && printed.open(QFile::ReadOnly))
        printf("The sound server printed:\n%s\n", printed.readAll().constData());
}

QString SoundServer::address() const
{
    return QStringLiteral("unix:") + m_folder.filePath(QStringLiteral("socket"));
}

void SoundServer::stop()
{
    m_server.kill();
    EXPECT_TRUE(m_server.waitForFinished(serverPatienceMs));
}

void SoundServer::listen()
{
    const bool hears = QTest::qWaitFor(
        [this] {
            // It ends when there is no server to be heard yet.
            if (m_ear.state() == QProcess::NotRunning)
                m_ear.start(QStringLiteral("parec"),
                            {"--device=nobody.monitor", "--format=s16le", "--rate=44100", "--channels=1", "--raw",
                             "--latency-msec=20"});
            return m_ear.bytesAvailable() > 0;
        },
        serverPatienceMs);
    EXPECT_TRUE(hears) << "pulseaudio or parec does not start: " << m_server.errorString().toStdString() << ", "
                       << m_ear.errorString().toStdString();
}

int SoundServer::loudSamples()
{
    m_rest += m_ear.readAllStandardOutput();
    constexpr int bytes = 2 * stretch;
    const qsizetype whole = m_rest.size() / bytes * bytes;
    for (qsizetype i = 0; i < whole; i += bytes)
        judge(m_rest.mid(i, bytes));
    m_rest.remove(0, whole);
    return m_loud;
}

void SoundServer::judge(const QByteArray &samples)
{
    const bool loud = isLoud(samples);
    m_loud += loud ? stretch : 0;
    m_silent = loud ? 0 : m_silent + stretch;
}

bool SoundServer::hears(int count)
{
    const int before = loudSamples();
    return QTest::qWaitFor([&] { return loudSamples() - before >= count; }, serverPatienceMs);
}

bool SoundServer::isSilent(int samples)
{
    loudSamples();
    m_silent = 0;
    return QTest::qWaitFor(
        [this, samples] {
            loudSamples();
            return m_silent >= samples;
        },
        serverPatienceMs);
}

int SoundServer::playing() const
{
    const QByteArray first = list({"short", "sink-inputs"}).split('\t').first();
    return first.isEmpty() ? -1 : first.toInt();
}

bool SoundServer::serves(qint64 processId) const
{
    return list({"clients"}).contains("application.process.id = \"" + QByteArray::number(processId) + '"');
}

QByteArray SoundServer::list(const QStringList &what) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    endWithParent(process);
    process.start(QStringLiteral("pactl"), QStringList{QStringLiteral("list")} + what);
    EXPECT_TRUE(process.waitForFinished(serverPatienceMs)) << "pactl does not end";
    return process.readAllStandardOutput();
}

} // namespace nimb::test
