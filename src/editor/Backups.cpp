#include "Backups.h"

#include "ConfigFile.h"
#include "ConfigImage.h"

#include <QDir>

QString keepBackup(const QString &dir, const ConfigImage &image, const QDateTime &when,
                   QString *error)
{
    QDir backups(dir);
    if (!backups.mkpath(QStringLiteral("."))) {
        if (error)
            *error = dir;
        return {};
    }
    // The time first, so that names sort oldest first.
    const QString stem = when.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")) +
                         QStringLiteral("-serial") + QString::number(image.serialNumber());
    QString path = backups.filePath(stem + QStringLiteral(".json"));
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = backups.filePath(stem + QStringLiteral("-%1.json").arg(n));
    if (!saveConfigFile(path, image, error))
        return {};

    const QStringList files =
        backups.entryList({QStringLiteral("*-serial*.json")}, QDir::Files, QDir::Name);
    for (qsizetype i = 0; i + kMaxBackups < files.size(); ++i)
        backups.remove(files.at(i));
    return path;
}
