// Plays the sounds of the program.
#pragma once

#include "core/sound.h"
#include "platform/program_files.h"

#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

class QSoundEffect;

namespace nimb
{

/// Touches the sound system at the first use only, so that a quiet program costs nothing. Plays on the device that is
/// the default one at that moment. May be destroyed while it plays, which ends the sound.
class SoundPlayer : public Sound
{
public:
    /// alarmFile: full path of a WAV file; without one it is silent.
    explicit SoundPlayer(std::optional<QString> alarmFile = findProgramFile(QStringLiteral("alarm.wav")));
    ~SoundPlayer() override;

    /// Calls that come within shortestSounding of a start are answered together by one more start after it: a flood of
    /// them costs no more than that.
    void playAlarm() override;

    static constexpr int shortestSounding = 50; ///< milliseconds

private:
    void startGathered();
    void start();
    void prepare();

    std::optional<QString> m_alarmFile;
    QTimer m_sinceStart; ///< runs for shortestSounding
    bool m_again = false;
    std::unique_ptr<QSoundEffect> m_alarm;
};

} // namespace nimb
