// One of several programs storing on one server at once, for ServerStressTest.
//   write URI WRITER COUNT: stores COUNT validators W<WRITER>-<n>; every fifth goes to one of
//     the identifications SHARED-<n> that all writers overwrite.
//   read URI MS: lists and loads every validator until MS have passed.
// The prices and the channels of a validator hold its writer and number, so that a reader sees
// whether its row and its 60 channels are from one store. Prints what went wrong and exits 1.
#include "DataSource.h"
#include "RecordStore.h"
#include "RecordingPrompt.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace {

int fail(const QString &what)
{
    QTextStream(stderr) << what << Qt::endl;
    return 1;
}

ConfigImage imageOf(int writer, int number)
{
    ConfigImage image = ConfigImage::blank();
    image.version[0] = 0x13;
    image.prices[0] = quint8(writer);
    image.prices[1] = quint8(number);
    for (int k = 0; k < kChannels; ++k) {
        for (int b = 0; b < 15; ++b)
            image.channels[std::size_t(k)][std::size_t(b)] =
                quint8((writer * 31 + number * 7 + k + b) % 250);
    }
    return image;
}

// Whether a loaded validator is one store's whole: its channels match its prices.
bool whole(const ConfigImage &image, const ValidatorStore::LoadReport &report)
{
    return report.missing.isEmpty() &&
           image.channels == imageOf(image.prices[0], image.prices[1]).channels;
}

int writeMain(RecordStore &store, int writer, int count)
{
    for (int i = 0; i < count; ++i) {
        const QString ident = i % 5 == 4 ? QStringLiteral("SHARED-%1").arg(i / 5)
                                         : QStringLiteral("W%1-%2").arg(writer).arg(i);
        if (store.storeValidator(imageOf(writer, i), ident,
                                 QStringLiteral("writer %1").arg(writer)) !=
            ValidatorStore::Outcome::Stored)
            return fail(QStringLiteral("%1 not stored: %2").arg(ident, store.errorString()));
        QTextStream(stdout) << ident << Qt::endl;
    }
    return 0;
}

int readMain(RecordStore &store, int ms)
{
    QElapsedTimer clock;
    clock.start();
    int loads = 0;
    do {
        const QList<ValidatorStore::Entry> entries = store.validators();
        if (!store.errorString().isEmpty())
            return fail(QStringLiteral("list failed: ") + store.errorString());
        for (const ValidatorStore::Entry &entry : entries) {
            ConfigImage image = ConfigImage::blank();
            ValidatorStore::LoadReport report;
            if (!store.loadValidator(entry.identification, image, nullptr, nullptr, &report))
                return fail(QStringLiteral("%1 not loaded: %2")
                                .arg(entry.identification, store.errorString()));
            if (!whole(image, report))
                return fail(entry.identification + QStringLiteral(" is not one store's whole"));
            ++loads;
        }
    } while (clock.elapsed() < ms);
    QTextStream(stdout) << loads << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 3)
        return fail(QStringLiteral("usage: write URI WRITER COUNT | read URI MS"));
    RecordingPrompt prompt(UserPrompt::Answer::Yes); // every overwrite is agreed
    DataSource source;
    if (!source.open(args[1], prompt))
        return fail(source.errorString());
    if (args[0] == QLatin1String("write") && args.size() == 4)
        return writeMain(source.records(), args[2].toInt(), args[3].toInt());
    if (args[0] == QLatin1String("read"))
        return readMain(source.records(), args[2].toInt());
    return fail(QStringLiteral("unknown mode"));
}
