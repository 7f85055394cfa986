#include "DataDirectory.h"

#include <QDir>
#include <QSettings>

namespace {

const QString kGroup = QStringLiteral("DefaultSettings");
const QString kKey = QStringLiteral("DataDirectory");
bool ignored = false;

} // namespace

QString DataDirectory::defaultPath()
{
#ifdef Q_OS_WIN
    return QStringLiteral("C:\\TarvikDB");
#else
    return QDir::home().filePath(QStringLiteral("TarvikDB"));
#endif
}

void DataDirectory::ignoreConfigured(bool ignore)
{
    ignored = ignore;
}

QString DataDirectory::configured()
{
    if (ignored)
        return {};
    QSettings s(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    s.beginGroup(kGroup);
    return s.value(kKey).toString().trimmed();
}

void DataDirectory::setConfigured(const QString &path)
{
    QSettings s(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    s.beginGroup(kGroup);
    if (path.trimmed().isEmpty())
        s.remove(kKey);
    else
        s.setValue(kKey, path.trimmed());
}

QString DataDirectory::resolve(const QString &explicitPath)
{
    if (!explicitPath.trimmed().isEmpty())
        return QDir::cleanPath(explicitPath.trimmed());
    const QString fromEnvironment = qEnvironmentVariable(kEnvironmentVariable).trimmed();
    if (!fromEnvironment.isEmpty())
        return QDir::cleanPath(fromEnvironment);
    const QString fromSettings = configured();
    if (!fromSettings.isEmpty())
        return QDir::cleanPath(fromSettings);
    return defaultPath();
}
