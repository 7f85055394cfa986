#include "BatchLog.h"

#include "DurableFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

QString batchResultName(BatchResult result)
{
    switch (result) {
    case BatchResult::Verified:
        return QStringLiteral("verified");
    case BatchResult::Mismatch:
        return QStringLiteral("mismatch");
    case BatchResult::Failed:
        return QStringLiteral("failed");
    case BatchResult::AlreadyDone:
        return QStringLiteral("already-done");
    case BatchResult::WrongFamily:
        return QStringLiteral("wrong-family");
    }
    return {};
}

QString BatchLog::defaultPath(const QString &dataDirectory, const QString &sourceName,
                              const QDateTime &when)
{
    QString name = sourceName;
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]+")), QStringLiteral("_"));
    if (name.isEmpty())
        name = QStringLiteral("batch");
    return QDir(dataDirectory)
        .filePath(QStringLiteral("batches/%1-%2.csv")
                      .arg(when.toString(QStringLiteral("yyyyMMdd-HHmmss")), name.left(60)));
}

QString BatchLog::csvField(const QString &text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') &&
        !text.contains(u'\r'))
        return text;
    QString quoted = text;
    quoted.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    return u'"' + quoted + u'"';
}

QString BatchLog::csvRow(const BatchRow &row)
{
    // One line a row: the detail's own lines are run together.
    QString detail = row.detail;
    detail.replace(QStringLiteral("\r"), QString());
    detail.replace(u'\n', QStringLiteral(" / "));
    return QStringList{row.time.toOffsetFromUtc(row.time.offsetFromUtc()).toString(Qt::ISODate),
                       QString::number(row.serial),
                       QStringLiteral("0x%1").arg(row.family, 2, 16, QLatin1Char('0')),
                       batchResultName(row.result),
                       QString::number(row.seconds, 'f', 1),
                       csvField(detail)}
        .join(u',');
}

bool BatchLog::open(QString *error)
{
    QString why;
    const bool ok = create(&why);
    if (!ok && error)
        *error = why;
    return ok;
}

bool BatchLog::create(QString *error)
{
    const QFileInfo info(m_path);
    if (!QDir().mkpath(info.absolutePath())) {
        if (error)
            *error = QStringLiteral("%1: the directory cannot be made").arg(info.absolutePath());
        return false;
    }
    if (!info.exists() || info.size() == 0) {
        if (!DurableFile::write(m_path, QByteArray(kHeader) + '\n', error))
            return false;
        DurableFile::syncDirectory(info.absolutePath());
        return true;
    }
    // An existing log goes on; a last row cut off by a crash gets its line end.
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(m_path, file.errorString());
        return false;
    }
    file.seek(file.size() - 1);
    const bool ended = file.read(1) == "\n";
    file.close();
    return ended || DurableFile::writeAt(m_path, info.size(), "\n", error);
}

bool BatchLog::append(const BatchRow &row, QString *error)
{
    QString why;
    const qint64 end = QFileInfo(m_path).size();
    const bool ok = DurableFile::writeAt(m_path, end, csvRow(row).toUtf8() + '\n', &why);
    if (!ok && error)
        *error = QStringLiteral("%1: %2").arg(m_path, why);
    return ok;
}
