#pragma once

#include <QString>

// The program's two sounds: the start chime and the coin heard while learning.
enum class Sound
{
    Chimes, // "Chimes.Wav"
    Coin    // "Coin.Wav"
};

QString soundFileName(Sound sound);

// Plays sounds without waiting for them; a machine without an audio device plays nothing and
// says nothing. Whether sound is on is the caller's decision (the Sound setting).
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    virtual void play(Sound sound) = 0;
};
