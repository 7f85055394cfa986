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
            *error = QDir::toNativeSeparators(dir);
        return {};
    }
    // The time first, so that names sort oldest first.
    const QString stem = when.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")) +
                         QStringLiteral("-serial") + QString::number(image.serialNumber());
    QString path = backups.filePath(stem + QStringLiteral(".json"));
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = backups.filePath(stem + QStringLiteral("-%1.json").arg(n));
    // Written whole or not at all; a backup that could not be written prunes nothing.
    if (!saveConfigFile(path, image, error))
        return {};

    // An empty file (left by an older version on a full disk) holds nothing to put back: it is
    // dropped and never counted against the good ones.
    QStringList kept;
    const QFileInfoList files =
        backups.entryInfoList({QStringLiteral("*-serial*.json")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (file.size() == 0)
            backups.remove(file.fileName());
        else
            kept.append(file.fileName());
    }
    for (qsizetype i = 0; i + kMaxBackups < kept.size(); ++i)
        backups.remove(kept.at(i));
    return path;
}

QString newestBackup(const QString &dir, quint32 serial)
{
    // Names start with the time: the last in name order is the newest. A second backup of the
    // same millisecond carries "-2" after the serial number.
    const QString serialPart = QStringLiteral("-serial") + QString::number(serial);
    const QFileInfoList files =
        QDir(dir).entryInfoList({QStringLiteral("*") + serialPart + QStringLiteral("*.json")},
                                QDir::Files, QDir::Name | QDir::Reversed);
    for (const QFileInfo &file : files) {
        const QString rest = file.completeBaseName().section(serialPart, 1);
        const bool exact = rest.isEmpty() || (rest.startsWith(u'-') && rest.mid(1).toInt() > 0);
        if (exact && file.size() > 0)
            return file.filePath();
    }
    return {};
}
