#include "ResourceFiles.h"

#include "SoundPlayer.h"

#include <QCoreApplication>
#include <QDir>

namespace ResourceFiles {

QString directory()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/resources");
}

QString path(const QString &fileName)
{
    return QDir(directory()).filePath(fileName);
}

} // namespace ResourceFiles

QString soundFileName(Sound sound)
{
    return sound == Sound::Chimes ? QStringLiteral("Chimes.Wav") : QStringLiteral("Coin.Wav");
}
