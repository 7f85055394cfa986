// One of several programs on one data directory, for SharingTest. Each holds the tables open
// for its whole run, as the program does.
//   write DIR WRITER COUNT [DIE_AT_COMMIT]: stores COUNT validators; every fifth goes to one
//     of the identifications SHARED-n that all writers overwrite. With DIE_AT_COMMIT it is
//     killed half way through that commit (its table written, its index not).
//   read DIR MS: lists and loads every validator until MS have passed.
// A validator's description names its writer and number, and its channels hold a pattern of
// both, so that a reader sees whether the validator row and its channels are from one store.
// Prints what went wrong and exits 1, or exits 0.
#include "DbfTable.h"
#include "Messages.h"
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TableLock.h"
#include "ValidatorStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QThread>
#include <csignal>
#include <unistd.h>

namespace {

quint8 pattern(int writer, int number, int channel, int byte)
{
    return quint8((writer * 31 + number * 7 + channel + byte) % 250);
}

int fail(const QString &what)
{
    QTextStream(stderr) << what << Qt::endl;
    return 1;
}

int writeMain(const QString &dir, int writer, int count, int dieAt)
{
    RecordingPrompt prompt(UserPrompt::Answer::Yes);
    TDBModule db;
    if (!db.open(dir, &prompt))
        return fail(db.errorString());
    if (dieAt > 0) {
        static int commits = 0;
        static int last = dieAt;
        DbfTable::setCommitHook([](DbfTable::CommitStep step) {
            if (step == DbfTable::CommitStep::ReplaceIndex && ++commits == last)
                ::kill(::getpid(), SIGKILL);
            return DbfTable::HookAction::Continue;
        });
    }
    ValidatorStore store(db, prompt);
    for (int i = 0; i < count; ++i) {
        ConfigImage image = ConfigImage::blank();
        for (int k = 0; k < kChannels; ++k) {
            for (int b = 0; b < 15; ++b)
                image.channels[std::size_t(k)][std::size_t(b)] = pattern(writer, i, k, b);
        }
        const QString ident = i % 5 == 4 ? QStringLiteral("SHARED-%1").arg(i / 5)
                                         : QStringLiteral("W%1-%2").arg(writer).arg(i);
        prompt.clear();
        if (store.store(image, ident, QStringLiteral("%1 %2").arg(writer).arg(i)) !=
            ValidatorStore::Outcome::Stored)
            return fail(QStringLiteral("%1 not stored: %2").arg(ident, store.errorString()));
        if (prompt.told() != QStringList{messageText(Msg::FileSaved, {ident})})
            return fail(prompt.all().join(QLatin1Char('\n')));
    }
    return 0;
}

int readMain(const QString &dir, int ms)
{
    RecordingPrompt prompt;
    TDBModule db;
    if (!db.open(dir, &prompt))
        return fail(db.errorString());
    // Started at once with the others in a new directory, it may have made some of the tables.
    const QString created = messageText(Msg::RecordsTablesCreated, {db.dataDirectory(), {}});
    for (const QString &notice : db.notices()) {
        if (!notice.startsWith(created) &&
            notice != messageText(Msg::RecordsDirectoryCreated, {db.dataDirectory()}))
            return fail(notice);
    }
    prompt.clear();
    ValidatorStore store(db, prompt);
    QElapsedTimer clock;
    clock.start();
    int rounds = 0;
    int loads = 0;
    while (clock.elapsed() < ms) {
        for (const ValidatorStore::Entry &entry : store.list()) {
            ConfigImage image;
            QString description;
            ValidatorStore::LoadReport report;
            if (!store.load(entry.identification, image, &description, &report)) {
                // overwritten between the list and the load: it is there again at once
                if (!store.load(entry.identification, image, &description, &report))
                    return fail(entry.identification + QStringLiteral(": ") + store.errorString());
            }
            ++loads;
            if (!report.missing.isEmpty() || !report.duplicated.isEmpty())
                return fail(entry.identification + QStringLiteral(": channels missing or twice"));
            const QStringList who = description.split(QLatin1Char(' '));
            const int writer = who.value(0).toInt();
            const int number = who.value(1).toInt();
            for (int k = 0; k < kChannels; ++k) {
                if (image.channels[std::size_t(k)][3] != pattern(writer, number, k, 3))
                    return fail(entry.identification +
                                QStringLiteral(": its row and its channels are from two stores"));
            }
        }
        ++rounds;
        if (!prompt.all().isEmpty())
            return fail(prompt.all().join(QLatin1Char('\n')));
    }
    QTextStream(stdout) << rounds << " rounds " << loads << " loads" << Qt::endl;
    return 0;
}

// Holds the exclusive lock of a table for ms, as a program frozen in the middle of a change.
int holdMain(const QString &table, int ms)
{
    TableLock lock(table);
    if (!lock.lock(TableLock::Mode::Exclusive))
        return fail(lock.errorString());
    QTextStream(stdout) << "held" << Qt::endl;
    QThread::msleep(ulong(ms));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() >= 5 && args.at(1) == QLatin1String("write"))
        return writeMain(args.at(2), args.at(3).toInt(), args.at(4).toInt(), args.value(5).toInt());
    if (args.size() >= 4 && args.at(1) == QLatin1String("read"))
        return readMain(args.at(2), args.at(3).toInt());
    if (args.size() >= 4 && args.at(1) == QLatin1String("hold"))
        return holdMain(args.at(2), args.at(3).toInt());
    return fail(QStringLiteral("usage: write DIR WRITER COUNT [DIE_AT] | read DIR MS | hold "
                               "TABLE MS"));
}
