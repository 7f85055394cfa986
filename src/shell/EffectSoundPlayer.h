#pragma once

#include "SoundPlayer.h"

#include <QObject>
#include <map>
#include <memory>
#include <optional>

class QSoundEffect;

// Plays the sounds of the resources directory with Qt Multimedia. The audio devices are looked
// for once, at the first sound, without letting the audio system's complaints through; with no
// device, or no sound file, nothing plays.
class EffectSoundPlayer final : public QObject, public SoundPlayer
{
    Q_OBJECT
public:
    explicit EffectSoundPlayer(QObject *parent = nullptr);
    ~EffectSoundPlayer() override;

    void play(Sound sound) override;
    bool audioAvailable();

private:
    std::optional<bool> m_audio;
    std::map<Sound, QSoundEffect *> m_effects;
};
