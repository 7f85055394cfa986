#include "EffectSoundPlayer.h"

#include "ResourceFiles.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {
void swallow(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

EffectSoundPlayer::EffectSoundPlayer(QObject *parent) : QObject(parent) {}

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

void EffectSoundPlayer::play(Sound sound)
{
    const QString file = ResourceFiles::path(soundFileName(sound));
    if (!QFile::exists(file) || !audioAvailable())
        return;
    QSoundEffect *&effect = m_effects[sound];
    if (!effect) {
        effect = new QSoundEffect(this);
        effect->setSource(QUrl::fromLocalFile(file));
    }
    effect->play();
}
