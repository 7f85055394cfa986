// The browser of saved validators with 10,000 validators stored (600,000 channel rows): the
// time from a keystroke in its filter to the rows shown and the first one's channels read, as
// a person types an identification and takes letters back.
#include "DbfTable.h"
#include "MedianReport.h"
#include "SavedValidatorsModel.h"
#include "TDBModule.h"
#include "TableSchema.h"
#include "UserPrompt.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

// The tables written in one commit each, as another tool would have filled them: count
// validators SHOP-00000... with their 60 channels.
bool fillTables(const QString &dir, int count)
{
    for (const TableSchema *schema : TableSchema::all()) {
        QString error;
        if (!DbfTable::create(QDir(dir).filePath(schema->fileName), *schema, &error)) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return false;
        }
    }
    const QStringList windows = {"HFUHIGHMAX", "HFUHIGHMIN", "HFULOWMAX",  "HFULOWMIN",
                                 "LFMAX",      "LFMIN",      "DIMMAX",     "DIMMIN",
                                 "HFLHIGHMAX", "HFLHIGHMIN", "HFLLOWMAX",  "HFLLOWMIN",
                                 "HFLAMPMAX",  "HFLAMPMIN",  "SUBSTITUTE", "VALEUR"};
    DbfTable validators;
    DbfTable channels;
    if (!validators.open(DbfTable::findInDirectory(dir, QStringLiteral("Monnayeur.DBF"))) ||
        !channels.open(DbfTable::findInDirectory(dir, QStringLiteral("Canaux.dbf"))))
        return false;
    for (int i = 0; i < count; ++i) {
        const QString ident = QStringLiteral("SHOP-%1").arg(i, 5, 10, QLatin1Char('0'));
        const int v = validators.appendRecord();
        validators.setValue(v, QStringLiteral("IDENT"), ident);
        validators.setValue(v, QStringLiteral("DESCRIPTIO"),
                            QStringLiteral("Bar %1, machine %2").arg(i * 7 % 997).arg(i % 5));
        validators.setValue(v, QStringLiteral("VERSION"), QStringLiteral("19"));
        validators.setValue(v, QStringLiteral("BASE1"), 0x4005);
        validators.setValue(v, QStringLiteral("BASE2"), 0x4005);
        for (int k = 0; k < 60; ++k) {
            const int c = channels.appendRecord();
            channels.setValue(c, QStringLiteral("MONNAYEUR"), ident);
            channels.setValue(c, QStringLiteral("CANAL"), k + 1);
            for (const QString &field : windows)
                channels.setValue(c, field, 100 + k);
            channels.setValue(c, QStringLiteral("VALID"), true);
        }
    }
    if (!validators.commit() || !channels.commit()) {
        std::fprintf(stderr, "%s%s\n", qPrintable(validators.errorString()),
                     qPrintable(channels.errorString()));
        return false;
    }
    return true;
}

namespace {

constexpr double kTargetMs = 50.0;

} // namespace

int benchBrowserFilter(int count)
{
    QTemporaryDir temp;
    QElapsedTimer timer;
    timer.start();
    if (!fillTables(temp.path(), count))
        return 1;
    std::printf("browser: %d validators (%d channel rows) written in %.1f s\n", count, count * 60,
                double(timer.elapsed()) / 1e3);
    TDBModule db;
    if (!db.open(temp.path())) {
        std::fprintf(stderr, "%s\n", qPrintable(db.errorString()));
        return 1;
    }
    SilentPrompt prompt;
    timer.start();
    SavedValidatorsModel browser(db, prompt, nullptr);
    std::printf("browser: opened with %d validators listed in %.1f ms\n",
                browser.table().allCount(), double(timer.nsecsElapsed()) / 1e6);

    // Typing identifications and descriptions letter by letter, then taking them back.
    std::vector<qint64> keystrokes;
    for (const QString &word : {QStringLiteral("shop-0421"), QStringLiteral("bar 33"),
                                QStringLiteral("SHOP-9"), QStringLiteral("machine 4")}) {
        for (int n = 1; n <= word.size(); ++n) {
            timer.start();
            browser.setFilter(word.left(n));
            keystrokes.push_back(timer.nsecsElapsed());
        }
        for (int n = int(word.size()) - 1; n >= 0; --n) {
            timer.start();
            browser.setFilter(word.left(n));
            keystrokes.push_back(timer.nsecsElapsed());
        }
    }
    if (browser.table().rowCount() != count) {
        std::fprintf(stderr, "browser: %d rows shown after the filter was emptied\n",
                     browser.table().rowCount());
        return 1;
    }
    reportMedian("browser filter, a keystroke", keystrokes, kTargetMs, 28, 2);
    std::sort(keystrokes.begin(), keystrokes.end());
    const double slowest = double(keystrokes.back()) / 1e6;
    std::printf("browser filter, slowest keystroke %.2f ms (target %.0f ms: %s)\n", slowest,
                kTargetMs, slowest < kTargetMs ? "met" : "missed");
    return 0;
}
