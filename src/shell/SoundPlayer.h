#pragma once

#include <QString>

// The program's two sounds: the start chime and the coin heard while learning.
enum class Sound
{
    Chimes, // "Chimes.Wav"
    Coin    // "Coin.Wav"
};

QString soundFileName(Sound sound);

// Plays a sound to its end before returning: the main window shows after the chime, a coin's
// learning goes on after its sound. A machine without an audio device plays nothing, says
// nothing and returns at once. Whether sound is on is the caller's decision (the Sound setting).
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    virtual void play(Sound sound) = 0;
};
