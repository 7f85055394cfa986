// The same operations through the one store interface on both kinds of data source: a data
// directory and a PostgreSQL server (the address in TARVIK_BENCH_SERVER, or the PG* variables
// when they name one, as under pg_virtualenv). Stores count validators (61 rows each) one by
// one, loads 200 of them, and lists them all 20 times.
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
    std::printf("%s (%s)\n", data.isServer() ? "server" : "directory", qPrintable(data.where()));
    ConfigImage image = ConfigImage::blank();
    for (int k = 0; k < kChannels; ++k)
        image.channels[std::size_t(k)].fill(quint8(k));
    std::vector<qint64> stores, first, last, loads, lists;
    QElapsedTimer timer;
    for (int i = 0; i < count; ++i) {
        const QString ident =
            QStringLiteral("VALIDATOR %1").arg((i * 7919) % count, 5, 10, QLatin1Char('0'));
        image.prices[0] = quint8(i);
        timer.start();
        if (store.storeValidator(image, ident, QStringLiteral("bench")) !=
            ValidatorStore::Outcome::Stored) {
            std::fprintf(stderr, "store %d failed: %s\n", i, qPrintable(store.errorString()));
            return 1;
        }
        const qint64 ns = timer.nsecsElapsed();
        stores.push_back(ns);
        if (i < 100)
            first.push_back(ns);
        if (i >= count - 100)
            last.push_back(ns);
    }
    for (int i = 0; i < 200; ++i) {
        ConfigImage loaded = ConfigImage::blank();
        const QString ident =
            QStringLiteral("validator %1").arg((i * 37) % count, 5, 10, QLatin1Char('0'));
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
        if (listed != count) {
            std::fprintf(stderr, "listed %lld, not %d\n", qlonglong(listed), count);
            return 1;
        }
    }
    line("store (all)", stores);
    line("store (first 100)", first);
    line("store (last 100)", last);
    line("load", loads);
    line(qPrintable(QStringLiteral("list %1").arg(count)), lists);
    return 0;
}

} // namespace

int benchSources(int count)
{
    QTemporaryDir dir;
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
