// A sound server of a test's own, which plays to nobody, and an ear at what it plays.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

namespace nimb::test
{

class SoundServer
{
public:
    static constexpr int samplesPerSecond = 44100;

    /// Whether this machine has the programs for it.
    static bool isInstalled();

    /// Returns when it listens; a test failure when it does not start.
    SoundServer();
    ~SoundServer();
    Q_DISABLE_COPY_MOVE(SoundServer)

    /// What PULSE_SERVER says of it.
    QString address() const;
    /// Ends at once, whatever plays.
    void stop();

    /// Samples since the start that belong to a sound, the passing zeros of its waves included.
    int loudSamples();
    /// Waits until so many more loud samples have been heard; false when they do not come.
    bool hears(int count);
    /// Waits until it has been silent for so many samples of what it plays; false when it does not fall silent.
    bool isSilent(int samples = samplesPerSecond / 3);

    /// The number of the sound that plays now, counted by the server from 0; -1 while none does.
    int playing() const;
    /// Whether this process is connected.
    bool serves(qint64 processId) const;

private:
    QByteArray list(const QStringList &what) const;
    void listen();
    void judge(const QByteArray &samples);

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QProcess m_server;
    QProcess m_ear;
    QByteArray m_rest; ///< heard, and too short to be judged
    int m_loud = 0;
    int m_silent = 0; ///< samples since the last loud one
};

} // namespace nimb::test
