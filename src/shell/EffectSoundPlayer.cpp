#include "EffectSoundPlayer.h"

#include "ResourceFiles.h"

#include <QAudioDevice>
#include <QEventLoop>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <QtEndian>

namespace {

void swallow(QtMsgType, const QMessageLogContext &, const QString &) {}

// A sound whose header does not tell its length is waited for this long at most.
constexpr std::chrono::milliseconds kUnknownLength{3000};
// What the audio system may take, beyond the sound's length, to start it and drain it.
constexpr std::chrono::milliseconds kSlack{400};

class EffectVoice final : public SoundVoice
{
public:
    explicit EffectVoice(const QString &file)
    {
        m_effect.setSource(QUrl::fromLocalFile(file));
        QObject::connect(&m_effect, &QSoundEffect::playingChanged, &m_effect, [this] {
            if (m_effect.isPlaying())
                m_started = true;
        });
    }
    void start() override
    {
        m_started = false;
        m_effect.play();
    }
    bool ended() const override
    {
        return (m_started && !m_effect.isPlaying()) || m_effect.status() == QSoundEffect::Error;
    }

private:
    QSoundEffect m_effect;
    bool m_started = false;
};

} // namespace

EffectSoundPlayer::EffectSoundPlayer(QObject *parent, VoiceMaker maker)
    : QObject(parent), m_maker(std::move(maker))
{
    if (!m_maker)
        m_maker = [this](const QString &file) { return effectVoice(file); };
}

EffectSoundPlayer::~EffectSoundPlayer() = default;

bool EffectSoundPlayer::audioAvailable()
{
    if (!m_audio) {
        // A machine without a sound server makes the audio backend warn; the program stays
        // quiet about it.
        const QtMessageHandler previous = qInstallMessageHandler(swallow);
        m_audio = !QMediaDevices::audioOutputs().isEmpty();
        qInstallMessageHandler(previous);
    }
    return *m_audio;
}

std::unique_ptr<SoundVoice> EffectSoundPlayer::effectVoice(const QString &file)
{
    if (!QFile::exists(file) || !audioAvailable())
        return nullptr;
    return std::make_unique<EffectVoice>(file);
}

std::optional<std::chrono::milliseconds> EffectSoundPlayer::wavLength(const QString &file)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray head = f.read(4096);
    if (head.size() < 12 || !head.startsWith("RIFF") || head.mid(8, 4) != "WAVE")
        return std::nullopt;
    quint32 byteRate = 0;
    // The chunks after "WAVE": "fmt " gives the bytes per second, "data" the sound's bytes.
    for (qsizetype at = 12; at + 8 <= head.size();) {
        const QByteArray id = head.mid(at, 4);
        const quint32 size = qFromLittleEndian<quint32>(head.constData() + at + 4);
        if (id == "fmt " && at + 20 <= head.size())
            byteRate = qFromLittleEndian<quint32>(head.constData() + at + 16);
        if (id == "data") {
            if (byteRate == 0)
                return std::nullopt;
            return std::chrono::milliseconds(qint64(size) * 1000 / byteRate);
        }
        at += 8 + qsizetype(size) + (size & 1);
    }
    return std::nullopt;
}

void EffectSoundPlayer::play(Sound sound)
{
    const QString file = ResourceFiles::path(soundFileName(sound));
    std::unique_ptr<SoundVoice> &voice = m_voices[sound];
    if (!voice)
        voice = m_maker(file);
    if (!voice)
        return;
    voice->start();
    // Played to its end, as the program goes on only after the sound: the wait lets the audio
    // system run but not the user's clicks and keys, and ends at the sound's length and a
    // little more whatever the audio system does.
    const auto limit = wavLength(file).value_or(kUnknownLength) + kSlack;
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (voice->ended())
            loop.quit();
    });
    poll.start(10);
    QTimer::singleShot(limit, &loop, &QEventLoop::quit);
    if (!voice->ended())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}
