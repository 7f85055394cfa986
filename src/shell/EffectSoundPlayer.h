#pragma once

#include "SoundPlayer.h"

#include <QObject>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

// One sound file ready to play: what the player needs of Qt Multimedia's sound effect.
class SoundVoice
{
public:
    virtual ~SoundVoice() = default;
    virtual void start() = 0;
    // The sound has played to its end, or it cannot play.
    virtual bool ended() const = 0;
};

// Plays the sounds of the resources directory with Qt Multimedia, each to its end before play()
// returns; the wait is bounded by the sound's length and a little more. The audio devices are
// looked for once, at the first sound, without letting the audio system's complaints through;
// with no device, or no sound file, nothing plays and play() returns at once.
class EffectSoundPlayer final : public QObject, public SoundPlayer
{
    Q_OBJECT
public:
    // Makes the voice of a sound file; null when it cannot play (no device, no file).
    using VoiceMaker = std::function<std::unique_ptr<SoundVoice>(const QString &file)>;

    // Without a maker, the voices are Qt Multimedia's sound effects.
    explicit EffectSoundPlayer(QObject *parent = nullptr, VoiceMaker maker = {});
    ~EffectSoundPlayer() override;

    void play(Sound sound) override;
    bool audioAvailable();

    // The length of a WAV file from its header; nothing when the header does not tell it.
    static std::optional<std::chrono::milliseconds> wavLength(const QString &file);

private:
    std::unique_ptr<SoundVoice> effectVoice(const QString &file);

    VoiceMaker m_maker;
    std::optional<bool> m_audio;
    std::map<Sound, std::unique_ptr<SoundVoice>> m_voices;
};
