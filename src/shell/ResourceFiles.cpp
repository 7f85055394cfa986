#include "ResourceFiles.h"

#include "SoundPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ResourceFiles {

QString dataDirectoryFor(const QString &programDirectory)
{
    const QDir program(programDirectory);
    for (const QString &candidate :
         {program.path(), QDir::cleanPath(program.filePath(QStringLiteral("../share/tarvik")))}) {
        if (QFileInfo(QDir(candidate).filePath(QStringLiteral("resources"))).isDir())
            return candidate;
    }
    return program.path();
}

QString dataDirectory()
{
    return dataDirectoryFor(QCoreApplication::applicationDirPath());
}

QString directory()
{
    return dataDirectory() + QStringLiteral("/resources");
}

QString path(const QString &fileName)
{
    return QDir(directory()).filePath(fileName);
}

QString translationsDirectory()
{
    return dataDirectory() + QStringLiteral("/translations");
}

QString helpDirectory()
{
    return dataDirectory() + QStringLiteral("/help");
}

} // namespace ResourceFiles

QString soundFileName(Sound sound)
{
    return sound == Sound::Chimes ? QStringLiteral("Chimes.Wav") : QStringLiteral("Coin.Wav");
}
