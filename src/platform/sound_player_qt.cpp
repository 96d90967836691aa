#include "platform/sound_player.h"

#include "platform/quiet_media.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QCoreApplication>
#include <QFile>
#include <QMediaDevices>
#include <QWaveDecoder>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace nimb
{
namespace
{

/// What is not yet out of the device when the samples end is cut off; this much silence may be.
constexpr qint64 silenceAtEnd = 200000; // microseconds

QAudioDevice defaultDevice()
{
    const QuietMedia here;
    return QMediaDevices::defaultAudioOutput();
}

/// At the end of a process Qt takes its connection to the sound server apart while a thread of that connection still
/// works with it, which crashes now and then. Nothing of ours comes so late: from the first sound on the process ends
/// before that, with the status that it was to end with.
void endBeforeQtDoes()
{
#if defined(__GLIBC__) && !defined(NIMB_COVERAGE) // coverage is written later still
    [[maybe_unused]] static const int once = on_exit(
        [](int status, void *) {
            std::fflush(nullptr);
            std::_Exit(status);
        },
        nullptr);
#endif
}

struct Wave {
    QAudioFormat format; ///< not valid when there is no sound
    QByteArray samples;
};

/// Read anew each time, so that the user may put another sound in its place.
Wave waveIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    QWaveDecoder decoder(&file);
    if (!decoder.open(QIODevice::ReadOnly) || !decoder.audioFormat().isValid())
        return {};
    const QAudioFormat format = decoder.audioFormat();
    QByteArray samples = decoder.read(SoundPlayer::longestSound);
    samples.chop(samples.size() % format.bytesPerFrame());
    const char silence = format.sampleFormat() == QAudioFormat::UInt8 ? '\x80' : '\0';
    samples.append(format.bytesForDuration(silenceAtEnd), silence);
    return {format, samples};
}

} // namespace

SoundPlayer::~SoundPlayer()
{
    destroySink();
}

/// Its destructor handles the events that wait. One that still sounds would be fed once more then, by a stream that is
/// gone, and the sound library ends the process for that; and ours would meet it half destroyed.
void SoundPlayer::destroySink()
{
    if (!m_sink)
        return;
    m_sink->stop();
    m_sink->disconnect();
    QCoreApplication::removePostedEvents(m_sink.get());
    m_sink.reset();
}

void SoundPlayer::start()
{
    m_sinceStart.start();
    // One that sounds is wound back. Its end would run into callbacks that are under way to it. Once all samples are
    // read no more are asked for, and the little that is left must be waited for.
    if (m_sink && m_sink->state() != QAudio::StoppedState) {
        if (m_samples.atEnd())
            m_again = true;
        else
            m_samples.seek(0);
        return;
    }
    if (!m_file || !QFile::exists(*m_file))
        return;
    const QAudioDevice device = defaultDevice();
    if (!device.isNull())
        playOn(device);
}

void SoundPlayer::playOn(const QAudioDevice &device)
{
    const Wave wave = waveIn(*m_file);
    if (!wave.format.isValid())
        return;
    // A new one each time: it takes the device that is there now, and no connection that broke meanwhile.
    destroySink();
    m_samples.close();
    m_samples.setData(wave.samples);
    m_samples.open(QIODevice::ReadOnly);
    m_sink = std::make_unique<QAudioSink>(device, wave.format);
    // Not at once: it is in the midst of telling us.
    QObject::connect(
        m_sink.get(), &QAudioSink::stateChanged, m_sink.get(), [this] { stateChanged(); }, Qt::QueuedConnection);
    m_sink->start(&m_samples);
    endBeforeQtDoes();
}

void SoundPlayer::stateChanged()
{
    // It is idle too when it was not fed in time, and goes on then. At the end it would wake up for nothing.
    if (m_sink->state() == QAudio::IdleState && m_samples.atEnd())
        m_sink->stop();
    if (m_sink->state() == QAudio::StoppedState && std::exchange(m_again, false))
        m_next.start(0);
}

} // namespace nimb
