#include "platform/sound_player.h"

#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include <utility>

namespace nimb
{
namespace
{

/// Qt remarks on a missing sound server through its unnamed category, which cannot be switched off by itself.
class NoRemarks
{
public:
    NoRemarks() : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {})) { }
    ~NoRemarks() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(NoRemarks)

private:
    QtMessageHandler m_previous;
};

QAudioDevice device()
{
    const NoRemarks here;
    return QMediaDevices::defaultAudioOutput();
}

} // namespace

SoundPlayer::SoundPlayer(std::optional<QString> alarmFile) : m_alarmFile(std::move(alarmFile))
{
    m_sinceStart.setSingleShot(true);
    m_sinceStart.setInterval(shortestSounding);
    m_sinceStart.callOnTimeout([this] { startGathered(); });
}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::playAlarm()
{
    if (m_sinceStart.isActive()) {
        m_again = true;
        return;
    }
    m_sinceStart.start();
    start();
}

void SoundPlayer::startGathered()
{
    if (std::exchange(m_again, false))
        playAlarm();
}

void SoundPlayer::start()
{
    prepare();
    if (!m_alarm)
        return;
    m_alarm->play();
    if (m_alarm->isPlaying())
        return;
    // Its connection broke, as when the sound server was started anew.

    if (m_alarm)
        m_alarm->play();
}

void SoundPlayer::prepare()
{
    const QAudioDevice output = m_alarmFile && QFileInfo(*m_alarmFile).isFile() ? device() : QAudioDevice();
    if (output.isNull()) {
        m_alarm.reset(); // without a device it would play for ever
        return;
    }
    if (m_alarm && m_alarm->audioDevice() == output)
        return;
    m_alarm = std::make_unique<QSoundEffect>(output);
    m_alarm->setSource(QUrl::fromLocalFile(*m_alarmFile));
}

} // namespace nimb
