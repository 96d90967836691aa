#include "platform/sound_player.h"

#include <QAudioSink>

#include <utility>

namespace nimb
{

SoundPlayer::SoundPlayer(std::optional<QString> file) : m_file(std::move(file))
{
    m_next.setSingleShot(true);
    m_next.callOnTimeout([this] { start(); });
}

void SoundPlayer::play()
{
    if (m_next.isActive())
        return;
    const qint64 since = m_sinceStart.isValid() ? m_sinceStart.elapsed() : shortestSounding;
    m_next.start(static_cast<int>(qMax<qint64>(0, shortestSounding - since)));
}

} // namespace nimb
