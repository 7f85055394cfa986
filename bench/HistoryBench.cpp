// The history beside the tables at a busy bench's size: 100,000 events, 999 validators with 90
// events each and one with 10,090. Lists one validator's history (a short one and the long one)
// with every configuration, records one event more (the lock, the last records read, the
// append flushed to the disk), and gives the size the events take.
//   build/bin/history_bench [events] [directory]
// The events are made in /dev/shm when it exists (fast flushes), then copied to the directory
// measured (a temporary one beside the build unless given), so that the timings are the disk's.
#include "HistoryFiles.h"
#include "MedianReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr quint32 kLongSerial = 1000;

ConfigImage benchImage(quint32 serial)
{
    ConfigImage image = ConfigImage::blank();
    image.version = {0x13, 0x05, 0x20};
    image.setSerialNumber(serial);
    for (int k = 0; k < 12; ++k) {
        for (int b = 0; b < 14; ++b)
            image.channels[std::size_t(k)][std::size_t(b)] = quint8(40 + 3 * k + b);
    }
    image.refreshRecordCopies();
    return image;
}

// Event n of a validator: reads move the counters, one write in five changes a window.
HistoryEvent benchEvent(quint32 serial, int n, ConfigImage &image)
{
    HistoryEvent event;
    event.serial = serial;
    event.time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000LL + qint64(n) * 60'000, Qt::UTC);
    const bool write = n % 5 == 4;
    event.kind = write ? QStringLiteral("write") : QStringLiteral("read");
    event.result = write ? QStringLiteral("verified") : QString();
    event.program = QStringLiteral("tarvik 0.1.0");
    event.machine = QStringLiteral("bench-3");
    event.user = QStringLiteral("technician");
    const quint32 coins = quint32(n) * 37;
    image.counters = {
        quint8(coins >> 24), quint8(coins >> 16), quint8(coins >> 8), quint8(coins), 0, 0, 0, 0};
    if (write)
        image.channels[std::size_t(n % 12)][Rec::HfuLowMin] ^= 0x03;
    event.configuration = image;
    return event;
}

bool copyTree(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    for (const QString &name : QDir(from).entryList(QDir::Files)) {
        if (!QFile::copy(QDir(from).filePath(name), QDir(to).filePath(name)))
            return false;
    }
    return true;
}

qint64 treeSize(const QString &dir)
{
    qint64 size = 0;
    QDirIterator it(dir, QDir::Files);
    while (it.hasNext())
        size += QFileInfo(it.next()).size();
    return size;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int total = argc > 1 ? std::max(1000, atoi(argv[1])) : 100'000;
    QTemporaryDir fast(QDir("/dev/shm").exists() ? QStringLiteral("/dev/shm/history-bench-XXXXXX")
                                                 : QDir::tempPath() + "/history-bench-XXXXXX");
    QTemporaryDir measured(QDir::currentPath() + QStringLiteral("/history-bench-XXXXXX"));
    const QString dir = argc > 2 ? QString::fromLocal8Bit(argv[2]) : measured.path();

    // 999 short histories and one long one, recorded event by event as the programs do.
    const int longCount = total / 10 + (total - total / 10) % 999;
    const int shortCount = (total - longCount) / 999;
    QElapsedTimer made;
    made.start();
    {
        HistoryFiles fill(fast.path());
        for (quint32 serial = 1; serial <= kLongSerial; ++serial) {
            ConfigImage image = benchImage(serial);
            const int count = serial == kLongSerial ? longCount : shortCount;
            for (int n = 0; n < count; ++n) {
                QString error;
                if (!fill.record(benchEvent(serial, n, image), &error)) {
                    std::fprintf(stderr, "%s\n", qPrintable(error));
                    return 1;
                }
            }
        }
    }
    const int events = 999 * shortCount + longCount;
    std::printf("%d events recorded in %.1f s (%d validators of %d events, one of %d)\n", events,
                double(made.elapsed()) / 1000, 999, shortCount, longCount);
    if (!copyTree(QDir(fast.path()).filePath("history"), QDir(dir).filePath("history"))) {
        std::fprintf(stderr, "the history could not be copied to %s\n", qPrintable(dir));
        return 1;
    }
    const qint64 bytes = treeSize(QDir(dir).filePath("history"));
    std::printf("size: %.1f MB in all, %.1f MB per 10,000 events (target 50 MB: %s)\n",
                double(bytes) / 1e6, double(bytes) / 1e6 * 10'000 / events,
                double(bytes) * 10'000 / events < 50e6 ? "met" : "missed");

    HistoryFiles store(dir);
    for (const quint32 serial : {quint32(500), kLongSerial}) {
        std::vector<qint64> ns;
        for (int run = 0; run < 30; ++run) {
            QElapsedTimer timer;
            timer.start();
            const std::optional<QList<HistoryEvent>> listed = store.events(serial);
            ns.push_back(timer.nsecsElapsed());
            if (!listed || listed->isEmpty())
                return 1;
        }
        const QString what = QStringLiteral("list validator %1 (%2 events)")
                                 .arg(serial)
                                 .arg(serial == kLongSerial ? longCount : shortCount);
        reportMedian(qPrintable(what), ns, 100, 40, 2);
    }
    {
        std::vector<qint64> ns;
        QElapsedTimer timer;
        timer.start();
        const std::optional<QList<HistorySerial>> serials = store.serials();
        ns.push_back(timer.nsecsElapsed());
        std::printf("list every serial number (%lld): %.0f ms\n",
                    serials ? qlonglong(serials->size()) : -1LL, double(ns[0]) / 1e6);
    }
    for (const quint32 serial : {quint32(500), kLongSerial}) {
        ConfigImage image = benchImage(serial);
        std::vector<qint64> ns;
        const int from = serial == kLongSerial ? longCount : shortCount;
        for (int n = from; n < from + 100; ++n) {
            const HistoryEvent event = benchEvent(serial, n, image);
            QElapsedTimer timer;
            timer.start();
            if (!store.record(event))
                return 1;
            ns.push_back(timer.nsecsElapsed());
        }
        const QString what = QStringLiteral("record one event (validator %1)").arg(serial);
        reportMedian(qPrintable(what), ns, 10, 40, 2);
    }
    return 0;
}
