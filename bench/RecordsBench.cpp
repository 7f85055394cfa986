// Store timings of the records engine: 1,000 validators (61,000 rows with their channels)
// stored one by one, each commit rewriting what changed and rebuilding both indexes with the
// files flushed to disk, then each located by its identification. With a language driver id
// (0x58 for DBWINWE0, say) the tables are made under that driver, whose keys sort by its
// weights, and the identifications carry accented letters.
// Then the sharing: stores while a second data module (another program) holds the same tables
// open, stores alternating between the two (each first reads what the other stored), and the
// cost of the table lock itself. Last, the browser's filter at 10,000 validators
// (RecordsBrowserBench.cpp).
//   build/bin/records_bench [count] [directory] [driver]
// With --sources, the directory and a server side by side through the store interface
// (SourcesBench.cpp).
#include "DbfTable.h"
#include "TDBModule.h"
#include "TableLock.h"
#include "TableSchema.h"
#include "UserPrompt.h"
#include "ValidatorStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <vector>

int benchBrowserFilter(int count);
int benchSources(int count);

namespace {

void report(const char *what, std::vector<qint64> ns)
{
    std::sort(ns.begin(), ns.end());
    const double mean =
        double(std::accumulate(ns.begin(), ns.end(), qint64(0))) / double(ns.size());
    std::printf("%-28s n=%zu  mean %.3f ms  median %.3f ms  p95 %.3f ms  max %.3f ms\n", what,
                ns.size(), mean / 1e6, double(ns[ns.size() / 2]) / 1e6,
                double(ns[ns.size() * 95 / 100]) / 1e6, double(ns.back()) / 1e6);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--sources") == 0)
        return benchSources(argc > 2 ? std::max(100, atoi(argv[2])) : 10000);
    const int count = argc > 1 ? std::max(1, atoi(argv[1])) : 1000;
    QTemporaryDir temp;
    const QString dir = argc > 2 && argv[2][0] ? QString::fromLocal8Bit(argv[2]) : temp.path();
    const LanguageDriver *driver =
        argc > 3 ? LanguageDriver::byId(quint8(std::strtol(argv[3], nullptr, 0))) : nullptr;
    if (argc > 3 && !driver) {
        std::fprintf(stderr, "unknown language driver %s\n", argv[3]);
        return 2;
    }
    const QString stem = driver ? QStringLiteral("Validateur é") : QStringLiteral("VALIDATOR");
    if (driver) {
        for (const TableSchema *schema : TableSchema::all()) {
            QString error;
            const QString path = DbfTable::findInDirectory(dir, schema->fileName);
            if (!QFileInfo::exists(path) && !DbfTable::create(path, *schema, &error, *driver)) {
                std::fprintf(stderr, "%s\n", qPrintable(error));
                return 1;
            }
        }
    }

    TDBModule db;
    if (!db.open(dir)) {
        std::fprintf(stderr, "%s\n", qPrintable(db.errorString()));
        return 1;
    }
    SilentPrompt prompt;
    ValidatorStore store(db, prompt);
    ConfigImage image = ConfigImage::blank();
    for (int k = 0; k < kChannels; ++k)
        image.channels[std::size_t(k)].fill(quint8(k));

    std::vector<qint64> stores, firstStores, lastStores, locates, loads;
    QElapsedTimer timer;
    for (int i = 0; i < count; ++i) {
        const QString ident =
            QStringLiteral("%1 %2").arg(stem).arg((i * 7919) % count, 5, 10, QLatin1Char('0'));
        image.prices[0] = quint8(i);
        timer.start();
        if (store.store(image, ident, QStringLiteral("bench")) != ValidatorStore::Outcome::Stored) {
            std::fprintf(stderr, "store %d failed: %s\n", i, qPrintable(store.errorString()));
            return 1;
        }
        const qint64 ns = timer.nsecsElapsed();
        stores.push_back(ns);
        (i < count / 10 ? firstStores : lastStores).push_back(ns);
        if (i >= count / 10 && i < count - count / 10)
            lastStores.pop_back();
    }
    for (int i = 0; i < count; ++i) {
        const QString ident =
            QStringLiteral("%1 %2").arg(stem.toLower()).arg(i, 5, 10, QLatin1Char('0'));
        timer.start();
        const int row = db.Gettoniere()->locate(QStringLiteral("IDENT"), ident);
        const std::vector<int> channels =
            db.Channel()->locateAll(QStringLiteral("MONNAYEUR"), ident);
        locates.push_back(timer.nsecsElapsed());
        if (row < 0 || channels.size() != std::size_t(kChannels)) {
            std::fprintf(stderr, "locate %d failed\n", i);
            return 1;
        }
        timer.start();
        ConfigImage loaded;
        store.load(ident, loaded);
        loads.push_back(timer.nsecsElapsed());
    }
    std::printf("%d validators, %d channel rows, driver %s, in %s\n", count,
                db.Channel()->recordCount(), db.Channel()->driver()->name, qPrintable(dir));
    report("store (all)", stores);
    report("store (first tenth)", firstStores);
    report("store (last tenth)", lastStores);
    report("locate (validator+channels)", locates);
    report("load", loads);

    // What one save costs on the full channel table: a new validator (the channel rows are
    // appended) and an overwrite of a stored one (its rows are replaced), each one commit of
    // both tables.
    {
        struct YesPrompt final : UserPrompt
        {
            void tell(const QString &, Kind) override {}
            Answer ask(const QString &, Kind, Buttons) override { return Answer::Yes; }
        } yes;
        ValidatorStore overwriter(db, yes);
        std::vector<qint64> saves, overwrites;
        for (int i = 0; i < 30; ++i) {
            image.prices[2] = quint8(i);
            timer.start();
            if (overwriter.store(image, QStringLiteral("SAVE %1").arg(i), QStringLiteral("x")) !=
                ValidatorStore::Outcome::Stored)
                return 1;
            saves.push_back(timer.nsecsElapsed());
            const QString ident =
                QStringLiteral("%1 %2").arg(stem).arg((i * 31) % count, 5, 10, QLatin1Char('0'));
            timer.start();
            if (overwriter.store(image, ident, QStringLiteral("again")) !=
                ValidatorStore::Outcome::Stored)
                return 1;
            overwrites.push_back(timer.nsecsElapsed());
        }
        std::printf("one save on %d channel rows\n", db.Channel()->recordCount());
        report("save (new validator)", saves);
        report("save (overwrite)", overwrites);
    }

    // Another program holds the tables open: this one's stores do not wait for it.
    TDBModule other;
    if (!other.open(dir)) {
        std::fprintf(stderr, "%s\n", qPrintable(other.errorString()));
        return 1;
    }
    ValidatorStore otherStore(other, prompt);
    std::vector<qint64> held, alternating, exclusive, shared, changeLocks;
    for (int i = 0; i < 50; ++i) {
        image.prices[1] = quint8(i);
        timer.start();
        if (store.store(image, QStringLiteral("HELD %1").arg(i), QStringLiteral("bench")) !=
            ValidatorStore::Outcome::Stored)
            return 1;
        held.push_back(timer.nsecsElapsed());
    }
    // Both store in turn: each store first reads the tables the other changed.
    for (int i = 0; i < 20; ++i) {
        ValidatorStore &s = i % 2 ? store : otherStore;
        timer.start();
        if (s.store(image, QStringLiteral("TURN %1").arg(i), QStringLiteral("bench")) !=
            ValidatorStore::Outcome::Stored)
            return 1;
        alternating.push_back(timer.nsecsElapsed());
    }
    TableLock lock(db.Channel()->filePath());
    for (int i = 0; i < 1000; ++i) {
        timer.start();
        lock.lock(TableLock::Mode::Exclusive);
        lock.unlock();
        exclusive.push_back(timer.nsecsElapsed());
        timer.start();
        lock.lock(TableLock::Mode::Shared);
        lock.unlock();
        shared.push_back(timer.nsecsElapsed());
    }
    db.refresh();
    for (int i = 0; i < 1000; ++i) {
        timer.start();
        {
            const TableChangeLock both({db.Gettoniere(), db.Channel()});
        }
        changeLocks.push_back(timer.nsecsElapsed());
    }
    std::printf("sharing: %d channel rows, a second data module holding the tables open\n",
                db.Channel()->recordCount());
    report("store (other program open)", held);
    report("store (in turn with it)", alternating);
    report("lock+unlock exclusive", exclusive);
    report("lock+unlock shared", shared);
    report("change lock, both tables", changeLocks);
    return benchBrowserFilter(10000);
}
