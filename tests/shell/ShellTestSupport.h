#pragma once

#include "PortChoice.h"
#include "SimTransport.h"
#include "SoundPlayer.h"
#include "VirtualValidator.h"

#include <QList>
#include <QSettings>
#include <QTemporaryDir>

// Settings in a directory of their own for the test's life.
struct TempSettings
{
    QTemporaryDir dir;
    TempSettings()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir.path());
    }
    QString file() const { return dir.filePath(QStringLiteral("Brunfeld/Tarvik.conf")); }
};

struct RecordingSounds final : SoundPlayer
{
    QList<Sound> played;
    void play(Sound sound) override { played.append(sound); }
};

// COM1 to COM<free> are free; a validator answers on COM<validatorPort> (0: nowhere). The other
// ports open on a validator whose cable is pulled.
class BenchPorts final : public PortOpener
{
public:
    BenchPorts(int free, int validatorPort) : m_free(free), m_validatorPort(validatorPort)
    {
        m_silent.setConnected(false);
    }
    bool PortComFree(int n) override { return n <= m_free; }
    std::unique_ptr<Transport> ComInit(int n) override
    {
        if (!openable)
            return nullptr;
        return std::make_unique<SimTransport>(n == m_validatorPort ? &device : &m_silent);
    }
    bool openable = true;
    VirtualValidator device;

private:
    int m_free;
    int m_validatorPort;
    VirtualValidator m_silent;
};
