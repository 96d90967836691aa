// Plays a sound of the program.
#pragma once

#include "platform/program_files.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

class QAudioDevice;
class QAudioSink;

namespace nimb
{

/// Touches the sound system at the first use only, so that a quiet program costs nothing. Plays on the device that is
/// the default one at that moment. May be destroyed while it plays, which ends the sound. Not on QSoundEffect, which
/// loads its file in a thread that now and then crashes or blocks the end of the program.
class SoundPlayer
{
public:
    /// file: full path of a WAV file; without one it is silent.
    explicit SoundPlayer(std::optional<QString> file = findProgramFile(QStringLiteral("alarm.wav")));
    ~SoundPlayer();
    Q_DISABLE_COPY_MOVE(SoundPlayer)

    /// The sound starts when control is back in the event loop, for the sound system handles events of its own. Calls
    /// that come within shortestSounding of a start are answered together by one more start after it: a flood of them
    /// costs no more than that.
    void play();

    static constexpr int shortestSounding = 50;                ///< milliseconds
    static constexpr qint64 longestSound = 16LL * 1024 * 1024; ///< bytes of samples; what is beyond is not played

private:
    void start();
    void playOn(const QAudioDevice &device);
    void destroySink();
    void stateChanged();

    std::optional<QString> m_file;
    QTimer m_next; ///< runs until the start that was asked for
    QElapsedTimer m_sinceStart;
    bool m_again = false; ///< once the one that sounds has ended
    QBuffer m_samples;
    std::unique_ptr<QAudioSink> m_sink; // goes before the samples that it reads
};

} // namespace nimb
