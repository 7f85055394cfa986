#pragma once

#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

// A PDF read back by an independent reader, pdftotext (poppler-utils), with its layout kept.
// Empty when the file is not a PDF it can read.
inline QString pdfText(const QString &pdf)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    if (!reader.waitForFinished(30000) || reader.exitStatus() != QProcess::NormalExit ||
        reader.exitCode() != 0)
        return {};
    return QString::fromUtf8(reader.readAllStandardOutput());
}

// The rows of the sheet's channel table by channel number: a line that starts with a channel
// number followed by at least twelve window numbers; its words after the number.
inline QMap<int, QStringList> pdfChannelRows(const QString &text)
{
    QMap<int, QStringList> rows;
    const QRegularExpression number(QStringLiteral("^\\d+$"));
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines) {
        QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (words.size() < 13 || !number.match(words.first()).hasMatch())
            continue;
        int windows = 0;
        while (windows + 1 < words.size() && number.match(words.at(windows + 1)).hasMatch())
            ++windows;
        if (windows < 12)
            continue;
        const int channel = words.takeFirst().toInt();
        rows.insert(channel, words);
    }
    return rows;
}
