// The same operations through the one store interface on both kinds of data source: a data
// directory and a PostgreSQL server (the address in TARVIK_BENCH_SERVER, or the PG* variables
// when they name one, as under pg_virtualenv). With count validators stored (10,000: 610,000
// rows), stores 50 more (61 rows each) one by one, loads 200, and lists them all 20 times.
//   build/bin/records_bench --sources [count]
#include "DataSource.h"
#include "RecordStore.h"
#include "UserPrompt.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <numeric>
#include <vector>

namespace {

void line(const char *what, std::vector<qint64> ns)
{
    std::sort(ns.begin(), ns.end());
    const double mean =
        double(std::accumulate(ns.begin(), ns.end(), qint64(0))) / double(ns.size());
    std::printf("  %-22s n=%zu  mean %.3f ms  median %.3f ms  p95 %.3f ms\n", what, ns.size(),
                mean / 1e6, double(ns[ns.size() / 2]) / 1e6,
                double(ns[ns.size() * 95 / 100]) / 1e6);
    std::fflush(stdout);
}

int benchOne(const QString &source, int count)
{
    SilentPrompt prompt;
    DataSource data;
    QString error;
    if (!data.open(source, prompt) || !data.test(&error)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(source),
                     qPrintable(error.isEmpty() ? data.errorString() : error));
        return 1;
    }
    RecordStore &store = data.records();
    ConfigImage image = ConfigImage::blank();
    for (int k = 0; k < kChannels; ++k)
        image.channels[std::size_t(k)].fill(quint8(100 + k));
    // A server is filled through the store: each validator one transaction.
    if (data.isServer()) {
        for (int i = 0; i < count; ++i) {
            if (store.storeValidator(
                    image, QStringLiteral("SHOP-%1").arg(i, 5, 10, QLatin1Char('0')),
                    QStringLiteral("Bar %1").arg(i)) != ValidatorStore::Outcome::Stored) {
                std::fprintf(stderr, "fill %d failed: %s\n", i, qPrintable(store.errorString()));
                return 1;
            }
        }
    }
    std::printf("%s (%s), %d validators stored\n", data.isServer() ? "server" : "directory",
                qPrintable(data.where()), count);
    std::vector<qint64> stores, loads, lists;
    QElapsedTimer timer;
    for (int i = 0; i < 50; ++i) {
        image.prices[0] = quint8(i);
        timer.start();
        if (store.storeValidator(image, QStringLiteral("NEW-%1").arg(i), QStringLiteral("bench")) !=
            ValidatorStore::Outcome::Stored) {
            std::fprintf(stderr, "store %d failed: %s\n", i, qPrintable(store.errorString()));
            return 1;
        }
        stores.push_back(timer.nsecsElapsed());
    }
    for (int i = 0; i < 200; ++i) {
        ConfigImage loaded = ConfigImage::blank();
        const QString ident =
            QStringLiteral("shop-%1").arg((i * 37) % count, 5, 10, QLatin1Char('0'));
        timer.start();
        if (!store.loadValidator(ident, loaded, nullptr, nullptr, nullptr)) {
            std::fprintf(stderr, "load %d failed: %s\n", i, qPrintable(store.errorString()));
            return 1;
        }
        loads.push_back(timer.nsecsElapsed());
    }
    for (int i = 0; i < 20; ++i) {
        timer.start();
        const qsizetype listed = store.validators().size();
        lists.push_back(timer.nsecsElapsed());
        if (listed != count + 50) {
            std::fprintf(stderr, "listed %lld, not %d\n", qlonglong(listed), count + 50);
            return 1;
        }
    }
    line("store one (61 rows)", stores);
    line("load one", loads);
    line(qPrintable(QStringLiteral("list %1").arg(count + 50)), lists);
    return 0;
}

} // namespace

bool fillTables(const QString &dir, int count);

int benchSources(int count)
{
    QTemporaryDir dir;
    // The directory's tables are filled in one commit, as another tool would have filled them.
    if (!fillTables(dir.path(), count))
        return 1;
    int result = benchOne(dir.path(), count);
    QString server = qEnvironmentVariable("TARVIK_BENCH_SERVER");
    if (server.isEmpty() && qEnvironmentVariableIsSet("PGPORT")) {
        // A database of its own on the server the PG* variables name.
        server = QStringLiteral("postgresql:///") + qEnvironmentVariable("PGDATABASE");
    }
    if (server.isEmpty()) {
        std::printf("server: none named (TARVIK_BENCH_SERVER or the PG* variables)\n");
        return result;
    }
    return benchOne(server, count) | result;
}
