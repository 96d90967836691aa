#include "platform/sound_player.h"

#include <QAudioSink>
#include <QDir>
#include <QFile>

#include <utility>

#include <qt_windows.h>

// They build on what stands above.
#include <mmsystem.h>

namespace nimb
{

SoundPlayer::SoundPlayer(std::optional<QString> file) : m_file(std::move(file))
{
    m_next.setSingleShot(true);
    m_next.callOnTimeout([this] { start(); });
}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::play()
{
    if (m_next.isActive())
        return;
    const qint64 since = m_sinceStart.isValid() ? m_sinceStart.elapsed() : shortestSounding;
    m_next.start(static_cast<int>(qMax<qint64>(0, shortestSounding - since)));
}

/// Windows plays one sound a program, and begins anew when it is asked for another.
void SoundPlayer::start()
{
    m_sinceStart.start();
    if (!m_file || !QFile::exists(*m_file))
        return;
    const std::wstring name = QDir::toNativeSeparators(*m_file).toStdWString();
    PlaySoundW(name.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
}

} // namespace nimb
