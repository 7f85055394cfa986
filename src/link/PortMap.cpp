#include "PortMap.h"

#include <QSerialPortInfo>
#include <QSettings>
#include <algorithm>

QString PortMap::lookup(const QString &map, int n)
{
    const QString wanted = QStringLiteral("COM%1").arg(n);
    const QStringList entries = map.split(u',', Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const qsizetype eq = entry.indexOf(u'=');
        if (eq > 0 && entry.left(eq).trimmed().compare(wanted, Qt::CaseInsensitive) == 0)
            return entry.mid(eq + 1).trimmed();
    }
    return {};
}

QString PortMap::systemPortFor(int n)
{
#ifdef Q_OS_WIN
    return QStringLiteral("COM%1").arg(n);
#else
    const QString fromEnv = lookup(qEnvironmentVariable("TARVIK_PORTS"), n);
    if (!fromEnv.isEmpty())
        return fromEnv;
    QSettings settings(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik"));
    const QString fromSettings =
        lookup(settings.value(QStringLiteral("DefaultSettings/PortMap")).toString(), n);
    if (!fromSettings.isEmpty())
        return fromSettings;
    QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    std::sort(ports.begin(), ports.end(), [](const QSerialPortInfo &a, const QSerialPortInfo &b) {
        return a.systemLocation() < b.systemLocation();
    });
    if (n >= 1 && n <= ports.size())
        return ports.at(n - 1).systemLocation();
    return {};
#endif
}
