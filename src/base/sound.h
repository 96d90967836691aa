// The sounds of the program, as the engine asks for them.
#pragma once

namespace nimb
{

class Sound
{
public:
    virtual ~Sound() = default;
    /// Starts the alarm from its beginning, breaking off one that still sounds, and returns at once. Silent where the
    /// file or an audio device is missing.
    virtual void playAlarm() = 0;
    /// The same with the sound that tells of something.
    virtual void playNotice() = 0;
};

} // namespace nimb
