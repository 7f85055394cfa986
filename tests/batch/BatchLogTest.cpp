// The batch's log: rows as CSV on one line each, and a log cut off by a crash goes on cleanly.
#include "BatchLog.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

BatchRow row(quint32 serial, BatchResult result, const QString &detail)
{
    BatchRow r;
    r.time = QDateTime(QDate(2026, 11, 26), QTime(2, 30, 5), QTimeZone(3600));
    r.serial = serial;
    r.family = 0x13;
    r.result = result;
    r.seconds = 6.34;
    r.detail = detail;
    return r;
}

TEST(BatchLogTest, RowsAreOneCsvLineEach)
{
    EXPECT_EQ(BatchLog::csvRow(row(2001, BatchResult::Verified, {})),
              QStringLiteral("2026-11-26T02:30:05+01:00,2001,0x13,verified,6.3,"));
    // A detail with commas, quotes and lines of its own stays one field of one line.
    EXPECT_EQ(BatchLog::csvRow(row(7, BatchResult::Failed, "Fault, \"pulled\"\nChannels 1-9")),
              QStringLiteral("2026-11-26T02:30:05+01:00,7,0x13,failed,6.3,"
                             "\"Fault, \"\"pulled\"\" / Channels 1-9\""));
    for (auto [result, name] : {std::pair{BatchResult::Mismatch, "mismatch"},
                                {BatchResult::AlreadyDone, "already-done"},
                                {BatchResult::WrongFamily, "wrong-family"}})
        EXPECT_EQ(batchResultName(result), QLatin1String(name));
    EXPECT_EQ(BatchLog::defaultPath(QStringLiteral("/data"), QStringLiteral("route 7/new"),
                                    QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5))),
              QStringLiteral("/data/batches/20260102-030405-route_7_new.csv"));
}

TEST(BatchLogTest, ALogCutOffByACrashGoesOnOnANewLine)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("batches/run.csv"));
    BatchLog log(path);
    QString error;
    ASSERT_TRUE(log.open(&error)) << qPrintable(error);
    ASSERT_TRUE(log.append(row(2001, BatchResult::Verified, {}), &error));
    // Killed in the middle of the next row.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("2026-11-26T02:31:00+01:00,2002,0x");
    file.close();

    BatchLog again(path);
    ASSERT_TRUE(again.open(&error)) << qPrintable(error);
    ASSERT_TRUE(again.append(row(2003, BatchResult::WrongFamily, {}), &error));
    const QList<QByteArray> lines = contents(path).split('\n');
    ASSERT_EQ(lines.size(), 5); // the last one empty: every row ends its line
    EXPECT_EQ(lines[0], BatchLog::kHeader);
    EXPECT_TRUE(lines[1].contains(",2001,0x13,verified,"));
    EXPECT_EQ(lines[2], "2026-11-26T02:31:00+01:00,2002,0x");
    EXPECT_TRUE(lines[3].contains(",2003,0x13,wrong-family,"));

    // A log where no directory can be made is refused with the reason.
    BatchLog nowhere(dir.filePath(QStringLiteral("batches/run.csv/inside/log.csv")));
    EXPECT_FALSE(nowhere.open(&error));
    EXPECT_FALSE(error.isEmpty());
}

} // namespace
