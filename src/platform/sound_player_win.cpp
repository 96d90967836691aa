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

SoundPlayer::~SoundPlayer() = default;

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
